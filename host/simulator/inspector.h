// The simulator's inspector: the effect's own view, below it a slider for every float parameter that is not hidden.
#pragma once

#include "host/simulator/simulated_host.h"

#include <memory>
#include <string>

namespace ov1
{

/// A native window, shown until the user closes it. Main thread; the process needs an application object.
class inspector
{
public:
    /// The host must outlive the inspector.
    inspector(simulated_host& host, const std::string& title);
    ~inspector();
    inspector(const inspector&) = delete;
    inspector& operator=(const inspector&) = delete;

    /// False once the user has closed the window.
    [[nodiscard]] bool is_open() const;
    /// Updates the sliders from the host's values at the playhead.
    void refresh();
    /// The effect's NSView, for tests; the inspector owns it.
    void* get_effect_view() const;

    /// Processes events until the window is closed; refreshes the sliders ten times a second.
    void run();

private:
    struct parts;
    const std::unique_ptr<parts> held;
};

} // namespace ov1
