#include "tools/looks/memory_colours.h"

#include <algorithm>
#include <cassert>

namespace ov1
{

namespace
{

constexpr rgb_double of_u8(int r, int g, int b) { return {r / 255.0, g / 255.0, b / 255.0}; }

constexpr std::string_view related_to_sky[] = {"blue sky", "blue flower", "bluish green", "purplish blue",
                                               "purple",   "blue",        "cyan"};
constexpr std::string_view related_to_greenery[] = {"foliage", "yellow green", "green", "yellow", "bluish green"};
constexpr std::string_view related_to_skin[] = {"dark skin", "light skin", "orange", "orange yellow", "moderate red"};

/// Whether no channel is outside 0..1.
bool within_srgb(const rgb_double& code)
{
    return std::min({code.r, code.g, code.b}) >= 0.0 && std::max({code.r, code.g, code.b}) <= 1.0;
}

} // namespace

const std::array<named_colour, 24> colour_checker{{
    {"dark skin", of_u8(116, 81, 67)},   {"light skin", of_u8(199, 147, 129)},  {"blue sky", of_u8(91, 122, 156)},
    {"foliage", of_u8(90, 108, 64)},     {"blue flower", of_u8(130, 128, 176)}, {"bluish green", of_u8(92, 190, 172)},
    {"orange", of_u8(224, 124, 47)},     {"purplish blue", of_u8(68, 91, 170)}, {"moderate red", of_u8(198, 82, 97)},
    {"purple", of_u8(94, 58, 106)},      {"yellow green", of_u8(159, 189, 63)}, {"orange yellow", of_u8(230, 162, 39)},
    {"blue", of_u8(35, 63, 147)},        {"green", of_u8(67, 149, 74)},         {"red", of_u8(180, 49, 57)},
    {"yellow", of_u8(238, 198, 20)},     {"magenta", of_u8(193, 84, 151)},      {"cyan", of_u8(0, 136, 170)},
    {"white", of_u8(245, 245, 243)},     {"neutral 8", of_u8(200, 202, 202)},   {"neutral 6.5", of_u8(161, 163, 163)},
    {"neutral 5", of_u8(121, 121, 122)}, {"neutral 3.5", of_u8(82, 84, 86)},    {"black", of_u8(49, 49, 51)},
}};

rgb_double patch(std::string_view name)
{
    const auto row = std::ranges::find(colour_checker, name, &named_colour::name);
    assert(row != colour_checker.end());
    return row->code;
}

const std::array<named_colour, 10> monk_skin_tones{{
    {"Monk 1", of_u8(0xf6, 0xed, 0xe4)},
    {"Monk 2", of_u8(0xf3, 0xe7, 0xdb)},
    {"Monk 3", of_u8(0xf7, 0xea, 0xd0)},
    {"Monk 4", of_u8(0xea, 0xda, 0xba)},
    {"Monk 5", of_u8(0xd7, 0xbd, 0x96)},
    {"Monk 6", of_u8(0xa0, 0x7e, 0x56)},
    {"Monk 7", of_u8(0x82, 0x5c, 0x43)},
    {"Monk 8", of_u8(0x60, 0x41, 0x34)},
    {"Monk 9", of_u8(0x3a, 0x31, 0x2a)},
    {"Monk 10", of_u8(0x29, 0x24, 0x20)},
}};

// Patch; hue in degrees, chroma and lightness of OKLCh, each from and to; related patches.
const memory_colour real_sky{"blue sky", 206, 265, 0.014, 0.107, 0.48, 0.98, related_to_sky};
const memory_colour real_greenery{"foliage", 110, 146, 0.034, 0.216, 0.19, 0.81, related_to_greenery};
const memory_colour real_skin{"light skin", 21, 79, 0.032, 0.104, 0.43, 0.91, related_to_skin};

std::vector<rgb_double> memory_colour::samples() const
{
    constexpr int steps = 6;
    const auto at = [](double from, double to, int i) { return from + (to - from) * i / steps; };
    std::vector<rgb_double> found;
    for (int l = 0; l <= steps; ++l)
        for (int c = 0; c <= steps; ++c)
            for (int h = 0; h <= steps; ++h)
            {
                const rgb_double code = code_of(
                    oklch{at(lightness_from, lightness_to, l), at(chroma_from, chroma_to, c), at(hue_from, hue_to, h)});
                if (within_srgb(code))
                    found.push_back(code);
            }
    return found;
}

const std::array<gradient, 6> gradients{{
    {"pale to deep sky", of_u8(206, 224, 238), of_u8(36, 84, 150)},
    {"clear sky to horizon", of_u8(94, 141, 196), of_u8(226, 232, 232)},
    {"sky to cloud", of_u8(104, 150, 204), of_u8(248, 248, 246)},
    {"grass, shade to sun", of_u8(28, 48, 18), of_u8(178, 206, 84)},
    {"light skin, shade to light", of_u8(92, 58, 48), of_u8(250, 226, 208)},
    {"dark skin, shade to light", of_u8(32, 20, 16), of_u8(196, 148, 116)},
}};

} // namespace ov1
