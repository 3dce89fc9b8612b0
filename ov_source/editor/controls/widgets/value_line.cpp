#include "editor/controls/widgets/value_line.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/text_field.h"
#include "editor/controls/widgets/with_keys.h"

#include <utility>

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord field_corner_radius = 3.0;

class value_entry : public with_keys<VSTGUI::CTextEdit>
{
public:
    value_entry(const VSTGUI::CRect& place, const std::string& text,
                std::function<void(const std::optional<std::string>&)> on_done)
        : with_keys(place, nullptr, -1, text.c_str())
        , on_done(std::move(on_done))
    {
        apply_style(*this, {style::tiny_font(), style::value_hovered_text, style::value_field, style::value_field_frame,
                            field_corner_radius});
    }

    bool removed(CView* parent) override
    {
        on_done = {}; // the container is being destroyed, or finish has taken it
        return with_keys::removed(parent);
    }

    void take_key(VSTGUI::KeyboardEvent& event) override
    {
        const bool confirms = event.virt == VSTGUI::VirtualKey::Return || event.virt == VSTGUI::VirtualKey::Enter;
        if (!confirms && event.virt != VSTGUI::VirtualKey::Escape)
            return;
        event.consumed = true;
        if (event.type == VSTGUI::EventType::KeyDown)
            finish(confirms);
    }

    void looseFocus() override
    {
        // Only Return confirms: a click elsewhere leaves the value as it was.
        CTextEdit::looseFocus();
        finish(false);
    }

private:
    void finish(bool confirmed)
    {
        // Emptied first: setFocusView below calls looseFocus, and so this function again.
        const auto report = std::exchange(on_done, {});
        auto* const parent = getParentView() ? getParentView()->asViewContainer() : nullptr;
        if (!report || !parent)
            return;
        const auto alive = VSTGUI::shared(this); // removeView releases the container's reference
        const std::string typed = getText().getString();
        if (getFrame()->getFocusView() == this)
            getFrame()->setFocusView(nullptr);
        parent->removeView(this);
        report(confirmed ? std::optional(typed) : std::nullopt);
    }

    std::function<void(const std::optional<std::string>&)> on_done;
};

} // namespace

value_line::value_line(const VSTGUI::CRect& size, std::function<void()> on_click)
    : CView(size)
    , on_click(std::move(on_click))
    , font(style::tiny_font())
{
    setTransparency(true);
}

void value_line::set_text(const std::string& new_text)
{
    if (std::exchange(text, new_text) != new_text)
        invalid();
}

void value_line::draw(VSTGUI::CDrawContext* context)
{
    context->setDrawMode(VSTGUI::kAntiAliasing);
    context->setFont(font);
    context->setFontColor(is_hovered ? style::value_hovered_text : style::value_text);
    context->drawString(text.c_str(), getViewSize(), VSTGUI::kCenterText);
    setDirty(false);
}

void value_line::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    if (!event.buttonState.isLeft())
        return;
    event.consumed = true;
    event.ignoreFollowUpMoveAndUpEvents(true);
    on_click();
}

void value_line::onMouseEnterEvent(VSTGUI::MouseEnterEvent&) { show_hovered(true); }
void value_line::onMouseExitEvent(VSTGUI::MouseExitEvent&) { show_hovered(false); }

void value_line::show_hovered(bool on)
{
    if (std::exchange(is_hovered, on) != on)
        invalid();
}

void open_value_entry(VSTGUI::CViewContainer& container, const VSTGUI::CRect& place, const std::string& text,
                      std::function<void(const std::optional<std::string>& typed)> on_done)
{
    auto* const entry = new value_entry(place, text, std::move(on_done));
    container.addView(entry);
    if (auto* frame = container.getFrame())
        frame->setFocusView(entry);
}

} // namespace ov1
