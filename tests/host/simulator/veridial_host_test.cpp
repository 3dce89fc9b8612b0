// The programs veridial-host and veridialfcpx as a user runs them.
#include "media/stills/still_reader.h"
#include "support/sanitizer_lines.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace ov1
{
namespace
{

struct run_result
{
    int code;
    std::string text; ///< of both streams
};

run_result run(const std::string& command)
{
    std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    run_result result{};
    std::array<char, 4096> piece;
    while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), pipe))
        result.text.append(piece.data(), count);
    result.code = WEXITSTATUS(pclose(pipe));
    drop_sanitizer_lines(result.text);
    return result;
}

std::vector<argb_float> pixels_of(const std::string& path)
{
    media::still_reader reader;
    const auto read = reader.open(path);
    EXPECT_TRUE(read) << path << ": " << read.error().reason;
    std::vector<argb_float> pixels(reader.info().width * reader.info().height);
    reader.read_rows(0, reader.info().height, pixels.data());
    return pixels;
}

const std::string host = VERIDIAL_HOST, veridial = VERIDIAL_PROGRAM, service = VERIDIAL_SERVICE, photo = PHOTO;

TEST(veridial_host, half_tiles_match_the_picture_that_veridial_grades)
{
    const temp_folder folder;
    const std::string grade = " -s 'Sky Strength=60' -s 'Shadows Hue=200' -s 'Shadows Chroma=50' ";
    const std::string bridged = folder / "bridged.png", graded = folder / "graded.png";
    ASSERT_EQ(run(host + " render " + photo + grade + "--tile 333 -o " + bridged).code, 0);
    ASSERT_EQ(run(veridial + " grade " + photo + grade + "-o " + graded).code, 0);
    const auto a = pixels_of(bridged), b = pixels_of(graded);
    ASSERT_EQ(a.size(), b.size());
    // A half differs by at most 2^-12, before the table and after it: together less than one 8-bit code.
    float worst = 0.0f;
    for (std::size_t i = 0; i < a.size(); ++i)
        worst = std::max({worst, std::abs(a[i].r - b[i].r), std::abs(a[i].g - b[i].g), std::abs(a[i].b - b[i].b)});
    EXPECT_LE(worst, 1.01f / 255);
    EXPECT_NE(text_of_file(bridged), text_of_file(photo));
}

TEST(veridial_host, every_mistake_gives_one_line_and_an_exit_code)
{
    const temp_folder folder;
    const std::string out = folder / "out.png";
    const struct
    {
        const char* arguments;
        int code;
        const char* message;
    } rows[] = {
        {"render nowhere.png -o OUT", 3, "nowhere.png"},
        {"render PHOTO -o OUT -s 'Sky Strenght=1'", 2, "did you mean \"Sky Strength\"?"},
        {"render PHOTO -o OUT -s 'Sky Strength=101'", 2, "101"},
        {"render PHOTO -o OUT --pixels int", 2, "half or float"},
        {"render PHOTO", 2, "-o"},
        {"render PHOTO -o OUT --document PHOTO", 5, "is not a document"},
        {"open", 2, "one picture"},
    };
    for (const auto& row : rows)
    {
        std::string line = row.arguments;
        for (const auto& [name, path] : {std::pair{"PHOTO", photo}, {"OUT", out}})
            for (std::size_t at = line.find(name); at != std::string::npos; at = line.find(name))
                line.replace(at, std::string(name).size(), path);
        SCOPED_TRACE(line);
        const run_result result = run(host + ' ' + line);
        EXPECT_EQ(result.code, row.code);
        EXPECT_NE(result.text.find(row.message), std::string::npos) << result.text;
        EXPECT_EQ(std::ranges::count(result.text, '\n'), 1) << result.text;
        EXPECT_FALSE(std::filesystem::exists(out));
    }
}

TEST(veridialfcpx, writes_its_template_from_its_own_bundle)
{
    const temp_folder folder;
    const std::string to = folder / "template";
    const run_result result = run(service + " --extractXML " + to);
    EXPECT_EQ(result.code, 0) << result.text;
    EXPECT_EQ(result.text, "");
    const std::string text = text_of_file(to + "/Veridial.moef");
    EXPECT_NE(text.find("pluginUUID=\"CEA56FAA-F737-4D9B-808F-4A80682613DE\""), std::string::npos);
    EXPECT_NE(text.find("<parameter name=\"Global Bypass\" id=\"2\" "), std::string::npos);
    EXPECT_EQ(pixels_of(to + "/small.png").size() * 4, pixels_of(to + "/large.png").size());
    EXPECT_EQ(run(service + " --extractXML").text, "Usage: --extractXML path-to-template-xml-folder\n");
    EXPECT_EQ(run(service + " --extractXML " + to + "/Veridial.moef").code, 1) << "the folder is a file";
}

TEST(veridialfcpx, reports_what_its_bundle_lacks)
{
    const struct
    {
        const char* plist;
        const char* message;
    } rows[] = {
        {"", "Failed to retrieve bundle properties."},
        {"<dict/>", "Failed to retrieve ProPlugPlugInList Array from plist."},
        {"<dict><key>ProPlugPlugInList</key><array/></dict>",
         "Failed to retrieve ProPlugPlugInList Dictionary from plist Array."},
        {"<dict><key>ProPlugPlugInList</key><array><dict/></array></dict>",
         "Failed to retrieve uuid property from plist."},
        {"<dict><key>ProPlugPlugInList</key><array><dict><key>uuid</key><string>1</string></dict></array></dict>",
         "Failed to copy small thumbnail image."},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.message);
        const temp_folder folder;
        const std::string program = folder.with_file("B.pluginkit/Contents/MacOS/veridialfcpx", "");
        std::filesystem::copy_file(service, program, std::filesystem::copy_options::overwrite_existing);
        if (*row.plist != '\0')
            folder.with_file("B.pluginkit/Contents/Info.plist",
                             std::string("<?xml version=\"1.0\"?><plist version=\"1.0\">") + row.plist + "</plist>");
        const run_result result = run(program + " --extractXML " + (folder / "out"));
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.text, row.message) << "without a line feed";
    }
}

} // namespace
} // namespace ov1
