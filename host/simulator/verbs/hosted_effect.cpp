#include "host/simulator/verbs/hosted_effect.h"

#include "command_line/parameter_info.h"
#include "platform/atomic_file.h"

#include <utility>

namespace ov1
{

namespace
{

constexpr std::size_t document_limit = std::size_t{64} << 20;

/// Everything that can be set by a number, with its number at the host.
struct settable_parameters
{
    std::vector<parameter_info> table;
    std::vector<std::uint32_t> numbers;
    std::vector<store_value> kinds;
};

settable_parameters settable(const parameter_store& store)
{
    settable_parameters all;
    for (const auto& [number, p] : store.copy())
    {
        parameter_info info{p.name, param_type::continuous, p.min, p.max, 0.0};
        if (std::holds_alternative<bool>(p.value))
            info = {p.name, param_type::boolean, 0.0, 1.0, 0.0};
        else if (std::holds_alternative<int>(p.value))
            info.type = param_type::integral;
        else if (!std::holds_alternative<double>(p.value))
            continue;
        all.table.push_back(info);
        all.numbers.push_back(number);
        all.kinds.push_back(p.value);
    }
    return all;
}

store_value value_like(const store_value& kind, double value)
{
    if (std::holds_alternative<bool>(kind))
        return value != 0.0;
    if (std::holds_alternative<int>(kind))
        return static_cast<int>(value);
    return value;
}

} // namespace

bool hosted_effect::open(const host_request& request, std::vector<problem>& problems)
{
    host_error error;
    if (!host.create_instance(error))
    {
        problems.push_back({exit_code::unsupported, "the effect", error.description, {}});
        return false;
    }
    problem why;
    if (request.document && !read_document(*request.document, why))
    {
        problems.push_back(why);
        return false;
    }
    host.add_to_document();
    return apply(request.settings, problems);
}

bool hosted_effect::read_document(const std::string& path, problem& why)
{
    why = {exit_code::unreadable, path, {}, {}};
    const auto bytes = read_file(path, document_limit);
    if (!bytes)
    {
        why.reason = bytes.error().reason;
        return false;
    }
    why.code = exit_code::invalid_grade;
    return host.read_document(*bytes, why.reason);
}

bool hosted_effect::apply(const std::vector<std::string>& settings, std::vector<problem>& problems)
{
    const settable_parameters all = settable(host.get_parameters());
    std::vector<std::pair<std::size_t, double>> wanted;
    for (const std::string& setting : settings)
    {
        const std::size_t equals = setting.find('=');
        std::size_t place = 0;
        double value = 0.0;
        problem why{exit_code::usage, setting, "is no setting", "write NAME=VALUE"};
        if (equals != std::string::npos && find_parameter(setting.substr(0, equals), all.table, place, why) &&
            read_parameter_value(setting.substr(equals + 1), all.table[place], value, why))
            wanted.emplace_back(place, value);
        else
            problems.push_back(why);
    }
    if (!problems.empty())
        return false;
    for (const auto& [place, value] : wanted)
        if (!host.edit(all.numbers[place], value_like(all.kinds[place], value)))
            problems.push_back({exit_code::usage, all.table[place].name, "is refused by the effect", {}});
    return problems.empty();
}

bool hosted_effect::save(const host_request& request, problem& why)
{
    if (!request.save_document)
        return true;
    std::vector<std::uint8_t> bytes;
    why = {exit_code::cannot_write, *request.save_document, {}, {}};
    if (!host.write_document(bytes, why.reason))
        return false;
    const auto written =
        request.overwrite ? replace_file(*request.save_document, bytes) : create_file(*request.save_document, bytes);
    if (!written)
        why.reason = written.error().reason;
    return static_cast<bool>(written);
}

} // namespace ov1
