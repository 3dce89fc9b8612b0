// The bar below the preview: zoom, comparison, the colour under the mouse, and the frame of a clip.
#pragma once

#include "editor/controls/widgets/cov_button.h"
#include "editor/preview/preview_view.h"
#include "shared/language_id.h"

#include "vstgui/lib/controls/cslider.h"
#include "vstgui/lib/controls/ctextlabel.h"
#include "vstgui/lib/cviewcontainer.h"

#include <functional>
#include <optional>

namespace ov1
{

/// Controls a preview and its scroll view, which outlive it.
class preview_bar : public VSTGUI::CViewContainer, public VSTGUI::IControlListener
{
public:
    preview_bar(const VSTGUI::CRect& size, preview_view& preview, COVScrollView& scroller, language_id language);

    /// Adds a button for the scopes; shown is its initial state, and toggled is called with each new one.
    void offer_scopes(bool shown, std::function<void(bool shown)> toggled, language_id language);
    /// Writes the colour under the mouse, while the eyedropper is on.
    void show_colour(const std::optional<picked_colour>& colour);
    /// Adds a slider for the frames 0..count - 1, whose every new frame is passed to chosen. Does nothing for a count
    /// of 1 or less, and on a second call.
    void offer_frames(int count, std::function<void(int frame)> chosen);

    /// Switches to a comparison, or, where it is active, back to the graded picture.
    void toggle_comparison(comparison mode);

    void valueChanged(VSTGUI::CControl* control) override;
    void setViewSize(const VSTGUI::CRect& rect, bool invalid = true) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;

private:
    /// Both add to the right of what is there; tooltip is a localised literal.
    COVButton* add_button(const char* artwork, VSTGUI::CTextButton::Style style, const char* tooltip,
                          language_id language);
    VSTGUI::CTextLabel* add_label(VSTGUI::CCoord width, VSTGUI::CHoriTxtAlign alignment);
    void show_zoom();
    void show_comparison();
    /// Places the slider and its label at the right end; nothing without frames.
    void lay_out_frames();

    preview_view& preview;
    COVScrollView& scroller;
    VSTGUI::CCoord next_left; ///< of the next button or label, in points
    // Owned by this container; null until they are added.
    COVButton* fit = nullptr;
    COVButton* actual_size = nullptr;
    COVButton* before = nullptr;
    COVButton* split = nullptr;
    COVButton* eyedropper = nullptr;
    COVButton* scopes = nullptr;
    VSTGUI::CTextLabel* zoom_label = nullptr;
    VSTGUI::CTextLabel* colour_label = nullptr;
    VSTGUI::CSliderBase* frames = nullptr; ///< a new one for each width of the bar
    VSTGUI::CTextLabel* frame_label = nullptr;
    int frame_count = 1;
    int shown_frame = 0; ///< counted from 0; the label counts from 1
    std::function<void(int frame)> frame_chosen;
    std::function<void(bool shown)> scopes_toggled;
};

} // namespace ov1
