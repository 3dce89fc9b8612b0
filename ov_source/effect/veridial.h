// The effect: its parameters, and the table that is built from them.
// Data flow: a parameter is set; the next render reads all values, builds a table if they changed, and publishes it;
// pixels go through the published table.
#pragma once

#include "effect/grade_settings.h"
#include "effect/legacy_parameters.h"
#include "effect/published_table.h"
#include "effect/wheel_memory.h"
#include "effect/zone_colour.h"
#include "framework/ccomponent_v1.h"
#include "framework/lut_exporter.h"
#include "framework/parameters/cparameter_v1.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

namespace ov1
{

/// Parameters may be set, and tables built and rendered, from any thread. A build works on one copy of all values,
/// under a mutex that renderers never take, and publishes the finished table. A renderer keeps the table that was
/// published when it was taken.
class veridial : public ccomponent_v1, public lut_exporter
{
public:
    veridial();

    /// Answers "lut_exporter" and the component's own name.
    bool query_interface(const std::string& name, iobject** out) override;
    /// The editor, made by the installed factory; null if none is installed.
    std::shared_ptr<iview_v1> create_view() override;
    /// Registers the 33 parameters and reads the look tables.
    void init_component() override;
    /// Builds before a render, couples the wheels at an edit, and passes previews to the editor.
    void notify(event e) override;
    /// Sets the present parameters that a value of an earlier version stands for.
    void handle_unknown_parameter(uid id, const param_value& value, bool edit) override;

    /// With the table published now, which is fetched for every pixel: loops use get_row_renderer instead.
    void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) override;
    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) override;
    std::shared_ptr<const row_renderer> get_row_renderer() override;

    /// Brings the table up to date first. False when out is null.
    [[nodiscard]] bool get_lut(lut_argb_variable* out) override;

    /// What the zone's wheel asks for (chroma_luma_of), in percent. zone_index is 0, 1 or 2.
    void get_chroma_luma(int zone_index, double& chroma, double& luma);

protected:
    void restore_started() override;

private:
    /// All values at one moment. The defaults before init_component.
    grade_settings read_settings() const;
    /// As a user or a host would, with all notifications. Nothing happens before init_component.
    void set_parameter(parameter_index i, float value, bool edit);

    /// Builds and publishes, unless the published table was built from the present values. Any thread; waits for a
    /// build on another one.
    void bring_up_to_date();
    /// Exchanges the published table. Renderers that hold the old one keep it alive.
    void publish(lut_argb<lut_edge> table, std::optional<grade_settings> built_from);
    /// Never null: the constructor publishes the identity.
    std::shared_ptr<const published_table> get_published() const;
    /// The identity as a table that is out of date: the next render builds.
    void publish_identity();

    /// Couples the controls of a wheel when one is dragged, and remembers the value.
    void parameter_was_set(uid id, bool edit);
    /// Sets the zone's Chroma after its Lightness or Range was dragged (coupled_chroma).
    void couple_chroma(zone z, const grade_settings& settings);
    /// Sets the zone's Lightness after its Chroma was dragged (coupled_lightness).
    void couple_lightness(zone z, const grade_settings& settings);
    /// Gives a rendered preview to the editor if one is open.
    void hand_preview_over(const event& e);

    /// Indexed by parameter_index; null before init_component.
    std::array<std::shared_ptr<cparameter_v1>, parameter_count> parameters;

    std::mutex build_mutex;           ///< serialises builds
    mutable std::mutex publish_mutex; ///< held only to copy or exchange the pointer
    /// Read and exchanged under publish_mutex.
    std::shared_ptr<const published_table> published;

    wheel_memory wheels;
    std::atomic<bool> updating_lightness = false; ///< a lightness or range change is setting the chroma
    std::atomic<bool> updating_chroma = false;    ///< a chroma change is setting the lightness

    /// Held while `legacy` maps a value, never while a parameter is set.
    std::mutex legacy_mutex;
    legacy_parameters legacy;
};

} // namespace ov1
