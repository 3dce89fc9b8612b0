#include "editor/controls/modal/modal_layer.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/view_area.h"

#include <utility>

namespace ov1
{

modal_layer::modal_layer(const VSTGUI::CFrame& frame)
    : with_keys(area_of(frame))
{
    setTransparency(true);
    // The layer follows the frame's size while it is shown.
    setAutosizeFlags(VSTGUI::kAutosizeAll);
}

bool modal_layer::show(VSTGUI::CFrame& frame, const VSTGUI::SharedPointer<modal_layer>& layer)
{
    layer->remember(); // for the frame, which takes over a reference
    const auto id = frame.beginModalViewSession(layer);
    if (id)
        layer->session = *id;
    else
        layer->forget();
    return layer->is_shown();
}

void modal_layer::drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update_rect)
{
    context->setDrawMode(VSTGUI::kAliasing);
    context->setFillColor(style::dimming);
    context->drawRect(update_rect, VSTGUI::kDrawFilled);
}

void modal_layer::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    CViewContainer::onMouseDownEvent(event);
    // Also where no child was hit: nothing may reach the window beneath.
    event.consumed = true;
}

bool modal_layer::end()
{
    auto* frame = getFrame();
    // The exchange makes a second call harmless, for example a button's release after Return.
    return frame && session && frame->endModalViewSession(*std::exchange(session, std::nullopt));
}

} // namespace ov1
