#include "platform/cutils_linux.h"

#include "platform/atomic_file.h"
#include "platform/desktop_open.h"
#include "platform/desktop_services.h"
#include "platform/folder_listing.h"
#include "platform/os_release.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace ov1
{

namespace
{

// Real files are far smaller; the limits keep a wrong file from filling the memory.
constexpr std::size_t resource_limit = std::size_t{256} << 20;
constexpr std::size_t os_release_limit = 1 << 16;
// Used where no desktop reports a size.
constexpr int usual_screen_width = 1920;
constexpr int usual_screen_height = 1080;
/// The convention of X11 desktops.
constexpr double dpi_of_scale_one = 96.0;

/// Empty if either part is empty: a store with an empty path stores nothing.
std::string settings_path(const std::string& folder, const std::string& name)
{
    return folder.empty() || name.empty() ? std::string() : folder + '/' + name + ".settings";
}

std::vector<std::uint8_t> copied(std::span<const std::uint8_t> bytes) { return {bytes.begin(), bytes.end()}; }

} // namespace

cutils_linux::cutils_linux(const std::string& vendor_name, const std::string& product_name,
                           user_environment user_environment)
    : environment(std::move(user_environment))
    , vendor_settings(settings_path(environment.settings_folder, vendor_name))
    , product_settings(settings_path(environment.settings_folder, product_name))
{
}

bool cutils_linux::set_bytes(const std::string& key, std::span<const std::uint8_t> bytes)
{
    return product_settings.set(key, copied(bytes));
}
bool cutils_linux::get_bytes(const std::string& key, std::vector<std::uint8_t>& bytes)
{
    return product_settings.get(key, bytes);
}
bool cutils_linux::del_bytes(const std::string& key) { return product_settings.remove(key); }
bool cutils_linux::set_string(const std::string& key, const std::string& text)
{
    return product_settings.set(key, text);
}
bool cutils_linux::get_string(const std::string& key, std::string& text) { return product_settings.get(key, text); }

bool cutils_linux::set_vendor_bytes(const std::string& key, std::span<const std::uint8_t> bytes)
{
    return vendor_settings.set(key, copied(bytes));
}
bool cutils_linux::get_vendor_bytes(const std::string& key, std::vector<std::uint8_t>& bytes)
{
    return vendor_settings.get(key, bytes);
}
bool cutils_linux::del_vendor_key(const std::string& key) { return vendor_settings.remove(key); }
bool cutils_linux::set_vendor_string(const std::string& key, const std::string& text)
{
    return vendor_settings.set(key, text);
}
bool cutils_linux::get_vendor_string(const std::string& key, std::string& text)
{
    return vendor_settings.get(key, text);
}
bool cutils_linux::set_vendor_uint32(const std::string& key, std::uint32_t value)
{
    return vendor_settings.set(key, value);
}
bool cutils_linux::get_vendor_uint32(const std::string& key, std::uint32_t& value)
{
    return vendor_settings.get(key, value);
}

std::string cutils_linux::get_os_name_string()
{
    utsname names;
    return uname(&names) == 0 ? names.sysname : "Linux";
}

bool cutils_linux::get_os_version_string(std::string& text)
{
    utsname names;
    if (uname(&names) != 0)
        return false;
    // The release also names the build, which is not part of the version.
    const std::string version = version_of_kernel_release(names.release);
    if (version.empty())
        return false;
    text = version;
    return true;
}

bool cutils_linux::get_os_string(std::string& text)
{
    std::string name;
    // The second is the fallback that the format defines.
    for (const char* path : {"/etc/os-release", "/usr/lib/os-release"})
    {
        const auto bytes = read_file(path, os_release_limit);
        if (!bytes)
            continue;
        // The first file that can be read counts, even without a name.
        name = pretty_name_of_os_release({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
        break;
    }
    text = (name.empty() ? get_os_name_string() : name) + (sizeof(void*) == 8 ? " (64 Bits)" : " (32 Bits)");
    return true;
}

bool cutils_linux::alert_box(void* parent_window, const std::string& title, const std::string& message,
                             const std::string& button)
{
    return alert_box(parent_window, title, message, button, {});
}

bool cutils_linux::alert_box(void* parent_window, const std::string& title, const std::string& message,
                             const std::string& first_button, const std::string& second_button)
{
    // Shared, because another thread may install other services meanwhile.
    const auto services = get_desktop_services();
    if (services->show_alert)
        return services->show_alert(parent_window, title, message, first_button, second_button);
    // A program without windows has no other place for the text.
    std::fputs((title + ": " + message + "\n").c_str(), stderr);
    return false;
}

bool cutils_linux::get_resource(const std::string& name, std::vector<std::uint8_t>& bytes)
{
    // Top level only: a name cannot point outside the folder.
    if (name.empty() || name.find('/') != std::string::npos)
        return false;
    auto found = read_file(environment.resource_folder + '/' + name, resource_limit);
    if (found)
        bytes = *std::move(found);
    return static_cast<bool>(found);
}

void cutils_linux::open_url(const std::string& text) { open_with_desktop(text); }

// The id of the first thread is that of the process.
bool cutils_linux::is_main_thread() { return gettid() == getpid(); }

bool cutils_linux::create_dir(const std::string& path)
{
    // The user's umask applies: users who want folders that others can write to have set it so.
    return !path.empty() && mkdir(path.c_str(), 0777) == 0;
}

const std::string& cutils_linux::get_path_separator()
{
    // Never destroyed: destructors that run after main may still use it.
    static const std::string& separator = *new std::string("/");
    return separator;
}

void cutils_linux::get_screen_dimensions(void* window, int& width, int& height)
{
    const auto services = get_desktop_services();
    int found_width = 0;
    int found_height = 0;
    const bool found = services->query_screen && services->query_screen(window, found_width, found_height) &&
                       found_width > 0 && found_height > 0;
    width = found ? found_width : usual_screen_width;
    height = found ? found_height : usual_screen_height;
}

std::string cutils_linux::get_common_directory()
{
    std::error_code error;
    if (!environment.common_folder.empty())
        // A failure shows when a file in the folder is opened.
        std::filesystem::create_directories(environment.common_folder, error);
    return environment.common_folder;
}

bool cutils_linux::list_dir(const std::string& path, std::vector<std::string>* files,
                            std::vector<std::string>* directories, bool full_paths)
{
    return list_folder(path, files, directories, full_paths);
}

double cutils_linux::get_dpi_scale()
{
    // The user's own setting wins.
    if (environment.scale > 0.0)
        return environment.scale;
    const auto services = get_desktop_services();
    const double scale = services->query_dpi ? services->query_dpi() / dpi_of_scale_one : 1.0;
    // Only 1 and 2, so that one-pixel lines and bitmaps stay sharp.
    return scale >= 1.5 ? 2.0 : 1.0;
}

std::string cutils_linux::get_resource_directory() { return environment.resource_folder; }

std::unique_ptr<iutils> make_system_utils()
{
    return std::make_unique<cutils_linux>("vendor", "veridial", read_user_environment());
}

} // namespace ov1
