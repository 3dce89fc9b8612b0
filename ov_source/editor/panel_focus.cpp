#include "editor/panel_focus.h"

#include "editor/editor_style.h"

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
constexpr CCoord room_around = 34; ///< that is scrolled into view with a control, for its name and value

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

    void surround(const panel_stop& stop)
    {
        is_round = stop.is_pad();
        CRect place = stop.control->getViewSize();
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
        if (is_round)
            path->addEllipse(line);
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
    bool is_round = false;
};

} // namespace

panel_focus::panel_focus(CFrame& frame, CScrollView& column, CViewContainer& panel, std::vector<panel_stop> stops)
    : frame(frame)
    , column(column)
    , panel(panel)
    , stops(std::move(stops))
    , ring(new ring_view)
{
    panel.addView(ring);
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

void panel_focus::give_to(const panel_stop& stop) { frame.setFocusView(stop.control); }

void panel_focus::show_ring()
{
    const auto* const stop = current();
    if (!stop)
        return hide_ring();
    static_cast<ring_view*>(ring)->surround(*stop);
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
