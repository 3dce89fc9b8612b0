#include "presets/preset_text.h"

#include "effect/lut/lut_argb_variable.h"
#include "framework/lut_exporter.h"
#include "support/test_component.h"

#include <gtest/gtest.h>
#include <limits>
#include <locale>

namespace ov1
{
namespace
{

/// Two grid points per axis: point (r, g, b) holds r, g / 2, b / 4.
struct exporting_component : test_component, lut_exporter
{
    bool query_interface(const std::string& name, iobject** out) override
    {
        return answer_query(make_uid("lut_exporter"), static_cast<lut_exporter*>(this), name, out);
    }
    bool get_lut(lut_argb_variable* out) override
    {
        out->edge_length = edge;
        for (int i = 0; i < 8; ++i)
            out->values.push_back({9, static_cast<float>(i >> 2), (i >> 1 & 1) / 2.0f, (i & 1) / 4.0f});
        out->values[7].b = last;
        return delivers;
    }
    std::uint64_t edge = 2;
    float last = 0.25f;
    bool delivers = true;
};

const std::string head = "{\n\t\"plugin_name\":\"Veridial\",\n\t\"plugin_version\":\"3.7.0\",\n";

std::string entry(const std::string& name, const char* type, const char* value)
{
    return "\t{\n\t\t\"param_name\":\"" + name + "\",\n\t\t\"param_id\":" + std::to_string(make_uid(name)) + ",\n\t\t" +
           type + ",\n\t\t\"param_value\":" + value + "\n\t}";
}

/// The whole text for the test component's parameters, up to the end of the state.
std::string expected_text(icomponent_v1& component)
{
    std::string text = head + "\t\"parameter_count\":4,\n\t\"parameters\":[\n" +
                       entry("Amount", R"("param_type":"continuous")", "1.500000") + ",\n" +
                       entry("Steps", R"("param_type":"integral")", "-7") + ",\n" +
                       entry("On", R"("param_type":"boolean")", "false") + ",\n" +
                       entry("Tint", R"("param_type":"color")", "[1.000000, 0.000000, 0.500000, 1.000000]") +
                       "\n\t],\n\t\"plugin_state_size\":200,\n\t\"plugin_state\":[";
    std::string separator;
    for (const std::uint8_t byte : component.get_state())
        text += std::exchange(separator, ",") + std::to_string(byte);
    return text + "]";
}

const std::string eight_points = ",\n\t\"lut_edge_length\":2,\n\t\"lut_points\":["
                                 "0.000000,0.000000,0.000000,0.000000,0.000000,0.250000,"
                                 "0.000000,0.500000,0.000000,0.000000,0.500000,0.250000,"
                                 "1.000000,0.000000,0.000000,1.000000,0.000000,0.250000,"
                                 "1.000000,0.500000,0.000000,1.000000,0.500000,0.250000]";

struct preset_text : testing::Test
{
    preset_text()
    {
        component->initialize(std::make_shared<chost_v1>(component));
        component->amount->set_value(1.5f, false);
        component->steps->set_value(-7, false);
    }
    std::shared_ptr<exporting_component> component = std::make_shared<exporting_component>();
};

TEST_F(preset_text, is_the_published_layout_byte_for_byte_under_any_locale)
{
    for (const char* name : {"C", "de_DE.UTF-8"})
    {
        const std::locale before = std::locale::global(std::locale(name));
        const std::string text = write_preset_text(*component);
        std::locale::global(before);
        EXPECT_EQ(text, expected_text(*component) + eight_points + "\n}") << name;
    }
}

TEST_F(preset_text, leaves_the_table_out_where_there_is_none_and_writes_no_word_that_json_lacks)
{
    component->last = std::numeric_limits<float>::quiet_NaN();
    EXPECT_TRUE(write_preset_text(*component).ends_with("0.500000,0.000000]\n}"));
    component->edge = 0;
    EXPECT_EQ(write_preset_text(*component), expected_text(*component) + "\n}");
    component->edge = 2;
    component->delivers = false;
    EXPECT_EQ(write_preset_text(*component), expected_text(*component) + "\n}");
}

TEST(preset_text_of, other_kinds_and_components_without_parameters_as_published)
{
    const auto component = std::make_shared<test_component>();
    EXPECT_EQ(write_preset_text(*component), head + "\t\"parameter_count\":0,\n\t\"parameters\":[\n\t],\n"
                                                    "\t\"plugin_state_size\":0,\n\t\"plugin_state\":[]\n}");
    component->register_parameter(std::make_shared<cparameter_v1>(component, "Odd", param_type{4}));
    const std::string odd = entry("Odd", "// NOTE: Not yet supported\n\t\t\"param_type\":\"custom\"", "null");
    EXPECT_NE(write_preset_text(*component).find(":[\n" + odd + "\n\t],\n"), std::string::npos);
}

} // namespace
} // namespace ov1
