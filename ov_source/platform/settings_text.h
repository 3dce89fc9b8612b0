// The text of a settings file: typed entries, one to a line.
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

/// A value of one of the three kinds. Strings and bytes may be empty and hold any byte.
using setting = std::variant<std::vector<std::uint8_t>, std::string, std::uint32_t>;

/// The lines of a settings file. A line that is no entry (a comment, damage, a kind of a later version) is passed over
/// by the readers and kept as it is by the writers, and so is every entry that is not touched.
class settings_text
{
public:
    settings_text() = default;
    explicit settings_text(std::string_view text);

    /// The last entry under a key, or null.
    const setting* find(std::string_view key) const;

    /// Replaces the entry where it stands, or appends one; further entries under the same key go. Keys are not empty.
    void set(std::string_view key, setting value);

    void remove(std::string_view key);

    std::string to_text() const;

private:
    struct line
    {
        std::string text;
        std::string key; ///< empty where the line is no entry
        setting value;
    };
    std::vector<line> lines;

    static line read_line(std::string_view text);
};

} // namespace ov1
