// A control's value as a line of text that can be typed over.
#pragma once

#include "vstgui/vstgui.h"

#include <functional>
#include <optional>
#include <string>

namespace ov1
{

/// Small and calm; brighter while the mouse is over it. A press of the left button calls clicked.
class value_line : public VSTGUI::CView
{
public:
    value_line(const VSTGUI::CRect& size, std::function<void()> clicked);

    void setText(const std::string& new_text);
    const std::string& getText() const { return text; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseEnterEvent(VSTGUI::MouseEnterEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;

private:
    void show_hovered(bool on);

    const std::function<void()> clicked;
    const VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    std::string text;
    bool is_hovered = false;
};

/// Opens a text field over a place of the container, with a text to begin from. When it has gone, done is called once:
/// with what stands there after Return, with nothing after Escape or where the keyboard went elsewhere. A container
/// that goes first drops done.
void open_value_entry(VSTGUI::CViewContainer& container, const VSTGUI::CRect& place, const std::string& text,
                      std::function<void(const std::optional<std::string>& typed)> done);

} // namespace ov1
