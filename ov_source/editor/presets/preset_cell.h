// One preset of the preset panel: a picture with a name beneath it.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "editor/presets/preset_thumbnails.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/cview.h"

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// In points.
inline constexpr int preset_picture_width = 148;
inline constexpr int preset_picture_height = 84;
inline constexpr int preset_cell_height = preset_picture_height + 20;

/// Framed while the pointer is over it, and while its preset is the current one.
class preset_cell : public VSTGUI::CView
{
public:
    /// on_hover is called when the pointer enters or leaves the cell, and when the thumbnail arrives under it;
    /// on_choice at a click.
    preset_cell(std::string name, bool is_current, std::function<void(bool over)> on_hover,
                std::function<void()> on_choice);

    /// screen_scale: screen pixels per point, in which the thumbnail was made.
    void set_thumbnail(preset_thumbnail made, double screen_scale);
    /// False until the thumbnail arrives, and for a preset or frame without a picture.
    bool has_picture() const { return picture != nullptr; }
    /// The preset's grade. Null until it is ready, and for a preset that cannot be read.
    std::shared_ptr<const row_renderer> get_renderer() const { return renderer; }
    const std::string& get_name() const { return name; }

    void draw(VSTGUI::CDrawContext* context) override;
    /// The left button chooses at once, not at its release.
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseEnterEvent(VSTGUI::MouseEnterEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;

private:
    /// Calls on_hover only when the state changes.
    void set_hovered(bool over);

    const std::string name;
    const bool is_current;
    const style::font_pointer font = style::small_font();
    const std::function<void(bool over)> on_hover;
    const std::function<void()> on_choice;
    bool is_hovered = false;
    // Both null until the thumbnail arrives.
    VSTGUI::SharedPointer<VSTGUI::CBitmap> picture;
    std::shared_ptr<const row_renderer> renderer;
};

} // namespace ov1
