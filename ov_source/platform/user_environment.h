// Folders, scale and language from the user's environment variables.
#pragma once

#include "shared/language_id.h"

#include <functional>
#include <string>
#include <string_view>

namespace ov1
{

/// Returns the value of an environment variable, empty if it is not set.
using variable_reader = std::function<std::string(const char* name)>;

/// Paths are absolute and end without a separator.
struct user_environment
{
    std::string settings_folder; ///< $XDG_CONFIG_HOME/orvane, by default ~/.config/orvane; empty without a home
    std::string common_folder;   ///< $XDG_DATA_HOME/orvane, by default ~/.local/share/orvane; empty without a home
    std::string resource_folder; ///< $VERIDIAL_RESOURCES, by default ../share/veridial beside the program's folder
    double scale = 0.0;          ///< $VERIDIAL_SCALE, 0.5 to 4; 0 if it is not set or not such a number
    language_id language = language_id::english; ///< of $LC_ALL, $LC_MESSAGES or $LANG, the first that is set
};

/// Reads the variables. program_folder contains the executable; home is used if $HOME is not set. Relative folders in
/// the XDG variables are ignored, as the XDG Base Directory standard requires (freedesktop.org).
user_environment read_user_environment(const variable_reader& read, const std::string& program_folder,
                                       const std::string& home);

/// The environment of this process.
user_environment read_user_environment();

/// The language of a locale name: German for "de", alone or with territory, encoding or variant ("de_DE.UTF-8").
language_id language_of_locale(std::string_view locale);

} // namespace ov1
