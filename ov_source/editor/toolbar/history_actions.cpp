#include "editor/toolbar/history_actions.h"

#include "editor/toolbar/popup_menu.h"

#include <utility>

namespace ov1
{

history_actions::history_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs)
    : component(std::move(component))
    , dialogs(dialogs)
{
}

void history_actions::set_callbacks(std::function<void()> on_undo, std::function<void()> on_redo)
{
    undo_callback = std::move(on_undo);
    redo_callback = std::move(on_redo);
}

void history_actions::undo()
{
    if (undo_callback)
        undo_callback();
    else if (const auto effect = component.lock())
        effect->undo();
}

void history_actions::redo()
{
    if (redo_callback)
        redo_callback();
    else if (const auto effect = component.lock())
        effect->redo();
}

bool history_actions::can_undo() const
{
    const auto effect = component.lock();
    // The history behind a callback is not known here.
    return undo_callback || (effect && effect->get_undo_range().can_undo());
}

bool history_actions::can_redo() const
{
    const auto effect = component.lock();
    return redo_callback || (effect && effect->get_undo_range().can_redo());
}

void history_actions::make_step(const std::function<void(icomponent_v1&)>& change) const
{
    const auto effect = component.lock();
    if (!effect)
        return;
    // The first call keeps the state before the change, the second one the state after it.
    effect->save_state(true);
    change(*effect);
    effect->save_state(false);
}

void history_actions::label_step(std::string name)
{
    if (const auto effect = component.lock())
        labels.remember(*effect, std::move(name));
}

std::vector<history_step> history_actions::list() const
{
    const auto effect = component.lock();
    return effect ? list_history(*effect, labels, dialogs.get_language()) : std::vector<history_step>();
}

void history_actions::show_menu(const VSTGUI::CView& view)
{
    // Kept by the callback: the history may move while the menu is open.
    const auto steps = list();
    std::vector<popup_item> items;
    for (const history_step& step : steps)
        items.push_back({step.name, step.is_present});
    show_popup(dialogs.get_frame(), view, items,
               [this, steps](std::size_t chosen)
               {
                   if (const auto effect = component.lock())
                       effect->jump_undo_stack(steps[chosen].position);
               });
}

} // namespace ov1
