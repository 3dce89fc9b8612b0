#include "framework/ccomponent_v1.h"

#include "framework/ihost_v1.h"
#include "framework/iview_v1.h"
#include "framework/parameters/cparameter_v1.h"
#include "framework/restore_guard.h"
#include "framework/row_renderer.h"
#include "framework/state_blob.h"
#include "platform/iutils.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace ov1
{

namespace
{

/// Sets a flag while it exists.
class flag_guard
{
public:
    explicit flag_guard(bool& flag)
        : flag(flag)
    {
        flag = true;
    }
    ~flag_guard() { flag = false; }
    flag_guard(const flag_guard&) = delete;
    flag_guard& operator=(const flag_guard&) = delete;

private:
    bool& flag;
};

/// Renders rows through the component itself.
class component_rows : public row_renderer
{
public:
    explicit component_rows(std::shared_ptr<icomponent_v1> component)
        : component(std::move(component))
    {
    }

    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        component->render_row(y, in, out, count);
    }

private:
    const std::shared_ptr<icomponent_v1> component;
};

/// The address set at build time, or else a file in the resources.
std::string manual_address()
{
    const std::string set_at_build = VERIDIAL_MANUAL_URL;
    return set_at_build.empty() ? iutils::get_instance().get_resource_directory() + "/manual/index.html" : set_at_build;
}

} // namespace

ccomponent_v1::ccomponent_v1()
    : record_lock(std::make_shared<std::mutex>())
{
}

bool ccomponent_v1::query_interface(const std::string& name, iobject** out)
{
    return answer_query(ifc_id, this, name, out);
}

std::string ccomponent_v1::get_name() const { return "Veridial"; }
std::string ccomponent_v1::get_vendor() const { return "Orvane"; }
std::string ccomponent_v1::get_com_identifier() const { return "com.orvane.veridialfcpx"; }
version ccomponent_v1::get_version() const { return product_version; }

std::shared_ptr<ihost_v1> ccomponent_v1::get_host()
{
    return with_records_locked([this] { return host; });
}

void ccomponent_v1::initialize(std::shared_ptr<ihost_v1> new_host)
{
    if (!new_host)
        return;
    with_records_locked([&] { host = new_host; });
    init_component();
    new_host->notify({event_kind::initialized});
    default_state = get_state();
}

void ccomponent_v1::terminate()
{
    const auto leaving = get_host();
    if (!leaving)
        return;
    // The view first: it shows parameters that are about to be released.
    set_view(nullptr);
    leaving->notify({event_kind::terminated});
    // Destroyed after the lock is released: a parameter's destructor may run code of the effect.
    std::vector<registered_parameter> gone;
    with_records_locked(
        [&]
        {
            gone.swap(parameters);
            host.reset();
        });
}

void ccomponent_v1::init_component() {}

std::shared_ptr<iview_v1> ccomponent_v1::create_view() { return nullptr; }

std::shared_ptr<iview_v1> ccomponent_v1::get_view()
{
    return with_records_locked([this] { return view; });
}

void ccomponent_v1::set_view(std::shared_ptr<iview_v1> new_view)
{
    with_records_locked([&] { view.swap(new_view); });
}

bool ccomponent_v1::view_is_open()
{
    const auto shown = get_view();
    return shown && shown->is_open();
}

bool ccomponent_v1::is_in_gesture()
{
    const auto shown = get_view();
    return shown && shown->is_open() && shown->is_editing();
}

void ccomponent_v1::notify(event) {}

void ccomponent_v1::idle() {}

void ccomponent_v1::register_parameter(std::shared_ptr<cparameter_v1> parameter)
{
    // Read before the lock: both are calls into the parameter.
    const uid id = parameter->get_uid();
    const std::uint32_t flags = parameter->get_flags();
    with_records_locked([&] { parameters.push_back({std::move(parameter), id, flags}); });
}

template <typename predicate>
std::shared_ptr<iparameter_v1> ccomponent_v1::find_parameter(const predicate& is_wanted) const
{
    return with_records_locked(
        [&]() -> std::shared_ptr<iparameter_v1>
        {
            const auto found = std::ranges::find_if(parameters, is_wanted);
            return found != parameters.end() ? found->parameter : nullptr;
        });
}

int ccomponent_v1::get_parameter_count() const
{
    return with_records_locked([this] { return static_cast<int>(parameters.size()); });
}

std::shared_ptr<iparameter_v1> ccomponent_v1::get_parameter(int index)
{
    return with_records_locked(
        [&]() -> std::shared_ptr<iparameter_v1>
        {
            const auto i = static_cast<std::size_t>(index);
            return index >= 0 && i < parameters.size() ? parameters[i].parameter : nullptr;
        });
}

std::shared_ptr<iparameter_v1> ccomponent_v1::get_parameter(uid id)
{
    return find_parameter([id](const registered_parameter& p) { return p.id == id; });
}

std::shared_ptr<iparameter_v1> ccomponent_v1::get_parameter(std::string name) { return get_parameter(make_uid(name)); }

std::shared_ptr<std::mutex> ccomponent_v1::get_record_lock() const { return record_lock; }

std::shared_ptr<iparameter_v1> ccomponent_v1::find_bypass() const
{
    return find_parameter([](const registered_parameter& p) { return (p.flags & parameter_is_bypass) != 0; });
}

bool ccomponent_v1::has_bypass() { return find_bypass() != nullptr; }

void ccomponent_v1::set_bypass(bool bypass)
{
    const auto parameter = find_bypass();
    if (!parameter)
        return;
    // The whole record is set, so that the bounds stay.
    param_value v = parameter->get_param_value();
    v.value = param_cell::of(bypass);
    parameter->set_param_value(v, false);
}

bool ccomponent_v1::get_bypass()
{
    const auto parameter = find_bypass();
    return parameter && parameter->get_param_value().value.as_boolean();
}

std::vector<std::uint8_t> ccomponent_v1::get_state()
{
    std::vector<state_record> records;
    with_records_locked(
        [&]
        {
            records.reserve(parameters.size());
            // All under one lock, so that the state is that of one moment.
            for (const registered_parameter& p : parameters)
                records.push_back({p.parameter->record_under_lock(), p.id});
        });
    return records.empty() ? std::vector<std::uint8_t>() : write_state(records);
}

std::size_t ccomponent_v1::get_state_size() const
{
    return state_header_size + state_record_size * static_cast<std::size_t>(get_parameter_count());
}

bool ccomponent_v1::set_state(std::vector<std::uint8_t>& blob, bool edit) { return restore(blob, edit); }

bool ccomponent_v1::restore(std::span<const std::uint8_t> state, bool edit)
{
    std::vector<state_record> records;
    if (get_parameter_count() == 0 || !read_state(state, records))
        return false;
    // Until the end no parameter changes another, so that the order of the records does not matter.
    const restore_guard restoring(*this);
    for (const state_record& record : records)
    {
        const auto parameter = get_parameter(record.id);
        if (!parameter)
        {
            handle_unknown_parameter(record.id, record.value, edit);
            continue;
        }
        // Kind and value come from the state, default and bounds from the parameter: those in old documents may differ.
        param_value v = parameter->get_param_value();
        v.type = record.value.type;
        v.value = record.value.value;
        parameter->set_param_value(v, edit);
    }
    return true;
}

bool ccomponent_v1::is_state_rejected(std::vector<std::uint8_t>&, bool, std::string& message)
{
    message.clear();
    return false;
}

void ccomponent_v1::handle_unknown_parameter(uid id, const param_value&, bool)
{
    if (const auto listening = get_host())
        listening->notify({event_kind::unknown_parameter, id});
}

void ccomponent_v1::begin_restore()
{
    // Only the outermost restore counts.
    if (open_restores++ == 0)
        restore_started();
}

void ccomponent_v1::end_restore()
{
    [[maybe_unused]] const int before = open_restores--;
    assert(before > 0);
}

void ccomponent_v1::reset_to_default() { restore(default_state, false); }

void ccomponent_v1::save_cancel_state() { cancel_state = get_state(); }

void ccomponent_v1::cancel_effect()
{
    if (const auto listening = get_host())
        listening->notify({event_kind::cancelled});
    restore(cancel_state, false);
}

int ccomponent_v1::save_state(bool advance)
{
    // Undo and redo set values, which must not become steps of their own.
    if (!view_is_open() || in_undo || in_redo)
        return undo_states.get_position();
    return undo_states.store(get_state(), advance);
}

void ccomponent_v1::undo()
{
    if (is_in_gesture())
        // A drag is still changing the values; its end would overwrite the state that was restored.
        return;
    const flag_guard guard(in_undo);
    if (auto state = undo_states.step_back())
        restore(*state, false);
}

void ccomponent_v1::redo()
{
    if (is_in_gesture())
        return;
    const flag_guard guard(in_redo);
    if (auto state = undo_states.step_forward())
        restore(*state, false);
}

void ccomponent_v1::jump_undo_stack(int position)
{
    if (is_in_gesture())
        return;
    const flag_guard guard(position < undo_states.get_position() ? in_undo : in_redo);
    if (auto state = undo_states.jump(position))
        restore(*state, false);
}

void ccomponent_v1::flush_state_stack() { undo_states.flush(); }

undo_range ccomponent_v1::get_undo_range() const { return undo_states.range(); }

std::vector<std::uint8_t> ccomponent_v1::get_undo_state(int position) const { return undo_states.peek(position); }

void ccomponent_v1::render_pixel(std::size_t, std::size_t, const argb_float&, argb_float&) {}

void ccomponent_v1::render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count)
{
    for (std::size_t x = 0; x < count; ++x)
    {
        const argb_float pixel = in[x]; // in and out may be the same
        render_pixel(x, y, pixel, out[x]);
    }
}

std::shared_ptr<const row_renderer> ccomponent_v1::get_row_renderer()
{
    // The renderer keeps the component alive for as long as it is used.
    return std::make_shared<component_rows>(shared_from_this());
}

void ccomponent_v1::open_manual() { iutils::get_instance().open_url(manual_address()); }

} // namespace ov1
