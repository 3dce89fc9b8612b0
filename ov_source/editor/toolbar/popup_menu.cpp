#include "editor/toolbar/popup_menu.h"

#include "editor/controls/style/editor_style.h"

#include "vstgui/lib/cframe.h"
#include "vstgui/lib/controls/coptionmenu.h"
#include "vstgui/lib/platform/common/genericoptionmenu.h"
#include "vstgui/lib/platform/iplatformframe.h"

#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord gap_beneath_view = 2;

GenericOptionMenuTheme make_theme()
{
    GenericOptionMenuTheme theme;
    theme.font = style::text_font();
    theme.backgroundColor = style::menu;
    theme.selectedBackgroundColor = style::accent;
    theme.textColor = style::bright_text;
    theme.selectedTextColor = style::sunken;
    theme.disabledTextColor = style::label_text;
    theme.titleTextColor = style::label_text;
    theme.separatorColor = style::hairline;
    theme.inset = CPoint(6, 4);
    // The menu appears at once.
    theme.menuAnimationTime = 0;
    return theme;
}

} // namespace

void show_popup(CFrame& frame, const CView& view, const std::vector<popup_item>& items,
                std::function<void(std::size_t item)> on_choice)
{
    if (items.empty() || !frame.getPlatformFrame())
        return;
    GenericOptionMenuTheme theme = make_theme();
    // Drawn within the frame by the toolkit, with the editor's colours.
    frame.getPlatformFrame()->setupGenericOptionMenu(true, &theme);
    const auto menu = makeOwned<COptionMenu>();
    std::vector<std::size_t> item_of_row; // separators count as rows
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        if (items[i].begins_group)
        {
            // The separator cannot be chosen. Its entry only keeps the rows and the list in step.
            menu->addSeparator();
            item_of_row.push_back(i);
        }
        auto* const row = menu->addEntry(items[i].text.c_str());
        row->setChecked(items[i].is_checked);
        item_of_row.push_back(i);
    }
    CPoint where(view.getViewSize().left, view.getViewSize().bottom + gap_beneath_view);
    view.translateToGlobal(where, true);
    menu->popup(&frame, where,
                [item_of_row, on_choice = std::move(on_choice)](COptionMenu* popped)
                {
                    // Negative if the user has chosen none.
                    const std::int32_t row = popped->getLastResult();
                    if (row >= 0 && static_cast<std::size_t>(row) < item_of_row.size())
                        on_choice(item_of_row[static_cast<std::size_t>(row)]);
                });
}

} // namespace ov1
