#include "presets/random_look.h"

#include "framework/icomponent_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"

#include <cmath>

namespace ov1
{

namespace
{

/// The random values of a look. Computed here because the standard leaves its distributions to the library.
class dice
{
public:
    explicit dice(std::mt19937& engine)
        : engine(engine)
    {
    }

    /// Uniform over a..b; takes two numbers from the engine.
    /// The second number supplies the high bits. Rounding may give b itself.
    float uniform(double a, double b)
    {
        const double first = engine();
        const double second = engine();
        return static_cast<float>(a + (b - a) * ((first + second * 0x1p32) * 0x1p-64));
    }

    /// The highest bit of one number.
    bool coin() { return engine() >> 31 != 0; }

private:
    std::mt19937& engine;
};

/// Sets parameters by name.
class look
{
public:
    explicit look(icomponent_v1& component)
        : component(component)
    {
    }

    /// Skips a parameter that is missing or of another type. The caller has drawn the value before, so that every other
    /// parameter gets the same value with or without it.
    void set(const char* name, float value)
    {
        const auto parameter =
            std::dynamic_pointer_cast<cparameter_continuous_v1>(component.get_parameter(make_uid(name)));
        if (parameter)
            parameter->set_value(value, false);
    }

private:
    icomponent_v1& component;
};

void set_whole_image(look& to, dice& from)
{
    to.set("Master Hue", 0);
    to.set("Master Chroma", 0);
    to.set("Global Chroma", from.uniform(-100, 35));
    to.set("Global Luminance", 0);
}

// In each wheel Chroma is set before Range and Lightness. Setting Chroma may change a lightness that is too extreme for
// it, and setting Range may reduce the chroma. Lightness is set last and keeps its value; with these values of Range
// and Lightness every chroma is possible, so the coupling restores the chroma that was set.
void set_wheels(look& to, dice& from)
{
    const float hue = std::trunc(from.uniform(0, 360));
    const float chroma = from.uniform(0, 55);
    to.set("Shadows Hue", hue);
    to.set("Shadows Chroma", chroma);
    to.set("Shadows Range", 7);
    to.set("Shadows Lightness", 0);
    to.set("Shadows Smoothness", 70);
    to.set("Shadows Saturation", from.uniform(-25, 25));

    to.set("Mids Hue", from.coin() ? hue : std::fmod(hue + 180.0f, 360.0f));
    // In double precision, so that rounding never lifts it above the shadows' chroma.
    to.set("Mids Chroma", static_cast<float>(double{from.uniform(0, 100)} * chroma / 100.0));
    to.set("Mids Range", 10);
    to.set("Mids Lightness", 0);
    to.set("Mids Smoothness", 100);
    to.set("Mids Saturation", from.uniform(-25, 25));

    // The highlights get no tint: only their saturation varies.
    for (const char* name :
         {"Highlights Hue", "Highlights Chroma", "Highlights Range", "Highlights Lightness", "Highlights Smoothness"})
        to.set(name, 0);
    to.set("Highlights Saturation", from.uniform(-25, 25));
}

void set_pads(look& to, dice& from)
{
    to.set("Protect Skin Tones", from.uniform(0, 100));
    to.set("Skin Angle", from.uniform(0, 360));
    // Strengths below 0 are limited to 0, so that many looks leave the skin or the contrast unchanged.
    to.set("Skin Tone Strength", from.uniform(-20, 20));
    to.set("Skin Tone Brightness", from.uniform(-25, 25));
    to.set("Sky Angle", from.uniform(0, 360));
    to.set("Sky Strength", from.uniform(0, 100));
    to.set("Greenery Angle", from.uniform(0, 360));
    to.set("Greenery Strength", from.uniform(0, 100));
    to.set("Film Contrast Angle", from.uniform(0, 360));
    to.set("Film Contrast Strength", from.uniform(-70, 70));
}

} // namespace

void randomize_look(icomponent_v1& component, std::mt19937& engine)
{
    look to(component);
    dice from(engine);
    // The order decides which number goes to which parameter. Another order would give another look for the same seed.
    set_whole_image(to, from);
    set_wheels(to, from);
    set_pads(to, from);
}

void randomize_look(icomponent_v1& component)
{
    std::random_device chance;
    std::mt19937 engine(chance());
    randomize_look(component, engine);
}

} // namespace ov1
