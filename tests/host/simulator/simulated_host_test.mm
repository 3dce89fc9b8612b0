// The simulated host, with an effect that records the calls it gets.
#include "host/simulator/simulated_host.h"

#include "support/bridge_fixture.h"

#import <FxPlug/protocol_records.h>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>
#include <set>

namespace ov1
{
namespace
{

/// What the effect was asked, from any thread.
struct effect_log
{
    std::mutex lock;
    std::vector<FxRect> tiles;                      ///< that were rendered
    std::vector<std::pair<UInt32, CMTime>> changed; ///< parameter and currentTime of the call
    std::vector<CMTime> analysed;                   ///< times of analysed frames
    std::set<std::int64_t> render_times;            ///< values of currentTime during renders
    std::function<void()> on_tile;                  ///< called for each tile, with the lock held
    SInt32 refused_left = -1;                       ///< tiles that begin in this column fail
};

effect_log* current_log = nullptr;

} // namespace
} // namespace ov1

/// The plug-in class, with its answers to renders, edits and analyses replaced by entries in the log.
@interface recording_effect : fcp_wrapper_veridialfcpx_3_7_0_0
@end

@implementation recording_effect

- (BOOL)renderDestinationImage:(FxImageTile*)destinationImage
                  sourceImages:(NSArray*)sourceImages
                   pluginState:(NSData*)pluginState
                        atTime:(CMTime)renderTime
                         error:(NSError**)outError
{
    const FxRect tile = [destinationImage tilePixelBounds];
    id<FxCustomParameterActionAPI_v4> const action =
        [[self getApiManager] apiForProtocol:@protocol(FxCustomParameterActionAPI_v4)];
    const std::scoped_lock guard(ov1::current_log->lock);
    ov1::current_log->tiles.push_back(tile);
    if (ov1::current_log->on_tile)
        ov1::current_log->on_tile();
    ov1::current_log->render_times.insert([action currentTime].value);
    if (tile.left != ov1::current_log->refused_left)
        return YES;
    NSDictionary* const info = [NSDictionary dictionaryWithObject:@"out of paint" forKey:NSLocalizedDescriptionKey];
    *outError = [NSError errorWithDomain:FxPlugErrorDomain code:6 userInfo:info];
    return NO;
}

- (BOOL)parameterChanged:(UInt32)paramID atTime:(CMTime)time error:(NSError**)error
{
    id<FxCustomParameterActionAPI_v4> const action =
        [[self getApiManager] apiForProtocol:@protocol(FxCustomParameterActionAPI_v4)];
    ov1::current_log->changed.emplace_back(paramID, [action currentTime]);
    return YES;
}

- (BOOL)desiredAnalysisTimeRange:(CMTimeRange*)desiredRange
           forInputWithTimeRange:(CMTimeRange)inputTimeRange
                           error:(NSError**)error
{
    *desiredRange = {{5, 30, kCMTimeFlags_Valid, 0}, {}};
    return YES;
}

- (BOOL)analyzeFrame:(FxImageTile*)frame atTime:(CMTime)frameTime error:(NSError**)error
{
    ov1::current_log->analysed.push_back(frameTime);
    return YES;
}

@end

namespace ov1
{
namespace
{

struct simulated : ::testing::Test
{
    simulated()
    {
        current_log = &log;
        const auto created = host.create_instance();
        EXPECT_TRUE(created) << created.error().reason;
    }

    id<PROAPIAccessing> manager() { return [static_cast<recording_effect*>(host.get_plugin()) getApiManager]; }

    pool_guard pool;
    effect_log log;
    simulated_host host{"recording_effect"};
};

TEST_F(simulated, tiles_of_any_size_cover_the_picture_once)
{
    const struct
    {
        std::size_t side;
        unsigned threads;
        std::size_t tiles;
    } rows[] = {{0, 1, 1}, {1, 3, 13 * 9}, {4, 2, 4 * 3}, {9, 1, 2}, {13, 4, 1}, {64, 1, 1}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.side);
        log.tiles.clear();
        ASSERT_TRUE(host.render(rgba_picture(13, 9), {.side = row.side, .threads = row.threads}));
        EXPECT_EQ(log.tiles.size(), row.tiles);
        SInt32 pixels = 0;
        for (const FxRect& tile : log.tiles)
            pixels += (tile.right - tile.left) * (tile.top - tile.bottom);
        EXPECT_EQ(pixels, 13 * 9);
    }
}

TEST_F(simulated, one_refused_tile_fails_the_render_with_the_effects_reason)
{
    log.refused_left = 4;
    const auto out = host.render(rgba_picture(13, 9), {.side = 4});
    ASSERT_FALSE(out);
    EXPECT_EQ(out.error().kind, failure_kind::unsupported);
    EXPECT_EQ(out.error().reason, "out of paint");
}

TEST_F(simulated, an_unknown_class_is_a_failure) { EXPECT_FALSE(simulated_host("no_such_effect").create_instance()); }

TEST_F(simulated, current_time_is_the_calls_time_on_every_thread_else_the_playhead)
{
    host.set_playhead(CMTimeMake(7, 30));
    log.on_tile = [&] { host.set_playhead(CMTimeMake(8, 30)); }; // the user plays on during the render
    ASSERT_TRUE(host.render(rgba_picture(8, 8), {.side = 1}));
    EXPECT_EQ(log.render_times, std::set<std::int64_t>{7});
    EXPECT_EQ(host.get_playhead().value, 8);
    EXPECT_TRUE(host.edit(2, 3.0));
    ASSERT_EQ(log.changed.size(), 1u);
    EXPECT_EQ(CMTimeCompare(log.changed[0].second, CMTimeMake(8, 30)), 0);
}

TEST_F(simulated, undo_and_redo_report_the_changed_parameters_only)
{
    EXPECT_FALSE(host.undo() || host.redo());
    EXPECT_TRUE(host.edit(2, 3.0) && host.edit(7, 0.25));
    EXPECT_FALSE(host.edit(8, 1.0)) << "an unknown parameter";
    EXPECT_FALSE(host.edit(7, true)) << "another type";
    log.changed.clear();
    ASSERT_TRUE(host.undo() && host.undo() && host.redo());
    std::vector<UInt32> ids;
    for (const auto& [id, time] : log.changed)
        ids.push_back(id);
    EXPECT_EQ(ids, (std::vector<UInt32>{7, 2, 2}));
}

TEST_F(simulated, an_analysis_gets_the_frame_before_and_the_wanted_one)
{
    host.set_frame(rgba_picture(4, 4), surface_format::half);
    host.set_rate(24000, 1001);
    id<FxAnalysisAPI> const analysis = [manager() apiForProtocol:@protocol(FxAnalysisAPI)];
    ASSERT_TRUE([analysis startForwardAnalysis:kFxAnalysisLocation_GPU error:NULL]);
    ASSERT_TRUE(host.wait_for_analysis());
    EXPECT_EQ([analysis analysisStateForEffect], kFxAnalysisState_AnalysisCompleted);
    ASSERT_EQ(log.analysed.size(), 2u);
    // 1/6 s, and 1001/24000 s before it.
    EXPECT_EQ(CMTimeCompare(log.analysed[0], CMTimeMake(2999, 24000)), 0);
    EXPECT_EQ(CMTimeCompare(log.analysed[1], CMTimeMake(1, 6)), 0);
}

TEST_F(simulated, input_time_is_timeline_time_plus_whole_frames)
{
    id<FxTimingAPI_v4> const timing = [manager() apiForProtocol:@protocol(FxTimingAPI_v4)];
    const struct
    {
        int numerator, denominator, frames;
        CMTime timeline, input;
    } rows[] = {
        {25, 1, 3, CMTimeMake(1, 25), CMTimeMake(4, 25)},
        {25, 1, -3, CMTimeMake(1, 25), CMTimeMake(-2, 25)},
        {30000, 1001, 1, CMTimeMake(0, 600), CMTimeMake(1001, 30000)},
        {24000, 1001, 2, CMTimeMake(1, 90000), CMTimeMake(4 + 2 * 15015, 360000)},
        {60, 1, 0, kCMTimeIndefinite, kCMTimeIndefinite},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.numerator << '/' << row.denominator << ", " << row.frames);
        host.set_rate(row.numerator, row.denominator);
        host.set_input_offset(row.frames);
        CMTime input = kCMTimeInvalid;
        [timing inputTime:&input fromTimelineTime:row.timeline];
        EXPECT_EQ(CMTimeCompare(input, row.input), 0) << input.value << '/' << input.timescale;
    }
}

TEST_F(simulated, a_slider_outside_its_bounds_or_without_a_step_is_refused)
{
    id<FxParameterCreationAPI_v5> const api = [manager() apiForProtocol:@protocol(FxParameterCreationAPI_v5)];
    const struct
    {
        const char* name;
        int slider_min, slider_max, delta;
        bool accepted;
    } rows[] = {{"below", -1, 10, 1, false},
                {"above", 0, 11, 1, false},
                {"no step", 0, 10, 0, false},
                {"within", 1, 9, 1, true}};
    UInt32 number = 10;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const BOOL accepted = [api addIntSliderWithName:@"I"
                                            parameterID:number++
                                           defaultValue:5
                                           parameterMin:0
                                           parameterMax:10
                                              sliderMin:row.slider_min
                                              sliderMax:row.slider_max
                                                  delta:row.delta
                                         parameterFlags:0];
        EXPECT_EQ(accepted, row.accepted);
    }
}

TEST_F(simulated, a_value_of_another_type_is_refused_and_leaves_the_output)
{
    id<FxParameterRetrievalAPI_v6> const retrieval = [manager() apiForProtocol:@protocol(FxParameterRetrievalAPI_v6)];
    int whole = 7;
    EXPECT_FALSE([retrieval getIntValue:&whole fromParameter:2 atTime:kCMTimeZero]);
    EXPECT_EQ(whole, 7);
    double number = 7;
    EXPECT_FALSE([retrieval getFloatValue:&number fromParameter:99 atTime:kCMTimeZero]);
    EXPECT_FALSE([retrieval getFloatValue:NULL fromParameter:2 atTime:kCMTimeZero]);
    EXPECT_TRUE([retrieval getFloatValue:&number fromParameter:2 atTime:kCMTimeZero]);
    EXPECT_EQ(number, 12.5);
}

} // namespace
} // namespace ov1
