#include "framework/create_ccomponent.h"
#include "host/bridge/extract_command.h"
#include "host/bridge/template_document.h"
#include "host/bridge/template_writer.h"
#include "support/bridge_component.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace ov1
{

// The effect that this test program is linked with.
std::shared_ptr<icomponent_v1> create_ccomponent() { return std::make_shared<bridge_component>(); }

namespace
{

TEST(extract_command, arguments_are_pairs_of_a_key_and_a_folder)
{
    using enum extract_command::action;
    const struct
    {
        std::vector<std::string> arguments;
        extract_command::action what;
        const char* message;
        int exit_code;
        const char* folder;
    } rows[] = {
        {{}, serve, "", 0, ""},
        {{"--extractXML"}, say, "Usage: --extractXML path-to-template-xml-folder", 0, ""},
        {{"anything"}, say, "Usage: --extractXML path-to-template-xml-folder", 0, ""},
        {{"--extractxml", "a"}, say, "Invalid commandline arguments.", 1, ""},
        {{"--extractXML", ""}, say, "No valid template folder provided.", 1, ""},
        {{"--extractXML", "a"}, extract, "", 0, "a"},
        {{"--extractXML", "a", "--extractXML", "b"}, extract, "", 0, "b"},
        {{"--extractXML", "a", "-x", "b"}, say, "Invalid commandline arguments.", 1, ""},
        {{"--extractXML", "a", "-x"}, extract, "", 0, "a"},
    };
    for (const auto& row : rows)
    {
        const extract_command got = read_extract_command(row.arguments);
        SCOPED_TRACE(row.arguments.size());
        EXPECT_EQ(got.what, row.what);
        EXPECT_EQ(got.message, row.message);
        EXPECT_EQ(got.exit_code, row.exit_code);
        EXPECT_EQ(got.folder, row.folder);
    }
}

struct template_writer : ::testing::Test
{
    template_writer()
    {
        folder.with_file("bundle/Contents/Resources/fcpx_small.png", std::string("small\0picture", 13));
        folder.with_file("bundle/Contents/Resources/fcpx_large.png", "large picture");
    }

    std::string reason(const bundle_facts& facts, const std::string& to)
    {
        const auto written = write_template(facts, to);
        return written ? "written" : written.error().reason;
    }

    temp_folder folder;
    bundle_facts bundle{folder / "bundle", bundle_facts::listing::complete, "0F1E"};
};

TEST_F(template_writer, writes_document_and_thumbnails_into_a_new_folder)
{
    const auto written = write_template(bundle, folder / "new");
    ASSERT_TRUE(written) << written.error().reason;
    EXPECT_EQ(text_of_file(folder / "new/small.png"), std::string("small\0picture", 13));
    EXPECT_EQ(text_of_file(folder / "new/large.png"), "large picture");
    const std::string text = text_of_file(folder / "new/Veridial.moef");
    const char* const lines[] = {
        "<ozml version=\"5.9\">",
        "\t\t<target object=\"10023\" channel=\"./1\" name=\"\"/>\n",
        "\t\t<target object=\"10023\" channel=\"./5\" name=\"On &amp; off\"/>\n",
        "<filter name=\"Veridial\" id=\"10023\" factoryID=\"6\" pluginUUID=\"0F1E\" pluginVersion=\"1\" ",
        "pluginName=\"Veridial\" pluginDynamicParams=\"0\">\n",
        "\t\t\t\t<parameter name=\"Amount\" id=\"2\" flags=\"8606711824\" default=\"12.5\" value=\"12.5\"/>\n",
        "\t\t\t\t<parameter name=\"Menu\" id=\"3\" flags=\"8606777360\" default=\"2\" value=\"2\"/>\n",
        "\t\t\t\t<parameter name=\"Steps\" id=\"4\" flags=\"8606711824\" default=\"5\" value=\"5\"/>\n",
        "\t\t\t\t<parameter name=\"Tint\" id=\"6\" flags=\"8589971472\">\n",
        "\t\t\t\t\t<parameter name=\"Green\" id=\"2\" flags=\"8589967376\" default=\"0.5\" value=\"0.5\"/>\n",
        "\t\t\t\t<parameter name=\"Secret\" id=\"7\" flags=\"8606711826\" default=\"0.5\" value=\"0.5\"/>\n",
        "name=\"Mix\" id=\"10001\"",
    };
    std::size_t at = 0; // and in this order
    for (const char* line : lines)
    {
        at = text.find(line, at);
        ASSERT_NE(at, std::string::npos) << line;
    }
    EXPECT_EQ(text.find("channel=\"./7\""), std::string::npos) << "a hidden parameter is not published";
}

TEST_F(template_writer, reports_what_is_missing)
{
    const struct
    {
        std::optional<std::string> path;
        const char* folder;
        const char* message;
    } rows[] = {
        {std::nullopt, "", "Failed to retrieve plugin path."},
        {"/nowhere", "", "Failed to copy small thumbnail image."},
        {bundle.path, "/not/there", "Failed to copy small thumbnail image."},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.message);
        EXPECT_EQ(reason({row.path, bundle.plugin, "0F1E"}, folder.path + row.folder), row.message);
    }
    folder.with_file("in the way/Veridial.moef/a folder", "");
    EXPECT_EQ(reason(bundle, folder / "in the way"), "Error creating target xml file.");
    std::filesystem::remove(folder / "bundle/Contents/Resources/fcpx_large.png");
    EXPECT_EQ(reason(bundle, folder / "new"), "Failed to copy large thumbnail image.");
    EXPECT_TRUE(std::filesystem::exists(folder / "new/small.png")) << "files written before the failure stay";
}

} // namespace
} // namespace ov1
