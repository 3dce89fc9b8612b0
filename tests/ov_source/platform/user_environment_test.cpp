#include "platform/user_environment.h"

#include <gtest/gtest.h>
#include <map>

namespace ov1
{
namespace
{

user_environment read(const std::map<std::string, std::string>& variables)
{
    const auto reader = [&](const char* name)
    {
        const auto found = variables.find(name);
        return found == variables.end() ? std::string() : found->second;
    };
    return read_user_environment(reader, "/opt/veridial/bin", "/passwd/home");
}

TEST(user_environment, folders_come_from_the_variables_or_the_home)
{
    const std::string share = "/opt/veridial/share/veridial";
    const std::pair<std::map<std::string, std::string>, std::string> rows[] = {
        {{}, "/passwd/home/.config/orvane /passwd/home/.local/share/orvane " + share},
        {{{"HOME", "/h"}, {"XDG_DATA_HOME", "relative/path"}}, "/h/.config/orvane /h/.local/share/orvane " + share},
        {{{"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "/d"}, {"VERIDIAL_RESOURCES", "/r"}}, "/c/orvane /d/orvane /r"}};
    for (const auto& [variables, expected] : rows)
    {
        const user_environment got = read(variables);
        EXPECT_EQ(got.settings_folder + ' ' + got.common_folder + ' ' + got.resource_folder, expected);
    }
    const auto nothing = [](const char*) { return std::string(); };
    EXPECT_EQ(read_user_environment(nothing, "/bin", "").settings_folder, "");
}

TEST(user_environment, scale_is_a_number_in_range_or_0)
{
    const std::pair<const char*, double> rows[] = {{"", 0},   {"2", 2},   {"1.5", 1.5}, {"0.5", 0.5},
                                                   {"4", 4},  {"0.4", 0}, {"4.1", 0},   {"1,5", 0},
                                                   {"2x", 0}, {"nan", 0}, {"inf", 0},   {"-1", 0}};
    for (const auto& [text, scale] : rows)
        EXPECT_EQ(read({{"VERIDIAL_SCALE", text}}).scale, scale) << text;
}

TEST(user_environment, language_comes_from_the_first_locale_variable_set)
{
    const std::tuple<const char*, const char*, const char*, bool> rows[] = {{"", "", "", false},
                                                                            {"", "", "de_DE.UTF-8", true},
                                                                            {"", "de", "en_GB.UTF-8", true},
                                                                            {"C", "de_AT@euro", "de_DE", false},
                                                                            {"de.UTF-8", "en_US", "en_US", true},
                                                                            {"", "", "den_CA", false},
                                                                            {"", "", "fr_FR.UTF-8", false}};
    for (const auto& [all, messages, lang, german] : rows)
        EXPECT_EQ(read({{"LC_ALL", all}, {"LC_MESSAGES", messages}, {"LANG", lang}}).language,
                  german ? language_id::german : language_id::english)
            << all << '/' << messages << '/' << lang;
}

} // namespace
} // namespace ov1
