// The manual's pages, as they lie beside the program.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>

namespace ov1
{
namespace
{

const std::filesystem::path folder = std::filesystem::path(VERIDIAL_SHARE_DIR) / "manual";

std::vector<std::string> all_of(const std::string& page, const std::regex& what)
{
    std::ifstream file(folder / page);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return {std::sregex_token_iterator(text.begin(), text.end(), what, 1), {}};
}

TEST(manual, pages_lead_only_to_files_and_places_that_are_there)
{
    const std::regex link(R"rx((?:src=|href=|url\()"?([^")]*))rx"), place(R"rx( id="([^"]*)")rx");
    for (const std::string page : {"index.html", "index_de.html"})
    {
        const auto links = all_of(page, link);
        EXPECT_GT(links.size(), 30u);
        for (const std::string& target : links)
        {
            SCOPED_TRACE(page + ": " + target);
            const auto hash = target.find('#');
            const std::string file = hash == 0 ? page : target.substr(0, hash);
            EXPECT_TRUE(std::filesystem::is_regular_file(folder / file)); // nothing of the web
            if (hash == std::string::npos)
                continue;
            const auto places = all_of(file, place);
            EXPECT_EQ(std::count(places.begin(), places.end(), target.substr(hash + 1)), 1);
        }
    }
    auto english = all_of("index.html", place);
    std::erase(english, "en"); // where German readers come back to
    EXPECT_EQ(english, all_of("index_de.html", place));
}

} // namespace
} // namespace ov1
