#include "presets/random_look.h"

#include "support/effect_stage.h"
#include "support/test_component.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

namespace ov1
{
namespace
{

struct random_look : testing::Test, effect_stage
{
};

/// The look of an engine, from the published table of ranges; not yet within the parameters' bounds.
std::map<std::string, float> expected_look(std::mt19937& engine)
{
    const auto draw = [&engine](double a, double b)
    {
        const double low = engine(), high = engine();
        return static_cast<float>(a + (b - a) * std::ldexp(low + high * 4294967296.0, -64));
    };
    std::map<std::string, float> look;
    for (const char* zeroed :
         {"Master Hue", "Master Chroma", "Global Luminance", "Shadows Lightness", "Mids Lightness", "Highlights Hue",
          "Highlights Chroma", "Highlights Range", "Highlights Lightness", "Highlights Smoothness"})
        look[zeroed] = 0;
    look.insert({{"Shadows Range", 7}, {"Shadows Smoothness", 70}, {"Mids Range", 10}, {"Mids Smoothness", 100}});
    look["Global Chroma"] = draw(-100, 35);
    const int hue = static_cast<int>(draw(0, 360));
    look["Shadows Hue"] = static_cast<float>(hue);
    look["Shadows Chroma"] = draw(0, 55);
    look["Shadows Saturation"] = draw(-25, 25);
    look["Mids Hue"] = static_cast<float>(engine() >= 0x80000000u ? hue : (hue + 180) % 360);
    look["Mids Chroma"] = draw(0, 100) * look["Shadows Chroma"] / 100;
    const std::tuple<const char*, double, double> rest[] = {
        {"Mids Saturation", -25, 25},  {"Highlights Saturation", -25, 25}, {"Protect Skin Tones", 0, 100},
        {"Skin Angle", 0, 360},        {"Skin Tone Strength", -20, 20},    {"Skin Tone Brightness", -25, 25},
        {"Sky Angle", 0, 360},         {"Sky Strength", 0, 100},           {"Greenery Angle", 0, 360},
        {"Greenery Strength", 0, 100}, {"Film Contrast Angle", 0, 360},    {"Film Contrast Strength", -70, 70}};
    for (const auto& [name, a, b] : rest)
        look[name] = draw(a, b);
    return look;
}

TEST_F(random_look, ends_on_the_drawn_values_whatever_was_there_before)
{
    std::mt19937 chance(1);
    int same_hue = 0;
    for (unsigned seed = 0; seed < 1000; ++seed)
    {
        SCOPED_TRACE(seed);
        for (int i = 1; i < effect->get_parameter_count(); ++i) // at the bounds, and anywhere between
        {
            const float places[] = {0.0f, 1.0f, static_cast<float>(chance() >> 8) * 0x1p-24f};
            std::dynamic_pointer_cast<cparameter_continuous_v1>(effect->get_parameter(i))
                ->set_value_normalized(places[chance() % 3], chance() % 2 == 0);
        }
        std::mt19937 engine(seed), again(seed);
        randomize_look(*effect, engine);
        const auto look = expected_look(again);
        ASSERT_EQ(look.size(), 32u) << "every parameter but the bypass";
        for (const auto& [name, drawn] : look)
        {
            const param_value v = effect->get_parameter(name)->get_param_value();
            EXPECT_FLOAT_EQ(v.value.as_continuous(), std::clamp(drawn, v.min.as_continuous(), v.max.as_continuous()))
                << name;
        }
        EXPECT_EQ(engine, again) << "17 reals and one coin are drawn";
        EXPECT_LE(value("Mids Chroma"), value("Shadows Chroma"));
        const float apart = std::abs(value("Mids Hue") - value("Shadows Hue"));
        EXPECT_TRUE(apart == 0 || apart == 180) << apart;
        same_hue += apart == 0;
    }
    EXPECT_NEAR(same_hue, 500, 80) << "five standard deviations of a fair coin";
}

TEST_F(random_look, is_another_one_at_every_call_without_an_engine)
{
    randomize_look(*effect);
    const auto first = effect->get_state();
    randomize_look(*effect);
    EXPECT_NE(effect->get_state(), first);
}

TEST_F(random_look, a_missing_parameter_takes_nothing_from_the_others)
{
    const auto small = std::make_shared<test_component>();
    const auto last = std::make_shared<cparameter_continuous_v1>(small, "Film Contrast Angle", 0.0f, 360.0f, 0.0f);
    small->register_parameter(std::make_shared<cparameter_boolean_v1>(small, "Sky Angle", false)); // of another type
    small->register_parameter(last);
    std::mt19937 one(7), two(7);
    randomize_look(*small, one);
    randomize_look(*effect, two);
    EXPECT_EQ(last->get_value(), value("Film Contrast Angle"));
    EXPECT_EQ(one, two);
}

} // namespace
} // namespace ov1
