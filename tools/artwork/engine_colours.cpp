#include "tools/artwork/engine_colours.h"

#include "effect/build/build_lut.h"

namespace ov1
{

std::vector<rgb_double> engine_colours::graded(std::span<const rgb_double> colours,
                                               std::span<const parameter_setting> values)
{
    grade_settings settings;
    for (const parameter_setting& v : values)
        settings.settings[static_cast<std::size_t>(v.parameter)].value = static_cast<float>(v.value);
    // The build that the effect uses, so that a picture shows what its control does.
    build_lut(settings, looks, skin, table);

    std::vector<rgb_double> found;
    for (const rgb_double& c : colours)
    {
        const argb_float to =
            table.lookup({1.0f, static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b)});
        found.push_back({to.r, to.g, to.b});
    }
    return found;
}

} // namespace ov1
