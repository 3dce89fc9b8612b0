#include "editor/toolbar/grade_clipboard.h"

#include "platform/atomic_file.h"
#include "platform/iutils.h"
#include "presets/preset_reader.h"
#include "presets/preset_text.h"

namespace ov1
{

namespace
{

std::string clipboard_file()
{
    const std::string folder = iutils::get_instance().get_common_directory();
    return folder.empty() ? std::string() : folder + "/copied_grade.json";
}

} // namespace

bool copy_grade(icomponent_v1& component, std::string& reason)
{
    const std::string file = clipboard_file();
    if (file.empty())
    {
        reason = "there is no home folder";
        return false;
    }
    const std::string text = write_preset_text(component);
    const auto written = replace_file(file, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    if (!written)
        reason = written.error().reason;
    return static_cast<bool>(written);
}

bool paste_grade(icomponent_v1& component, std::string& reason)
{
    preset_content content;
    if (!read_preset_file(clipboard_file(), content, reason) || !is_preset_accepted(content, component, reason))
        return false;
    component.save_state(true);
    const bool applied = apply_preset(content, component, reason);
    component.save_state(false);
    return applied;
}

} // namespace ov1
