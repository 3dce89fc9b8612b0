// One preset of the preset panel: its picture and its name.
#pragma once

#include "editor/presets/preset_thumbnails.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/cview.h"

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Points.
inline constexpr int preset_picture_width = 148;
inline constexpr int preset_picture_height = 84;
inline constexpr int preset_cell_height = preset_picture_height + 20;

class preset_cell : public VSTGUI::CView
{
public:
    /// hovered is called with whether the pointer is over the cell.
    preset_cell(std::string name, bool is_current, std::function<void(bool over)> hovered,
                std::function<void()> chosen);

    void setThumbnail(preset_thumbnail made, double screen_scale);
    bool hasPicture() const { return picture != nullptr; }
    /// Null until it is ready, and for a preset that cannot be read.
    std::shared_ptr<const row_renderer> getRenderer() const { return renderer; }
    const std::string& getName() const { return name; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseEnterEvent(VSTGUI::MouseEnterEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;

private:
    void set_hovered(bool over);

    const std::string name;
    const bool is_current;
    const std::function<void(bool over)> hover_listener;
    const std::function<void()> choice_listener;
    bool is_hovered = false;
    VSTGUI::SharedPointer<VSTGUI::CBitmap> picture;
    std::shared_ptr<const row_renderer> renderer;
};

} // namespace ov1
