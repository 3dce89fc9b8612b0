// The component's host object in the bridge: it forwards events to the video host and queues changed parameters for it.
#pragma once

#include "framework/chost_v1.h"
#include "host/bridge/dirty_queue.h"

#import <FxPlug/FxPlugSDK.h>

#include <mutex>

namespace ov1
{

/// Owned by the component, like every host object. Any thread.
class fcpx_host_interface : public chost_v1
{
public:
    /// The manager is not retained: call detach() before it is released.
    fcpx_host_interface(std::weak_ptr<icomponent_v1> component, id<PROAPIAccessing> manager);

    /// Always a video host.
    host_kind get_type() const override;
    std::string get_vendor() const override;
    /// Name and version as the host reported them when it connected.
    std::string get_name() const override;
    version get_version() const override;
    /// The language of the system's current locale.
    language_id get_language() const override;
    /// Always false: the host's windows belong to another process.
    [[nodiscard]] bool get_host_window(void** handle) override;
    /// Queues a parameter that the program changed, hides a disabled parameter in the host's inspector, and passes
    /// every event on to the base class.
    void notify(event e) override;

    /// Removes and returns the index of a parameter whose new value the host does not have; -1 when there is none.
    int pop_dirty_param();
    /// Queues a parameter by its index.
    void add_dirty_param(int index);
    /// From now on the video host is not called.
    void detach();

private:
    /// The parameter's index; -1 for an unknown id.
    int index_of(uid id) const;
    /// Sets or clears the parameter's hidden bit at the host. Does nothing at a host without that interface.
    void show_enabled_state(uid id);

    std::mutex manager_mutex;    ///< guards manager
    id<PROAPIAccessing> manager; ///< not retained; nil after detach()
    dirty_queue dirty_params;
};

} // namespace ov1
