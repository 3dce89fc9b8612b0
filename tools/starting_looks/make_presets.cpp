// Writes the bundled presets when the project is built: make_presets FOLDER. The look tables are those of the
// program's resources, as for the product itself.
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "platform/atomic_file.h"
#include "presets/preset_manager.h"
#include "presets/preset_text.h"
#include "tools/starting_looks/starting_looks.h"

#include <cstdio>
#include <memory>
#include <string>

namespace
{

using namespace ov1;

enum exit_code : int
{
    done = 0,
    bad_look = 1,
    bad_usage = 2,
    cannot_write = 6,
};

int fail(exit_code code, const std::string& subject, const std::string& reason)
{
    std::fprintf(stderr, "make_presets: %s: %s\n", subject.c_str(), reason.c_str());
    return code;
}

/// With edit true: the values stand as they are written down, without the wheels' coupling.
bool set(icomponent_v1& effect, const look_value& wanted)
{
    const auto parameter = effect.get_parameter(std::string(wanted.parameter));
    if (!parameter)
        return false;
    param_value v = parameter->get_param_value();
    v.value = param_cell::of(wanted.value);
    if (!v.is_valid(v))
        return false;
    parameter->set_param_value(v, true);
    return true;
}

int write_look(icomponent_v1& effect, const starting_look& look, const std::string& folder)
{
    std::string reason;
    if (!is_preset_name(look.name, reason))
        return fail(bad_look, look.name, reason);
    effect.reset_to_default();
    for (const look_value& wanted : look.values)
        if (!set(effect, wanted))
            return fail(bad_look, std::string(look.name) + ", " + wanted.parameter,
                        "no such parameter, or out of bounds");
    const std::string text = write_preset_text(effect);
    const std::string path = folder + '/' + look.name + ".json";
    const auto written = replace_file(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!written)
        return fail(cannot_write, path, written.error().reason);
    return done;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return fail(bad_usage, "usage", "make_presets FOLDER");
    const auto effect = create_ccomponent();
    effect->initialize(std::make_shared<chost_v1>(effect));
    int result = done;
    for (const starting_look& look : get_starting_looks())
        if (result == done)
            result = write_look(*effect, look, argv[1]);
    effect->terminate();
    return result;
}
