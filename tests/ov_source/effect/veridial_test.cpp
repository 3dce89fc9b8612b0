#include "effect/veridial.h"

#include "effect/lut/lut_argb_variable.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/restore_guard.h"
#include "framework/state_blob.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <thread>

namespace ov1
{
namespace
{

constexpr argb_float sample{1.0f, 0.3f, 0.5f, 0.7f};

class veridial_test : public testing::Test
{
protected:
    void SetUp() override { effect->initialize(std::make_shared<chost_v1>(effect)); }
    void TearDown() override { effect->terminate(); }

    std::shared_ptr<cparameter_continuous_v1> parameter(const std::string& name) const
    {
        return std::dynamic_pointer_cast<cparameter_continuous_v1>(effect->get_parameter(name));
    }
    float value(const std::string& name) const { return parameter(name)->get_value(); }
    void drag(const std::string& name, float v) const { parameter(name)->set_value(v, false); }
    void host_sets(const std::string& name, float v) const { parameter(name)->set_value(v, true); }

    argb_float graded(const argb_float& c = sample) const
    {
        argb_float out;
        effect->render_pixel(0, 0, c, out);
        return out;
    }
    void restore_legacy(const std::vector<std::pair<const char*, param_value>>& values) const
    {
        std::vector<state_record> records;
        for (const auto& [name, v] : values)
            records.push_back({v, make_uid(name)});
        std::vector<std::uint8_t> blob = write_state(records);
        EXPECT_TRUE(effect->set_state(blob, true));
    }
    void rebuild() const { effect->notify({event_kind::render_begins}); }

    std::shared_ptr<veridial> effect = std::make_shared<veridial>();
};

TEST_F(veridial_test, registers_the_published_parameters_in_order)
{
    ASSERT_EQ(effect->get_parameter_count(), 33);
    EXPECT_EQ(effect->get_parameter(0)->get_name(), "Global Bypass");
    EXPECT_EQ(effect->get_parameter(0)->get_flags(), 3u);
    EXPECT_EQ(effect->get_parameter(0)->get_type(), param_type::boolean);
    const std::tuple<int, const char*, float, float> rows[] = {
        {1, "Master Hue", 0, 360},         {4, "Global Luminance", -100, 100},     {7, "Shadows Range", -10, 10},
        {23, "Sky Angle", 0, 360},         {28, "Film Contrast Strength", 0, 100}, {30, "Skin Tone Strength", 0, 100},
        {32, "Protect Skin Tones", 0, 100}};
    for (const auto& [index, name, min, max] : rows)
    {
        SCOPED_TRACE(name);
        const param_value record = effect->get_parameter(index)->get_param_value();
        EXPECT_EQ(effect->get_parameter(index)->get_name(), name);
        EXPECT_EQ(record.min.as_continuous(), min);
        EXPECT_EQ(record.max.as_continuous(), max);
        EXPECT_EQ(record.value.as_continuous(), 0.0f);
    }
    EXPECT_TRUE(effect->has_bypass());
}

TEST_F(veridial_test, answers_for_the_component_and_the_exporter)
{
    iobject* found = nullptr;
    ASSERT_TRUE(effect->query_interface("lut_exporter", &found));
    auto* exporter = dynamic_cast<lut_exporter*>(found);
    ASSERT_NE(exporter, nullptr);
    EXPECT_FALSE(exporter->get_lut(nullptr));
    EXPECT_TRUE(effect->query_interface("ccomponent_v1", &found));
    EXPECT_FALSE(effect->query_interface("veridial", &found));
    EXPECT_EQ(found, nullptr);
}

TEST_F(veridial_test, the_table_is_the_identity_until_a_render_or_an_export)
{
    drag("Shadows Chroma", 100);
    EXPECT_NEAR(graded().b, 0.7f, 1e-6) << "setting a value builds no table";
    rebuild();
    const argb_float red_shadows = graded({1, 0.2f, 0.2f, 0.2f});
    EXPECT_GT(red_shadows.r, red_shadows.b + 0.1f);
    effect->set_bypass(true);
    rebuild();
    EXPECT_NEAR(graded().b, 0.7f, 1e-6);
    effect->set_bypass(false);
    host_sets("Global Luminance", -50);
    lut_argb_variable exported;
    ASSERT_TRUE(effect->get_lut(&exported));
    EXPECT_EQ(exported.edge_length, 17u);
    EXPECT_LT(exported.values.back().r, 0.6f) << "right after a set an export is not stale";
}

TEST_F(veridial_test, a_renderer_keeps_the_table_it_was_taken_with)
{
    rebuild();
    const auto before = effect->get_row_renderer();
    argb_float old_pixel, held_pixel, new_pixel;
    before->render_row(0, &sample, &old_pixel, 1);
    host_sets("Global Luminance", 40);
    rebuild();
    before->render_row(0, &sample, &held_pixel, 1);
    effect->render_row(0, &sample, &new_pixel, 1);
    EXPECT_EQ(held_pixel, old_pixel);
    EXPECT_GT(new_pixel.r, old_pixel.r + 0.2f);
    EXPECT_EQ(new_pixel, graded()) << "rows and pixels agree to the bit";
}

TEST_F(veridial_test, halfs_go_through_the_published_table_too)
{
    host_sets("Global Luminance", 20);
    rebuild();
    half_bits pixel[] = {float_to_half(0.25f), float_to_half(0.5f), float_to_half(0.75f), float_to_half(0.5f)};
    effect->get_row_renderer()->render_row_half(0, pixel, pixel, 1);
    const argb_float wanted = graded({1, 0.25f, 0.5f, 0.75f});
    const half_bits expected[] = {float_to_half(wanted.r), float_to_half(wanted.g), float_to_half(wanted.b),
                                  float_to_half(1.0f)}; // alpha is the table's
    EXPECT_TRUE(std::ranges::equal(pixel, expected));
}

TEST_F(veridial_test, unchanged_values_keep_the_published_table)
{
    rebuild();
    const auto first = effect->get_row_renderer();
    rebuild();
    EXPECT_EQ(effect->get_row_renderer(), first);
    effect->notify({event_kind::initialized});
    EXPECT_NE(effect->get_row_renderer(), first);
    rebuild();
    EXPECT_GT(graded({1, 1 / 255.0f, 0, 0}).r, 1.0f / 255) << "the identity of a start is out of date: built anew";
}

TEST_F(veridial_test, lightness_limits_chroma_and_returns_it)
{
    drag("Mids Chroma", 100);
    drag("Mids Range", 10);
    drag("Mids Lightness", 10); // luma 80: 2 x 20 x 100 / 50 = 80
    EXPECT_FLOAT_EQ(value("Mids Chroma"), 80.0f);
    drag("Mids Lightness", 0); // luma 60: 160, so what the user chose
    EXPECT_FLOAT_EQ(value("Mids Chroma"), 100.0f);
    drag("Shadows Chroma", 100); // C 55 lifts the luma to 27.5
    drag("Shadows Range", -10);  // luma 17.5: 2 x 17.5 x 100 / 55
    EXPECT_NEAR(value("Shadows Chroma"), 63.6364f, 1e-3);
}

TEST_F(veridial_test, chroma_moves_lightness_and_returns_it)
{
    drag("Highlights Lightness", 8); // luma 94
    drag("Highlights Chroma", 100);  // C 44: luma at most 78
    EXPECT_NEAR(value("Highlights Lightness"), 0.0f, 1e-5);
    EXPECT_FLOAT_EQ(value("Highlights Chroma"), 100.0f) << "the control that is dragged is not moved";
    drag("Highlights Chroma", 50); // C 22: luma at most 89
    EXPECT_NEAR(value("Highlights Lightness"), 5.5f, 1e-5);
    drag("Highlights Chroma", 10);
    EXPECT_NEAR(value("Highlights Lightness"), 8.0f, 1e-5) << "the value that the user chose";
    EXPECT_EQ(value("Mids Lightness"), 0.0f);
}

TEST_F(veridial_test, a_hosts_values_are_kept_and_remembered_as_the_users)
{
    host_sets("Highlights Lightness", 10);
    host_sets("Highlights Chroma", 100);
    EXPECT_EQ(value("Highlights Lightness"), 10.0f);
    EXPECT_EQ(value("Highlights Chroma"), 100.0f);
    drag("Highlights Range", 0.5f); // luma 98.5: room 1.5, chroma 2 x 1.5 x 100 / 44
    EXPECT_NEAR(value("Highlights Chroma"), 6.81818f, 1e-4);
    drag("Highlights Lightness", -10);
    EXPECT_EQ(value("Highlights Chroma"), 100.0f);
}

TEST_F(veridial_test, a_restore_returns_values_that_no_drag_can_reach_to_the_bit)
{
    host_sets("Highlights Lightness", 10);
    host_sets("Highlights Chroma", 100);
    host_sets("Sky Angle", 12.3456f);
    std::vector<std::uint8_t> saved = effect->get_state();
    effect->reset_to_default();
    EXPECT_EQ(value("Highlights Chroma"), 0.0f);
    ASSERT_TRUE(effect->set_state(saved, false));
    EXPECT_EQ(effect->get_state(), saved);
    drag("Highlights Range", 0.0f);
    drag("Highlights Lightness", -10.0f);
    EXPECT_EQ(value("Highlights Chroma"), 100.0f) << "restored values count as the user's";
}

param_value number(float v) { return {param_type::continuous, param_cell::of(v), {}, {}, {}}; }
param_value whole(std::int32_t v) { return {param_type::integral, param_cell::of(v), {}, {}, {}}; }

TEST_F(veridial_test, earlier_parameters_set_the_present_ones)
{
    const std::tuple<const char*, param_value, const char*, const char*, float, float> rows[] = {
        {"Sky", number(-40), "Sky Angle", "Sky Strength", 270, 40},
        {"Sky", number(0), "Sky Angle", "Sky Strength", 90, 0},
        {"Sky", whole(55), "Sky Angle", "Sky Strength", 90, 55},
        {"Film Contrast", number(-40), "Film Contrast Angle", "Film Contrast Strength", 90, 40},
        {"Film Contrast", number(40), "Film Contrast Angle", "Film Contrast Strength", 270, 40},
        {"Film Contrast", number(0), "Film Contrast Angle", "Film Contrast Strength", 90, 0},
        {"Greenery Kind", whole(1), "Greenery Angle", "Greenery Strength", 90, 0},
        {"Greenery Kind", number(2.9f), "Greenery Angle", "Greenery Strength", 270, 0},
        {"Greenery Kind", whole(3), "Greenery Angle", "Greenery Strength", 0, 0},
        {"Greenery Kind", whole(4), "Greenery Angle", "Greenery Strength", 33, 0},
        {"Sky", number(std::numeric_limits<float>::infinity()), "Sky Angle", "Sky Strength", 0, 0},
        {"Sky", number(std::numeric_limits<float>::quiet_NaN()), "Sky Angle", "Sky Strength", 0, 0},
    };
    for (const auto& [old_name, old_value, angle_name, strength_name, angle, strength] : rows)
    {
        SCOPED_TRACE(std::string(old_name) + " to " + angle_name);
        effect->reset_to_default();
        host_sets("Greenery Angle", 33);
        restore_legacy({{old_name, old_value}});
        EXPECT_FLOAT_EQ(value(angle_name), angle);
        EXPECT_FLOAT_EQ(value(strength_name), strength);
    }
    EXPECT_TRUE(effect->get_host()->has_legacy_parameters());
}

TEST_F(veridial_test, the_two_earlier_skin_values_act_together)
{
    restore_legacy({{"Boost Skin Tones", number(30)}, {"Skin Tone Hue", number(40)}});
    EXPECT_FLOAT_EQ(value("Skin Tone Strength"), 50.0f);
    EXPECT_NEAR(value("Skin Angle"), 53.1301f, 1e-4);

    restore_legacy({{"Skin Tone Hue", number(-80)}, {"Boost Skin Tones", number(-80)}});
    EXPECT_FLOAT_EQ(value("Skin Tone Strength"), 100.0f) << "113 is capped";
    EXPECT_NEAR(value("Skin Angle"), 225.0f, 1e-4);

    effect->reset_to_default();
    restore_legacy({{"Boost Skin Tones", number(30)}});
    restore_legacy({{"Skin Tone Hue", number(40)}});
    EXPECT_EQ(value("Skin Tone Strength"), 0.0f) << "values of two documents do not act together";
}

TEST_F(veridial_test, every_row_is_rendered_with_one_published_table)
{
    // Two grades flip while rows are rendered: a row must be all of one.
    std::vector<argb_float> in(64, sample), dark(64), light(64);
    host_sets("Global Luminance", -30);
    rebuild();
    effect->render_row(0, in.data(), dark.data(), in.size());
    host_sets("Global Luminance", 30);
    rebuild();
    effect->render_row(0, in.data(), light.data(), in.size());
    ASSERT_NE(dark[0], light[0]);

    std::atomic<bool> stop = false;
    std::atomic<int> torn = 0, rendered = 0;
    const auto render = [&]
    {
        std::vector<argb_float> out(in.size());
        while (!stop)
        {
            const auto renderer = effect->get_row_renderer();
            for (std::size_t y = 0; y < 8; ++y)
            {
                renderer->render_row(y, in.data(), out.data(), in.size());
                torn += out != dark && out != light;
            }
            argb_float pixel;
            effect->render_pixel(0, 0, sample, pixel);
            torn += pixel != dark[0] && pixel != light[0];
            ++rendered;
        }
    };
    std::thread one(render), two(render);
    for (int i = 0; i < 100 || rendered < 100; ++i)
    {
        host_sets("Global Luminance", i % 2 == 0 ? -30.0f : 30.0f);
        rebuild();
    }
    stop = true;
    one.join();
    two.join();
    EXPECT_EQ(torn, 0);
}

TEST_F(veridial_test, a_rebuild_contains_every_value_set_before_it_was_asked_for)
{
    // Several threads set and rebuild; after each one's own rebuild its own value must be in the table.
    std::atomic<int> stale = 0;
    const auto work = [&](const char* name, int seed)
    {
        std::mt19937 engine(seed);
        for (int i = 0; i < 40; ++i)
        {
            host_sets(name, static_cast<float>(engine() % 100));
            rebuild();
            lut_argb_variable exported;
            stale += !effect->get_lut(&exported) || exported.values.empty();
        }
        host_sets(name, 60);
        rebuild();
    };
    std::thread one(work, "Global Luminance", 1), two(work, "Shadows Chroma", 2);
    one.join();
    two.join();
    EXPECT_EQ(stale, 0);
    const argb_float settled = graded();
    effect->notify({event_kind::initialized});
    rebuild();
    EXPECT_EQ(graded(), settled) << "the last table stands for the last values";
}

TEST(create_ccomponent, makes_components_that_share_nothing_but_the_looks)
{
    const auto one = create_ccomponent(), two = create_ccomponent();
    one->initialize(std::make_shared<chost_v1>(one));
    two->initialize(std::make_shared<chost_v1>(two));
    std::dynamic_pointer_cast<cparameter_continuous_v1>(one->get_parameter("Sky Strength"))->set_value(70, true);
    EXPECT_FALSE(two->get_parameter("Sky Strength")->is_dirty());
    EXPECT_EQ(one->create_view(), nullptr) << "no editor is installed";
    one->terminate();
    two->terminate();
}

} // namespace
} // namespace ov1
