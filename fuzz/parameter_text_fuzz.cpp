// Any text as a parameter's value: what is accepted is valid and can be written again.
#include "framework/parameters/cparameter_boolean_v1.h"
#include "framework/parameters/cparameter_color_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/parameters/cparameter_integral_v1.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ov1;
    // One of each kind, with bounds that can be left.
    static const std::array<std::shared_ptr<iparameter_v1>, 4> parameters{
        std::make_shared<cparameter_continuous_v1>(std::weak_ptr<icomponent_v1>(), "continuous", -100.0f, 100.0f, 0.0f),
        std::make_shared<cparameter_integral_v1>(std::weak_ptr<icomponent_v1>(), "integral", -10, 10, 0),
        std::make_shared<cparameter_boolean_v1>(std::weak_ptr<icomponent_v1>(), "boolean", false),
        std::make_shared<cparameter_color_v1>(std::weak_ptr<icomponent_v1>(), "color", param_argb{})};
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const auto& parameter : parameters)
    {
        param_value value = parameter->get_param_value();
        if (!parameter->get_value_from_string(text, value))
            continue;
        std::string written;
        if (!parameter->get_param_value().is_valid(value) || !parameter->get_string_from_value(value, written, 9))
            std::abort();
    }
    return 0;
}
