// The simulated host's inspector: the effect's own view above a slider for every number that is not hidden.
#pragma once

#include "host/simulator/simulated_host.h"

#include <memory>
#include <string>

namespace ov1
{

/// A window of the desktop's, shown from its making until the user closes it. Main thread, with an application.
class inspector
{
public:
    /// The host outlives it.
    inspector(simulated_host& host, const std::string& title);
    ~inspector();
    inspector(const inspector&) = delete;
    inspector& operator=(const inspector&) = delete;

    [[nodiscard]] bool is_open() const;
    /// Shows the host's values as they are now.
    void refresh();
    /// The NSView that the effect gave, for tests.
    void* get_effect_view() const;

    /// Serves the desktop until the window is closed, with the values refreshed ten times a second.
    void run();

private:
    struct parts;
    const std::unique_ptr<parts> held;
};

} // namespace ov1
