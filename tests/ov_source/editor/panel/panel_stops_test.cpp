#include "editor/panel/panel_stops.h"

#include "framework/parameters/cparameter_continuous_v1.h"
#include "ov_source/editor/editor_stage.h"

#include <map>

namespace ov1
{
namespace
{

struct stops_stage : editor_stage
{
    /// The stop whose first parameter has this name.
    const panel_stop& stop(const std::string& name) const
    {
        return *std::ranges::find_if(stops,
                                     [&](const panel_stop& s) { return s.parameters[0].lock()->get_name() == name; });
    }

    const std::vector<panel_stop> stops = order_panel_stops(*effect, ui->get_controls());
};

TEST(panel_stops, every_parameter_but_the_bypass_has_one_control)
{
    const stops_stage stage;
    std::map<std::string, int> bound;
    for (const panel_stop& stop : stage.stops)
        for (std::size_t i = 0; i < (stop.pad ? 2U : 1U); ++i)
        {
            const auto parameter = stop.parameters[i].lock();
            ASSERT_TRUE(parameter);
            ++bound[parameter->get_name()];
        }
    for (int i = 0; i < stage.effect->get_parameter_count(); ++i)
    {
        const auto parameter = stage.effect->get_parameter(i);
        const bool is_bypass = parameter->get_flags() & parameter_is_bypass;
        EXPECT_EQ(bound[parameter->get_name()], is_bypass ? 0 : 1) << parameter->get_name();
    }
}

TEST(panel_stops, typed_values_are_accepted_within_the_bounds_alone)
{
    const stops_stage stage;
    const struct
    {
        const char* parameter;
        const char* typed;
        std::vector<float> values;
        const char* reason; ///< what it contains, where the text is refused
    } cases[] = {
        {"Sky Angle", "360, 0", {360, 0}, nullptr},
        {"Sky Angle", " 12.5 100 ", {12.5f, 100}, nullptr},
        {"Sky Angle", "12.5", {}, "{en:Not accepted: two numbers"},
        {"Sky Angle", "361, 5", {}, "{en:Not accepted: 361 is not within 0 to 360}{de:Nicht übernommen: 361 liegt"},
        {"Sky Angle", "10, 100.1", {}, "100.1 is not within 0 to 100"},
        {"Global Chroma", "-100", {-100}, nullptr},
        {"Global Chroma", "-100.5", {}, "-100.5 is not within -100 to 100"},
        {"Global Chroma", "1, 2", {}, "{en:Not accepted: a number"},
        {"Mids Range", "ten", {}, "{de:Nicht übernommen: eine Zahl"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.typed);
        const auto values = read_entry(stage.stop(c.parameter), c.typed);
        ASSERT_EQ(static_cast<bool>(values), c.reason == nullptr);
        if (values)
            EXPECT_EQ(*values, c.values);
        else
            EXPECT_NE(values.error().reason.find(c.reason), std::string::npos) << values.error().reason;
    }
}

TEST(panel_stops, texts_show_the_values_and_are_empty_without_the_component)
{
    stops_stage stage;
    stage.set("Skin Angle", 212.44f);
    stage.set("Skin Tone Strength", 35);
    stage.set("Shadows Lightness", -7.25f);
    const panel_stop &pad = stage.stop("Skin Angle"), &arc = stage.stop("Shadows Lightness");
    EXPECT_EQ(value_text_of(pad), "212.4\u00B0, 35 %");
    EXPECT_EQ(entry_text_of(pad), "212.4, 35");
    EXPECT_EQ(value_text_of(arc), entry_text_of(arc));
    stage.ui->close();
    stage.effect->terminate();
    stage.effect.reset();
    EXPECT_EQ(value_text_of(pad), "");
    EXPECT_EQ(entry_text_of(arc), "");
    set_values(pad, {1, 2}); // nobody is left to take them
    reset(arc);
}

} // namespace
} // namespace ov1
