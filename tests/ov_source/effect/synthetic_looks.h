// Look tables for tests. Each changes colours differently, so that a test sees when two are exchanged.
#pragma once

#include "effect/lut/bin_lut.h"
#include "effect/lut/lut_argb.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>

namespace ov1::test
{

/// The look tables' names in the order in which they are numbered here.
inline constexpr std::array<const char*, 18> look_names{"film_contrast_highlights_north",
                                                        "filmkontrast_minus100",
                                                        "film_contrast_shadows_south",
                                                        "filmkontrast_100",
                                                        "sky_dark_turquoise",
                                                        "sky_100",
                                                        "sky_bright_purple",
                                                        "sky_minus100",
                                                        "greenery_yellow",
                                                        "greenery_bright",
                                                        "greenery_irish",
                                                        "greenery_olive",
                                                        "saturation100_schatten",
                                                        "saturation_minus100_schatten",
                                                        "saturation100_mitten",
                                                        "saturation_minus100_mitten",
                                                        "saturation100_lichter",
                                                        "saturation_minus100_lichter"};

inline lut_argb<17> synthetic_look(std::size_t number)
{
    lut_argb<17> table;
    const auto n = static_cast<float>(number);
    for (argb_float& e : table.get_entries())
        e = {1.0f, e.r + 0.1f * std::sin(n + 3 * e.g), e.g + 0.1f * std::cos(2 * n + 4 * e.b),
             e.b + 0.1f * std::sin(3 * n + 5 * e.r)};
    return table;
}

/// Creates the folder and writes all eighteen files into it.
inline void write_synthetic_looks(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    for (std::size_t i = 0; i < look_names.size(); ++i)
    {
        const auto bytes = write_bin_lut(synthetic_look(i).get_entries(), 17);
        std::ofstream(folder / (std::string(look_names[i]) + ".bin"), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
}

} // namespace ov1::test
