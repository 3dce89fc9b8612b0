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

TEST(user_environment, folders_follow_the_variables_and_then_the_home)
{
    const user_environment bare = read({});
    EXPECT_EQ(bare.settings_folder, "/passwd/home/.config/orvane");
    EXPECT_EQ(bare.common_folder, "/passwd/home/.local/share/orvane");
    EXPECT_EQ(bare.resource_folder, "/opt/veridial/share/veridial");

    const user_environment home = read({{"HOME", "/h"}, {"XDG_DATA_HOME", "relative/path"}});
    EXPECT_EQ(home.settings_folder, "/h/.config/orvane");
    EXPECT_EQ(home.common_folder, "/h/.local/share/orvane") << "a relative folder is ignored";

    const user_environment set =
        read({{"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "/d"}, {"VERIDIAL_RESOURCES", "/r"}});
    EXPECT_EQ(set.settings_folder, "/c/orvane");
    EXPECT_EQ(set.common_folder, "/d/orvane");
    EXPECT_EQ(set.resource_folder, "/r");

    const auto nothing = [](const char*) { return std::string(); };
    EXPECT_EQ(read_user_environment(nothing, "/bin", "").settings_folder, "");
}

TEST(user_environment, scale_is_a_number_within_reason_or_not_set)
{
    const struct
    {
        const char* text;
        double scale;
    } rows[] = {
        {"", 0},    {"2", 2},   {"1.5", 1.5}, {"0.5", 0.5}, {"4", 4},   {"0.4", 0},
        {"4.1", 0}, {"1,5", 0}, {"2x", 0},    {"nan", 0},   {"inf", 0}, {"-1", 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(read({{"VERIDIAL_SCALE", row.text}}).scale, row.scale);
    }
}

TEST(user_environment, language_is_that_of_the_first_locale_variable_set)
{
    const struct
    {
        const char *all, *messages, *lang;
        language_id language;
    } rows[] = {
        {"", "", "", language_id::english},
        {"", "", "de_DE.UTF-8", language_id::german},
        {"", "de", "en_GB.UTF-8", language_id::german},
        {"C", "de_AT@euro", "de_DE", language_id::english},
        {"de.UTF-8", "en_US", "en_US", language_id::german},
        {"", "", "den_CA", language_id::english},
        {"", "", "fr_FR.UTF-8", language_id::english},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::string(row.all) + '/' + row.messages + '/' + row.lang);
        EXPECT_EQ(read({{"LC_ALL", row.all}, {"LC_MESSAGES", row.messages}, {"LANG", row.lang}}).language,
                  row.language);
    }
}

} // namespace
} // namespace ov1
