#include "ov_source/editor/editor_stage.h"

#include "vstgui/lib/platform/platformfactory.h"

#include <cstdlib>
#include <fstream>

namespace ov1
{
namespace
{

using picture = VSTGUI::SharedPointer<VSTGUI::IPlatformBitmap>;

/// A part of the editor's frame as the screen would show it.
picture draw_part(VSTGUI::CFrame& frame, const VSTGUI::CRect& part, double scale)
{
    const auto offscreen = VSTGUI::COffscreenContext::create(part.getSize(), scale);
    offscreen->beginDraw();
    {
        const auto to_pixels = VSTGUI::CGraphicsTransform().translate(-part.left, -part.top).scale(scale, scale);
        const VSTGUI::CDrawContext::Transform transform(*offscreen, to_pixels);
        frame.drawRect(offscreen, part);
    }
    offscreen->endDraw();
    return offscreen->getBitmap()->getPlatformBitmap();
}

struct difference
{
    double mean = 0; ///< of all channels, in 255ths
    int most = 0;
};

difference difference_of(const picture& a, const picture& b)
{
    const auto one = a->lockPixels(true), other = b->lockPixels(true);
    const auto width = static_cast<std::size_t>(a->getSize().x), height = static_cast<std::size_t>(a->getSize().y);
    difference found;
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t i = 0; i < width * 4; ++i)
        {
            const int apart = std::abs(one->getAddress()[y * one->getBytesPerRow() + i] -
                                       other->getAddress()[y * other->getBytesPerRow() + i]);
            found.mean += apart / double(width * height * 4);
            found.most = std::max(found.most, apart);
        }
    return found;
}

/// With VERIDIAL_WRITE_GOLDEN set to a folder, what is drawn is written there instead.
void compare_with_golden(const picture& drawn, const std::string& name)
{
    SCOPED_TRACE(name);
    const auto& factory = VSTGUI::getPlatformFactory();
    if (const char* folder = std::getenv("VERIDIAL_WRITE_GOLDEN"))
    {
        const auto bytes = factory.createBitmapMemoryPNGRepresentation(drawn);
        std::ofstream(std::string(folder) + "/" + name, std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        return;
    }
    const auto golden = factory.createBitmapFromPath((std::string(GOLDEN_DIR "/") + name).c_str());
    ASSERT_TRUE(golden);
    ASSERT_EQ(golden->getSize(), drawn->getSize());
    const difference found = difference_of(drawn, golden);
    // Edges and letters differ by parts of a pixel between versions of the font and vector libraries; an arrow, a
    // handle or a digit at another place differs by more.
    EXPECT_LT(found.mean, 0.25);
    EXPECT_LT(found.most, 64);
}

TEST(golden, the_panel_and_the_toolbar_look_as_they_did)
{
    editor_stage stage;
    const std::pair<const char*, float> values[] = {
        {"Shadows Hue", 210},       {"Shadows Chroma", 60},     {"Shadows Range", 4},
        {"Shadows Lightness", -10}, {"Shadows Smoothness", 60}, {"Shadows Saturation", -25},
    };
    for (const auto& [name, value] : values)
        stage.set(name, value);
    stage.toolbar().idle();
    const VSTGUI::CPoint middle = stage.at(stage.pad(panel_slot::shadows));
    const VSTGUI::CRect wheel(middle.x - 75, middle.y - 80, middle.x + 75, middle.y + 165);
    VSTGUI::CRect buttons = stage.toolbar().getViewSize();
    buttons.inset(0, 14);
    for (const auto& [scale, ending] : {std::pair(1, std::string("_1x.png")), {2, std::string("_2x.png")}})
    {
        compare_with_golden(draw_part(*stage.frame, wheel, scale), "shadows" + ending);
        compare_with_golden(draw_part(*stage.frame, buttons, scale), "toolbar" + ending);
    }
}

} // namespace
} // namespace ov1
