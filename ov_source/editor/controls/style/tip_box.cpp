#include "editor/controls/style/tip_box.h"

#include "editor/controls/style/round_box.h"
#include "editor/controls/style/text_measure.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

// In points.
constexpr VSTGUI::CCoord corner_radius = 4.0;
constexpr VSTGUI::CCoord line_height = 16.0;

} // namespace

void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place)
{
    draw_round_box(context, place, corner_radius, style::tip, style::tip_frame);
}

tip_view::tip_view(std::vector<std::string> all_lines, const style::font_pointer& font, const VSTGUI::CPoint& padding,
                   VSTGUI::CHoriTxtAlign alignment)
    : CView(VSTGUI::CRect())
    , lines(std::move(all_lines))
    , padding(padding)
    , alignment(alignment)
    , font(font)
{
    const line_width width = measure_of(font);
    double widest = 0.0;
    for (const std::string& line : lines)
        widest = std::max(widest, width(line));
    // Every line has the same height, whatever its characters.
    const double height = static_cast<double>(lines.size()) * line_height;
    setViewSize({{}, VSTGUI::CPoint(std::ceil(widest) + 2.0 * padding.x, height + 2.0 * padding.y)});
    setTransparency(true);
    // Under the mouse the box would take the events of the view that it explains.
    setMouseEnabled(false);
}

void tip_view::draw(VSTGUI::CDrawContext* context)
{
    draw_tip_box(*context, getViewSize());
    VSTGUI::CRect row = getViewSize();
    row.inset(padding.x, padding.y);
    row.setHeight(line_height);
    context->setFont(font);
    context->setFontColor(style::tip_text);
    for (const std::string& line : lines)
    {
        context->drawString(line.c_str(), row, alignment);
        row.offset(0.0, line_height);
    }
    setDirty(false);
}

} // namespace ov1
