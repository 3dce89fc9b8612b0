// The text of a settings file: typed entries, one per line.
//
//   # Orvane settings: kind, key and value; bytes outside ! to ~, and %, are written %XX
//   uint32 editor.width 1600
//   string last%20folder /home/ada/Pictures
//   bytes window.state 00ff12
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ov1
{

/// A value of one of three kinds. Strings and byte arrays may be empty and may contain any byte.
using setting = std::variant<std::vector<std::uint8_t>, std::string, std::uint32_t>;

/// The lines of a settings file. A line that is not an entry (a comment, a damaged line, a kind of a later version) is
/// ignored when reading and kept when writing. Entries that are not set or removed are written back unchanged.
class settings_text
{
public:
    settings_text() = default;
    explicit settings_text(std::string_view text);

    /// The last entry with this key, or null. Valid until the next change.
    const setting* find(std::string_view key) const;

    /// Replaces the entry in its line, or appends one. Other entries with the same key are removed. The key is not
    /// empty.
    void set(std::string_view key, setting value);

    /// Removes all entries with this key. Other lines stay.
    void remove(std::string_view key);

    /// All lines, each followed by a line feed.
    std::string to_text() const;

private:
    struct line
    {
        /// As it was read or will be written, without the line feed.
        std::string text;
        std::string key; ///< empty if the line is not an entry
        setting value;
    };
    std::vector<line> lines;

    static line read_line(std::string_view text);
};

} // namespace ov1
