#include "editor/controls/modal/help_overlay.h"

#include "editor/controls/modal/modal_layer.h"
#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/text_measure.h"
#include "editor/controls/style/tip_box.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

// In points.
constexpr VSTGUI::CCoord margin = 22.0;
constexpr VSTGUI::CCoord title_height = 28.0;
constexpr VSTGUI::CCoord line_height = 18.0;
constexpr VSTGUI::CCoord group_gap = 10.0;
constexpr VSTGUI::CCoord column_gap = 24.0;

class help_overlay : public modal_layer
{
public:
    help_overlay(const VSTGUI::CFrame& frame, const std::string& title,
                 const std::vector<std::vector<help_row>>& groups)
        : modal_layer(frame)
        , title(title)
        , groups(groups)
    {
        // Measured once, because the rows never change.
        const line_width width = measure_of(font);
        for (const auto& group : groups)
        {
            const double group_height = static_cast<double>(group.size()) * line_height;
            height += (height == 0.0 ? 0.0 : group_gap) + group_height;
            highest = std::max(highest, group_height);
            for (const help_row& row : group)
            {
                keys_width = std::max(keys_width, std::ceil(width(row.keys)));
                text_width = std::max(text_width, std::ceil(width(row.text)));
            }
        }
    }

    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update_rect) override
    {
        modal_layer::drawBackgroundRect(context, update_rect);
        // In a window that is too small everything is scaled down: a list that is cut off would hide keys.
        const auto to_scale = VSTGUI::CGraphicsTransform().scale(scale(), scale());
        const VSTGUI::CDrawContext::Transform scaled(*context, to_scale);
        VSTGUI::CRect row = box();
        draw_tip_box(*context, row);
        row.inset(margin, margin);
        row.setHeight(line_height);
        draw_text(*context, title, row, title_font, style::bright_text);
        row.offset(0.0, title_height);
        for (const auto& group : groups)
        {
            draw_group(*context, group, row);
            if (are_side_by_side())
                row.offset(group_width() + column_gap, 0.0);
            else
                row.offset(0.0, static_cast<double>(group.size()) * line_height + group_gap);
        }
    }

    void take_key(VSTGUI::KeyboardEvent& event) override
    {
        event.consumed = true;
        if (event.type == VSTGUI::EventType::KeyDown)
            end();
    }

    // On the release: after closing on the press, the view beneath would receive the release.
    void onMouseUpEvent(VSTGUI::MouseUpEvent& event) override
    {
        event.consumed = true;
        end();
    }

private:
    double group_width() const { return keys_width + column_gap + text_width; }

    /// Groups are side by side where they do not fit one below the other.
    bool are_side_by_side() const { return title_height + height + 2.0 * margin > getHeight(); }

    VSTGUI::CPoint box_size() const
    {
        const double columns = are_side_by_side() ? static_cast<double>(groups.size()) : 1.0;
        return {columns * (group_width() + column_gap) - column_gap + 2.0 * margin,
                title_height + (are_side_by_side() ? highest : height) + 2.0 * margin};
    }

    /// Below 1 where the window is too small for both arrangements.
    double scale() const
    {
        const VSTGUI::CPoint size = box_size();
        return std::min({1.0, getWidth() / size.x, getHeight() / size.y});
    }

    /// The box in the middle of the window, in points of that scale.
    VSTGUI::CRect box() const
    {
        const VSTGUI::CPoint size = box_size();
        return {VSTGUI::CPoint(std::floor((getWidth() / scale() - size.x) / 2.0),
                               std::floor((getHeight() / scale() - size.y) / 2.0)),
                size};
    }

    /// row is the place of the first line.
    void draw_group(VSTGUI::CDrawContext& context, const std::vector<help_row>& group, VSTGUI::CRect row) const
    {
        for (const help_row& line : group)
        {
            draw_text(context, line.keys, row, font, style::bright_text);
            VSTGUI::CRect beside = row;
            beside.left += keys_width + column_gap;
            draw_text(context, line.text, beside, font, style::dialog_text);
            row.offset(0.0, line_height);
        }
    }

    static void draw_text(VSTGUI::CDrawContext& context, const std::string& text, const VSTGUI::CRect& place,
                          VSTGUI::CFontRef font, const VSTGUI::CColor& colour)
    {
        context.setFont(font);
        context.setFontColor(colour);
        context.drawString(text.c_str(), place, VSTGUI::kLeftText);
    }

    const std::string title;
    const std::vector<std::vector<help_row>> groups;
    const style::font_pointer title_font = style::title_font();
    const style::font_pointer font = style::text_font();
    double height = 0.0;  // of all groups, one below the other
    double highest = 0.0; // of the groups
    double keys_width = 0.0;
    double text_width = 0.0;
};

} // namespace

bool show_help_overlay(VSTGUI::CFrame& frame, const std::string& title,
                       const std::vector<std::vector<help_row>>& groups)
{
    return modal_layer::show(frame, VSTGUI::makeOwned<help_overlay>(frame, title, groups));
}

} // namespace ov1
