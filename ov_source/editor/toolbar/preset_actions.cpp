#include "editor/toolbar/preset_actions.h"

#include "presets/preset_messages.h"

#include <utility>

namespace ov1
{

preset_actions::preset_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs,
                               history_actions& history, std::function<void()> on_current)
    : dialogs(dialogs)
    , history(history)
    , on_current(std::move(on_current))
    , session(std::move(component))
{
}

preset_list preset_actions::list()
{
    preset_list found = session.list();
    // The bundled presets are offered all the same.
    if (found.own_failure)
        dialogs.show("Veridial", preset_messages::cannot_list);
    return found;
}

void preset_actions::load(const preset_choice& choice)
{
    if (const auto loaded = session.load(choice); !loaded)
        return dialogs.report(choice.name, preset_messages::cannot_load, loaded.error());
    history.label_step(choice.name);
    on_current();
}

void preset_actions::save()
{
    const editor_question question{"{en:Save preset}{de:Preset sichern}", "{en:Name}{de:Name}",
                                   "{en:Save}{de:Sichern}"};
    const preset_choice* own = session.get_own_current();
    // The name of the user's own current preset is offered, to save it again.
    dialogs.ask_for_text(question, own ? own->name : std::string(),
                         [this](const std::string& name) { save_as(name, false); });
}

void preset_actions::save_as(const std::string& name, bool overwrite)
{
    // A file that appears after this check is still safe: saving without overwrite fails, with a message.
    if (!overwrite && session.exists(name))
    {
        const editor_question question{name, preset_messages::overwrite_question, "{en:Overwrite}{de:Überschreiben}"};
        return dialogs.ask(question, [this, name] { save_as(name, true); });
    }
    if (const auto saved = session.save(name, overwrite); saved)
        on_current();
    else
        dialogs.report(name, "{en:The preset cannot be saved: }{de:Das Preset kann nicht gesichert werden: }",
                       saved.error());
}

void preset_actions::forget_current()
{
    session.forget_current();
    on_current();
}

void preset_actions::remove()
{
    const preset_choice* own = session.get_own_current();
    if (!own)
        return;
    // A copy: another preset may be current when the answer arrives.
    const std::string name = own->name;
    const editor_question question{name, "{en:Delete this preset?}{de:Dieses Preset löschen?}",
                                   "{en:Delete}{de:Löschen}"};
    dialogs.ask(question,
                [this, name]
                {
                    if (const auto removed = session.remove(name); removed)
                        on_current();
                    else
                        dialogs.report(
                            name, "{en:The preset cannot be deleted: }{de:Das Preset kann nicht gelöscht werden: }",
                            removed.error());
                });
}

} // namespace ov1
