#include "editor/panel/panel_controls.h"

#include "editor/controls/geometry/artwork_scale.h"
#include "editor/controls/style/cov_bitmap.h"
#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/ccached_nine_part_tiled_bitmap.h"
#include "editor/controls/widgets/text_label.h"
#include "editor/panel/panel_layout.h"
#include "platform/iutils.h"
#include "shared/uid.h"

#include "vstgui/lib/cviewcontainer.h"

namespace ov1
{

using namespace VSTGUI;

namespace
{

/// A smoothness slider carries its panel's range arc under this attribute, as a pointer that it does not own.
constexpr CViewAttributeID spread_arc_attribute = 'r' << 24 | 's' << 16 | 'a' << 8 | 't';
constexpr float slider_reach = 100; ///< percent, to either side of 0
constexpr CCoord panel_margin = 3;  ///< the edge of the panel's picture that is not stretched

/// In points.
control_size size_of(const CBitmap& picture) { return {picture.getWidth(), picture.getHeight()}; }

/// A control's tag is its parameter's uid.
std::int32_t tag_of(const char* parameter) { return static_cast<std::int32_t>(make_uid(parameter)); }

/// Creates the controls. Within a panel arcs come first and the pad last, so that it lies above them.
class panel_maker
{
public:
    panel_maker(CViewContainer& container, IControlListener& listener, language_id language)
        : container(container)
        , listener(listener)
        , language(language)
        , slider_handle(load_artwork("slider_handle.png"))
        , slider_background(load_artwork("slider_background.png"))
    {
    }

    panel_controls make_all()
    {
        for (const panel& p : get_panels())
            make_panel(p);
        make_inspire_button();
        return made;
    }

private:
    void make_panel(const panel& p)
    {
        const auto picture = load_artwork(p.picture);
        const rect place = place_pad(size_of(*picture), p.x_offset, p.top);
        add_label(place_panel_label(place), p.label);
        COVArrowArcSlider* first_arc = nullptr;
        for (const panel_arc& arc : p.arcs)
        {
            auto* const slider = make_arc(arc, place);
            // The first arc of a panel with sliders is its range.
            first_arc = first_arc ? first_arc : slider;
        }
        for (std::size_t i = 0; i < p.sliders.size(); ++i)
        {
            auto* const slider = make_slider(p.sliders[i], place, static_cast<int>(i));
            if (i == 0) // smoothness
                // Both are children of the container, so the pointer stays valid as long as the slider.
                slider->setAttribute(spread_arc_attribute, first_arc);
        }
        make_pad(p, place, *picture);
    }

    void make_pad(const panel& p, const rect& place, CBitmap& picture)
    {
        auto* const pad = new COVColorWheelXYPad(to_crect(place), &listener, tag_of(p.angle_parameter),
                                                 tag_of(p.radius_parameter), &picture);
        pad->setFrameColor(style::handle_frame);
        set_tooltip(*pad, p.tooltip);
        container.addView(pad);
        made.pads[static_cast<std::size_t>(p.slot)] = pad;
    }

    COVArrowArcSlider* make_arc(const panel_arc& arc, const rect& pad)
    {
        const auto picture = load_artwork(arc.picture);
        const rect place = place_arc(pad, size_of(*picture), arc.is_left);
        const control_travel travel = arc_travel(place, arc.inset);
        auto* const slider =
            new COVArrowArcSlider(to_crect(place), &listener, tag_of(arc.parameter), travel.min, travel.max, picture);
        if (!arc.is_left)
            slider->setOrientation(COVArrowArcOrientation::pivot_left);
        keep(*slider, arc.tooltip);
        return slider;
    }

    COVCalloutSlider* make_slider(const panel_slider& s, const rect& pad, int index)
    {
        const rect place = place_slider(pad, size_of(*slider_background), index);
        const control_travel travel = slider_travel(place, slider_handle->getWidth());
        auto* const slider =
            new COVCalloutSlider(to_crect(place), &listener, tag_of(s.parameter), travel.min, travel.max, slider_handle,
                                 slider_background, CPoint(0, 0), least_value_on_the_left);
        // The slider writes its own value, so its range is that of the text: percent.
        slider->setMin(-slider_reach);
        slider->setMax(slider_reach);
        slider->setDefaultValue(0);
        slider->setValue(0);
        slider->setPrecision(0);
        keep(*slider, s.tooltip);
        add_label(place_slider_label(place), s.label);
        return slider;
    }

    void make_inspire_button()
    {
        // Tag -1, because it belongs to no parameter.
        made.inspire = new COVButton(to_crect(inspire_button_place), &listener, -1, CTextButton::kKickStyle, nullptr);
        made.inspire->setIcon(load_artwork("inspire_dice.png"));
        set_tooltip(*made.inspire, inspire_tooltip);
        container.addView(made.inspire);
    }

    void add_label(const rect& place, const char* text)
    {
        container.addView(make_text_label(to_crect(place), text, style::panel_label_font(), style::label_text));
    }

    void keep(CControl& control, const char* tooltip)
    {
        set_tooltip(control, tooltip);
        container.addView(&control);
        made.others.push_back(&control);
    }

    void set_tooltip(CView& view, const char* text) const
    {
        view.setTooltipText(iutils::translate(language, text).c_str());
    }

    CViewContainer& container;
    IControlListener& listener;
    const language_id language;
    const SharedPointer<CBitmap> slider_handle;
    const SharedPointer<CBitmap> slider_background;
    panel_controls made;
};

} // namespace

CRect to_crect(const rect& r) { return CRect(CPoint(r.x, r.y), CPoint(r.width, r.height)); }

panel_controls add_panel_controls(CViewContainer& container, IControlListener& listener, language_id language)
{
    return panel_maker(container, listener, language).make_all();
}

SharedPointer<CBitmap> draw_panel_background(CFrame* frame)
{
    const CNinePartTiledDescription margins(panel_margin, panel_margin, panel_margin, panel_margin);
    const auto tiles = makeOwned<CNinePartTiledBitmap>(CResourceDescription("panel_first.png"), margins);
    // Not through load_artwork: the tiles need a class of their own.
    if (const auto pixels = tiles->getPlatformBitmap())
        pixels->setScaleFactor(artwork_scale);
    auto panel = makeOwned<CCachedNinePartTiledBitmap>(tiles);
    panel->generate(frame, panel_width, panel_height);
    return panel;
}

COVArrowArcSlider* find_spread_arc(const CControl& control)
{
    // Without the attribute arc stays null.
    COVArrowArcSlider* arc = nullptr;
    return control.getAttribute(spread_arc_attribute, arc) ? arc : nullptr;
}

void spread_arc(COVArrowArcSlider& arc, float normalized) { arc.setSpreadAngle(full_spread_degrees * normalized); }

} // namespace ov1
