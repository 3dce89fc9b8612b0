// Any bytes as a preset: what is accepted can be applied, and what is saved then loads and saves again to the same
// bytes.
#include "framework/ccomponent_v1.h"
#include "framework/chost_v1.h"
#include "framework/parameters/cparameter_boolean_v1.h"
#include "framework/parameters/cparameter_color_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/parameters/cparameter_integral_v1.h"
#include "presets/preset_reader.h"
#include "presets/preset_text.h"

#include <cstdint>
#include <cstdlib>

namespace
{

using namespace ov1;

/// One parameter of each kind.
class four_kinds : public ccomponent_v1
{
public:
    void init_component() override
    {
        register_parameter(std::make_shared<cparameter_continuous_v1>(get_self(), "A", -100.0f, 100.0f, 50.0f));
        register_parameter(std::make_shared<cparameter_integral_v1>(get_self(), "B", -10, 10, 0));
        register_parameter(std::make_shared<cparameter_boolean_v1>(get_self(), "C", false));
        register_parameter(std::make_shared<cparameter_color_v1>(get_self(), "D", param_argb{1, 0, 0.5f, 1}));
    }
};

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void load(std::string_view text, icomponent_v1& component)
{
    auto content = read_preset_text(text);
    require(content && apply_preset(*std::move(content), component));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // Made once: a component for every input would take most of the time.
    static const auto component = []
    {
        auto made = std::make_shared<four_kinds>();
        made->initialize(std::make_shared<chost_v1>(made));
        return made;
    }();
    auto content = read_preset_text({reinterpret_cast<const char*>(data), size});
    if (!content)
    {
        const std::string& reason = content.error().reason;
        // Reasons are shown on one line.
        require(!reason.empty() && reason.find('\n') == std::string::npos);
        return 0;
    }
    require(static_cast<bool>(apply_preset(*std::move(content), *component)));
    const std::string saved = write_preset_text(*component);
    component->reset_to_default();
    load(saved, *component);
    require(write_preset_text(*component) == saved);
    return 0;
}
