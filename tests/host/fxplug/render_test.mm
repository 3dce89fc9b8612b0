// Rendering tiles with the plug-in class: pixels, refused tiles, several threads.
#include "support/bridge_fixture.h"

#include "host/simulator/tile_maker.h"

#include <random>
#include <thread>

namespace ov1
{
namespace
{

constexpr OSType half_code = 0x52476841, float_code = 0x52476641;

rgba_picture random_picture(std::size_t width, std::size_t height)
{
    rgba_picture picture(width, height);
    std::mt19937 random(7);
    for (float& v : picture.rgba)
        v = static_cast<float>(random() % 2049) / 2048; // a half holds it
    return picture;
}

FxImageTile* tile_of(surface_shape shape)
{
    IOSurface* const surface = [[[IOSurface alloc] initWithShape:shape] autorelease];
    return [[[FxImageTile alloc] initWithSurface:surface tileBounds:{} imageBounds:{} origin:2] autorelease];
}

struct render : bridge_fixture
{
    bool run(FxImageTile* destination, FxImageTile* source, NSError** error)
    {
        return [plugin() renderDestinationImage:destination
                                   sourceImages:@[ source ]
                                    pluginState:nil
                                         atTime:kCMTimeZero
                                          error:error];
    }
};

TEST_F(render, half_tiles_are_graded_in_rgba_and_float_tiles_in_memory_order)
{
    const rgba_picture in = random_picture(97, 61);
    for (const auto& [is_half, side] : {std::pair{true, 32u}, {false, 32u}, {true, 0u}, {false, 97u}, {true, 1u}})
    {
        SCOPED_TRACE(side);
        rgba_picture expected(97, 61);
        const auto format = is_half ? surface_format::half : surface_format::full_float;
        const auto out = host.render(in, {.format = format, .side = side, .padding = 48, .threads = 3});
        ASSERT_TRUE(out) << out.error().reason;
        for (std::size_t i = 0; i < in.rgba.size(); i += 4)
        {
            const float* p = &in.rgba[i];
            const float graded[2][4] = {{p[0], p[3], p[2], p[1]}, {p[2], p[1], p[0], p[3]}};
            std::copy_n(graded[is_half], 4, &expected.rgba[i]);
        }
        EXPECT_TRUE(*out == expected) << "red and blue are exchanged; of floats, the second and the fourth number";
    }
}

TEST_F(render, rectangles_are_the_sources_and_the_destinations)
{
    const rgba_picture picture(100, 50);
    FxImageTile* const tile = [make_tile(nil, picture, {10, 5, 20, 15}) autorelease];
    FxRect whole{}, wanted{};
    ASSERT_TRUE([plugin() destinationImageRect:&whole
                                  sourceImages:@[ tile ]
                              destinationImage:nil
                                   pluginState:nil
                                        atTime:kCMTimeZero
                                         error:NULL]);
    EXPECT_TRUE(whole.left == 0 && whole.bottom == 0 && whole.right == 100 && whole.top == 50);
    ASSERT_TRUE([plugin() sourceTileRect:&wanted
                        sourceImageIndex:0
                            sourceImages:@[ tile ]
                     destinationTileRect:[tile tilePixelBounds]
                        destinationImage:tile
                             pluginState:nil
                                  atTime:kCMTimeZero
                                   error:NULL]);
    EXPECT_TRUE(wanted.left == 10 && wanted.bottom == 30 && wanted.right == 30 && wanted.top == 45);
}

TEST_F(render, tiles_that_differ_or_have_another_format_are_refused_with_a_code)
{
    const surface_shape good{8, 4, half_code, 8, 64};
    const struct
    {
        const char* name;
        surface_shape source, destination;
        long code;
        const char* description;
    } rows[] = {
        {"bytes per row", {8, 4, half_code, 8, 80}, good, 5, "Input and Output image tiles are incompatible"},
        {"height", {8, 5, half_code, 8, 64}, good, 5, "Input and Output image tiles are incompatible"},
        {"format", {8, 4, float_code, 8, 64}, good, 5, "Input and Output image tiles are incompatible"},
        {"halfs of 16 bytes", {4, 4, half_code, 16, 64}, {4, 4, half_code, 16, 64}, 18, "Unsupported pixel format"},
        {"floats of 8 bytes", {8, 4, float_code, 8, 64}, {8, 4, float_code, 8, 64}, 18, "Unsupported pixel format"},
        {"nothing wrong", good, good, 0, ""},
        {"no width", {0, 4, half_code, 8, 0}, {0, 4, half_code, 8, 0}, 0, ""},
        {"no height", {8, 0, half_code, 8, 64}, {8, 0, half_code, 8, 64}, 0, ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        FxImageTile *const source = tile_of(row.source), *const destination = tile_of(row.destination);
        NSError* error = nil;
        EXPECT_EQ(run(destination, source, &error), row.code == 0);
        EXPECT_EQ([error code], row.code);
        if (row.code != 0)
        {
            EXPECT_STREQ([[error localizedDescription] UTF8String], row.description);
            EXPECT_TRUE([[error domain] isEqualToString:FxPlugErrorDomain]);
            EXPECT_FALSE(run(destination, source, NULL));
        }
        else
            EXPECT_EQ([[source ioSurface] openLocks] + [[destination ioSurface] openLocks], 0);
        EXPECT_EQ([[source ioSurface] wrongUnlocks] + [[destination ioSurface] wrongUnlocks], 0);
    }
}

TEST_F(render, a_destination_without_a_lock_fails_and_a_source_without_one_is_skipped)
{
    FxImageTile *const source = tile_of({8, 4, half_code, 8, 64}), *const destination =
                                                                       tile_of({8, 4, half_code, 8, 64});
    NSError* error = nil;
    [[destination ioSurface] refuseLocks:YES];
    EXPECT_FALSE(run(destination, source, &error));
    EXPECT_TRUE(error == nil);
    [[destination ioSurface] refuseLocks:NO];
    [[source ioSurface] refuseLocks:YES];
    EXPECT_TRUE(run(destination, source, &error));
    EXPECT_EQ([[source ioSurface] openLocks] + [[destination ioSurface] openLocks], 0);
}

TEST_F(render, while_an_editor_is_open_tiles_are_unchanged_and_edits_ignored)
{
    const rgba_picture in = random_picture(8, 8);
    gui_is_open() = true;
    const auto out = host.render(in);
    EXPECT_TRUE(host.edit(2, 40.0)) << "accepted";
    gui_is_open() = false;
    ASSERT_TRUE(out);
    EXPECT_TRUE(*out == rgba_picture(8, 8));
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 12.5f) << "and ignored";
}

TEST_F(render, tiles_of_several_threads_are_complete_while_values_are_edited)
{
    const rgba_picture in = random_picture(64, 64);
    std::atomic<bool> stop = false;
    std::jthread editing(
        [&]
        {
            for (double v = 0; !stop; v = v < 90 ? v + 1 : 0)
                host.edit(2, v);
        });
    std::vector<std::jthread> renders;
    for (int i = 0; i < 2; ++i)
        renders.emplace_back(
            [&]
            {
                for (int k = 0; k < 20; ++k)
                {
                    const auto out = host.render(in, {.side = 16, .padding = 16});
                    ASSERT_TRUE(out) << out.error().reason;
                    EXPECT_EQ(out->rgba[0], in.rgba[2]);
                }
            });
    renders.clear();
    stop = true;
}

} // namespace
} // namespace ov1
