// The notification that parameters, component and host send each other.
#pragma once

#include "shared/image.h"
#include "shared/uid.h"

#include <cstdint>
#include <memory>

namespace ov1
{

/// What has happened. The numbers are fixed.
enum class event_kind : std::uint32_t
{
    initialized = 0,        ///< the component is initialized
    terminated = 1,         ///< the component is shutting down
    edited = 2,             ///< a parameter was set by the host or the user of the host
    changed = 3,            ///< a parameter was set by the program: the editor, an undo, a preset
    enabled_changed = 4,    ///< a parameter was enabled or disabled
    render_begins = 5,      ///< the table must be up to date when this returns
    preview_rendered = 6,   ///< carries the preview's source and destination
    render_ended = 7,       ///< the images of a render are no longer used
    render_requested = 8,   ///< the host should render again
    cancelled = 9,          ///< the user cancelled the effect
    unknown_parameter = 10, ///< a restored state names a parameter that does not exist
};

/// Passed by value. Parameters and components leave both images empty.
struct event
{
    event_kind type;
    uid id = invalid_id; ///< the parameter concerned, or invalid_id
    /// Weak, so that an event that is kept does not keep a frame in memory.
    std::weak_ptr<image> source = {};
    std::weak_ptr<image> destination = {};
};

} // namespace ov1
