#include "editor/editor_memory.h"

#include "platform/iutils.h"

#include <charconv>
#include <fmt/format.h>
#include <string_view>

namespace ov1
{

namespace
{

// Names in the user's settings. A value that was kept under another name would be forgotten.
constexpr const char* size_key = "editor window size";
constexpr const char* split_key = "editor split";
constexpr const char* shows_scopes_key = "editor shows scopes";
constexpr const char* scopes_key = "editor scopes";
constexpr const char* folder_key = "editor last folder";
// In screen pixels, beyond every screen: a damaged setting must not ask for a huge window.
constexpr int largest_length = 16384;

template <typename T>
/// Whether the whole text is a number, with a point in every locale. The value may be changed otherwise too.
bool read(std::string_view text, T& value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

/// "1440x769"
void read_size(std::string_view text, editor_memory& memory)
{
    const auto cross = text.find('x');
    int width = 0, height = 0;
    if (cross == text.npos || !read(text.substr(0, cross), width) || !read(text.substr(cross + 1), height))
        return;
    if (width < 1 || height < 1 || width > largest_length || height > largest_length)
        return;
    memory.window_width = width;
    memory.window_height = height;
}

} // namespace

editor_memory recall_editor_memory()
{
    iutils& settings = iutils::get_instance();
    editor_memory memory;
    std::string text;
    double split = 0;
    if (settings.get_string(size_key, text))
        read_size(text, memory);
    // The comparisons also refuse NaN.
    if (settings.get_string(split_key, text) && read(text, split) && split >= 0 && split <= 1)
        memory.split = split;
    if (settings.get_string(shows_scopes_key, text))
        memory.shows_scopes = text == "yes";
    if (settings.get_string(scopes_key, text))
        memory.scopes = text;
    if (settings.get_string(folder_key, text))
        memory.last_folder = text;
    return memory;
}

void keep_editor_memory(const editor_memory& memory)
{
    iutils& settings = iutils::get_instance();
    [[maybe_unused]] const bool kept =
        settings.set_string(size_key, fmt::format("{}x{}", memory.window_width, memory.window_height)) &&
        settings.set_string(split_key, fmt::format("{}", memory.split)) &&
        settings.set_string(shows_scopes_key, memory.shows_scopes ? "yes" : "no") &&
        settings.set_string(scopes_key, memory.scopes) && settings.set_string(folder_key, memory.last_folder);
}

} // namespace ov1
