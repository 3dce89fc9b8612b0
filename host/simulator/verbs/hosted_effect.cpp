#include "host/simulator/verbs/hosted_effect.h"

#include "command_line/file_output.h"
#include "command_line/parameter_info.h"
#include "platform/atomic_file.h"

#include <span>

namespace ov1
{

namespace
{

// Documents have some kilobytes; the limit refuses other files before they fill the memory.
constexpr std::size_t document_limit = std::size_t{64} << 20; // bytes

/// The parameters that a number can set. The three vectors have the same order.
struct settable_parameters
{
    std::vector<parameter_info> table;
    std::vector<std::uint32_t> ids;
    std::vector<store_value> types; ///< a value of the parameter's type
};

settable_parameters settable(const parameter_store& store)
{
    settable_parameters all;
    for (const auto& [id, p] : store.copy())
    {
        parameter_info info{p.name, param_type::continuous, p.min, p.max, 0.0};
        // The host has no bounds for a toggle; on the command line it is 0 or 1.
        if (std::holds_alternative<bool>(p.value))
            info = {p.name, param_type::boolean, 0.0, 1.0, 0.0};
        else if (std::holds_alternative<int>(p.value))
            info.type = param_type::integral;
        // Colours and the state are not one number.
        else if (!std::holds_alternative<double>(p.value))
            continue;
        all.table.push_back(info);
        all.ids.push_back(id);
        all.types.push_back(p.value);
    }
    return all;
}

/// The value in the type that the store demands.
store_value value_like(const store_value& type, double value)
{
    if (std::holds_alternative<bool>(type))
        return value != 0.0;
    if (std::holds_alternative<int>(type))
        return static_cast<int>(value);
    return value;
}

/// "Sky Strength=60".
result<assignment> read_setting(const std::string& setting, std::span<const parameter_info> table)
{
    const std::size_t equals = setting.find('=');
    if (equals == std::string::npos)
        return failure{failure_kind::usage, setting, "is not a setting", "write NAME=VALUE"};
    return read_assignment(setting.substr(0, equals), setting.substr(equals + 1), table);
}

} // namespace

std::vector<failure> hosted_effect::open(const simulator_request& request)
{
    if (const auto created = host.create_instance(); !created)
        return {created.error()};
    if (request.document)
        if (const auto read = read_document(*request.document); !read)
            return {read.error()};
    // After the document is read, because the instance gets its state from there.
    host.add_to_document();
    return apply(request.settings);
}

result<> hosted_effect::read_document(const std::string& path)
{
    const auto bytes = read_file(path, document_limit);
    if (!bytes)
        return about(path, bytes.error());
    if (const auto read = host.read_document(*bytes); !read)
        return about(path, read.error());
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
    // All settings or none.
    if (!failures.empty())
        return failures;
    for (const auto& [parameter, value] : assignments)
        if (!host.edit(all.ids[parameter], value_like(all.types[parameter], value)))
            failures.push_back({failure_kind::usage, all.table[parameter].name, "is refused by the effect"});
    return failures;
}

result<> hosted_effect::render_to(const std::string& path, const picture_file& source, const tile_options& tiles,
                                  bool overwrite)
{
    const auto rendered = host.render(source.picture, tiles);
    if (!rendered)
        return rendered.error();
    return write_picture(path, source, *rendered, overwrite);
}

result<> hosted_effect::save(const simulator_request& request)
{
    if (!request.save_document)
        return {};
    const std::string& path = *request.save_document;
    const auto bytes = host.write_document();
    if (!bytes)
        return about(path, bytes.error());
    return write_output(path, *bytes, request.overwrite);
}

} // namespace ov1
