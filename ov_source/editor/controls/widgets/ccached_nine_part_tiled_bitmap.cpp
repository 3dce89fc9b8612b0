#include "editor/controls/widgets/ccached_nine_part_tiled_bitmap.h"

namespace ov1
{

CCachedNinePartTiledBitmap::CCachedNinePartTiledBitmap(VSTGUI::SharedPointer<VSTGUI::CNinePartTiledBitmap> tiles)
    : tiles(std::move(tiles))
{
}

void CCachedNinePartTiledBitmap::generate(VSTGUI::CFrame*, double width, double height)
{
    if (!tiles || !tiles->isLoaded() || rendered.contains({width, height}))
        return;
    // In the resolution of the tiles, so that the rendered bitmap is as sharp as they are.
    const double scale = tiles->getPlatformBitmap()->getScaleFactor();
    const auto offscreen = VSTGUI::COffscreenContext::create({width, height}, scale);
    if (!offscreen)
        return;
    offscreen->beginDraw();
    {
        // An offscreen context draws in pixels, the tiles in points.
        const VSTGUI::CDrawContext::Transform to_pixels(*offscreen, VSTGUI::CGraphicsTransform().scale(scale, scale));
        tiles->draw(offscreen, {0.0, 0.0, width, height}, {}, 1.0F);
    }
    offscreen->endDraw();
    rendered[{width, height}] = VSTGUI::shared(offscreen->getBitmap());
}

void CCachedNinePartTiledBitmap::draw(VSTGUI::CDrawContext* context, const VSTGUI::CRect& rect,
                                      const VSTGUI::CPoint& offset, float alpha)
{
    const auto found = rendered.find({rect.getWidth(), rect.getHeight()});
    if (found != rendered.end())
        return found->second->draw(context, rect, offset, alpha);
    context->setDrawMode(VSTGUI::kAliasing);
    context->setFillColor(VSTGUI::kMagentaCColor);
    context->drawRect(rect, VSTGUI::kDrawFilled);
}

} // namespace ov1
