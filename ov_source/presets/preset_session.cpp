#include "presets/preset_session.h"

#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "presets/preset_reader.h"

#include <algorithm>
#include <utility>

namespace ov1
{

preset_session::preset_session(std::weak_ptr<icomponent_v1> component)
    : component(component)
    , manager(std::move(component))
{
}

preset_list preset_session::list()
{
    preset_list found;
    std::vector<std::string> own;
    if (!manager.getPresets(own))
        found.own_failure = manager.get_failure();
    // A choice without a path could not be loaded either.
    const auto add = [&](const preset_choice& choice, const result<std::string>& file)
    {
        if (!file)
            return;
        found.choices.push_back(choice);
        found.files.push_back(*file);
    };
    for (const std::string& name : own)
        add({name, false}, manager.get_preset_file(name));
    for (const std::string& name : manager.get_bundled_presets())
        add({name, true}, manager.get_bundled_preset_file(name));
    return found;
}

result<> preset_session::load(const preset_choice& choice)
{
    const auto effect = component.lock();
    // The manager loads only the user's own presets, so the session reads and applies both kinds itself.
    const auto file =
        choice.is_bundled ? manager.get_bundled_preset_file(choice.name) : manager.get_preset_file(choice.name);
    if (!file)
        return file.error();
    // The path of a bundled preset does not depend on the component.
    if (!effect)
        return failure{failure_kind::invalid_grade, {}, "the effect is gone"};
    auto content = read_preset_file(*file);
    if (!content)
        return content.error();
    if (auto applied = apply_preset(*std::move(content), *effect); !applied)
        return applied;
    set_current(choice, *effect);
    return {};
}

result<> preset_session::save(const std::string& name, bool overwrite)
{
    if (!manager.save_preset(name, overwrite))
        return *manager.get_failure();
    if (const auto effect = component.lock())
        set_current({name, false}, *effect);
    return {};
}

result<> preset_session::remove(const std::string& name)
{
    manager.delete_preset(name);
    if (manager.get_failure())
        return *manager.get_failure();
    // A bundled preset of the same name stays current.
    if (current == preset_choice{name, false})
        forget_current();
    return {};
}

void preset_session::forget_current()
{
    current.reset();
    values.clear();
    changed_count = 0;
}

const preset_choice* preset_session::get_own_current() const
{
    return current && !current->is_bundled ? &*current : nullptr;
}

/// The values are the parameters' and not the file's, because loading may have limited or rounded them.
/// The bypass is left out: it belongs to the session and not to the look.
void preset_session::set_current(const preset_choice& choice, icomponent_v1& effect)
{
    forget_current();
    current = choice;
    for (int i = 0; i < effect.get_parameter_count(); ++i)
        if (const auto parameter = effect.get_parameter(i); !(parameter->get_flags() & parameter_is_bypass))
            values.push_back({parameter->get_uid(), parameter->get_param_value().value});
}

/// Called at every event of a drag: one value is read and compared, and the others are known from before.
bool preset_session::parameter_changed(iparameter_v1& parameter)
{
    const auto found = std::ranges::find(values, parameter.get_uid(), &preset_value::id);
    if (found == values.end())
        return false;
    const bool before = is_changed();
    const bool differs = parameter.get_param_value().value != found->value;
    if (std::exchange(found->is_changed, differs) != differs)
        differs ? ++changed_count : --changed_count;
    return is_changed() != before;
}

} // namespace ov1
