#include "standalone/jobs/grade_steps.h"

#include "platform/atomic_file.h"

namespace ov1
{

namespace
{

// 1 GiB, far more than the tables in use: a wrong file name must not fill the memory.
constexpr std::size_t largest_table_file = std::size_t{1} << 30;

} // namespace

media::row_grade grade_steps::for_stills() const
{
    if (input == nullptr && effect == nullptr)
        return {};
    // The copy in the function shares the tables, so that it may outlive this object.
    return [steps = *this](std::size_t y, argb_float* row, std::size_t count)
    {
        if (steps.input != nullptr)
            for (std::size_t x = 0; x < count; ++x)
                row[x] = steps.input->lookup(row[x]);
        if (steps.effect != nullptr)
            steps.effect->render_row(y, row, row, count);
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

result<std::shared_ptr<const cube_table>> read_input_table(const std::string& path)
{
    const auto bytes = read_file(path, largest_table_file);
    if (!bytes)
        return about(path, bytes.error());
    auto table = cube_table::read({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    if (!table)
        return failure{failure_kind::invalid_grade, path, "is not a valid .cube file: " + table.error().reason};
    return std::make_shared<const cube_table>(*std::move(table));
}

} // namespace ov1
