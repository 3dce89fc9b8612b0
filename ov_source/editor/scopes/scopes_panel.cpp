#include "editor/scopes/scopes_panel.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/view_area.h"
#include "platform/iutils.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// In points.
constexpr CCoord margin = 6;
constexpr CCoord gap = 4;
constexpr CCoord button_height = 22;
constexpr CCoord skin_button_width = 46;
constexpr CCoord skin_button_height = 16;

/// Localised literals; the title is the button's tooltip as well.
struct scope_text
{
    const char* button;
    const char* title;
};

/// By scope_type.
constexpr std::array<scope_text, scope_type_count> texts{
    {{"{en:Wave}{de:Welle}", "{en:Waveform, luma}{de:Wellenform, Luma}"},
     {"{en:Parade}{de:Parade}", "{en:RGB parade}{de:RGB-Parade}"},
     {"{en:Vector}{de:Vektor}", "{en:Vectorscope}{de:Vektorskop}"},
     {"{en:Histo}{de:Histo}", "{en:Histogram}{de:Histogramm}"}}};

std::size_t count_of(const scope_selection& selection)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < scope_type_count; ++i)
        count += is_chosen(selection, scope_type{i});
    return count;
}

} // namespace

scopes_panel::scopes_panel(const CRect& size, language_id language)
    : CViewContainer(size)
{
    for (std::size_t i = 0; i < scope_type_count; ++i)
    {
        const std::string title = iutils::translate(language, texts[i].title);
        views[i] = new scope_view(CRect(), pictures, scope_type{i}, title);
        addView(views[i]);
        buttons[i] = add_button(iutils::translate(language, texts[i].button), title);
    }
    skin_button = add_button(iutils::translate(language, "{en:Skin}{de:Haut}"),
                             iutils::translate(language, "{en:The line near which skin of every tone lies}"
                                                         "{de:Die Linie, bei der Haut jeder Farbe liegt}"));
    show_choice();
}

COVRoundedGreyButton* scopes_panel::add_button(const std::string& title, const std::string& tooltip)
{
    auto* const button = new COVRoundedGreyButton(CRect(), this, -1, title.c_str(), CTextButton::kOnOffStyle);
    button->setFont(style::small_font());
    button->setTooltipText(tooltip.c_str());
    addView(button);
    return button;
}

double scopes_panel::zoom() const { return getFrame() ? getFrame()->getZoom() : 1; }

void scopes_panel::idle()
{
    if (ordered_zoom != zoom()) // the pictures have as many pixels as the screen shows
        place_order();
    if (pictures.take_change())
        for (scope_view* view : views)
            if (view->isVisible())
                view->mark_outdated();
}

void scopes_panel::set_choice(const scope_choice& wanted)
{
    if (count_of(wanted.shown) == 0)
        return;
    choice = wanted;
    show_choice();
}

void scopes_panel::set_row_step(std::size_t step)
{
    row_step = std::max<std::size_t>(1, step);
    place_order();
}

void scopes_panel::valueChanged(CControl* control)
{
    scope_choice wanted = choice;
    const bool is_on = control->getValue() > 0.5f;
    if (control == skin_button)
        wanted.skin_line = is_on;
    else
        // Every control but the skin button is one of buttons.
        chosen(wanted.shown,
               scope_type{static_cast<std::size_t>(std::ranges::find(buttons, control) - buttons.begin())}) = is_on;
    if (count_of(wanted.shown) == 0)
        return control->setValue(1); // the last scope stays
    set_choice(wanted);
    if (choice_listener)
        choice_listener();
}

void scopes_panel::show_choice()
{
    for (std::size_t i = 0; i < scope_type_count; ++i)
    {
        const bool is_shown = is_chosen(choice.shown, scope_type{i});
        buttons[i]->setValue(is_shown ? 1.f : 0.f);
        views[i]->setVisible(is_shown);
    }
    skin_button->setVisible(choice.shown.vectorscope);
    skin_button->setValue(choice.skin_line ? 1.f : 0.f);
    lay_out();
}

/// Equally wide but for rounding, which is done on both edges so that no gap grows.
void scopes_panel::lay_out_buttons()
{
    const CCoord width = getViewSize().getWidth() - 2 * margin;
    const CCoord step = (width + gap) / scope_type_count;
    for (std::size_t i = 0; i < scope_type_count; ++i)
    {
        const CCoord left = margin + std::round(step * static_cast<CCoord>(i));
        const CCoord right = margin + std::round(step * static_cast<CCoord>(i + 1)) - gap;
        place_view(*buttons[i], CRect(left, margin, right, margin + button_height));
    }
}

void scopes_panel::lay_out()
{
    lay_out_buttons();
    const CCoord top = margin + button_height + gap;
    const CCoord height = getViewSize().getHeight() - top;
    // Whole points: the last scope ends above the edge, and all have the same size.
    const CCoord step = std::floor(height / static_cast<CCoord>(count_of(choice.shown)));
    CRect place(0, top, getViewSize().getWidth(), top + step);
    for (scope_view* view : views)
        if (view->isVisible())
        {
            place_view(*view, place);
            place.offset(0, step);
        }
    // In the title row of the vectorscope, which alone has a skin line.
    const CRect vectorscope_place = views[static_cast<std::size_t>(scope_type::vectorscope)]->getViewSize();
    const CCoord right = getViewSize().getWidth() - margin;
    place_view(*skin_button, CRect(CPoint(right - skin_button_width, vectorscope_place.top + 2),
                                   CPoint(skin_button_width, skin_button_height)));
    place_order();
    invalid();
}

void scopes_panel::place_order()
{
    ordered_zoom = zoom();
    scope_order wanted{choice, isVisible()};
    // All scopes have the size of the first visible one.
    const auto shown = std::ranges::find_if(views, [](const scope_view* view) { return view->isVisible(); });
    // One is always visible: a choice without a scope is ignored.
    const CRect place = (*shown)->getViewSize();
    const auto in_pixels = [&](CCoord points)
    { return std::max(0, static_cast<int>(std::lround(points * ordered_zoom))); };
    wanted.width = in_pixels(place.getWidth());
    wanted.height = in_pixels(place.getHeight() - scope_view::title_height);
    // Lines keep their width in points, and at least one pixel.
    wanted.line_width = std::max(1, static_cast<int>(ordered_zoom));
    wanted.row_step = row_step;
    if (!pictures.order(wanted) && frame_listener)
        frame_listener();
}

void scopes_panel::setVisible(bool state)
{
    // Placing an order draws all scopes: only a change is worth that.
    if (state == isVisible())
        return;
    CViewContainer::setVisible(state);
    place_order();
}

void scopes_panel::setViewSize(const CRect& rect, bool invalid)
{
    CViewContainer::setViewSize(rect, invalid);
    lay_out();
}

void scopes_panel::drawBackgroundRect(CDrawContext* context, const CRect&)
{
    fill_background(*context, *this, style::background);
}

} // namespace ov1
