#include "editor/panel/panel_focus.h"

#include "editor/controls/style/editor_style.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/cgraphicspath.h"
#include "vstgui/lib/cscrollview.h"

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord ring_width = 1.5;
constexpr CCoord ring_outset = 2;
constexpr CCoord corner_radius = 6;
constexpr CCoord slider_label_height = 13; // the ring includes the label beneath, and not the one above
constexpr double arc_half_angle = 56;      // degrees
constexpr CCoord scroll_margin = 34;       // scrolled into view with a control, for its name and value

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
    void surround(const panel_stop& stop, const CRect& wheel)
    {
        // Redraws the area that the ring leaves.
        invalid();
        outline = stop.pad ? shape::wheel : stop.arc ? shape::arc : shape::box;
        middle = wheel.getCenter();
        wheel_radius = wheel.getWidth() / 2;
        CRect place = stop.control->getViewSize();
        is_left = place.getCenter().x < middle.x;
        if (outline == shape::box)
            place.offset(0, slider_label_height);
        else
            place.extend(ring_outset, ring_outset);
        setViewSize(place);
    }

    void draw(CDrawContext* context) override
    {
        CRect line = getViewSize();
        // The line is centred on the path; inset, it stays within the view.
        line.inset(ring_width / 2, ring_width / 2);
        const auto path = owned(context->createGraphicsPath());
        if (!path)
            return;
        if (outline == shape::wheel)
            path->addEllipse(line);
        else if (outline == shape::arc)
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

    /// Around the arc's picture: from the wheel's rim, one point off, to the given distance from the wheel's middle.
    void add_arc(CGraphicsPath& path, CCoord outer_radius) const
    {
        const double from = is_left ? 180 - arc_half_angle : -arc_half_angle, to = from + 2 * arc_half_angle;
        const auto circle = [this](CCoord radius)
        { return CRect(middle.x - radius, middle.y - radius, middle.x + radius, middle.y + radius); };
        // Along the outer edge, and back along the inner one. Angles begin at the right: 180 is to the left.
        path.addArc(circle(outer_radius), from, to, true);
        path.addArc(circle(wheel_radius + 1), to, from, false);
        path.closeSubpath();
    }

    shape outline = shape::box;
    bool is_left = false;
    CPoint middle;
    CCoord wheel_radius = 0;
};

} // namespace

panel_focus::panel_focus(CFrame& frame, CScrollView& column, CViewContainer& panel, std::span<const panel_stop> stops)
    : frame(frame)
    , column(column)
    , stops(stops)
    , ring(new ring_view)
{
    panel.addView(ring);
    // Otherwise the toolkit gives the focus to some control as soon as the window becomes active.
    frame.setFocusView(&panel);
}

const panel_stop* panel_focus::current() const { return find_stop(stops, frame.getFocusView()); }

void panel_focus::step(bool back)
{
    const std::size_t count = stops.size();
    if (count == 0)
        return;
    const auto* const now = current();
    // Without a focus the first step forward leads to the first control, the first step back to the last.
    const std::size_t at = now ? static_cast<std::size_t>(now - stops.data()) : (back ? 0 : count - 1);
    give_to(stops[(at + (back ? count - 1 : 1)) % count]);
    show_ring();
}

void panel_focus::give_to(const panel_stop& stop)
{
    frame.setFocusView(stop.control);
    // Without a window manager nothing reports that the window is active; but it received a key, so it is.
    if (frame.getFocusView() != stop.control)
        frame.onActivate(true);
}

void panel_focus::show_ring()
{
    const auto* const stop = current();
    if (!stop)
        return hide_ring();
    static_cast<ring_view*>(ring)->surround(*stop, pad_of(stops, stop->slot).getViewSize());
    ring->setVisible(true);
    CRect visible = stop->control->getViewSize();
    visible.extend(0, scroll_margin);
    column.makeRectVisible(visible);
}

void panel_focus::hide_ring()
{
    if (ring->isVisible())
        ring->setVisible(false);
}

} // namespace ov1
