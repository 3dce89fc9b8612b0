// The component's view of the video host: reports go through it, and changes wait in it until the host is told.
#pragma once

#include "framework/chost_v1.h"
#include "host/bridge/dirty_queue.h"

#import <FxPlug/FxPlugSDK.h>

#include <mutex>

namespace ov1
{

/// Owned by the component, like every host. Any thread.
class fcpx_host_interface : public chost_v1
{
public:
    /// The manager is not retained: detach() before it may go.
    fcpx_host_interface(std::weak_ptr<icomponent_v1> component, id<PROAPIAccessing> manager);

    host_kind get_type() const override;
    std::string get_vendor() const override;
    std::string get_name() const override;
    version get_version() const override;
    /// That of the system's current locale.
    language_id get_language() const override;
    /// None: the host's windows belong to another process.
    [[nodiscard]] bool get_host_window(void** handle) override;
    /// Queues what the program changed, hides at the host what is disabled, and passes everything on to the base.
    void notify(event e) override;

    /// The place of a parameter whose value the host does not have yet; -1 when it has all.
    int pop_dirty_param();
    /// Queues a parameter by its place.
    void add_dirty_param(int place);
    /// From now on the video host is not asked for anything.
    void detach();

private:
    /// -1 for no parameter.
    int place_of(uid id) const;
    void show_enabled_state(uid id);

    std::mutex manager_mutex;
    id<PROAPIAccessing> manager;
    dirty_queue dirty_params;
};

} // namespace ov1
