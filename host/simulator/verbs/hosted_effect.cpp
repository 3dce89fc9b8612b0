#include "host/simulator/verbs/hosted_effect.h"

#include "command_line/parameter_info.h"
#include "platform/atomic_file.h"

#include <span>

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

/// "Sky Strength=60".
result<assignment> read_setting(const std::string& setting, std::span<const parameter_info> table)
{
    const std::size_t equals = setting.find('=');
    if (equals == std::string::npos)
        return failure{failure_kind::usage, setting, "is no setting", "write NAME=VALUE"};
    return read_assignment(setting.substr(0, equals), setting.substr(equals + 1), table);
}

} // namespace

std::vector<failure> hosted_effect::open(const simulator_request& request)
{
    host_error error;
    if (!host.create_instance(error))
        return {{failure_kind::unsupported, "the effect", error.description}};
    if (request.document)
        if (const auto read = read_document(*request.document); !read)
            return {read.error()};
    host.add_to_document();
    return apply(request.settings);
}

result<> hosted_effect::read_document(const std::string& path)
{
    const auto bytes = read_file(path, document_limit);
    if (!bytes)
        return about(path, bytes.error());
    failure why{failure_kind::invalid_grade, path};
    if (!host.read_document(*bytes, why.reason))
        return why;
    return {};
}

std::vector<failure> hosted_effect::apply(const std::vector<std::string>& settings)
{
    const settable_parameters all = settable(host.get_parameters());
    std::vector<assignment> assignments;
    std::vector<failure> failures;
    for (const std::string& setting : settings)
    {
        if (const auto read = read_setting(setting, all.table))
            assignments.push_back(*read);
        else
            failures.push_back(read.error());
    }
    if (!failures.empty())
        return failures;
    for (const auto& [parameter, value] : assignments)
        if (!host.edit(all.numbers[parameter], value_like(all.kinds[parameter], value)))
            failures.push_back({failure_kind::usage, all.table[parameter].name, "is refused by the effect"});
    return failures;
}

result<> hosted_effect::render_to(const std::string& path, const picture_file& source, const tile_options& tiles,
                                  bool overwrite)
{
    rgba_picture rendered;
    host_error error;
    if (!host.render(source.picture, rendered, tiles, error))
        return failure{failure_kind::unsupported, "the effect", error.description};
    return write_picture(path, source, rendered, overwrite);
}

result<> hosted_effect::save(const simulator_request& request)
{
    if (!request.save_document)
        return {};
    std::vector<std::uint8_t> bytes;
    failure why{failure_kind::cannot_write, *request.save_document};
    if (!host.write_document(bytes, why.reason))
        return why;
    const auto written =
        request.overwrite ? replace_file(*request.save_document, bytes) : create_file(*request.save_document, bytes);
    if (!written)
        return about(*request.save_document, written.error());
    return {};
}

} // namespace ov1
