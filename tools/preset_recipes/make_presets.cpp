// make_presets FOLDER writes the bundled presets there. The build runs it once the look tables exist; like the product,
// it reads them from the program's resources.
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "platform/atomic_file.h"
#include "presets/preset_manager.h"
#include "presets/preset_text.h"
#include "tools/preset_recipes/preset_recipes.h"

#include <cstdio>
#include <memory>
#include <string>

namespace
{

using namespace ov1;

enum exit_code : int
{
    done = 0,
    bad_recipe = 1,
    bad_usage = 2,
    cannot_write = 6,
};

int fail(exit_code code, const std::string& subject, const std::string& reason)
{
    std::fprintf(stderr, "make_presets: %s: %s\n", subject.c_str(), reason.c_str());
    return code;
}

/// Sets with edit true, so that the coupling of the wheels does not change the values of the recipe.
bool set(icomponent_v1& effect, const recipe_value& wanted)
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

int write_preset(icomponent_v1& effect, const preset_recipe& recipe, const std::string& folder)
{
    if (const auto accepted = check_preset_name(recipe.name); !accepted)
        return fail(bad_recipe, recipe.name, accepted.error().reason);
    effect.reset_to_default();
    for (const recipe_value& wanted : recipe.values)
        if (!set(effect, wanted))
            return fail(bad_recipe, std::string(recipe.name) + ", " + wanted.parameter,
                        "no such parameter, or out of bounds");
    const std::string text = write_preset_text(effect);
    const std::string path = folder + '/' + recipe.name + ".json";
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
    for (const preset_recipe& recipe : get_preset_recipes())
        if (result == done)
            result = write_preset(*effect, recipe, argv[1]);
    effect->terminate();
    return result;
}
