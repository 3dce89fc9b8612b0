#include "editor/controls/modal/modal_panel.h"

#include "editor/controls/modal/modal_layer.h"
#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/round_box.h"
#include "editor/controls/style/text_field.h"
#include "editor/controls/style/text_lines.h"
#include "editor/controls/style/text_measure.h"
#include "editor/controls/style/view_area.h"
#include "editor/controls/widgets/cov_rounded_grey_button.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace ov1
{

namespace
{

// In points.
constexpr VSTGUI::CCoord box_width = 380.0;
constexpr VSTGUI::CCoord margin = 22.0;
constexpr VSTGUI::CCoord title_height = 20.0;
constexpr VSTGUI::CCoord gap = 12.0;
constexpr VSTGUI::CCoord line_height = 17.0;
constexpr VSTGUI::CCoord field_height = 26.0;
constexpr VSTGUI::CCoord button_height = 26.0;
constexpr VSTGUI::CCoord least_button_width = 92.0;
constexpr VSTGUI::CCoord button_padding = 32.0;
constexpr VSTGUI::CCoord corner_radius = 6.0;
constexpr VSTGUI::CCoord field_corner_radius = 4.0;

enum button_tag : std::int32_t
{
    confirm_tag = 1,
    cancel_tag = 2,
};

/// A preset's name starts and ends with a visible character.
std::string without_outer_blanks(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

class modal_panel : public modal_layer, public VSTGUI::IControlListener
{
public:
    modal_panel(const VSTGUI::CFrame& frame, const modal_question& question,
                std::function<void(const modal_answer&)> on_answer);

    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update_rect) override;
    void setViewSize(const VSTGUI::CRect& rect, bool redraw) override;
    void take_key(VSTGUI::KeyboardEvent& event) override;
    void valueChanged(VSTGUI::CControl* control) override;

private:
    COVRoundedGreyButton* add_button(const std::string& text, button_tag tag);
    void add_field(const std::string& name);
    void place_children();
    VSTGUI::CRect box() const;
    void draw_texts(VSTGUI::CDrawContext& context) const;
    void answer(bool confirmed);

    std::function<void(const modal_answer&)> on_answer;
    const style::font_pointer title_font = style::title_font();
    const style::font_pointer message_font = style::text_font();
    std::string title;
    std::vector<std::string> lines;
    VSTGUI::CTextEdit* field = nullptr; // a child, as the buttons are
    COVRoundedGreyButton* confirm = nullptr;
    COVRoundedGreyButton* cancel = nullptr;
};

modal_panel::modal_panel(const VSTGUI::CFrame& frame, const modal_question& question,
                         std::function<void(const modal_answer&)> on_answer)
    : modal_layer(frame)
    , on_answer(std::move(on_answer))
    , title(question.title)
    , lines(text_lines(question.message, box_width - 2.0 * margin, measure_of(message_font)))
{
    if (question.name)
        add_field(*question.name);
    confirm = add_button(question.confirm, confirm_tag);
    confirm->setTextColor(VSTGUI::kWhiteCColor); // what Return does
    if (!question.cancel.empty())
        cancel = add_button(question.cancel, cancel_tag);
    place_children();
}

COVRoundedGreyButton* modal_panel::add_button(const std::string& text, button_tag tag)
{
    auto* button = new COVRoundedGreyButton({}, this, tag, text.c_str(), COVButton::kKickStyle);
    // Translations differ in length, so the text decides the width.
    const VSTGUI::CCoord width = measure_of(message_font)(text) + button_padding;
    button->setViewSize({0.0, 0.0, std::max(std::ceil(width), least_button_width), button_height});
    addView(button);
    return button;
}

void modal_panel::add_field(const std::string& name)
{
    field = new VSTGUI::CTextEdit({}, nullptr, -1, name.c_str());
    apply_style(*field,
                {message_font, style::bright_text, style::dialog_field, style::dialog_frame, field_corner_radius});
    align_left(*field);
    addView(field);
}

/// In the middle of the layer, on whole points; at its upper left corner where the layer is too small.
VSTGUI::CRect modal_panel::box() const
{
    const VSTGUI::CCoord message_height = lines.empty() ? 0.0 : gap + static_cast<double>(lines.size()) * line_height;
    const VSTGUI::CCoord height =
        margin + title_height + message_height + (field ? gap + field_height : 0.0) + margin + button_height + margin;
    const VSTGUI::CPoint corner(std::max(std::floor((getWidth() - box_width) / 2.0), 0.0),
                                std::max(std::floor((getHeight() - height) / 2.0), 0.0));
    return {corner, VSTGUI::CPoint(box_width, height)};
}

/// The field above the buttons; the buttons from right to left, the first one rightmost.
void modal_panel::place_children()
{
    const VSTGUI::CRect place = box();
    VSTGUI::CPoint right_bottom(place.right - margin, place.bottom - margin);
    if (field)
    {
        const VSTGUI::CPoint corner(place.left + margin, right_bottom.y - button_height - margin - field_height);
        const VSTGUI::CRect row(corner, VSTGUI::CPoint(box_width - 2.0 * margin, field_height));
        place_view(*field, row);
    }
    for (auto* button : {confirm, cancel})
    {
        if (!button)
            continue;
        const VSTGUI::CPoint size = button->getViewSize().getSize();
        place_view(*button, {right_bottom - size, size});
        right_bottom.x -= size.x + gap;
    }
}

void modal_panel::setViewSize(const VSTGUI::CRect& rect, bool redraw)
{
    CViewContainer::setViewSize(rect, redraw);
    if (confirm) // not before the children exist
        place_children();
}

void modal_panel::drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update_rect)
{
    modal_layer::drawBackgroundRect(context, update_rect);
    draw_round_box(*context, box(), corner_radius, style::dialog, style::dialog_frame);
    draw_texts(*context);
}

void modal_panel::draw_texts(VSTGUI::CDrawContext& context) const
{
    VSTGUI::CRect row = box();
    row.inset(margin, margin);
    row.setHeight(title_height);
    context.setFont(title_font);
    context.setFontColor(style::bright_text);
    context.drawString(title.c_str(), row, VSTGUI::kLeftText);

    row.offset(0.0, title_height + gap);
    row.setHeight(line_height);
    context.setFont(message_font);
    context.setFontColor(style::dialog_text);
    for (const std::string& line : lines)
    {
        context.drawString(line.c_str(), row, VSTGUI::kLeftText);
        row.offset(0.0, line_height);
    }
}

void modal_panel::take_key(VSTGUI::KeyboardEvent& event)
{
    const bool confirms = event.virt == VSTGUI::VirtualKey::Return || event.virt == VSTGUI::VirtualKey::Enter;
    if (confirms || event.virt == VSTGUI::VirtualKey::Escape)
    {
        event.consumed = true;
        if (event.type == VSTGUI::EventType::KeyDown)
            answer(confirms);
    }
    else if (!field) // a field's keys pass through here as well
        event.consumed = true;
}

void modal_panel::valueChanged(VSTGUI::CControl* control)
{
    if (control->getValue() > 0.5F)
        answer(control->getTag() == confirm_tag);
}

void modal_panel::answer(bool confirmed)
{
    const modal_answer given = {confirmed, field ? without_outer_blanks(field->getText().getString()) : std::string()};
    // A button's release may follow the key that has closed the panel.
    if (!is_shown() || (confirmed && field && given.name.empty()))
        return;
    const auto alive = VSTGUI::shared(this); // closing releases the frame's reference
    // Taken out before closing, so that no second event can report again.
    const auto report = std::exchange(on_answer, {});
    // The callback comes last: it may show another panel.
    if (end() && report)
        report(given);
}

} // namespace

bool show_modal_panel(VSTGUI::CFrame& frame, const modal_question& question,
                      std::function<void(const modal_answer&)> on_answer)
{
    return modal_layer::show(frame, VSTGUI::makeOwned<modal_panel>(frame, question, std::move(on_answer)));
}

} // namespace ov1
