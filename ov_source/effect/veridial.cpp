#include "effect/veridial.h"

#include "effect/build/build_lut.h"
#include "effect/lut/lut_argb_variable.h"
#include "effect/veridial_parameters.h"
#include "framework/create_ccomponent.h"
#include "framework/editor_factory.h"
#include "framework/iview_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/preview_sink.h"

#include <algorithm>
#include <utility>

namespace ov1
{

namespace
{

constexpr uid lut_exporter_id = make_uid("lut_exporter");

/// Read when the first instance is initialized, then shared by all until the process ends.
struct shared_tables
{
    veridial_luts looks;
    skin_tables skin;
};

const shared_tables& get_shared_tables()
{
    static const auto tables = std::make_shared<const shared_tables>();
    return *tables;
}

struct coupled_control
{
    uid id;
    zone z;
    zone_control control;
};

/// The controls of the three wheels that take part in the coupling. Their uids are hashed by the compiler: every event
/// of a drag asks for them.
constexpr std::array<coupled_control, 9> coupled_controls = []
{
    std::array<coupled_control, 9> rows{};
    std::size_t i = 0;
    for (const zone z : all_zones)
        for (const auto control : {zone_control::chroma, zone_control::range, zone_control::lightness})
            rows[i++] = {make_uid(parameter_table[static_cast<std::size_t>(zone_parameter(z, control))].name), z,
                         control};
    return rows;
}();

} // namespace

std::shared_ptr<icomponent_v1> create_ccomponent() { return std::make_shared<veridial>(); }

veridial::veridial() { publish_identity(); }

bool veridial::query_interface(const std::string& name, iobject** out)
{
    if (answer_query(lut_exporter_id, static_cast<lut_exporter*>(this), name, out))
        return true;
    return ccomponent_v1::query_interface(name, out);
}

std::shared_ptr<iview_v1> veridial::create_view()
{
    set_view(create_editor(get_self()));
    return get_view();
}

void veridial::init_component()
{
    const std::weak_ptr<icomponent_v1> self = get_self();
    for (std::size_t i = 0; i < parameter_count; ++i)
    {
        const parameter_row& row = parameter_table[i];
        if (static_cast<parameter_index>(i) == parameter_index::global_bypass)
            parameters[i] = std::make_shared<veridial_bypass_parameter>(self, row.name, false);
        else
            parameters[i] = std::make_shared<cparameter_continuous_v1>(self, row.name, row.min, row.max, 0.0f);
        register_parameter(parameters[i]);
    }
    // Loaded now, so that the first render does not wait for files.
    get_shared_tables();
}

void veridial::notify(event e)
{
    switch (e.type)
    {
    // A component that starts again must not render with the grade of before.
    case event_kind::initialized:
        publish_identity();
        break;
    case event_kind::edited:
        parameter_was_set(e.id, true);
        break;
    case event_kind::changed:
        parameter_was_set(e.id, false);
        break;
    case event_kind::render_begins:
        bring_up_to_date();
        break;
    case event_kind::preview_rendered:
        hand_preview_over(e);
        break;
    default:
        break;
    }
}

void veridial::restore_started()
{
    const std::scoped_lock guard(legacy_mutex);
    legacy.forget();
}

void veridial::handle_unknown_parameter(uid id, const param_value& value, bool edit)
{
    ccomponent_v1::handle_unknown_parameter(id, value, edit);
    // Read before the lock, because reading takes the lock of the records.
    const auto greenery_angle = static_cast<float>(read_settings().value(parameter_index::greenery_angle));
    std::vector<parameter_change> changes;
    {
        const std::scoped_lock guard(legacy_mutex);
        changes = legacy.map(id, value, greenery_angle);
    }
    // Without the lock: setting a parameter notifies host and component.
    for (const parameter_change& change : changes)
        set_parameter(change.parameter, change.value, edit);
}

grade_settings veridial::read_settings() const
{
    grade_settings settings;
    with_records_locked(
        [&]
        {
            for (std::size_t i = 0; i < parameter_count; ++i)
            {
                if (parameters[i] == nullptr) // before init_component: the defaults
                    continue;
                const param_value& record = parameters[i]->record_under_lock();
                if (record.type == param_type::boolean)
                    settings.settings[i].value = record.value.as_boolean() ? 1.0f : 0.0f;
                else
                    settings.settings[i] = {record.value.as_continuous(), record.max.as_continuous()};
            }
        });
    return settings;
}

void veridial::bring_up_to_date()
{
    // A caller that has to wait for another build reads the values after it, so its own are in the table.
    const std::scoped_lock guard(build_mutex);
    const grade_settings settings = read_settings();
    if (get_published()->is_built_from(settings))
        return;
    const shared_tables& shared = get_shared_tables();
    // Not filled first: build_lut writes every entry.
    lut_argb<lut_edge> table(lut_argb<lut_edge>::init_mode::none);
    build_lut(settings, shared.looks, shared.skin, table);
    publish(std::move(table), settings);
}

void veridial::publish_identity()
{
    const std::scoped_lock guard(build_mutex);
    publish(lut_argb<lut_edge>(), std::nullopt); // out of date: the next render builds
}

void veridial::publish(lut_argb<lut_edge> table, std::optional<grade_settings> built_from)
{
    auto next = std::make_shared<const published_table>(std::move(table), built_from);
    // Declared before the lock, so that the old table is freed after the mutex is unlocked.
    const std::scoped_lock guard(publish_mutex);
    published.swap(next);
}

std::shared_ptr<const published_table> veridial::get_published() const
{
    const std::scoped_lock guard(publish_mutex);
    return published;
}

std::shared_ptr<const row_renderer> veridial::get_row_renderer() { return get_published(); }

void veridial::render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count)
{
    get_published()->render_row(y, in, out, count);
}

void veridial::render_pixel(std::size_t, std::size_t, const argb_float& in, argb_float& out)
{
    out = get_published()->get_table().lookup(in);
}

bool veridial::get_lut(lut_argb_variable* out)
{
    if (out == nullptr)
        return false;
    bring_up_to_date();
    // Another thread may have published a newer table by now, which serves as well.
    *out = lut_argb_variable::from_lut_argb(get_published()->get_table());
    return true;
}

void veridial::get_chroma_luma(int zone_index, double& chroma, double& luma)
{
    const chroma_luma wanted = chroma_luma_of(read_settings(), all_zones.at(static_cast<std::size_t>(zone_index)));
    chroma = wanted.chroma;
    luma = wanted.luma;
}

void veridial::set_parameter(parameter_index i, float value, bool edit)
{
    const auto& parameter = parameters[static_cast<std::size_t>(i)];
    if (parameter == nullptr)
        return;
    param_value record = parameter->get_param_value();
    record.value = param_cell::of(value);
    parameter->set_param_value(record, edit);
}

void veridial::parameter_was_set(uid id, bool edit)
{
    const auto found = std::ranges::find(coupled_controls, id, &coupled_control::id);
    if (found == coupled_controls.end())
        return;
    const auto [_, z, control] = *found;
    const bool is_chroma = control == zone_control::chroma;
    if (!edit && (is_chroma ? updating_lightness : updating_chroma))
        return; // set by the coupling itself
    const grade_settings settings = read_settings();
    // A drag in the editor sets with edit false; values from hosts, the command line and restores are kept as they are.
    if (!edit && !is_restoring())
        is_chroma ? couple_lightness(z, settings) : couple_chroma(z, settings);
    // The coupling sets the other control of the wheel, so the value read above is still the one that was set.
    wheels.note(z, control, static_cast<float>(settings.value(zone_parameter(z, control))));
}

void veridial::couple_chroma(zone z, const grade_settings& settings)
{
    updating_lightness = true;
    set_parameter(zone_parameter(z, zone_control::chroma),
                  static_cast<float>(coupled_chroma(settings, z, wheels.last_chroma(z))), false);
    updating_lightness = false;
}

void veridial::couple_lightness(zone z, const grade_settings& settings)
{
    updating_chroma = true;
    set_parameter(zone_parameter(z, zone_control::lightness),
                  static_cast<float>(coupled_lightness(settings, z, wheels.last_lightness(z))), false);
    updating_chroma = false;
}

void veridial::hand_preview_over(const event& e)
{
    const auto view = get_view();
    const auto picture = e.destination.lock();
    if (view == nullptr || picture == nullptr || !view->is_open())
        return;
    // The view may be another one than the editor.
    if (auto* sink = dynamic_cast<preview_sink*>(view.get()))
        sink->set_preview_image(*picture);
}

} // namespace ov1
