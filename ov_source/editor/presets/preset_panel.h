// The preset panel: the current frame through every preset, as small pictures, with a search field.
#pragma once

#include "editor/presets/preset_thumbnails.h"
#include "presets/preset_session.h"
#include "shared/language_id.h"

#include "vstgui/lib/controls/ctextedit.h"
#include "vstgui/lib/controls/icontrollistener.h"
#include "vstgui/lib/cscrollview.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// Whether the name contains every word of the search. Upper and lower case count as the same for ASCII letters.
bool matches_search(std::string_view name, std::string_view search);

/// What the panel shows.
struct preset_panel_content
{
    std::vector<preset_choice> presets;
    std::vector<std::string> files;     ///< the path of each preset
    std::optional<std::size_t> current; ///< the current preset
    display_picture frame;              ///< ungraded; empty to show names only
    double screen_scale = 1;            ///< screen pixels per point
};

/// Called by the panel; presets are given by their index in the content.
struct preset_panel_events
{
    /// The pointer is over a preset whose grade is ready; null: over none.
    std::function<void(std::shared_ptr<const row_renderer>)> on_hover;
    /// A click on a preset. The panel must not be removed before the call returns.
    std::function<void(std::size_t preset)> on_choice;
};

class preset_cell;

/// The pictures are made in the background and appear at idle.
class preset_panel : public VSTGUI::CViewContainer, public VSTGUI::IControlListener
{
public:
    preset_panel(const VSTGUI::CRect& size, preset_panel_content content, preset_panel_events events,
                 language_id language);

    /// To be called several times a second: gives the finished pictures to their cells.
    void idle();

    void valueChanged(VSTGUI::CControl* control) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;
    /// Gives the search field the keyboard focus.
    bool attached(VSTGUI::CView* parent) override;
    /// Consumes every press, so that none reaches the controls beneath.
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

    /// The number of cells that match the search, and of those that have their picture.
    std::size_t count_shown() const;
    std::size_t count_pictures() const;
    /// Shows only the presets that match, from the top; all for an empty text.
    void search(const std::string& text);

private:
    void add_search_field(language_id language);
    void add_cells();
    /// Places the cells that match in rows of three and hides the others.
    void lay_out_cells();

    const preset_panel_content content;
    const preset_panel_events events;
    std::unique_ptr<preset_thumbnails> thumbnails;
    VSTGUI::CTextEdit* search_field = nullptr;
    VSTGUI::CScrollView* scroller = nullptr;
    VSTGUI::CViewContainer* grid = nullptr;
    // One for each preset, in the order of the content.
    std::vector<preset_cell*> cells; ///< owned by the grid
    std::string searched;
};

} // namespace ov1
