#include "presets/preset_manager.h"

#include "framework/icomponent_v1.h"
#include "platform/atomic_file.h"
#include "platform/iutils.h"
#include "presets/preset_reader.h"
#include "presets/preset_text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ov1
{

namespace
{

constexpr std::string_view extension = ".json";
constexpr std::size_t longest_name = 255 - extension.size(); // file systems take 255 bytes
constexpr const char* component_gone = "the effect is gone";

std::string joined(const std::string& folder, const std::string& leaf)
{
    return folder + iutils::get_instance().get_path_separator() + leaf;
}

/// Makes a folder under another; that it exists already is as good.
std::string made_folder(const std::string& parent, const std::string& leaf)
{
    const std::string folder = joined(parent, leaf);
    (void)iutils::get_instance().create_dir(folder);
    return folder;
}

std::string file_in(const std::string& folder, const std::string& name, std::string& reason)
{
    if (!is_preset_name(name, reason))
        return {};
    return joined(folder, name + std::string(extension));
}

bool list_presets(const std::string& folder, std::vector<std::string>& names)
{
    std::vector<std::string> files, found;
    if (!iutils::get_instance().list_dir(folder, &files, nullptr, false))
        return false;
    for (const std::string& file : files)
    {
        if (!file.ends_with(extension))
            continue;
        std::string name = file.substr(0, file.size() - extension.size());
        std::string reason;
        if (is_preset_name(name, reason))
            found.push_back(std::move(name));
    }
    std::ranges::sort(found);
    std::ranges::move(found, std::back_inserter(names));
    return true;
}

std::string bundled_folder()
{
    const std::string resources = iutils::get_instance().get_resource_directory();
    return resources.empty() ? std::string() : joined(resources, "presets");
}

bool is_control(unsigned char c) { return c < 0x20 || c == 0x7F; }

} // namespace

bool is_preset_name(const std::string& name, std::string& reason)
{
    if (name.find_first_not_of(' ') == std::string::npos)
        reason = "a preset needs a name";
    else if (name.starts_with('.'))
        reason = "the name begins with a dot";
    else if (name.find(iutils::get_instance().get_path_separator()) != std::string::npos)
        reason = "the name holds a path separator";
    else if (std::ranges::any_of(name, is_control))
        reason = "the name holds a control character";
    else if (name.size() > longest_name)
        reason = "the name is longer than " + std::to_string(longest_name) + " bytes";
    else
        return true;
    return false;
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
    if (effect && !common.empty())
        preset_path = made_folder(made_folder(common, "Plugin Presets"), effect->get_name());
    return preset_path;
}

std::string preset_manager::get_preset_file(const std::string& name, std::string& reason)
{
    const std::string folder = get_preset_path();
    if (!folder.empty())
        return file_in(folder, name, reason);
    reason = component.expired() ? component_gone : "there is no home folder for presets";
    return {};
}

std::string preset_manager::get_bundled_preset_file(const std::string& name, std::string& reason)
{
    const std::string folder = bundled_folder();
    if (!folder.empty())
        return file_in(folder, name, reason);
    reason = "there are no resources";
    return {};
}

bool preset_manager::getPresets(std::vector<std::string>& names)
{
    return !component.expired() && list_presets(get_preset_path(), names);
}

bool preset_manager::get_bundled_presets(std::vector<std::string>& names)
{
    return !component.expired() && list_presets(bundled_folder(), names);
}

bool preset_manager::load_file(const std::string& file, std::string& reason)
{
    const auto effect = component.lock();
    if (!effect)
    {
        reason = component_gone;
        return false;
    }
    preset_content content;
    return read_preset_file(file, content, reason) && apply_preset(content, *effect, reason);
}

bool preset_manager::load_preset(const std::string& name, std::string& reason)
{
    const std::string file = get_preset_file(name, reason);
    return !file.empty() && load_file(file, reason);
}

bool preset_manager::load_bundled_preset(const std::string& name, std::string& reason)
{
    const std::string file = get_bundled_preset_file(name, reason);
    return !file.empty() && load_file(file, reason);
}

bool preset_manager::save_preset(const std::string& name, bool overwrite, std::string& reason)
{
    const std::string file = get_preset_file(name, reason);
    const auto effect = component.lock();
    if (file.empty() || !effect)
        return false;
    const std::string text = write_preset_text(*effect);
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    const auto saved = overwrite ? replace_file(file, bytes) : create_file(file, bytes);
    if (!saved)
        reason = saved.error().reason;
    return static_cast<bool>(saved);
}

bool preset_manager::delete_preset(const std::string& name, std::string& reason)
{
    const std::string file = get_preset_file(name, reason);
    if (file.empty())
        return false;
    const auto removed = remove_file(file);
    if (!removed)
        reason = removed.error().reason;
    return static_cast<bool>(removed);
}

bool preset_manager::preset_rejected(const std::string& name, std::string& message)
{
    message.clear();
    const std::string file = get_preset_file(name, message);
    const auto effect = component.lock();
    preset_content content;
    return file.empty() || !effect || !read_preset_file(file, content, message) ||
           !is_preset_accepted(content, *effect, message);
}

bool preset_manager::preset_exists(const std::string& name)
{
    std::vector<std::string> names;
    return getPresets(names) && std::ranges::binary_search(names, name);
}

bool preset_manager::load_preset(const std::string& name)
{
    std::string reason;
    return load_preset(name, reason);
}

bool preset_manager::save_preset(const std::string& name, bool overwrite)
{
    std::string reason;
    return save_preset(name, overwrite, reason);
}

void preset_manager::delete_preset(const std::string& name)
{
    std::string reason;
    (void)delete_preset(name, reason);
}

} // namespace ov1
