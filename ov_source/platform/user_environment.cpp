#include "platform/user_environment.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>
#include <vector>

#if defined(__APPLE__)
#include <mach-o/dyld.h>
#endif

namespace ov1
{

namespace
{

constexpr std::string_view vendor_folder = "orvane";
constexpr std::string_view resource_folder_from_program = "share/veridial";
// At other scales the editor would be unreadable or larger than a screen.
constexpr double smallest_scale = 0.5;
constexpr double largest_scale = 4.0;

/// The vendor's folder inside the folder that a variable names, or inside its default below the home folder.
std::string vendor_folder_under(const std::string& variable, const std::string& home, std::string_view usual)
{
    std::filesystem::path base = variable;
    if (!base.is_absolute() && !home.empty())
        base = std::filesystem::path(home) / usual;
    return base.is_absolute() ? (base / vendor_folder).string() : std::string();
}

/// 0 unless the whole text is a number within the limits.
double read_scale(const std::string& text)
{
    double scale = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), scale);
    const bool is_scale =
        error == std::errc{} && end == text.data() + text.size() && scale >= smallest_scale && scale <= largest_scale;
    return is_scale ? scale : 0.0;
}

/// From the user database; empty if the user is not in it.
std::string home_of_user()
{
    // Larger than any usual entry; an entry that does not fit counts as missing.
    std::vector<char> buffer(1 << 14);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir;
}

/// Empty if the system does not report it.
std::filesystem::path path_of_program()
{
#if defined(__APPLE__)
    std::vector<char> path(1 << 12);
    auto size = static_cast<std::uint32_t>(path.size());
    return _NSGetExecutablePath(path.data(), &size) == 0 ? path.data() : "";
#else
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
#endif
}

} // namespace

language_id language_of_locale(std::string_view locale)
{
    // The language ends at the territory, encoding or variant.
    return locale.substr(0, locale.find_first_of("_.@")) == "de" ? language_id::german : language_id::english;
}

user_environment read_user_environment(const variable_reader& read, const std::string& program_folder,
                                       const std::string& home)
{
    // A relative $HOME is ignored: it would depend on the current folder.
    const std::string set_home = read("HOME");
    const std::string& base = set_home.starts_with('/') ? set_home : home;
    user_environment result;
    result.settings_folder = vendor_folder_under(read("XDG_CONFIG_HOME"), base, ".config");
    result.common_folder = vendor_folder_under(read("XDG_DATA_HOME"), base, ".local/share");
    result.resource_folder = read("VERIDIAL_RESOURCES");
    if (result.resource_folder.empty())
        result.resource_folder =
            (std::filesystem::path(program_folder).parent_path() / resource_folder_from_program).string();
    result.scale = read_scale(read("VERIDIAL_SCALE"));
    // The order of POSIX: the first that is set decides, even if its language is not supported.
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
    {
        const std::string locale = read(name);
        if (locale.empty())
            continue;
        result.language = language_of_locale(locale);
        break;
    }
    return result;
}

user_environment read_user_environment()
{
    const auto read = [](const char* name) -> std::string
    {
        const char* text = std::getenv(name);
        return text == nullptr ? "" : text;
    };
    return read_user_environment(read, path_of_program().parent_path().string(), home_of_user());
}

} // namespace ov1
