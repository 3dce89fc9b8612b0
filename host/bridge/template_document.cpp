#include "host/bridge/template_document.h"

#include <charconv>

namespace ov1
{

namespace
{

// Flags of a parameter element, found by comparing templates: the format has no public description. Bit 33 is set on
// every parameter. Bit 24: can be animated. 16: menu. 15: colour or colour channel. 12: folder. 4: editable. 1: hidden.
constexpr std::uint64_t always_flag = std::uint64_t{1} << 33;
constexpr std::uint64_t animated_flag = 1 << 24;
constexpr std::uint64_t menu_flag = 1 << 16;
constexpr std::uint64_t color_flag = 1 << 15;
constexpr std::uint64_t folder_flag = 1 << 12;
constexpr std::uint64_t editable_flag = 1 << 4;
constexpr std::uint64_t hidden_flag = 1 << 1;
constexpr std::uint64_t number_flags = always_flag | animated_flag | editable_flag;
constexpr std::uint64_t channel_flags = always_flag | color_flag | editable_flag;

// Everything before the published controls. An object's factoryID refers to one of these factories.
constexpr const char* head = R"(<?xml version="1.0" encoding="UTF-8" standalone="no"?>
<!DOCTYPE ozxmlscene>
<ozml version="5.9">
<displayversion>5.4.1</displayversion>
<factory id="1" uuid="46c844a813d311d8a438000a95af9f7e">
	<description>Channel</description>
	<manufacturer>Apple</manufacturer>
	<version>1</version>
</factory>
<factory id="3" uuid="66fc0d6af6a911d6a7a7000393670732">
	<description>Image</description>
	<manufacturer>Apple</manufacturer>
	<version>1</version>
</factory>
<factory id="4" uuid="7d468273c013498e9806a0d7bc32fddf">
	<description>Project</description>
	<manufacturer>Apple</manufacturer>
	<version>1</version>
</factory>
<factory id="6" uuid="deca4859b16011d7a12d0003936f6f92">
	<description>ProPlugin Filter</description>
	<manufacturer>Apple</manufacturer>
	<version>1</version>
</factory>
<scene>
	<sceneSettings>
		<width>1920</width>
		<height>1080</height>
		<duration>30</duration>
		<frameRate>30</frameRate>
		<NTSC>0</NTSC>
		<pixelAspectRatio>1</pixelAspectRatio>
		<workingGamut>0</workingGamut>
		<viewGamut>-1</viewGamut>
		<backgroundColor red="0" green="0" blue="0" alpha="1"/>
		<audioChannels>2</audioChannels>
		<audioBitsPerSample>32</audioBitsPerSample>
		<fieldRenderingMode>0</fieldRenderingMode>
		<motionBlurSamples>8</motionBlurSamples>
		<motionBlurDuration>1</motionBlurDuration>
		<startTimecode>0</startTimecode>
		<backgroundMode>0</backgroundMode>
		<reflectionRecursionLimit>2</reflectionRecursionLimit>
		<parameterColorSpaceID>3</parameterColorSpaceID>
		<savePreviewMovie>0</savePreviewMovie>
	</sceneSettings>
)";

// One second at 30 frames a second. `out` is the time of the last frame: 29 frames of 4000/120000 s.
constexpr const char* layer = R"(	<currentFrame>0</currentFrame>
	<timeRange offset="0 1 1 0" duration="120000 120000 1 0"/>
	<playRange offset="0 1 1 0" duration="120000 120000 1 0"/>
	<flags>0</flags>
	<scenenode name="Project" id="10001" factoryID="4" version="5">
		<flags>0</flags>
		<timing in="0 1 1 0" out="116000 120000 1 0" offset="0 1 1 0"/>
	</scenenode>
	<layer name="Group" id="10010">
		<flags>0</flags>
		<timing in="0 1 1 0" out="116000 120000 1 0" offset="0 1 1 0"/>
		<scenenode name="Effect Source" id="10013" factoryID="3" version="5">
			<flags>0</flags>
			<timing in="0 1 1 0" out="116000 120000 1 0" offset="0 1 1 0"/>
)";

// 8589934608: bit 33, which is always set, and bit 4.
constexpr const char* filter_head =
    R"(				<timing in="0 1 1 0" out="116000 120000 1 0" offset="0 1 1 0"/>
				<baseFlags>8589934608</baseFlags>
)";

// The host's own slider for the amount of the effect ends the filter. 12901679104: bits 33, 32 and 24.
constexpr const char* tail =
    R"(				<parameter name="Mix" id="10001" flags="12901679104" default="1" value="1"/>
			</filter>
		</scenenode>
	</layer>
</scene>
</ozml>
)";

/// The text as the value of an XML attribute in double quotes.
std::string escaped(const std::string& text)
{
    std::string out;
    for (const char c : text)
    {
        switch (c)
        {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

/// The shortest text that reads back as the same number. A value that a float holds exactly gets the float's text: 0.1
/// instead of 0.10000000149011612.
std::string number_text(double v)
{
    char text[32];
    const auto single = static_cast<float>(v);
    const auto end = double{single} == v ? std::to_chars(text, text + sizeof text, single)
                                         : std::to_chars(text, text + sizeof text, v);
    return {text, end.ptr};
}

/// The text of any value except a colour, which has one element per channel.
std::string value_text(const host_value& value)
{
    if (const auto* number = std::get_if<double>(&value))
        return number_text(*number);
    if (const auto* whole = std::get_if<int>(&value))
        return std::to_string(*whole);
    return std::get<bool>(value) ? "1" : "0";
}

std::uint64_t flags_of(const host_declaration& p)
{
    // The only flag taken from the declaration; all others follow from the control.
    const std::uint64_t hidden = p.flags & host_flag::hidden ? hidden_flag : 0;
    if (p.control == host_control::popup)
        return number_flags | menu_flag | hidden;
    if (p.control == host_control::color)
        return always_flag | color_flag | folder_flag | editable_flag | hidden;
    return number_flags | hidden;
}

/// The start of an element; the caller appends the value and closes it.
std::string element_start(const std::string& name, int id, std::uint64_t flags)
{
    return "\t\t\t\t<parameter name=\"" + escaped(name) + "\" id=\"" + std::to_string(id) + "\" flags=\"" +
           std::to_string(flags) + "\"";
}

std::string with_value(const std::string& value) { return " default=\"" + value + "\" value=\"" + value + "\"/>\n"; }

/// A folder with one element per channel. The channels' ids count from 1 within it.
std::string color_element(const host_declaration& p)
{
    const auto c = std::get<host_color>(p.default_value);
    const std::uint64_t hidden = p.flags & host_flag::hidden ? hidden_flag : 0;
    std::string text = element_start(p.name, p.id, flags_of(p)) + ">\n";
    int id = 0;
    for (const auto& [name, value] :
         {std::pair{"Red", c.red}, {"Green", c.green}, {"Blue", c.blue}, {"Alpha", c.alpha}})
    {
        text += '\t'; // one level deeper than the colour's element
        text += element_start(name, ++id, channel_flags | hidden) + with_value(number_text(value));
    }
    return text + "\t\t\t\t\t<foldFlags>15</foldFlags>\n\t\t\t\t</parameter>\n";
}

std::string parameter_elements(std::span<const host_declaration> parameters)
{
    std::string text;
    for (const host_declaration& p : parameters)
        text += p.control == host_control::color
                    ? color_element(p)
                    : element_start(p.name, p.id, flags_of(p)) + with_value(value_text(p.default_value));
    return text;
}

/// The controls that the video host shows. Object 10023 is the filter; a channel is the parameter's host id.
std::string publish_settings(std::span<const host_declaration> parameters)
{
    std::string text = "\t<publishSettings>\n\t\t<version>2</version>\n"
                       "\t\t<target object=\"10023\" channel=\"./1\" name=\"\"/>\n";
    for (const host_declaration& p : parameters)
        if (!(p.flags & host_flag::hidden))
            text += "\t\t<target object=\"10023\" channel=\"./" + std::to_string(p.id) + "\" name=\"" +
                    escaped(p.name) + "\"/>\n";
    return text + "\t</publishSettings>\n";
}

} // namespace

std::string template_document(const template_subject& subject, std::span<const host_declaration> parameters)
{
    // The ids 10001, 10010, 10013 and 10023 only have to differ from each other within the document.
    return head + publish_settings(parameters) + layer + "\t\t\t<filter name=\"" + escaped(subject.display_name) +
           "\" id=\"10023\" factoryID=\"6\" pluginUUID=\"" + escaped(subject.plugin_uuid) +
           "\" pluginVersion=\"1\" pluginName=\"" + escaped(subject.plugin_name) + "\" pluginDynamicParams=\"0\">\n" +
           filter_head + parameter_elements(parameters) + tail;
}

} // namespace ov1
