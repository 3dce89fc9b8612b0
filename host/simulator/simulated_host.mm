#include "host/simulator/simulated_host.h"

#include "host/simulator/simulator_core.h"
#include "host/simulator/tile_maker.h"

#include <atomic>
#include <numeric>
#include <utility>

namespace ov1
{

namespace
{

// Of the innermost call into the effect on this thread: the interfaces are called back on the thread of the call.
thread_local std::optional<CMTime> call_time;

using effect = NSObject<FxTileableEffect, FxCustomParameterViewHost_v2, FxAnalyzer>;

/// The plug-in with the methods that a host calls.
effect* effect_of(const simulated_host::core& core) { return static_cast<effect*>(core.plugin); }

/// Cuts a picture into square parts, row by row; those at the right and lower edge may be smaller.
std::vector<picture_part> parts_of(const rgba_picture& picture, std::size_t side)
{
    const std::size_t width = side == 0 ? picture.width : side, height = side == 0 ? picture.height : side;
    std::vector<picture_part> parts;
    for (std::size_t y = 0; y < picture.height; y += height)
        for (std::size_t x = 0; x < picture.width; x += width)
            parts.push_back({x, y, std::min(width, picture.width - x), std::min(height, picture.height - y)});
    return parts;
}

/// Renders one part into `out`. First asks for both rectangles, as a real host does.
result<> render_part(effect* plugin, const rgba_picture& in, rgba_picture& out, const picture_part& part,
                     const tile_options& options, CMTime time)
{
    @autoreleasepool
    {
        IOSurface* const from = [make_surface(in, part, options.format, options.padding) autorelease];
        IOSurface* const to = [make_empty_surface(part, options.format, options.padding) autorelease];
        FxImageTile* const source = [make_tile(from, in, part) autorelease];
        FxImageTile* const destination = [make_tile(to, in, part) autorelease];
        NSArray* const sources = [NSArray arrayWithObject:source];
        // The answers are not used: the source tile is the destination's part in any case.
        FxRect whole{}, wanted{};
        NSError* error = nil;
        const bool done = [plugin destinationImageRect:&whole
                                          sourceImages:sources
                                      destinationImage:destination
                                           pluginState:nil
                                                atTime:time
                                                 error:&error] &&
                          [plugin sourceTileRect:&wanted
                                 sourceImageIndex:0
                                     sourceImages:sources
                              destinationTileRect:[destination tilePixelBounds]
                                 destinationImage:destination
                                      pluginState:nil
                                           atTime:time
                                            error:&error] &&
                          [plugin renderDestinationImage:destination
                                            sourceImages:sources
                                             pluginState:nil
                                                  atTime:time
                                                   error:&error];
        if (!done)
            return failure_of(error);
        take_surface(to, options.format, out, part);
        return {};
    }
}

} // namespace

// The previous time is kept, because calls nest: the effect may cause an edit while it answers one.
call_time_guard::call_time_guard(CMTime time)
    : before(std::exchange(call_time, time))
{
}
call_time_guard::~call_time_guard() { call_time = before; }
std::optional<CMTime> call_time_guard::now() { return call_time; }

failure failure_of(NSError* error)
{
    const char* const text = [[error localizedDescription] UTF8String];
    return {failure_kind::unsupported, "the effect", text == nullptr ? "the effect gave no reason" : text, {}};
}

bool simulated_host::core::is_refused(NSString* protocol) const
{
    const std::scoped_lock guard(lock);
    return refused_interfaces.contains([protocol UTF8String]);
}

CMTime simulated_host::core::frames_later(CMTime time, int frames) const
{
    const std::scoped_lock guard(lock);
    // Also keeps indefinite and infinite times, which are no fractions, as they are.
    if (frames == 0)
        return time;
    // time + frames * denominator / numerator as one fraction, reduced so that the timescale fits 32 bits again.
    const std::int64_t value = time.value * rate_numerator + std::int64_t{frames} * rate_denominator * time.timescale;
    const std::int64_t scale = std::int64_t{time.timescale} * rate_numerator;
    const std::int64_t common = std::gcd(value, scale);
    return CMTimeMake(value / common, static_cast<std::int32_t>(scale / common));
}

CMTime simulated_host::core::current_time() const
{
    if (const auto during_call = call_time_guard::now())
        return *during_call;
    const std::scoped_lock guard(lock);
    return playhead;
}

simulated_host::simulated_host(std::string plugin_class)
    : impl(std::make_unique<core>())
{
    impl->plugin_class = std::move(plugin_class);
    @autoreleasepool
    {
        impl->manager = make_api_manager(*impl);
    }
}

simulated_host::~simulated_host()
{
    (void)wait_for_analysis(); // nobody is left to report a failure to
    @autoreleasepool
    {
        [impl->plugin release];
        [impl->manager release];
    }
}

void simulated_host::refuse_interface(const std::string& protocol, bool refused)
{
    const std::scoped_lock guard(impl->lock);
    if (refused)
        impl->refused_interfaces.insert(protocol);
    else
        impl->refused_interfaces.erase(protocol);
}

void simulated_host::refuse_analysis_locks(bool refused)
{
    const std::scoped_lock guard(impl->lock);
    impl->refuse_analysis_locks = refused;
}

result<> simulated_host::create_instance()
{
    @autoreleasepool
    {
        // An unknown class gives nil here and a failure without a reason of its own below.
        NSString* const name = [NSString stringWithUTF8String:impl->plugin_class.c_str()];
        effect* const plugin = [[NSClassFromString(name) alloc] initWithAPIManager:impl->manager];
        impl->plugin = plugin;
        NSDictionary* properties = nil;
        NSError* error = nil;
        if (plugin != nil && [plugin properties:&properties error:&error] && [plugin addParametersWithError:&error])
            return {};
        return failure_of(error);
    }
}

void simulated_host::add_to_document()
{
    @autoreleasepool
    {
        [effect_of(*impl) pluginInstanceAddedToDocument];
    }
}

void* simulated_host::get_plugin() const { return impl->plugin; }
parameter_store& simulated_host::get_parameters() { return impl->store; }

void simulated_host::set_playhead(CMTime time)
{
    const std::scoped_lock guard(impl->lock);
    impl->playhead = time;
}

CMTime simulated_host::get_playhead() const { return impl->current_time(); }

void simulated_host::set_input_offset(int frames)
{
    const std::scoped_lock guard(impl->lock);
    impl->input_offset = frames;
}

void simulated_host::set_rate(int numerator, int denominator)
{
    const std::scoped_lock guard(impl->lock);
    impl->rate_numerator = numerator;
    impl->rate_denominator = denominator;
}

bool simulated_host::edit(std::uint32_t number, store_value value)
{
    const CMTime time = get_playhead();
    const call_time_guard guard(time);
    // The host has the new value before the effect is called, because the effect reads it from the host.
    if (!impl->store.set(number, time, std::move(value)))
        return false;
    @autoreleasepool
    {
        NSError* error = nil;
        return [effect_of(*impl) parameterChanged:number atTime:time error:&error];
    }
}

bool simulated_host::undo() { return step(&parameter_store::undo); }
bool simulated_host::redo() { return step(&parameter_store::redo); }

bool simulated_host::step(bool (parameter_store::*direction)())
{
    const parameters_by_id before = impl->store.copy();
    if (!(impl->store.*direction)())
        return false;
    const CMTime time = get_playhead();
    const call_time_guard guard(time);
    @autoreleasepool
    {
        // A copy: the effect may answer a change by setting other parameters.
        for (const auto& [parameter, now] : impl->store.copy())
            if (!same_values(before.at(parameter), now))
            {
                NSError* error = nil;
                [effect_of(*impl) parameterChanged:parameter atTime:time error:&error];
            }
    }
    return true;
}

result<rgba_picture> simulated_host::render(const rgba_picture& in, const tile_options& options)
{
    const CMTime time = get_playhead();
    {
        const call_time_guard guard(time);
        @autoreleasepool
        {
            // Once per frame and before its tiles, on the caller's thread.
            NSData* state = nil;
            NSError* error = nil;
            [effect_of(*impl) pluginState:&state atTime:time quality:kFxQuality_HIGH error:&error];
        }
    }
    rgba_picture out(in.width, in.height);
    const std::vector<picture_part> parts = parts_of(in, options.side);
    // The first part that no thread has taken.
    std::atomic<std::size_t> next = 0;
    std::mutex failed_mutex;
    result<> last_failed;
    // Each thread makes its own guard: the call's time is thread-local.
    const auto work = [&]
    {
        const call_time_guard guard(time);
        for (std::size_t i = next++; i < parts.size(); i = next++)
        {
            auto rendered = render_part(effect_of(*impl), in, out, parts[i], options, time);
            if (rendered)
                continue;
            const std::scoped_lock failed_guard(failed_mutex);
            last_failed = std::move(rendered);
        }
    };
    // Tiles are taken in order by whichever thread is free; the caller's thread renders too.
    std::vector<std::jthread> others;
    for (unsigned i = 1; i < options.threads; ++i)
        others.emplace_back(work);
    work();
    others.clear(); // joins them
    // With several refused tiles, any one of their reasons will do.
    if (!last_failed)
        return std::move(last_failed).error();
    return out;
}

void simulated_host::set_frame(rgba_picture frame, surface_format format)
{
    const std::scoped_lock guard(impl->lock);
    impl->frame = std::move(frame);
    impl->frame_format = format;
}

bool simulated_host::core::start_analysis()
{
    const std::scoped_lock guard(lock);
    // Not joined while it runs: the effect may ask for another analysis from within this one.
    if (analysis_state == kFxAnalysisState_AnalysisStarted)
        return false;
    if (analysis.joinable())
        analysis.join(); // it has ended already
    analysis_state = kFxAnalysisState_AnalysisStarted;
    analysis_result = {};
    analysis = std::thread([this] { run_analysis(); });
    return true;
}

void simulated_host::core::run_analysis()
{
    @autoreleasepool
    {
        effect* const asked = effect_of(*this);
        CMTimeRange range{kCMTimeInvalid, kCMTimeInvalid};
        // As of an input that is one hour long.
        const CMTimeRange everything{kCMTimeZero, CMTimeMake(3600, 1)};
        NSError* error = nil;
        bool done = [asked desiredAnalysisTimeRange:&range forInputWithTimeRange:everything error:&error] &&
                    [asked setupAnalysisForTimeRange:range frameDuration:range.duration error:&error];
        if (done)
        {
            // Under the lock only while the frame is copied: the effect calls the host back.
            IOSurface* surface = nil;
            FxImageTile* tile = nil;
            {
                const std::scoped_lock guard(lock);
                const picture_part all{0, 0, frame.width, frame.height};
                surface = [make_surface(frame, all, frame_format, 32) autorelease];
                tile = [make_tile(surface, frame, all) autorelease];
                [surface refuseLocks:refuse_analysis_locks];
            }
            // A real host may also pass the frame before the wanted one.
            done = [asked analyzeFrame:tile atTime:frames_later(range.start, -1) error:&error] &&
                   [asked analyzeFrame:tile atTime:range.start error:&error];
            // After a refused frame as well.
            [asked cleanupAnalysis:nullptr];
        }
        const std::scoped_lock guard(lock);
        analysis_result = done ? result<>() : failure_of(error);
        analysis_state = done ? kFxAnalysisState_AnalysisCompleted : kFxAnalysisState_AnalysisInterrupted;
    }
}

result<> simulated_host::wait_for_analysis()
{
    // Joined without the lock, which the analysis itself takes at its end.
    if (impl->analysis.joinable())
        impl->analysis.join();
    const std::scoped_lock guard(impl->lock);
    return impl->analysis_result;
}

// Only the state, parameter 1, has a view.
void* simulated_host::create_view() { return [effect_of(*impl) createViewForParameterID:1]; }

} // namespace ov1
