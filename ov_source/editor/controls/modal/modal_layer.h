// A layer over the dimmed window, which takes the mouse and the keys until it ends.
#pragma once

#include "editor/controls/widgets/with_keys.h"
#include "vstgui/vstgui.h"

#include <optional>

namespace ov1
{

/// Covers and dims a frame, which lets no mouse event past it.
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
    /// Ends what show began, once; the layer lives on only where it is held. False where nothing was to be ended.
    bool end();

private:
    std::optional<VSTGUI::ModalViewSessionID> session;
};

} // namespace ov1
