#include "editor/scopes/scope_view.h"

#include "editor/controls/style/bitmap_pixels.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/platform/iplatformbitmap.h"

#include <cmath>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// In points.
constexpr CCoord title_indent = 8;
constexpr CPoint label_size(32, 14);
constexpr CPoint label_reach(24, 11); ///< two labels that are closer than this touch

} // namespace

scope_view::scope_view(const CRect& size, const scope_pictures& pictures, scope_type type, std::string title)
    : CView(size)
    , pictures(pictures)
    , type(type)
    , title(std::move(title))
{
    setMouseEnabled(false);
}

void scope_view::mark_outdated()
{
    is_outdated = true;
    invalid();
}

void scope_view::copy_picture()
{
    // A copy, because update may draw the next picture on another thread meanwhile.
    const auto copy = [this](const scope_picture& picture)
    {
        const CPoint size(picture.width, picture.height);
        if (!drawn || drawn->getPlatformBitmap()->getSize() != size)
            drawn = picture.pixels.empty() ? nullptr : makeOwned<CBitmap>(size.x, size.y);
        if (drawn)
            set_pixels(*drawn, picture.pixels);
    };
    pictures.read_picture(type, copy);
}

void scope_view::draw(CDrawContext* context)
{
    CRect area = getViewSize();
    CRect heading = area;
    heading.bottom = area.top += title_height;
    heading.left += title_indent;
    context->setFont(title_font);
    context->setFontColor(style::normal_text);
    context->drawString(title.c_str(), heading, kLeftText);
    if (std::exchange(is_outdated, false))
        copy_picture();
    if (drawn && area.getWidth() > 0)
    {
        const auto pixels = drawn->getPlatformBitmap();
        // The picture may still have the size of another zoom: it is stretched until the next one arrives.
        pixels->setScaleFactor(pixels->getSize().x / area.getWidth());
        drawn->draw(context, area);
        draw_labels(context, area);
    }
    setDirty(false);
}

void scope_view::draw_labels(CDrawContext* context, const CRect& area) const
{
    const rect points{0, 0, static_cast<int>(area.getWidth()), static_cast<int>(area.getHeight())};
    context->setFont(label_font);
    context->setFontColor(style::scale_text);
    // Further to the left than any label reaches, so that the first one is drawn.
    CPoint last(-label_size.x, 0);
    for (const scope_label& label : scope_labels_of(type, points, 1))
    {
        const CPoint place(label.x, label.y);
        if (std::abs(place.x - last.x) < label_reach.x && std::abs(place.y - last.y) < label_reach.y)
            continue; // in a low view the labels would overlap
        last = place;
        CRect box(CPoint(), label_size);
        box.offset(area.left + label.x - label_size.x / 2, area.top + label.y - label_size.y / 2);
        context->drawString(label.text, box, kCenterText);
    }
}

} // namespace ov1
