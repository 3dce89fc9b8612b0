// State that the simulated host shares with its FxPlug interfaces.
#pragma once

#include "host/simulator/parameter_store.h"
#include "host/simulator/simulated_host.h"
#include "shared/result.h"

#import <FxPlug/FxPlugSDK.h>

#include <mutex>
#include <optional>
#include <set>
#include <thread>

namespace ov1
{

/// The interfaces point to it; it outlives them and the instance.
struct simulated_host::core
{
    std::string plugin_class;
    parameter_store store;
    id plugin = nil;  ///< retained
    id manager = nil; ///< retained

    mutable std::mutex lock;                  ///< guards what follows
    std::set<std::string> refused_interfaces; ///< names of protocols
    CMTime playhead = kCMTimeZero;
    int input_offset = 0;       ///< in frames of the timeline
    int rate_numerator = 30000; ///< frames per second: numerator / denominator
    int rate_denominator = 1001;
    rgba_picture frame; ///< what an analysis finds under the playhead
    surface_format frame_format = surface_format::half;
    bool refuse_analysis_locks = false;
    FxAnalysisState analysis_state = kFxAnalysisState_NotAnalyzing;
    result<> analysis_result; ///< of the last analysis that ended
    std::thread analysis;     ///< joined before the next one and in the host's destructor

    /// Whether refuse_interface named the protocol. Any thread.
    bool is_refused(NSString* protocol) const;
    /// The time plus a number of frames at the timeline's rate, reduced to lowest terms; 0 frames give the time itself.
    CMTime frames_later(CMTime time, int frames) const;
    /// The time of the call into the effect that this thread is in, else the playhead's.
    CMTime current_time() const;
    /// Starts an analysis on a thread of its own. False while one is running.
    bool start_analysis();
    /// The analysis itself: asks the effect for the time range and passes it the frame.
    void run_analysis();
};

/// While it lives, currentTime on this thread is the given time. Guards nest.
class call_time_guard
{
public:
    explicit call_time_guard(CMTime time);
    ~call_time_guard();
    call_time_guard(const call_time_guard&) = delete;
    call_time_guard& operator=(const call_time_guard&) = delete;

    /// The innermost guard's time on this thread; nothing outside all guards.
    static std::optional<CMTime> now();

private:
    const std::optional<CMTime> before;
};

/// The object that gives the effect its interfaces. The caller owns it.
id make_api_manager(simulated_host::core& core) NS_RETURNS_RETAINED;

/// What the effect stored as its error; it may have returned NO without one.
failure failure_of(NSError* error);

} // namespace ov1
