// The program around the effect, as the component and its parameters see it.
#pragma once

#include "shared/event.h"
#include "shared/image.h"
#include "shared/iobject.h"
#include "shared/language_id.h"
#include "shared/param_argb.h"
#include "shared/version.h"

#include <cstdint>
#include <string>

namespace ov1
{

/// What kind of program the host is.
enum class host_kind : std::uint32_t
{
    standalone = 0, ///< a program of our own
    video_host = 1, ///< an editing or compositing program that loads the effect
};

/// The project that the effect is used in.
struct project_info
{
    std::int32_t first_frame = 0;        ///< number of the timeline's first frame
    std::int32_t frames_per_second = 24; ///< nominal rate, whole frames
};

/// Owned by the component after initialize. All operations may be called on any thread.
class ihost_v1 : public iobject
{
public:
    /// Kind, vendor, name and version of the program.
    virtual host_kind get_type() const = 0;
    virtual std::string get_vendor() const = 0;
    virtual std::string get_name() const = 0;
    virtual version get_version() const = 0;
    /// The language of all texts for the user.
    virtual language_id get_language() const = 0;

    /// The native handle of the window that editors attach to. Returns false, with *handle unchanged, if there is none.
    [[nodiscard]] virtual bool get_host_window(void** handle) = 0;
    /// Fixed values where the host has no timeline.
    virtual project_info get_project_info() const = 0;

    /// Whether the host has a colour profile that it works in.
    virtual bool has_working_color_profile() const = 0;
    /// Returns false, with the argument unchanged, if there is no such profile.
    [[nodiscard]] virtual bool convert_to_working_color_profile(param_argb& color) = 0;
    /// The same for a whole image and the profile of the monitor.
    [[nodiscard]] virtual bool convert_to_monitor_color_profile(image& picture) = 0;

    /// Requests a new render; returns whether there will be one.
    virtual bool schedule_render() = 0;

    /// Receives the events of parameters and component, on any thread, and forwards them to the component.
    virtual void notify(event e) = 0;

    /// Whether a parameter changed since event_kind::render_begins.
    virtual bool component_is_dirty() const = 0;
    /// Whether a restored state named parameters that no longer exist, since event_kind::initialized.
    virtual bool has_legacy_parameters() const = 0;
};

} // namespace ov1
