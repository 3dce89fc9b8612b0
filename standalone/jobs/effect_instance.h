// An instance of the effect, with the grade of a command line.
#pragma once

#include "command_line/grade_request.h"
#include "command_line/parameter_info.h"
#include "framework/icomponent_v1.h"
#include "framework/ihost_v1.h"
#include "framework/row_renderer.h"
#include "presets/preset_manager.h"
#include "standalone/jobs/grade_text.h"

#include <functional>
#include <memory>
#include <vector>

namespace ov1
{

/// Owns a component under the framework's default host, or under a host that the caller makes; initializes it and
/// terminates it.
class effect_instance
{
public:
    using host_maker = std::function<std::shared_ptr<ihost_v1>(std::weak_ptr<icomponent_v1>)>;

    /// The maker is called once, in the constructor, with the component that its host serves.
    explicit effect_instance(const host_maker& make_host = {});
    ~effect_instance();
    effect_instance(const effect_instance&) = delete;
    effect_instance& operator=(const effect_instance&) = delete;

    icomponent_v1& get() { return *component; }
    std::shared_ptr<icomponent_v1> share() { return component; }
    preset_manager& get_presets() { return presets; }

    /// All parameters in registration order.
    const std::vector<parameter_info>& get_parameters() const { return parameters; }

    /// The values of all parameters, in the same order.
    std::vector<grade_value> get_values();

    /// Applies the request and brings the table up to date. Values are set as a host sets them, so that the wheels do
    /// not adjust one another. Where anything fails, nothing is set; there is one failure for each mistake.
    /// The order: state file, preset, then single values. Several presets may be named; the last one counts.
    [[nodiscard]] std::vector<failure> apply(const grade_request& request);

    /// Renders with the current table, from any number of threads.
    std::shared_ptr<const row_renderer> get_renderer() { return component->get_row_renderer(); }

private:
    std::shared_ptr<icomponent_v1> component;
    preset_manager presets;
    // Read once: names, ranges and defaults never change during the life of a component.
    std::vector<parameter_info> parameters;
};

} // namespace ov1
