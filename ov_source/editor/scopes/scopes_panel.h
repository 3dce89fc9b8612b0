// The scopes beside the preview: buttons that choose them, and the chosen ones stacked beneath.
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

/// One to four scopes, each as wide as the panel and all equally high; the last one that is shown stays. Hidden with
/// setVisible, it computes nothing. Belongs to the editor's thread, but for update.
class scopes_panel : public VSTGUI::CViewContainer, public VSTGUI::IControlListener
{
public:
    scopes_panel(const VSTGUI::CRect& size, language_id language);

    /// Counts and draws a frame, on all cores; it is shown at the next idle. Any thread.
    void update(const image& graded) { pictures.update(graded); }
    /// Shows what has arrived, and follows the frame's zoom.
    void idle();

    /// A choice without any scope is ignored.
    void set_choice(const scope_choice& wanted);
    const scope_choice& get_choice() const { return choice; }
    /// Counts one of so many rows, 1 or more: a step above 1 keeps a large frame's drag quick.
    void set_row_step(std::size_t step);
    /// Called after the user has chosen.
    void set_choice_listener(std::function<void()> listener) { choice_listener = std::move(listener); }
    /// Called when a scope comes to be shown that the last frame was not counted for: the owner updates once more.
    void set_frame_listener(std::function<void()> listener) { frame_listener = std::move(listener); }

    void valueChanged(VSTGUI::CControl* control) override;
    void setVisible(bool state) override;
    void setViewSize(const VSTGUI::CRect& rect, bool invalid = true) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;

private:
    COVRoundedGreyButton* add_button(const std::string& title, const std::string& tooltip);
    void show_choice();
    void lay_out();
    void lay_out_buttons();
    /// Asks for the pictures that belong to choice, size and zoom.
    void place_order();
    double zoom() const;

    scope_pictures pictures;
    scope_choice choice;
    std::size_t row_step = 1;
    double ordered_zoom = 0;
    std::array<COVRoundedGreyButton*, scope_type_count> buttons{};
    std::array<scope_view*, scope_type_count> views{};
    COVRoundedGreyButton* skin_button = nullptr;
    std::function<void()> choice_listener;
    std::function<void()> frame_listener;
};

} // namespace ov1
