#include "editor/presets/preset_panel.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/text_field.h"
#include "editor/controls/style/view_area.h"
#include "editor/presets/preset_cell.h"
#include "platform/iutils.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/controls/cscrollbar.h"
#include "vstgui/lib/events.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// All lengths are in points.
constexpr CCoord margin = 12;
constexpr CCoord search_height = 26;
constexpr CCoord cell_gap = 8;
constexpr CCoord column_gap = 13;
constexpr int columns = 3;
constexpr CCoord scrollbar_width = 12;

/// Changes ASCII letters only.
std::string lower(std::string_view text)
{
    std::string low(text);
    for (char& c : low)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return low;
}

/// The frame at the size of a cell's picture, in screen pixels.
display_picture reduce_to_cell(const display_picture& frame, double screen_scale)
{
    if (frame.is_empty())
        return {};
    // The smaller zoom keeps the whole frame inside the cell, at its own aspect ratio.
    const double zoom = std::min(preset_picture_width * screen_scale / frame.width,
                                 preset_picture_height * screen_scale / frame.height);
    // At least one pixel, also for a very wide or very tall frame.
    const auto length = [&](std::uint32_t of)
    { return std::max(1u, static_cast<std::uint32_t>(std::lround(of * zoom))); };
    display_picture small{length(frame.width), length(frame.height), {}};
    small.pixels.resize(std::size_t{small.width} * small.height);
    draw_zoomed(frame, {0, 0, small.width, small.height, zoom}, reinterpret_cast<std::uint8_t*>(small.pixels.data()),
                std::size_t{small.width} * 4);
    return small;
}

} // namespace

bool matches_search(std::string_view name, std::string_view search)
{
    const std::string low = lower(name);
    std::istringstream words(lower(search));
    for (std::string word; words >> word;)
        if (low.find(word) == std::string::npos)
            return false;
    return true;
}

preset_panel::preset_panel(const CRect& size, preset_panel_content new_content, preset_panel_events events,
                           language_id language)
    : CViewContainer(size)
    , content(std::move(new_content))
    , events(std::move(events))
    , thumbnails(
          std::make_unique<preset_thumbnails>(content.files, reduce_to_cell(content.frame, content.screen_scale)))
{
    add_search_field(language);
    add_cells();
    lay_out_cells();
}

void preset_panel::add_search_field(language_id language)
{
    const CRect place(margin, margin, getViewSize().getWidth() - margin, margin + search_height);
    search_field = new CTextEdit(place, this, -1);
    search_field->setPlaceholderString(iutils::translate(language, "{en:Search}{de:Suchen}").c_str());
    apply_style(*search_field, {style::text_font(), style::bright_text, style::sunken, style::hairline});
    align_left(*search_field);
    addView(search_field);
}

void preset_panel::add_cells()
{
    const CRect place(0, 2 * margin + search_height, getViewSize().getWidth(), getViewSize().getHeight());
    scroller = new CScrollView(place, CRect(0, 0, place.getWidth(), place.getHeight()),
                               CScrollView::kVerticalScrollbar | CScrollView::kDontDrawFrame |
                                   CScrollView::kOverlayScrollbars | CScrollView::kAutoHideScrollbars,
                               scrollbar_width);
    scroller->setBackgroundColor(style::background);
    if (auto* const bar = scroller->getVerticalScrollbar())
    {
        bar->setFrameColor(style::background);
        bar->setBackgroundColor(style::background);
        bar->setScrollerColor(style::hairline);
    }
    grid = new CViewContainer(CRect(0, 0, place.getWidth(), place.getHeight()));
    grid->setTransparency(true);
    for (std::size_t i = 0; i < content.presets.size(); ++i)
    {
        // The index stays valid: a search hides cells and removes none.
        const auto on_hover = [this, i](bool over) { events.on_hover(over ? cells[i]->get_renderer() : nullptr); };
        auto* const cell = new preset_cell(content.presets[i].name, content.current == i, on_hover,
                                           [this, i] { events.on_choice(i); });
        cells.push_back(cell);
        grid->addView(cell);
    }
    scroller->addView(grid);
    addView(scroller);
}

void preset_panel::lay_out_cells()
{
    int shown = 0;
    for (preset_cell* cell : cells)
    {
        const bool matches = matches_search(cell->get_name(), searched);
        cell->setVisible(matches);
        if (!matches)
            continue;
        const CCoord left = margin + (shown % columns) * (preset_picture_width + column_gap);
        const CCoord top = (shown / columns) * (preset_cell_height + cell_gap);
        place_view(*cell, CRect(CPoint(left, top), CPoint(preset_picture_width, preset_cell_height)));
        ++shown;
    }
    const int rows = (shown + columns - 1) / columns;
    const CRect whole(0, 0, scroller->getViewSize().getWidth(),
                      std::max(scroller->getViewSize().getHeight(), rows * (preset_cell_height + cell_gap) + margin));
    // The old offset may lie beyond the end of a shorter list.
    scroller->resetScrollOffset();
    scroller->setContainerSize(whole);
    place_view(*grid, whole);
    invalid();
}

void preset_panel::idle()
{
    for (auto& [place, made] : thumbnails->take())
        cells[place]->set_thumbnail(std::move(made), content.screen_scale);
}

void preset_panel::search(const std::string& text)
{
    if (std::exchange(searched, text) == text)
        return;
    lay_out_cells();
    events.on_hover(nullptr); // the cells have moved away from the pointer
}

void preset_panel::valueChanged(CControl*) { search(search_field->getText().getString()); }

std::size_t preset_panel::count_shown() const
{
    return static_cast<std::size_t>(std::ranges::count_if(cells, [](const preset_cell* c) { return c->isVisible(); }));
}

std::size_t preset_panel::count_pictures() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(cells, [](const preset_cell* c) { return c->has_picture(); }));
}

void preset_panel::drawBackgroundRect(CDrawContext* context, const CRect&)
{
    fill_background(*context, *this, style::background);
}

bool preset_panel::attached(CView* parent)
{
    const bool done = CViewContainer::attached(parent);
    if (getFrame() && getFrame()->getPlatformFrame()) // without a window the field cannot take the keyboard focus
        search_field->takeFocus();
    return done;
}

void preset_panel::onMouseDownEvent(MouseDownEvent& event)
{
    CViewContainer::onMouseDownEvent(event);
    event.consumed = true; // controls beneath the panel get no events
}

} // namespace ov1
