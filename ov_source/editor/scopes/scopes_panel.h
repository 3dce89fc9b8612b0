// The scopes beside the preview: buttons that choose them, and below the chosen ones, one above the other.
#pragma once

#include "editor/controls/widgets/cov_rounded_grey_button.h"
#include "editor/scopes/scope_pictures.h"
#include "editor/scopes/scope_view.h"
#include "shared/language_id.h"

#include "vstgui/lib/cviewcontainer.h"

#include <array>
#include <functional>

namespace ov1
{

class image;

/// One to four scopes, as wide as the panel and equally high; the last one cannot be hidden. While the panel is hidden
/// with setVisible, it computes nothing. For the editor's thread, except for update.
class scopes_panel : public VSTGUI::CViewContainer, public VSTGUI::IControlListener
{
public:
    scopes_panel(const VSTGUI::CRect& size, language_id language);

    /// Counts and draws a frame, on all cores, to be shown at the next idle. Any thread.
    void update(const image& graded) { pictures.update(graded); }
    /// Shows new pictures, and draws them again when the frame's zoom has changed.
    void idle();

    /// A choice without a scope is ignored.
    void set_choice(const scope_choice& wanted);
    const scope_choice& get_choice() const { return choice; }
    /// Counts every step-th row, step being 1 or more: a larger step keeps drags on a large frame fast.
    void set_row_step(std::size_t step);
    /// Called after the user has chosen.
    void set_choice_listener(std::function<void()> listener) { choice_listener = std::move(listener); }
    /// Called when a scope is shown for which the last frame was not counted: the owner should call update again.
    void set_frame_listener(std::function<void()> listener) { frame_listener = std::move(listener); }

    void valueChanged(VSTGUI::CControl* control) override;
    void setVisible(bool state) override;
    void setViewSize(const VSTGUI::CRect& rect, bool invalid = true) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;

private:
    /// Texts are UTF-8 in the user's language.
    COVRoundedGreyButton* add_button(const std::string& title, const std::string& tooltip);
    /// Updates buttons and views, and lays them out.
    void show_choice();
    void lay_out();
    void lay_out_buttons();
    /// Orders the pictures for the present choice, size and zoom.
    void place_order();
    double zoom() const;

    scope_pictures pictures;
    scope_choice choice;
    std::size_t row_step = 1;
    double ordered_zoom = 0; ///< the frame's zoom at the last order
    // By scope_type; owned by this container.
    std::array<COVRoundedGreyButton*, scope_type_count> buttons{};
    std::array<scope_view*, scope_type_count> views{};
    COVRoundedGreyButton* skin_button = nullptr;
    std::function<void()> choice_listener;
    std::function<void()> frame_listener;
};

} // namespace ov1
