// The presets as a panel of small pictures: the current frame through each of them, with a search field.
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

/// Whether a preset of this name is shown for a search: every word of it occurs in the name, capitals aside.
bool matches_search(std::string_view name, std::string_view search);

/// What the panel shows.
struct preset_panel_content
{
    std::vector<preset_choice> presets;
    std::vector<std::string> files;     ///< a file for each preset
    std::optional<std::size_t> current; ///< the preset that is loaded
    display_picture frame;              ///< before the grade; empty for names alone
    double screen_scale = 1;            ///< screen pixels for each point
};

/// What the panel tells. Places are those in the content.
struct preset_panel_events
{
    /// The pointer rests on a preset whose grade is ready, or, with null, on none.
    std::function<void(std::shared_ptr<const row_renderer>)> hovered;
    std::function<void(std::size_t preset)> chosen;
};

class preset_cell;

/// Its pictures are made in the background and appear at idle.
class preset_panel : public VSTGUI::CViewContainer, public VSTGUI::IControlListener
{
public:
    preset_panel(const VSTGUI::CRect& size, preset_panel_content content, preset_panel_events events,
                 language_id language);

    void idle();

    void valueChanged(VSTGUI::CControl* control) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;
    bool attached(VSTGUI::CView* parent) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

    /// For tests: how many cells are shown, and how many have their picture.
    std::size_t countShown() const;
    std::size_t countPictures() const;
    void search(const std::string& text);

private:
    void add_search_field(language_id language);
    void add_cells();
    void lay_out_cells();

    const preset_panel_content content;
    const preset_panel_events events;
    std::unique_ptr<preset_thumbnails> thumbnails;
    VSTGUI::CTextEdit* search_field = nullptr;
    VSTGUI::CScrollView* scroller = nullptr;
    VSTGUI::CViewContainer* grid = nullptr;
    std::vector<preset_cell*> cells; ///< owned by the grid
    std::string searched;
};

} // namespace ov1
