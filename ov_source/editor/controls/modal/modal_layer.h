// A layer over the dimmed window that receives all mouse and key events until it is closed.
#pragma once

#include "editor/controls/widgets/with_keys.h"
#include "vstgui/vstgui.h"

#include <optional>

namespace ov1
{

/// Covers and dims its frame and consumes all mouse events.
class modal_layer : public with_keys<VSTGUI::CViewContainer>
{
public:
    explicit modal_layer(const VSTGUI::CFrame& frame);

    /// Puts a layer over its frame. False, and nothing shown, where the frame refuses.
    [[nodiscard]] static bool show(VSTGUI::CFrame& frame, const VSTGUI::SharedPointer<modal_layer>& layer);

    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update_rect) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

protected:
    bool is_shown() const { return session.has_value(); }
    /// Closes the layer, at most once. The frame releases its reference: hold one to go on using the object. False
    /// where the layer was not shown.
    bool end();

private:
    std::optional<VSTGUI::ModalViewSessionID> session;
};

} // namespace ov1
