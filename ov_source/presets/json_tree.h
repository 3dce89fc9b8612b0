// A JSON text as a tree of values, of which only the members that are asked for are kept.
#pragma once

#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace ov1
{

struct json_member;

/// One value. A number also says whether it was written without a fraction and exponent: 4, but not 4.0.
class json_value
{
public:
    /// value is rounded to double; whole numbers up to 2^53 are exact.
    struct number
    {
        double value;
        bool whole;
    };
    using array = std::vector<json_value>;
    using object = std::vector<json_member>;

    /// The content if it is of that kind, else null. The pointers are valid as long as the value.
    const std::string* as_text() const { return std::get_if<std::string>(&content); }
    const bool* as_boolean() const { return std::get_if<bool>(&content); }
    const number* as_number() const { return std::get_if<number>(&content); }
    const array* as_array() const { return std::get_if<array>(&content); }
    const object* as_object() const { return std::get_if<object>(&content); }

    /// The first member of that name; null if there is none, or if the value is no object.
    const json_value* find(std::string_view name) const;

    std::variant<std::monostate, bool, number, std::string, array, object> content; ///< std::monostate is null
};

struct json_member
{
    std::string name;
    json_value value;
};

/// Whether a value is a whole number from low to high.
bool is_whole_within(const json_value& v, std::int64_t low, std::int64_t high);

/// Which values parse_json keeps. It checks the others all the same.
struct json_selection
{
    std::span<const std::string_view> members; ///< of the outermost object; its other members are left out
    std::size_t levels;                        ///< arrays and objects inside this many others are kept empty
};

/// Parses UTF-8 text, with or without a byte order mark. Deep nesting is safe: it uses the heap and not the stack.
/// A failure is of kind invalid_grade and gives the byte position. A number beyond the range of double is refused.
result<json_value> parse_json(std::string_view text, const json_selection& kept);

} // namespace ov1
