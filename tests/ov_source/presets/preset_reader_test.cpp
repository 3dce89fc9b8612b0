#include "presets/preset_reader.h"

#include "framework/restore_guard.h"
#include "presets/preset_text.h"
#include "presets/random_look.h"
#include "support/effect_stage.h"
#include "support/temp_folder.h"
#include "support/test_component.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace ov1
{
namespace
{

constexpr auto nothing = "\t\"plugin_state_size\":9,\n\t\"plugin_state\":[115,49,118,99,0,0,0,0,0]\n}"; // no record

std::string entry(const std::string& name, const std::string& id, const std::string& type, const std::string& value)
{
    return R"({"param_name":")" + name + R"(","param_id":)" + id + R"(,"param_type":")" + type + R"(","param_value":)" +
           value + "}";
}
std::string entry(const std::string& name, const std::string& type, const std::string& value)
{
    return entry(name, std::to_string(make_uid(name)), type, value);
}

std::string replaced(std::string text, std::string_view from, std::string_view to)
{
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return text.replace(at, from.size(), to);
}

class preset_reader : public testing::Test
{
protected:
    bool load(const std::string& text)
    {
        auto content = read_preset_text(text);
        const result<> applied = content ? apply_preset(*std::move(content), *on.component) : result<>(content.error());
        reason = applied ? "" : applied.error().reason;
        return static_cast<bool>(applied);
    }
    void expect_refused(const std::string& text, const std::string& expected_reason)
    {
        const auto refused = read_preset_text(text);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.error().reason, expected_reason);
        EXPECT_EQ(refused.error().kind, failure_kind::invalid_grade);
    }

    stage on;
    std::string reason;
    const std::string good = write_preset_text(*on.component);
};

TEST_F(preset_reader, a_file_damaged_in_one_field_is_refused_with_the_fields_name)
{
    const auto entry = [](int i, const char* what)
    { return "entry " + std::to_string(i) + " of \"parameters\": " + what; };
    const std::string no_count = "\"parameter_count\" is not a whole number of 32 bits";
    const auto no_id = entry(1, "\"param_id\" is not an unsigned whole number of 32 bits");
    const auto no_integer = entry(2, "\"param_value\" is not a whole number of 32 bits");
    const auto no_colour = entry(4, "\"param_value\" is not an array of four numbers");
    const std::tuple<const char*, const char*, std::string> rows[] = {
        {"parameter_count", "parameter_kount", "\"parameter_count\" is missing"},
        {"count\":4", "count\":4.0", no_count},
        {"count\":4", "count\":4294967300", no_count},
        {"count\":4", "count\":0", "\"parameter_count\" is less than 1"},
        {"count\":4", "count\":5", "\"parameters\" holds 4 elements, but \"parameter_count\" is 5"},
        {"parameters\":[", "parameters\":{},\"x\":[", "\"parameters\" is not an array"},
        {"4,\n\t\"parameters\":[", "5,\n\t\"parameters\":[[],", "entry 1 of \"parameters\" is not an object"},
        {"\"Amount\"", "7", entry(1, "\"param_name\" is not a text")},
        {"param_id\":", "param_id\":-", no_id},
        {"param_id\":", "param_id\":4294967296,\"x\":", no_id},
        {"\"continuous\"", "0", entry(1, "\"param_type\" is not a text")},
        {"param_value", "param_valeu", entry(1, "\"param_value\" is missing")},
        {"50.000000", "\"50\"", entry(1, "\"param_value\" is not a number")},
        {"integral\",\n\t\t\"param_value\":0", "integral\",\n\t\t\"param_value\":0.5", no_integer},
        {"integral\",\n\t\t\"param_value\":0", "integral\",\n\t\t\"param_value\":3000000000", no_integer},
        {"false", "0", entry(3, "\"param_value\" is not true or false")},
        {"[1.000000, ", "[", no_colour},
        {"[1.000000", "[\"1\"", no_colour},
        {"size\":200", "size\":199", "\"plugin_state\" holds 200 elements, but \"plugin_state_size\" is 199"},
        {"[115,", "[256,", "element 1 of \"plugin_state\" is not a byte, 0 to 255"},
        {"[115,49,", "[115,-1,", "element 2 of \"plugin_state\" is not a byte, 0 to 255"},
        {",99,4,0,", ",99,5,0,", "\"plugin_state\": the state is cut short: it announces 5 parameters and holds 4"},
    };
    for (const auto& [from, to, expected] : rows)
    {
        SCOPED_TRACE(std::string(from) + " -> " + to);
        expect_refused(replaced(good, from, to), expected);
    }
    EXPECT_TRUE(load("\xEF\xBB\xBF" + good)) << "behind a byte order mark: " << reason;
}

TEST_F(preset_reader, text_that_is_not_json_or_not_a_preset_is_refused_with_the_position)
{
    const auto at = [](std::size_t place) { return "not valid JSON at byte " + std::to_string(place) + ": "; };
    const std::tuple<const char*, std::string, std::string> rows[] = {
        {"empty", "", "holds no text"},
        {"another kind", "[1]", "not a preset: the text is not an object"},
        {"truncated", good.substr(0, good.size() - 2),
         at(good.size() - 2) + "missing a comma or '}' after an object member"},
        {"text behind it", good + "x", at(good.size()) + "the document root must not be followed by other values"},
        {"a zero behind it", good + '\0' + "x", at(good.size()) + "a zero byte"},
        {"a million levels", std::string(1'000'000, '['), at(1'000'000) + "invalid value"},
    };
    for (const auto& [what, text, expected] : rows)
    {
        SCOPED_TRACE(what);
        expect_refused(text, expected);
    }
    const std::string deep = std::string(1'000'000, '[') + std::string(1'000'000, ']');
    EXPECT_TRUE(load(replaced(good, "{\n", "{\"x\":" + deep + ","))) << reason;
}

TEST_F(preset_reader, a_file_beyond_the_size_limit_is_refused)
{
    const temp_folder folder;
    folder.with_file("huge", "");
    std::filesystem::resize_file(folder / "huge", 100 << 20);
    const auto refused = read_preset_file(folder / "huge");
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().reason, "is larger than 4194304 bytes");
}

TEST_F(preset_reader, an_entry_that_does_not_match_is_skipped_and_the_rest_loads)
{
    const std::tuple<const char*, std::string, float, int> rows[] = {
        {"the accepted word", entry("Amount", "continuos", "12.5"), 12.5f, 0},
        {"beyond its bounds", entry("Amount", "continuos", "-1e300"), 0, 0},
        {"the written word", entry("Amount", "continuous", "12.5"), 50, 0},
        {"an unknown id", entry("Amount", "1", "continuos", "12.5"), 50, 0},
        {"the id of another", entry("Steps", std::to_string(make_uid("Amount")), "continuos", "12.5"), 50, 0},
        {"an unknown name", entry("Amaunt", "continuos", "12.5"), 50, 0},
        {"the word of another type", entry("Amount", "integral", "12"), 50, 0},
        {"an unknown word", entry("Amount", "custom", "null"), 50, 0},
        {"an integer", entry("Steps", "integral", "-7"), 50, -7},
        {"an integer beyond its bounds", entry("Steps", "integral", "2147483647"), 50, 10},
        {"a colour beyond its bounds", entry("Tint", "color", "[1, 2, 0, 0]"), 50, 0},
    };
    for (const auto& [what, first, amount, steps] : rows)
    {
        SCOPED_TRACE(what);
        on.component->amount->set_value(80, false);
        ASSERT_TRUE(load("{\"parameter_count\":3,\"parameters\":[" + first + "," + entry("On", "boolean", "true") +
                         "," + entry("Tint", "color", "[0.25, 0.5, 0.75, 1]") + "]," + nothing))
            << reason;
        EXPECT_EQ(on.component->amount->get_value(), amount);
        EXPECT_EQ(on.component->steps->get_value(), steps);
        EXPECT_TRUE(on.component->on->get_value());
        EXPECT_EQ(on.component->tint->get_value(), (param_argb{0.25f, 0.5f, 0.75f, 1}));
    }
}

TEST_F(preset_reader, a_load_is_one_restore_that_sets_each_parameter_once)
{
    on.component->amount->set_value(80, true);
    on.host->events.take();
    on.view->controls.take();
    ASSERT_TRUE(load(good)) << reason;
    EXPECT_EQ(on.component->amount->get_value(), 50);
    EXPECT_EQ(on.component->restores, 1);
    EXPECT_EQ(on.host->events.take().size(), 4u) << "the state decides all four";
    EXPECT_EQ(on.component->set_while_restoring, 4) << "reported as changed, not as edited";
    EXPECT_EQ(on.view->controls.take().size(), 1u) << "only the amount moves";
}

TEST_F(preset_reader, a_load_is_one_undo_step_and_none_while_a_control_is_dragged)
{
    on.component->amount->set_value(80, false);
    ASSERT_TRUE(load(good)) << reason;
    EXPECT_EQ(on.component->get_undo_range(), (undo_range{0, 1, 1}));
    on.component->undo();
    EXPECT_EQ(on.component->amount->get_value(), 80);
    on.view->editing = true;
    EXPECT_FALSE(load(good));
    EXPECT_EQ(reason, "a control is being moved");
    EXPECT_EQ(on.component->amount->get_value(), 80);
    EXPECT_EQ(on.component->get_undo_range(), (undo_range{0, 0, 1})) << "what can be redone is kept";
}

/// Maps a former parameter to "Steps" by the value that "Amount" has at that moment.
struct mapping_component : test_component
{
    void handle_unknown_parameter(uid, const param_value&, bool edit) override
    {
        steps->set_value(static_cast<std::int32_t>(amount->get_value() / 10), edit);
    }
};

TEST(preset_reader_mapping, a_former_parameter_meets_the_defaults_and_not_the_old_grade)
{
    const auto component = std::make_shared<mapping_component>();
    component->initialize(std::make_shared<chost_v1>(component));
    component->amount->set_value(80, false);
    const state_record records[] = {continuous_record("Former", 1), continuous_record("Amount", 20)};
    ASSERT_TRUE(apply_preset({{}, write_state(records)}, *component));
    EXPECT_EQ(component->steps->get_value(), 5) << "the default of 50 and not 80";
    EXPECT_EQ(component->amount->get_value(), 20);
}

struct preset_round_trip : testing::Test, effect_stage
{
    std::mt19937 engine{20};
};

TEST_F(preset_round_trip, save_load_save_gives_the_same_bytes)
{
    for (int i = 0; i < 200; ++i) // the first one is the default
    {
        SCOPED_TRACE(i);
        if (i % 2 == 1) // a state that the wheels' coupling would not allow
            for (int p = 1; p < effect->get_parameter_count(); ++p)
            {
                param_value v = effect->get_parameter(p)->get_param_value();
                v.value = param_cell::of(engine() % 2 ? v.max.as_continuous() : v.min.as_continuous());
                effect->get_parameter(p)->set_param_value(v, true);
            }
        const std::string saved = write_preset_text(*effect);
        const auto state = effect->get_state();
        randomize_look(*effect, engine);
        auto content = read_preset_text(saved);
        ASSERT_TRUE(content) << content.error().reason;
        ASSERT_TRUE(apply_preset(*std::move(content), *effect));
        EXPECT_EQ(effect->get_state(), state);
        EXPECT_TRUE(write_preset_text(*effect) == saved);
        randomize_look(*effect, engine);
    }
}

/// Random presets: some parameters are only in the list, some only in the state, some values are no numbers or of
/// another type, and some records name former parameters.
preset_content random_content(icomponent_v1& effect, std::mt19937& engine)
{
    preset_content content;
    std::vector<state_record> records;
    const auto one_in = [&](unsigned n) { return engine() % n == 0; };
    const auto number = [&] { return one_in(8) ? std::numeric_limits<float>::quiet_NaN() : engine() % 300 - 150.0f; };
    for (int i = 0; i < effect.get_parameter_count(); ++i)
    {
        const auto parameter = effect.get_parameter(i);
        const auto type = parameter->get_type();
        if (one_in(2) && type == param_type::continuous)
            content.entries.push_back({parameter->get_name(), parameter->get_uid(), type, param_cell::of(12.5f)});
        if (one_in(2))
            records.push_back({{one_in(9) ? param_type::integral : type, param_cell::of(number()), {}, {}, {}},
                               parameter->get_uid()});
    }
    std::ranges::shuffle(records, engine);
    for (const char* former : {"Greenery Kind", "Sky", "Boost Skin Tones"})
        if (one_in(6))
            records.insert(records.begin() + static_cast<int>(engine() % (records.size() + 1)),
                           continuous_record(former, number()));
    content.state = write_state(records);
    return content;
}

TEST_F(preset_round_trip, a_load_ends_as_if_everything_were_reset_then_listed_then_restored)
{
    effect_stage plain;
    for (int i = 0; i < 400; ++i)
    {
        SCOPED_TRACE(i);
        randomize_look(*effect, engine);
        auto state = effect->get_state();
        plain.effect->set_state(state, false);
        const preset_content content = random_content(*effect, engine);
        ASSERT_TRUE(apply_preset(content, *effect));
        {
            const restore_guard restoring(*plain.effect);
            for (int p = 0; p < plain.effect->get_parameter_count(); ++p)
                plain.effect->get_parameter(p)->reset_to_default();
            for (const preset_entry& entry : content.entries)
            {
                param_value v = plain.effect->get_parameter(entry.id)->get_param_value();
                v.value = entry.value;
                plain.effect->get_parameter(entry.id)->set_param_value(v, false);
            }
            state = content.state;
            plain.effect->set_state(state, false);
        }
        ASSERT_TRUE(effect->get_state() == plain.effect->get_state());
    }
}

} // namespace
} // namespace ov1
