// A component with one parameter of each kind, and a host and a view that record their notifications.
#pragma once

#include "framework/ccomponent_v1.h"
#include "framework/chost_v1.h"
#include "framework/iview_v1.h"
#include "framework/parameters/cparameter_boolean_v1.h"
#include "framework/parameters/cparameter_color_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/parameters/cparameter_integral_v1.h"
#include "framework/state_blob.h"

#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace ov1
{

/// Collects from any thread; take() gives what came since the last time.
template <typename T>
class notes
{
public:
    void add(T note)
    {
        const std::scoped_lock guard(lock);
        list.push_back(std::move(note));
    }
    std::vector<T> take()
    {
        const std::scoped_lock guard(lock);
        return std::exchange(list, {});
    }

private:
    std::mutex lock;
    std::vector<T> list;
};

using sent_events = std::vector<std::pair<event_kind, uid>>;

struct test_host : chost_v1
{
    using chost_v1::chost_v1;
    void notify(event e) override
    {
        events.add({e.type, e.id});
        meanwhile();
        chost_v1::notify(std::move(e));
    }

    notes<std::pair<event_kind, uid>> events;
    std::function<void()> meanwhile = [] {}; ///< called within notify
};

struct test_view : iview_v1
{
    bool query_interface(const std::string&, iobject**) override { return false; }
    rect get_rect() const override { return {}; }
    bool open(std::shared_ptr<window>) override { return false; }
    void close() override {}
    bool is_open() override { return shown; }
    bool is_editing() override { return editing; }
    bool idle() override { return true; }
    void init_view() override {}
    void set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit) override
    {
        controls.add({std::move(parameter), edit});
        meanwhile();
    }
    void update_controls(bool) override {}
    void register_parameter_change_listener(iparameter_change_listener_v1*) override {}
    void unregister_parameter_change_listener(iparameter_change_listener_v1*) override {}

    bool shown = true;
    bool editing = false;
    notes<std::pair<std::shared_ptr<iparameter_v1>, bool>> controls;
    std::function<void()> meanwhile = [] {}; ///< called within set_control_from_parameter
};

struct test_component : ccomponent_v1
{
    using ccomponent_v1::register_parameter;
    using ccomponent_v1::set_view;
    using ccomponent_v1::with_records_locked;

    void init_component() override
    {
        amount = std::make_shared<cparameter_continuous_v1>(get_self(), "Amount", 0.0f, 100.0f, 50.0f);
        steps = std::make_shared<cparameter_integral_v1>(get_self(), "Steps", -10, 10, 0);
        on = std::make_shared<cparameter_boolean_v1>(get_self(), "On", false);
        tint = std::make_shared<cparameter_color_v1>(get_self(), "Tint", param_argb{1, 0, 0.5f, 1});
        for (const std::shared_ptr<cparameter_v1>& p : {std::shared_ptr<cparameter_v1>(amount), {steps}, {on}, {tint}})
            register_parameter(p);
    }
    void notify(event e) override { set_while_restoring += e.type == event_kind::changed && is_restoring(); }
    void handle_unknown_parameter(uid id, const param_value& value, bool edit) override
    {
        ccomponent_v1::handle_unknown_parameter(id, value, edit);
        unknowns.push_back({id, value});
    }
    void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) override
    {
        out.a = static_cast<float>(10 * y + x);
        out.r = in.b;
        out.b = in.r;
    }
    void restore_started() override { ++restores; }

    std::shared_ptr<cparameter_continuous_v1> amount;
    std::shared_ptr<cparameter_integral_v1> steps;
    std::shared_ptr<cparameter_boolean_v1> on;
    std::shared_ptr<cparameter_color_v1> tint;
    std::vector<std::pair<uid, param_value>> unknowns;
    std::atomic<int> restores = 0;
    std::atomic<int> set_while_restoring = 0;
};

inline state_record continuous_record(const char* name, float v)
{
    return {{param_type::continuous, param_cell::of(v), {}, {}, {}}, make_uid(name)};
}

/// A component in use: initialized, its view open, and nothing noted yet.
struct stage
{
    stage()
    {
        component->initialize(host);
        component->set_view(view);
        host->events.take();
    }

    std::shared_ptr<test_component> component = std::make_shared<test_component>();
    std::shared_ptr<test_host> host = std::make_shared<test_host>(component);
    std::shared_ptr<test_view> view = std::make_shared<test_view>();
};

} // namespace ov1
