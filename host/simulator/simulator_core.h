// What the simulated host's interfaces share.
#pragma once

#include "host/simulator/parameter_store.h"
#include "host/simulator/simulated_host.h"

#import <FxPlug/FxPlugSDK.h>

#include <mutex>
#include <optional>
#include <set>
#include <thread>

namespace ov1
{

/// The interfaces look back at it; it outlives them and the instance.
struct simulated_host::core
{
    std::string plugin_class;
    parameter_store store;
    id plugin = nil;
    id manager = nil;

    mutable std::mutex lock; ///< guards what follows
    std::set<std::string> refused_interfaces;
    CMTime playhead = kCMTimeZero;
    int input_offset = 0;
    int rate_numerator = 30000;
    int rate_denominator = 1001;
    rgba_picture frame;
    surface_format frame_format = surface_format::half;
    bool refuse_analysis_locks = false;
    FxAnalysisState analysis_state = kFxAnalysisState_NotAnalyzing;
    host_error analysis_error;
    std::thread analysis;

    bool is_refused(NSString* protocol) const;
    CMTime frames_later(CMTime time, int frames) const;
    /// The time of the call that this thread is in, else the playhead.
    CMTime current_time() const;
    /// On a thread of its own. False while one is running.
    bool start_analysis();
    void run_analysis();
};

/// For its length this thread's calls into the effect are about this time.
class call_time_guard
{
public:
    explicit call_time_guard(CMTime time);
    ~call_time_guard();
    call_time_guard(const call_time_guard&) = delete;
    call_time_guard& operator=(const call_time_guard&) = delete;

    static std::optional<CMTime> now();

private:
    const std::optional<CMTime> before;
};

/// The object that hands out the interfaces. The caller owns it.
id make_api_manager(simulated_host::core& core) NS_RETURNS_RETAINED;

host_error error_of(NSError* error);

} // namespace ov1
