// What the toolbar does with presets: asks, acts, and reports failures.
#pragma once

#include "editor/toolbar/editor_dialogs.h"
#include "editor/toolbar/history_actions.h"
#include "presets/preset_session.h"

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Dialogs and history outlive it. Belongs to the editor's thread.
class preset_actions
{
public:
    /// on_current is called when another preset, or none, has become the current one.
    preset_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs, history_actions& history,
                   std::function<void()> on_current);

    /// Says so if the user's own presets cannot be listed.
    preset_list list();
    /// Replaces the grade as one undo step, which bears the preset's name.
    void load(const preset_choice& choice);
    /// Asks for a name, and before an existing preset is overwritten.
    void save();
    /// Asks first. Does nothing unless the current preset is one of the user's own.
    void remove();
    /// No preset is current any more.
    void forget_current();

    /// To be called after each change of a parameter. Returns true if the grade has begun or ceased to differ from the
    /// current preset.
    bool parameter_changed(iparameter_v1& parameter) { return session.parameter_changed(parameter); }
    /// What is current, and whether the grade has changed since. Only for reading.
    const preset_session& get_session() const { return session; }

private:
    /// Asks before it overwrites; with overwrite the user has agreed.
    void save_as(const std::string& name, bool overwrite);

    const editor_dialogs& dialogs;
    history_actions& history;
    const std::function<void()> on_current;
    preset_session session;
};

} // namespace ov1
