#include "presets/json_tree.h"

#include <algorithm>
#include <cctype>
#include <utility>

#ifdef __clang__
// RapidJSON 1.1 adds an offset to its stack's null pointer to learn that it must grow.
#pragma clang attribute push(__attribute__((no_sanitize("pointer-overflow"))), apply_to = function)
#endif
// Not document.h: an assignment in that of 1.1 is refused by clang from 19 on.
#include <rapidjson/encodedstream.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#ifdef __clang__
#pragma clang attribute pop
#endif

namespace ov1
{

namespace
{

// Nesting is kept on the heap.
constexpr unsigned parse_flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;

/// Takes the parser's events.
class tree_builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, tree_builder>
{
public:
    explicit tree_builder(std::size_t levels)
        : levels(levels)
    {
    }

    bool Null() { return add(std::monostate()); }
    bool Bool(bool b) { return add(b); }
    bool Int(int i) { return add(json_value::number{static_cast<double>(i), true}); }
    bool Uint(unsigned i) { return add(json_value::number{static_cast<double>(i), true}); }
    bool Int64(std::int64_t i) { return add(json_value::number{static_cast<double>(i), true}); }
    bool Uint64(std::uint64_t i) { return add(json_value::number{static_cast<double>(i), true}); }
    bool Double(double d) { return add(json_value::number{d, false}); }
    bool String(const char* text, rapidjson::SizeType length, bool) { return add(std::string(text, length)); }
    bool Key(const char* text, rapidjson::SizeType length, bool)
    {
        if (skipped == 0)
            key.assign(text, length);
        return true;
    }
    bool StartArray() { return open_container(json_value::array()); }
    bool EndArray(rapidjson::SizeType) { return close_container(); }
    bool StartObject() { return open_container(json_value::object()); }
    bool EndObject(rapidjson::SizeType) { return close_container(); }

    json_value root;

private:
    template <typename T>
    bool add(T content)
    {
        if (skipped == 0)
            place().content = std::move(content);
        return true;
    }

    /// Where the next value belongs. A container does not grow while one within it is open, so that pointers hold.
    json_value& place()
    {
        if (open.empty())
            return root;
        if (auto* elements = std::get_if<json_value::array>(&open.back()->content))
            return elements->emplace_back();
        auto& members = std::get<json_value::object>(open.back()->content);
        return members.emplace_back(json_member{std::move(key), {}}).value;
    }

    template <typename T>
    bool open_container(T empty)
    {
        if (skipped > 0)
            ++skipped;
        else
        {
            json_value& container = place();
            container.content = std::move(empty);
            if (open.size() == levels)
                ++skipped;
            else
                open.push_back(&container);
        }
        return true;
    }

    bool close_container()
    {
        if (skipped > 0)
            --skipped;
        else
            open.pop_back();
        return true;
    }

    const std::size_t levels;
    std::vector<json_value*> open;
    std::string key;
    std::size_t skipped = 0; ///< open containers whose content is not kept
};

std::string reason_at(std::size_t place, const std::string& why)
{
    return "not valid JSON at byte " + std::to_string(place) + ": " + why;
}

std::string parse_reason(const rapidjson::ParseResult& result)
{
    if (result.Code() == rapidjson::kParseErrorDocumentEmpty)
        return "holds no text";
    std::string why = rapidjson::GetParseError_En(result.Code()); // "Missing a comma or ] after ... ."
    why.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(why.front())));
    why.pop_back();
    return reason_at(result.Offset(), why);
}

} // namespace

const json_value* json_value::find(std::string_view name) const
{
    const object* members = as_object();
    if (members == nullptr)
        return nullptr;
    const auto found = std::ranges::find(*members, name, &json_member::name);
    return found == members->end() ? nullptr : &found->value;
}

bool is_whole_within(const json_value& v, std::int64_t low, std::int64_t high)
{
    const json_value::number* n = v.as_number();
    return n != nullptr && n->whole && n->value >= static_cast<double>(low) && n->value <= static_cast<double>(high);
}

bool parse_json(std::string_view text, std::size_t levels, json_value& root, std::string& reason)
{
    // The parser takes a zero byte for the end and would not see what follows.
    if (const auto zero = text.find('\0'); zero != std::string_view::npos)
    {
        reason = reason_at(zero, "a zero byte");
        return false;
    }
    rapidjson::MemoryStream bytes(text.data(), text.size());
    rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> stream(bytes);
    tree_builder builder(levels);
    rapidjson::Reader reader;
    const rapidjson::ParseResult result = reader.Parse<parse_flags>(stream, builder);
    if (result.IsError())
    {
        reason = parse_reason(result);
        return false;
    }
    root = std::move(builder.root);
    return true;
}

} // namespace ov1
