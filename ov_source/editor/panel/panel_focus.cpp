#include "editor/panel/panel_focus.h"

#include "editor/controls/style/editor_style.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/cgraphicspath.h"
#include "vstgui/lib/cscrollview.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord ring_width = 1.5;
constexpr CCoord ring_outset = 2;
constexpr CCoord corner_radius = 6;
constexpr CCoord slider_label_height = 13; ///< beneath a slider; above it is the room of the label before
constexpr double arc_half_angle = 56;      ///< degrees
constexpr CCoord room_around = 34;         ///< that is scrolled into view with a control, for its name and value

class ring_view : public CView
{
public:
    ring_view()
        : CView(CRect())
    {
        setTransparency(true);
        setMouseEnabled(false);
        setVisible(false);
    }

    /// wheel is the pad of the same panel.
    void surround(const CControl& control, const CRect& wheel)
    {
        invalid();
        around = dynamic_cast<const COVColorWheelXYPad*>(&control)  ? shape::wheel
                 : dynamic_cast<const COVArrowArcSlider*>(&control) ? shape::arc
                                                                    : shape::box;
        middle = wheel.getCenter();
        wheel_radius = wheel.getWidth() / 2;
        CRect place = control.getViewSize();
        is_left = place.getCenter().x < middle.x;
        if (around == shape::box)
        {
            place.top += slider_label_height;
            place.bottom += slider_label_height;
        }
        else
            place.extend(ring_outset, ring_outset);
        setViewSize(place);
    }

    void draw(CDrawContext* context) override
    {
        CRect line = getViewSize();
        line.inset(ring_width / 2, ring_width / 2);
        const auto path = owned(context->createGraphicsPath());
        if (!path)
            return;
        if (around == shape::wheel)
            path->addEllipse(line);
        else if (around == shape::arc)
            add_arc(*path, line.getWidth());
        else
            path->addRoundRect(line, corner_radius);
        context->setDrawMode(kAntiAliasing | kNonIntegralMode);
        context->setLineStyle(kLineSolid);
        context->setLineWidth(ring_width);
        context->setFrameColor(style::accent);
        context->drawGraphicsPath(path, CDrawContext::kPathStroked);
        setDirty(false);
    }

private:
    enum class shape
    {
        wheel,
        arc,
        box,
    };

    /// Around the arc's picture, from the wheel's rim outward.
    void add_arc(CGraphicsPath& path, CCoord reach) const
    {
        const double from = is_left ? 180 - arc_half_angle : -arc_half_angle, to = from + 2 * arc_half_angle;
        const auto circle = [this](CCoord radius)
        { return CRect(middle.x - radius, middle.y - radius, middle.x + radius, middle.y + radius); };
        path.addArc(circle(reach), from, to, true);
        path.addArc(circle(wheel_radius + 1), to, from, false);
        path.closeSubpath();
    }

    shape around = shape::box;
    bool is_left = false;
    CPoint middle;
    CCoord wheel_radius = 0;
};

} // namespace

panel_focus::panel_focus(CFrame& frame, CScrollView& column, CViewContainer& panel, std::vector<panel_stop> stops)
    : frame(frame)
    , column(column)
    , stops(std::move(stops))
    , ring(new ring_view)
{
    panel.addView(ring);
    // Else the toolkit gives the keyboard to some control as soon as the window becomes active.
    frame.setFocusView(&panel);
}

const panel_stop* panel_focus::current() const
{
    const auto found = std::ranges::find(stops, frame.getFocusView(), &panel_stop::control);
    return found == stops.end() ? nullptr : &*found;
}

void panel_focus::step(bool back)
{
    const std::size_t count = stops.size();
    const auto* const now = current();
    const std::size_t at = now ? static_cast<std::size_t>(now - stops.data()) : (back ? 0 : count - 1);
    give_to(stops[(at + (back ? count - 1 : 1)) % count]);
    show_ring();
}

void panel_focus::give_to(const panel_stop& stop)
{
    frame.setFocusView(stop.control);
    // A desktop without a window manager does not say that the window is active, but the keys do.
    if (frame.getFocusView() != stop.control)
        frame.onActivate(true);
}

void panel_focus::show_ring()
{
    const auto* const stop = current();
    if (!stop)
        return hide_ring();
    const auto of_panel = [&](const panel_stop& s) { return s.slot == stop->slot && s.is_pad(); };
    const CRect wheel = std::ranges::find_if(stops, of_panel)->control->getViewSize();
    static_cast<ring_view*>(ring)->surround(*stop->control, wheel);
    ring->setVisible(true);
    CRect seen = stop->control->getViewSize();
    seen.extend(0, room_around);
    column.makeRectVisible(seen);
}

void panel_focus::hide_ring()
{
    if (ring->isVisible())
        ring->setVisible(false);
}

} // namespace ov1
