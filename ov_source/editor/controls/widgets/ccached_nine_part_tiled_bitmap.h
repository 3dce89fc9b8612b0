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

    /// Renders the tiles to a size in points, at their own pixels to the point, unless that was done before. Nothing is
    /// kept where the tiles did not load.
    void generate(VSTGUI::CFrame* frame, double width, double height);

    /// Draws what was generated for the size of rect; magenta where generate was not called for it, so that it shows.
    void draw(VSTGUI::CDrawContext* context, const VSTGUI::CRect& rect, const VSTGUI::CPoint& offset = {},
              float alpha = 1.0F) override;

private:
    VSTGUI::SharedPointer<VSTGUI::CNinePartTiledBitmap> tiles;
    std::map<std::pair<double, double>, VSTGUI::SharedPointer<VSTGUI::CBitmap>> rendered;
};

} // namespace ov1
