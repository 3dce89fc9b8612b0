// The preview: the frame before or after the grade, or both with a split line, at any zoom.
#pragma once

#include "editor/preview/cov_scroll_view.h"
#include "editor/preview/display_picture.h"
#include "framework/row_renderer.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/cview.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace ov1
{

class image;

enum class comparison
{
    after,  ///< the graded picture
    before, ///< the picture as it was received
    split,  ///< left of a line that can be dragged before, right of it after
};

/// The pixel under the mouse.
struct picked_colour
{
    int x = 0;                ///< picture pixels from the left
    int y = 0;                ///< picture pixels from the top
    std::uint32_t before = 0; ///< as in display_picture
    std::uint32_t after = 0;
};

/// The content of a COVScrollView. A drag pans the picture or moves the split line. For the editor's thread, except for
/// the two updates.
class preview_view : public VSTGUI::CView
{
public:
    explicit preview_view(const VSTGUI::CRect& size);

    /// The scroll view around this one; not owned, and it outlives this view.
    void set_scroller(COVScrollView* view) { scroller = view; }

    /// Copies the frame after the grade, to be shown at the next idle. Any thread.
    void update(const image& frame);
    /// The same for the frame before the grade.
    void update_source(const image& frame);
    /// Shows the frames that were copied since the last call.
    void idle();

    /// The frame before the grade; empty until the first one is shown.
    const display_picture& get_before() const { return before.picture; }
    /// Shows the frame with another grade instead of its own; null ends the trial.
    void show_trial(std::shared_ptr<const row_renderer> renderer);

    void set_comparison(comparison mode);
    comparison get_comparison() const { return mode; }
    /// Position of the split line: 0 at the picture's left edge, 1 at its right edge; limited to that.
    void set_split(double place);
    double get_split() const { return split; }
    /// Called with the pixel under the mouse, and with nothing when the mouse leaves the picture.
    void set_colour_listener(std::function<void(const std::optional<picked_colour>&)> listener);
    std::optional<picked_colour> pick_colour(const VSTGUI::CPoint& where) const;

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseMoveEvent(VSTGUI::MouseMoveEvent& event) override;
    void onMouseUpEvent(VSTGUI::MouseUpEvent& event) override;
    void onMouseCancelEvent(VSTGUI::MouseCancelEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;

private:
    /// One of the pictures, and its visible part as it was drawn last.
    struct layer
    {
        display_picture arrived; ///< guarded by arrival_mutex, with has_arrived
        bool has_arrived = false;
        display_picture picture;
        VSTGUI::SharedPointer<VSTGUI::CBitmap> drawn; ///< the visible part, in screen pixels
        VSTGUI::CRect drawn_area;                     ///< in points, on whole screen pixels
        double drawn_zoom = 0;                        ///< 0 for an outdated bitmap
    };
    /// What the mouse drags.
    enum class dragging
    {
        nothing,
        picture,
        line,
    };

    /// Whether a frame had arrived, which is now the layer's picture.
    bool take_arrived(layer& taken);
    /// In points of the parent, scrolled parts included; so is line_x.
    VSTGUI::CRect picture_area() const;
    double line_x() const;
    bool is_on_line(const VSTGUI::CPoint& where) const;
    void draw_split(VSTGUI::CDrawContext* context, layer& graded, const VSTGUI::CRect& area);
    void draw_layer(VSTGUI::CDrawContext* context, layer& shown, const VSTGUI::CRect& area);
    void render_layer(layer& shown, const VSTGUI::CRect& area, double scale);
    void draw_line(VSTGUI::CDrawContext* context);
    void drag_to(const VSTGUI::CPoint& where);
    void report_colour(const VSTGUI::CPoint& where);

    COVScrollView* scroller = nullptr;
    std::mutex arrival_mutex;
    layer before;
    layer after;
    layer trial; ///< its picture is empty while there is none
    comparison mode = comparison::after;
    double split = 0.5; ///< 0..1 of the picture's width
    dragging drag = dragging::nothing;
    VSTGUI::CPoint last_position;
    std::function<void(const std::optional<picked_colour>&)> colour_listener;
};

} // namespace ov1
