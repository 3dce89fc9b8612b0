#include "presets/grade_clipboard.h"

#include "platform/atomic_file.h"
#include "platform/iutils.h"
#include "presets/preset_reader.h"
#include "presets/preset_text.h"

#include <utility>

namespace ov1
{

namespace
{

/// In the common directory: every editor of the user finds it there, in any process.
result<std::string> clipboard_file()
{
    const std::string folder = iutils::get_instance().get_common_directory();
    if (folder.empty())
        return failure{failure_kind::unreadable, {}, "there is no home folder"};
    return folder + "/copied_grade.json";
}

} // namespace

result<> copy_grade(icomponent_v1& component)
{
    const auto file = clipboard_file();
    if (!file)
        return file.error();
    const std::string text = write_preset_text(component);
    // Replaced whole, so that a paste in another process never reads half a grade.
    return replace_file(*file, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

result<> paste_grade(icomponent_v1& component)
{
    const auto file = clipboard_file();
    if (!file)
        return file.error();
    // Another version may have written the file, or a user may have edited it: it is checked like every preset.
    auto content = read_preset_file(*file);
    if (!content)
        return content.error();
    return apply_preset(*std::move(content), component);
}

} // namespace ov1
