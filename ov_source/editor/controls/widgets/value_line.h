// A control's value as a line of text, and the field in which a new value is typed.
#pragma once

#include "vstgui/vstgui.h"

#include <functional>
#include <optional>
#include <string>

namespace ov1
{

/// Small and grey; brighter while the mouse is over it. A press of the left button calls on_click.
class value_line : public VSTGUI::CView
{
public:
    value_line(const VSTGUI::CRect& size, std::function<void()> on_click);

    void set_text(const std::string& new_text);
    const std::string& get_text() const { return text; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseEnterEvent(VSTGUI::MouseEnterEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;

private:
    void show_hovered(bool on);

    const std::function<void()> on_click;
    const VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    std::string text;
    bool is_hovered = false;
};

/// Opens a text field at a place of the container, with an initial text. When it closes, on_done is called
/// once: with the text after Return, with nothing after Escape or when the field loses the keyboard focus. If the
/// container is destroyed first, on_done is not called.
void open_value_entry(VSTGUI::CViewContainer& container, const VSTGUI::CRect& place, const std::string& text,
                      std::function<void(const std::optional<std::string>& typed)> on_done);

} // namespace ov1
