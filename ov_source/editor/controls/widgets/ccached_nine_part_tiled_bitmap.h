// A nine-part tiled bitmap that is rendered once for each size.
#pragma once

#include "vstgui/vstgui.h"

#include <map>
#include <utility>

namespace ov1
{

class CCachedNinePartTiledBitmap : public VSTGUI::CBitmap
{
public:
    explicit CCachedNinePartTiledBitmap(VSTGUI::SharedPointer<VSTGUI::CNinePartTiledBitmap> tiles);

    /// Renders the tiles to a size in points, at their own scale factor, unless that size was rendered before. Does
    /// nothing where the tiles did not load. The frame is not used.
    void generate(VSTGUI::CFrame* frame, double width, double height);

    /// Draws what was generated for the size of rect. Where nothing was, it draws magenta, so that the mistake is seen.
    void draw(VSTGUI::CDrawContext* context, const VSTGUI::CRect& rect, const VSTGUI::CPoint& offset = {},
              float alpha = 1.0F) override;

private:
    VSTGUI::SharedPointer<VSTGUI::CNinePartTiledBitmap> tiles;
    std::map<std::pair<double, double>, VSTGUI::SharedPointer<VSTGUI::CBitmap>> rendered;
};

} // namespace ov1
