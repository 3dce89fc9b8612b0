// OpenColorIO as an independent reader of the files that we export.
#include "effect/lut/lut_argb_variable.h"
#include "effect/veridial.h"
#include "framework/chost_v1.h"

#include <OpenColorIO/OpenColorIO.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

namespace OCIO = OCIO_NAMESPACE;

namespace ov1
{
namespace
{

class opencolorio : public testing::Test
{
protected:
    void SetUp() override
    {
        effect->initialize(std::make_shared<chost_v1>(effect));
        std::filesystem::create_directories(folder);
        const std::pair<const char*, float> grade[] = {
            {"Shadows Hue", 220},       {"Shadows Chroma", 45}, {"Highlights Hue", 40}, {"Highlights Chroma", 30},
            {"Mids Smoothness", 60},    {"Master Hue", 300},    {"Master Chroma", 12},  {"Global Chroma", 25},
            {"Global Luminance", -4.5}, {"Mids Lightness", 2}};
        for (const auto& [name, value] : grade)
        {
            const auto parameter = effect->get_parameter(name);
            param_value record = parameter->get_param_value();
            record.value = param_cell::of(value);
            parameter->set_param_value(record, true);
        }
        ASSERT_TRUE(effect->get_lut(&table));
    }
    void TearDown() override
    {
        effect->terminate();
        std::filesystem::remove_all(folder);
    }

    /// What the peer makes of a colour with the file.
    argb_float by_peer(const std::string& file, const argb_float& c)
    {
        if (file != processor_file)
        {
            const auto transform = OCIO::FileTransform::Create();
            transform->setSrc(file.c_str());
            transform->setInterpolation(OCIO::INTERP_LINEAR);
            processor =
                OCIO::Config::CreateRaw()->getProcessor(transform)->getOptimizedCPUProcessor(OCIO::OPTIMIZATION_NONE);
            processor_file = file;
        }
        float rgb[3] = {c.r, c.g, c.b};
        processor->applyRGB(rgb);
        return {1, rgb[0], rgb[1], rgb[2]};
    }

    /// Compares colours whose channels are k / steps, or anything where steps is 0, with our own lookup.
    void expect_agreement(const std::string& file, int steps, float tolerance)
    {
        std::mt19937 engine(99);
        const auto channel = [&]
        {
            if (steps == 0)
                return std::uniform_real_distribution<float>(0, 1)(engine);
            return static_cast<float>(engine() % static_cast<unsigned>(steps + 1)) / static_cast<float>(steps);
        };
        const auto renderer = effect->get_row_renderer();
        for (int i = 0; i < 5000; ++i)
        {
            const argb_float c{1, channel(), channel(), channel()};
            argb_float ours;
            renderer->render_row(0, &c, &ours, 1);
            const argb_float theirs = by_peer(file, c);
            ASSERT_NEAR(theirs.r, ours.r, tolerance) << c.r << ' ' << c.g << ' ' << c.b;
            ASSERT_NEAR(theirs.g, ours.g, tolerance) << c.r << ' ' << c.g << ' ' << c.b;
            ASSERT_NEAR(theirs.b, ours.b, tolerance) << c.r << ' ' << c.g << ' ' << c.b;
        }
    }

    std::shared_ptr<veridial> effect = std::make_shared<veridial>();
    lut_argb_variable table;
    std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / ("veridial_ocio_" + std::to_string(getpid()));
    OCIO::ConstCPUProcessorRcPtr processor;
    std::string processor_file;
};

constexpr float four_decimals = 0.5e-4f + 2e-6f; // half a unit of the last place, and the floats on both sides

TEST_F(opencolorio, renders_a_17_point_cube_as_we_do)
{
    const std::string file = folder / "grade.cube";
    ASSERT_TRUE(table.save_as_cube(file, 17, "Veridial", ""));
    expect_agreement(file, 0, four_decimals);
}

TEST_F(opencolorio, finds_our_colours_at_the_points_of_a_32_point_cube)
{
    // Between its points a resampled table is another function; at them it is ours.
    const std::string file = folder / "grade.cube";
    ASSERT_TRUE(table.save_as_cube(file, 32, "", "nobody"));
    expect_agreement(file, 31, four_decimals);
}

TEST_F(opencolorio, renders_a_3dl_within_its_ten_bits)
{
    // The reader guesses the bit depth from the largest value: white must stay above 0.55.
    ASSERT_GT(table.values.back().g, 0.55f);
    const std::string file = folder / "grade.3dl";
    ASSERT_TRUE(table.save_as_3dl(file, "Veridial", ""));
    expect_agreement(file, 0, 1.0f / 1023 + 0.0001f);
}

} // namespace
} // namespace ov1
