#include "editor/preview/preview_bar.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/view_area.h"
#include "editor/controls/widgets/csimple_slider.h"
#include "editor/controls/widgets/icon_button.h"
#include "editor/controls/widgets/text_label.h"
#include "platform/iutils.h"

#include "vstgui/lib/cdrawcontext.h"

#include <fmt/format.h>

#include <cmath>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// In points.
constexpr CCoord margin = 8;
constexpr CCoord button_gap = 2;
constexpr CCoord label_gap = 4;
constexpr CCoord zoom_width = 48;
constexpr CCoord colour_width = 268;
constexpr CCoord frame_label_width = 84;
constexpr CCoord least_slider_width = 80;
constexpr CCoord label_height = 16;

/// Place, and the codes 0..255 before and after: "12, 40    10  20  30  →   11  22  33".
std::string describe(const picked_colour& c)
{
    const auto triple = [](std::uint32_t pixel)
    { return fmt::format("{:3} {:3} {:3}", red_of(pixel), green_of(pixel), blue_of(pixel)); };
    return fmt::format("{}, {}   {}  \u2192  {}", c.x, c.y, triple(c.before), triple(c.after));
}

} // namespace

preview_bar::preview_bar(const CRect& size, preview_view& preview, COVScrollView& scroller, language_id language)
    : CViewContainer(size)
    , preview(preview)
    , scroller(scroller)
    , next_left(margin)
{
    constexpr auto toggle = CTextButton::kOnOffStyle;
    fit = add_button("toolbar_fit.png", CTextButton::kKickStyle, "{en:Fit}{de:Einpassen}", language);
    actual_size = add_button("toolbar_actual_size.png", CTextButton::kKickStyle, "{en:100 %}{de:100 %}", language);
    zoom_label = add_label(zoom_width, kCenterText);
    before = add_button("toolbar_before_after.png", toggle, "{en:Before}{de:Vorher}", language);
    split = add_button("toolbar_split.png", toggle,
                       "{en:Before and after, side by side}{de:Vorher und nachher geteilt}", language);
    eyedropper = add_button("toolbar_eyedropper.png", toggle, "{en:Read colours}{de:Farben ablesen}", language);
    // The bar lies over the preview's lower edge.
    scroller.setCoveredBottom(size.getHeight());
    scroller.setZoomListener([this] { show_zoom(); });
    show_zoom();
}

COVButton* preview_bar::add_button(const char* artwork, CTextButton::Style style, const char* tooltip,
                                   language_id language)
{
    const CCoord top = std::floor((getViewSize().getHeight() - icon_button_size) / 2);
    auto* const button =
        make_icon_button(CPoint(next_left, top), *this, style, artwork, iutils::translate(language, tooltip));
    addView(button);
    next_left += icon_button_size + button_gap;
    return button;
}

CTextLabel* preview_bar::add_label(CCoord width, CHoriTxtAlign alignment)
{
    const CCoord top = std::floor((getViewSize().getHeight() - label_height) / 2);
    auto* const label = make_text_label(CRect(CPoint(next_left, top), CPoint(width, label_height)), nullptr,
                                        style::small_font(), style::normal_text);
    label->setHoriAlign(alignment);
    addView(label);
    next_left += width + label_gap;
    return label;
}

void preview_bar::offer_scopes(bool shown, std::function<void(bool shown)> toggled, language_id language)
{
    scopes = add_button("toolbar_scopes.png", CTextButton::kOnOffStyle, "{en:Scopes}{de:Messgeräte}", language);
    scopes->setValue(shown ? 1.f : 0.f);
    scopes_toggled = std::move(toggled);
    colour_label = add_label(colour_width, kLeftText); // the last but the clip's slider: it may be covered
}

void preview_bar::show_zoom()
{
    zoom_label->setText(fmt::format("{:.0f} %", scroller.getZoom() * 100).c_str());
    zoom_label->invalid();
}

void preview_bar::show_comparison()
{
    const comparison mode = preview.get_comparison();
    before->setValue(mode == comparison::before ? 1.f : 0.f);
    split->setValue(mode == comparison::split ? 1.f : 0.f);
}

void preview_bar::toggle_comparison(comparison mode)
{
    // The same button again returns to the graded picture.
    preview.set_comparison(preview.get_comparison() == mode ? comparison::after : mode);
    show_comparison();
}

void preview_bar::show_colour(const std::optional<picked_colour>& colour)
{
    if (!colour_label)
        return;
    const bool is_on = eyedropper->getValue() > 0.5f;
    const std::string text = is_on && colour ? describe(*colour) : std::string();
    // Each movement of the mouse comes here; an unchanged text is not drawn again.
    if (colour_label->getText() == text.c_str())
        return;
    colour_label->setText(text.c_str());
    colour_label->invalid();
}

void preview_bar::offer_frames(int count, std::function<void(int frame)> chosen)
{
    if (count <= 1 || frame_label)
        return;
    frame_count = count;
    frame_chosen = std::move(chosen);
    frame_label = add_label(frame_label_width, kRightText);
    frame_label->setText(fmt::format("1 / {}", count).c_str());
    lay_out_frames();
}

void preview_bar::lay_out_frames()
{
    if (!frame_label)
        return;
    const CRect whole = getViewSize();
    const CCoord right = whole.getWidth() - margin;
    CRect label = frame_label->getViewSize();
    label.moveTo(right - frame_label_width, label.top);
    frame_label->setViewSize(label);
    const CCoord left = (scopes ? scopes : eyedropper)->getViewSize().right + margin;
    CRect place(std::min(left, label.left - least_slider_width), 0, label.left - margin, whole.getHeight());
    // The colour read-out keeps its place only where the slider still has twice its least width.
    const bool is_wide = label.left - left > colour_width + 2 * least_slider_width;
    if (is_wide)
        place.left += colour_width;
    // A slider's range is fixed when it is created, so a new size needs a new slider.
    if (frames)
        removeView(frames);
    const auto handle = load_artwork("slider_handle.png");
    // The toolkit draws the handle at the slider's top: a slider as high as its handle is centred in the bar.
    place.inset(0, std::floor((place.getHeight() - handle->getHeight()) / 2));
    auto* const slider = new CSimpleSlider(place, this, -1, static_cast<std::int32_t>(place.left),
                                           static_cast<std::int32_t>(place.right - handle->getWidth()), handle,
                                           CPoint(0, 0), least_value_on_the_left);
    slider->setMin(0);
    slider->setMax(static_cast<float>(frame_count - 1));
    slider->setValue(static_cast<float>(shown_frame));
    frames = slider;
    addView(frames);
}

void preview_bar::valueChanged(CControl* control)
{
    const bool is_on = control->getValue() > 0.5f;
    if (control == frames)
    {
        const int frame = static_cast<int>(std::lround(control->getValue()));
        if (frame == std::exchange(shown_frame, frame))
            return; // the slider has moved within one frame
        frame_label->setText(fmt::format("{} / {}", frame + 1, frame_count).c_str());
        frame_label->invalid();
        if (frame_chosen)
            frame_chosen(frame);
    }
    else if (control == fit && is_on)
        scroller.zoomToFit();
    else if (control == actual_size && is_on)
        scroller.setZoom(1);
    else if (control == before)
        preview.set_comparison(is_on ? comparison::before : comparison::after);
    else if (control == split)
        preview.set_comparison(is_on ? comparison::split : comparison::after);
    else if (control == scopes)
        scopes_toggled(is_on);
    else if (control == eyedropper && !is_on)
        show_colour({});
    show_comparison(); // of the two toggles at most one is on
}

void preview_bar::setViewSize(const CRect& rect, bool invalid)
{
    CViewContainer::setViewSize(rect, invalid);
    lay_out_frames();
}

void preview_bar::drawBackgroundRect(CDrawContext* context, const CRect&)
{
    fill_background(*context, *this, style::bar);
}

} // namespace ov1
