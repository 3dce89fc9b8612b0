// Compares the diagram and the table of ARCHITECTURE.md with the rooms of this build, and include lines with the style.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace
{

namespace fs = std::filesystem;

struct room
{
    int level = 0;
    std::set<std::string> arrows; // the rooms that it links directly
    std::string folder;
};

using rooms = std::map<std::string, room>;

std::string read(const fs::path& file)
{
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// Lines "3 effect: framework lut", in a diagram without and in the build's list with "| ov_source/effect/" behind
/// them; other lines are passed over. No room may have two lines.
rooms rooms_in(const std::string& text)
{
    rooms found;
    static const std::regex line(R"(^ *([0-9]+) +([a-z_-]+): *([a-z_ -]*?) *(?:\| *(\S+))?$)");
    std::istringstream stream(text);
    std::smatch match;
    for (std::string l; std::getline(stream, l);)
        if (std::regex_match(l, match, line))
        {
            EXPECT_FALSE(found.contains(match[2])) << match[2] << " is there twice";
            room& r = found[match[2]];
            r.level = std::stoi(match[1]);
            r.folder = match[4];
            std::istringstream arrows(match[3]);
            for (std::string arrow; arrows >> arrow;)
                r.arrows.insert(arrow);
        }
    return found;
}

/// Rows "| effect | `ov_source/effect/` | what it holds |".
std::map<std::string, std::string> folders_in(const std::string& text)
{
    std::map<std::string, std::string> found;
    static const std::regex row(R"(^\| ([a-z_-]+) \| `([^`]+/)` \| [^|]+ \|$)");
    std::istringstream stream(text);
    std::smatch match;
    for (std::string l; std::getline(stream, l);)
        if (std::regex_match(l, match, row))
        {
            EXPECT_TRUE(found.emplace(match[1], match[2]).second) << match[1] << " is there twice";
        }
    return found;
}

std::set<std::string> reached(const rooms& all, const std::string& from)
{
    std::set<std::string> found;
    if (const auto start = all.find(from); start != all.end())
        for (const std::string& arrow : start->second.arrows)
        {
            found.insert(arrow);
            found.merge(reached(all, arrow));
        }
    return found;
}

class levels : public testing::Test
{
protected:
    const std::string page = read(fs::path(SOURCE_DIR) / "ARCHITECTURE.md");
    const rooms drawn = rooms_in(page);
    const rooms built = rooms_in(read(LEVELS_FILE));
    /// A build may leave rooms out, the editor or the bridge: what links them then links what lies below them.
    const bool whole = std::all_of(drawn.begin(), drawn.end(), [&](const auto& r) { return built.contains(r.first); });
};

TEST_F(levels, every_room_of_the_build_is_drawn_with_its_level_and_arrows)
{
    ASSERT_GT(built.size(), 20u);
    for (const auto& [name, room] : built)
    {
        SCOPED_TRACE(name);
        ASSERT_TRUE(drawn.contains(name)) << "is not in the diagram";
        if (whole)
        {
            EXPECT_EQ(drawn.at(name).level, room.level);
            EXPECT_EQ(drawn.at(name).arrows, room.arrows);
        }
        const auto may = reached(drawn, name);
        const auto does = reached(built, name);
        for (const std::string& arrow : room.arrows)
            EXPECT_TRUE(may.contains(arrow)) << "links " << arrow << ", which the diagram does not allow";
        for (const std::string& arrow : drawn.at(name).arrows)
            EXPECT_TRUE(!built.contains(arrow) || does.contains(arrow)) << "does not link " << arrow;
    }
}

TEST_F(levels, the_diagram_draws_only_rooms_that_exist_and_no_arrow_that_others_imply)
{
    for (const auto& [name, room] : drawn)
        for (const std::string& arrow : room.arrows)
        {
            SCOPED_TRACE(name + " -> " + arrow);
            ASSERT_TRUE(drawn.contains(arrow));
            EXPECT_LT(drawn.at(arrow).level, room.level);
            for (const std::string& other : room.arrows)
                EXPECT_FALSE(reached(drawn, other).contains(arrow)) << "implied by the arrow to " << other;
        }
}

TEST_F(levels, the_table_names_every_drawn_room_once_with_its_folder)
{
    const auto table = folders_in(page);
    for (const auto& [name, room] : drawn)
        EXPECT_TRUE(table.contains(name)) << name << " is not in the table";
    for (const auto& [name, folder] : table)
    {
        SCOPED_TRACE(name);
        EXPECT_TRUE(drawn.contains(name)) << "is not in the diagram";
        EXPECT_TRUE(fs::is_directory(fs::path(SOURCE_DIR) / folder)) << folder;
        if (built.contains(name))
        {
            EXPECT_EQ(folder, built.at(name).folder);
        }
    }
}

// A room's folder stays small enough to be taken in.
TEST_F(levels, no_folder_holds_more_than_forty_sources)
{
    std::map<std::string, int> count;
    for (const char* top : {"shared", "ov_source", "media", "command_line", "standalone", "host", "tools", "benches"})
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(SOURCE_DIR) / top))
            if (const auto kind = entry.path().extension(); kind == ".cpp" || kind == ".h" || kind == ".mm")
                ++count[entry.path().parent_path().string()];
    for (const auto& [folder, files] : count)
        EXPECT_LE(files, 40) << folder;
}

TEST_F(levels, includes_name_a_folder_and_the_own_header_comes_first)
{
    static const std::regex include(R"re(^#(?:include|import) "([^"]+)")re");
    for (const char* folder : {"shared", "ov_source", "media", "command_line", "standalone", "host", "tools"})
    {
        for (const auto& entry : fs::recursive_directory_iterator(fs::path(SOURCE_DIR) / folder))
        {
            const fs::path& file = entry.path();
            if (file.extension() != ".cpp" && file.extension() != ".h" && file.extension() != ".mm")
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
            if (file.extension() != ".h" && fs::exists(fs::path(file).replace_extension(".h")))
            {
                ASSERT_FALSE(included.empty());
                EXPECT_EQ(fs::path(included.front()).stem(), file.stem()) << "the own header comes first";
            }
        }
    }
}

} // namespace
