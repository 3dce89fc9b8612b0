// Holds the level diagram of ARCHITECTURE.md against the rooms of this build, and the include lines against the style.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace
{

namespace fs = std::filesystem;

struct room
{
    int level;
    std::string links;
    bool operator==(const room&) const = default;
};

std::string read(const fs::path& file)
{
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// Lines "3 effect: framework lut"; anything else is passed over.
std::map<std::string, room> rooms_in(const std::string& text)
{
    std::map<std::string, room> rooms;
    static const std::regex line(R"(^ *([0-5]) +([a-z_-]+): *([a-z_ -]*?) *$)");
    std::istringstream stream(text);
    std::smatch match;
    for (std::string l; std::getline(stream, l);)
        if (std::regex_match(l, match, line))
            rooms[match[2]] = {std::stoi(match[1]), match[3]};
    return rooms;
}

TEST(levels, the_diagram_names_every_room_of_the_build_with_its_level_and_links)
{
    const auto drawn = rooms_in(read(fs::path(SOURCE_DIR) / "ARCHITECTURE.md"));
    const auto built = rooms_in(read(LEVELS_FILE));
    ASSERT_FALSE(built.empty());
    for (const auto& [name, room] : built)
    {
        SCOPED_TRACE(name);
        const auto found = drawn.find(name);
        ASSERT_NE(found, drawn.end()) << "is not in the diagram";
        EXPECT_EQ(found->second.level, room.level);
        EXPECT_EQ(found->second.links, room.links);
    }
}

TEST(levels, arrows_of_the_diagram_go_down)
{
    const auto drawn = rooms_in(read(fs::path(SOURCE_DIR) / "ARCHITECTURE.md"));
    for (const auto& [name, room] : drawn)
    {
        std::istringstream links(room.links);
        for (std::string link; links >> link;)
        {
            SCOPED_TRACE(name + " -> " + link);
            ASSERT_TRUE(drawn.contains(link));
            EXPECT_LT(drawn.at(link).level, room.level);
        }
    }
}

TEST(levels, includes_name_a_folder_and_the_own_header_comes_first)
{
    static const std::regex include(R"re(^#include "([^"]+)")re");
    for (const char* folder : {"shared", "ov_source", "standalone", "host", "tools"})
    {
        if (!fs::exists(fs::path(SOURCE_DIR) / folder))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(SOURCE_DIR) / folder))
        {
            const fs::path& file = entry.path();
            if (file.extension() != ".cpp" && file.extension() != ".h")
                continue;
            SCOPED_TRACE(file.string());
            std::vector<std::string> included;
            std::istringstream stream(read(file));
            std::smatch match;
            for (std::string l; std::getline(stream, l);)
                if (std::regex_search(l, match, include))
                    included.push_back(match[1]);
            for (const std::string& header : included)
                EXPECT_TRUE(header.find('/') != std::string::npos && header.find("..") == std::string::npos) << header;
            if (file.extension() == ".cpp" && fs::exists(fs::path(file).replace_extension(".h")))
            {
                ASSERT_FALSE(included.empty());
                EXPECT_EQ(fs::path(included.front()).stem(), file.stem()) << "the own header comes first";
            }
        }
    }
}

} // namespace
