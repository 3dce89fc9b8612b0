#include "presets/preset_manager.h"

#include "framework/icomponent_v1.h"
#include "platform/atomic_file.h"
#include "platform/iutils.h"
#include "presets/preset_reader.h"
#include "presets/preset_text.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace ov1
{

namespace
{

// Compared with upper and lower case, so that each name stands for one file.
constexpr std::string_view extension = ".json";
constexpr std::size_t longest_name = 255 - extension.size(); // file systems allow 255 bytes

std::string joined(const std::string& folder, const std::string& leaf)
{
    return folder + iutils::get_instance().get_path_separator() + leaf;
}

/// Makes a folder inside another; one that exists already is fine.
std::string made_folder(const std::string& parent, const std::string& leaf)
{
    const std::string folder = joined(parent, leaf);
    (void)iutils::get_instance().create_dir(folder);
    return folder;
}

/// The path of a preset in a folder. Every path is made here from a checked name, so that none leads out of the folder.
result<std::string> file_in(const std::string& folder, const std::string& name)
{
    if (auto accepted = check_preset_name(name); !accepted)
        return accepted.error();
    return joined(folder, name + std::string(extension));
}

/// The names in byte order; nothing if the folder cannot be read.
std::optional<std::vector<std::string>> list_presets(const std::string& folder)
{
    std::vector<std::string> files, names;
    if (!iutils::get_instance().list_dir(folder, &files, nullptr, false))
        return std::nullopt;
    for (const std::string& file : files) // names that no operation would accept are left out
    {
        if (!file.ends_with(extension))
            continue;
        std::string name = file.substr(0, file.size() - extension.size());
        if (check_preset_name(name))
            names.push_back(std::move(name));
    }
    std::ranges::sort(names);
    return names;
}

/// Empty in a build without resources.
std::string bundled_folder()
{
    const std::string resources = iutils::get_instance().get_resource_directory();
    return resources.empty() ? std::string() : joined(resources, "presets");
}

/// Bytes from 0x80 on belong to UTF-8 characters and are allowed.
bool is_control(unsigned char c) { return c < 0x20 || c == 0x7F; }

failure component_gone() { return {failure_kind::invalid_grade, {}, "the effect is gone"}; }

} // namespace

result<> check_preset_name(const std::string& name)
{
    const auto refused = [](std::string reason) { return failure{failure_kind::usage, {}, std::move(reason)}; };
    if (name.find_first_not_of(' ') == std::string::npos)
        return refused("a preset needs a name");
    // Hidden files, and the folder entries "." and "..".
    if (name.starts_with('.'))
        return refused("the name begins with a dot");
    if (name.find(iutils::get_instance().get_path_separator()) != std::string::npos)
        return refused("the name holds a path separator");
    if (std::ranges::any_of(name, is_control))
        return refused("the name holds a control character");
    if (name.size() > longest_name)
        return refused("the name is longer than " + std::to_string(longest_name) + " bytes");
    return {};
}

preset_manager::preset_manager(std::weak_ptr<icomponent_v1> component)
    : component(std::move(component))
{
}

std::string preset_manager::get_preset_path()
{
    if (!preset_path.empty())
        return preset_path;
    const auto effect = component.lock();
    const std::string common = iutils::get_instance().get_common_directory();
    // An empty path is not kept: the home folder may be there at the next call.
    if (effect && !common.empty())
        preset_path = made_folder(made_folder(common, "Plugin Presets"), effect->get_name());
    return preset_path;
}

result<std::string> preset_manager::get_preset_file(const std::string& name)
{
    if (component.expired())
        return component_gone();
    const std::string folder = get_preset_path();
    if (folder.empty())
        return failure{failure_kind::unreadable, {}, "there is no home folder for presets"};
    return file_in(folder, name);
}

result<std::string> preset_manager::get_bundled_preset_file(const std::string& name)
{
    const std::string folder = bundled_folder();
    if (folder.empty())
        return failure{failure_kind::unreadable, {}, "there are no resources"};
    return file_in(folder, name);
}

std::vector<std::string> preset_manager::get_bundled_presets()
{
    return list_presets(bundled_folder()).value_or(std::vector<std::string>());
}

bool preset_manager::preset_exists(const std::string& name)
{
    // By the list and not by the file alone: a folder of that name is no preset. The list is sorted.
    const auto names = component.expired() ? std::nullopt : list_presets(get_preset_path());
    return names && std::ranges::binary_search(*names, name);
}

result<> preset_manager::list(std::vector<std::string>& names)
{
    if (component.expired())
        return component_gone();
    const auto found = list_presets(get_preset_path());
    if (!found)
        return failure{failure_kind::unreadable, {}, "the presets cannot be listed"};
    names.insert(names.end(), found->begin(), found->end());
    return {};
}

// Here and below the component is locked before its path is asked for: with a path it is there, and it stays.
result<> preset_manager::load(const std::string& name)
{
    const auto effect = component.lock();
    const auto file = get_preset_file(name);
    if (!file)
        return file.error();
    auto content = read_preset_file(*file);
    if (!content)
        return content.error();
    return apply_preset(*std::move(content), *effect);
}

/// The text is made in memory first, so that a failure leaves no half-written file.
result<> preset_manager::save(const std::string& name, bool overwrite)
{
    const auto effect = component.lock();
    const auto file = get_preset_file(name);
    if (!file)
        return file.error();
    const std::string text = write_preset_text(*effect);
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    // Without overwrite, a file that has appeared since the user was asked is refused too.
    return write_file(*file, bytes, overwrite);
}

result<> preset_manager::remove(const std::string& name)
{
    const auto file = get_preset_file(name);
    if (!file)
        return file.error();
    return remove_file(*file);
}

result<> preset_manager::check(const std::string& name)
{
    const auto effect = component.lock();
    const auto file = get_preset_file(name);
    if (!file)
        return file.error();
    auto content = read_preset_file(*file);
    if (!content)
        return content.error();
    return check_preset(*content, *effect);
}

bool preset_manager::keep(const result<>& outcome)
{
    // The given results are bool or nothing: the reason stays here for get_failure.
    last_failure = outcome ? std::nullopt : std::optional(outcome.error());
    return !last_failure;
}

bool preset_manager::getPresets(std::vector<std::string>& names) { return keep(list(names)); }

bool preset_manager::load_preset(const std::string& name) { return keep(load(name)); }

bool preset_manager::save_preset(const std::string& name, bool overwrite) { return keep(save(name, overwrite)); }

void preset_manager::delete_preset(const std::string& name) { keep(remove(name)); }

bool preset_manager::preset_rejected(const std::string& name, std::string& message)
{
    const bool is_accepted = keep(check(name));
    message = is_accepted ? std::string() : last_failure->reason;
    return !is_accepted;
}

} // namespace ov1
