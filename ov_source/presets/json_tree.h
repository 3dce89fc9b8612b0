// A JSON text as a tree of values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ov1
{

struct json_member;

/// One value, with what it holds. Of a number it is known whether it was written as a whole one: 4, but not 4.0.
class json_value
{
public:
    struct number
    {
        double value;
        bool whole;
    };
    using array = std::vector<json_value>;
    using object = std::vector<json_member>;

    /// What it holds if it is of that kind, else null; pointers last as long as the value.
    const std::string* as_text() const { return std::get_if<std::string>(&content); }
    const bool* as_boolean() const { return std::get_if<bool>(&content); }
    const number* as_number() const { return std::get_if<number>(&content); }
    const array* as_array() const { return std::get_if<array>(&content); }
    const object* as_object() const { return std::get_if<object>(&content); }

    /// The first member of that name; null where there is none, and for other values than objects.
    const json_value* find(std::string_view name) const;

    std::variant<std::monostate, bool, number, std::string, array, object> content; ///< the first stands for null
};

struct json_member
{
    std::string name;
    json_value value;
};

/// Whether a value is a whole number from low to high.
bool is_whole_within(const json_value& v, std::int64_t low, std::int64_t high);

/// Parses a text in UTF-8, with or without its byte order mark, however deeply it is nested. Arrays and objects within
/// more than `levels` others are checked and then kept without what they hold. When the text is no JSON, the reason is
/// one line of English with the place, and root is as it was. A number beyond the range of double is no JSON here.
[[nodiscard]] bool parse_json(std::string_view text, std::size_t levels, json_value& root, std::string& reason);

} // namespace ov1
