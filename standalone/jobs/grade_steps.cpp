#include "standalone/jobs/grade_steps.h"

#include "platform/atomic_file.h"

namespace ov1
{

namespace
{

constexpr std::size_t largest_table_file = std::size_t{1} << 30;

} // namespace

media::row_grade grade_steps::for_stills() const
{
    if (input == nullptr && effect == nullptr)
        return {};
    return [steps = *this](std::size_t y, const argb_float* in, argb_float* out, std::size_t count)
    {
        if (steps.input != nullptr)
            for (std::size_t x = 0; x < count; ++x)
                out[x] = steps.input->lookup(in[x]);
        if (steps.effect != nullptr)
            steps.effect->render_row(y, steps.input != nullptr ? out : in, out, count);
    };
}

media::plane_grade grade_steps::for_clips() const
{
    if (input == nullptr && effect == nullptr)
        return {};
    return [steps = *this](std::size_t y, const rgb_planes<float>& row, std::size_t count)
    {
        if (steps.input != nullptr)
            steps.input->apply(row, count);
        if (steps.effect != nullptr)
            steps.effect->render_row_planes(y, row, count);
    };
}

bool read_input_table(const std::string& path, std::shared_ptr<const cube_table>& table, problem& why)
{
    why = {exit_code::unreadable, path, {}, {}};
    const auto bytes = read_file(path, largest_table_file);
    if (!bytes)
    {
        why.reason = bytes.error().reason;
        return false;
    }
    auto read = cube_table::read({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    if (!read)
    {
        why.code = exit_code::invalid_grade;
        why.reason = "is no .cube table: " + read.error().reason;
        return false;
    }
    table = std::make_shared<const cube_table>(std::move(*read));
    return true;
}

} // namespace ov1
