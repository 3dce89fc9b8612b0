#include "presets/json_tree.h"

#include <algorithm>
#include <cctype>
#include <utility>

#ifdef __clang__
// RapidJSON 1.1 finds out that its stack must grow by adding an offset to a null pointer.
#pragma clang attribute push(__attribute__((no_sanitize("pointer-overflow"))), apply_to = function)
#endif
// Not document.h: clang 19 and later refuse an assignment in version 1.1 of it.
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

// The iterative parser keeps its nesting on the heap.
constexpr unsigned parse_flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;

/// Builds the tree from the parser's events. An event handler returns true to continue.
class tree_builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, tree_builder>
{
public:
    explicit tree_builder(const json_selection& kept)
        : kept(kept)
    {
    }

    // The parser reports a whole number as the smallest type that holds it. Above 2^53 a double rounds it, which no
    // caller notices: whole numbers of at most 32 bits are accepted.
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
        if (skipped > 0)
            return true;
        // Only outermost keys decide. The keys inside a left-out member end above, although only the root is open
        // there.
        key.assign(text, length);
        const bool is_outermost = open.size() == 1;
        is_left_out = is_outermost && std::ranges::find(kept.members, key) == kept.members.end();
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
        if (skipped == 0 && !is_left_out)
            next_value().content = std::move(content);
        return true;
    }

    /// A new value in the innermost open container. The container does not grow while another is open inside it, so
    /// the pointers in `open` stay valid.
    json_value& next_value()
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
        if (skipped > 0 || is_left_out)
        {
            ++skipped;
            return true;
        }
        json_value& container = next_value();
        container.content = std::move(empty);
        // Too deep: the container itself stays, empty, and what follows is only counted to find its end.
        if (open.size() == kept.levels)
            ++skipped;
        else
            open.push_back(&container);
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

    const json_selection& kept;
    std::vector<json_value*> open; ///< containers, the innermost last
    std::string key;
    bool is_left_out = false; ///< the value of the latest outermost key is not kept
    std::size_t skipped = 0;  ///< open containers that are not kept
};

failure not_json_at(std::size_t position, const std::string& why)
{
    return {failure_kind::invalid_grade, {}, "not valid JSON at byte " + std::to_string(position) + ": " + why};
}

failure failure_of(const rapidjson::ParseResult& parsed)
{
    if (parsed.Code() == rapidjson::kParseErrorDocumentEmpty)
        return {failure_kind::invalid_grade, {}, "holds no text"};
    // Adapts the parser's sentence to the middle of ours: a small letter first, no full stop at the end.
    std::string why = rapidjson::GetParseError_En(parsed.Code()); // "Missing a comma or ] after ... ."
    why.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(why.front())));
    why.pop_back();
    return not_json_at(parsed.Offset(), why);
}

} // namespace

const json_value* json_value::find(std::string_view name) const
{
    const object* members = as_object();
    if (members == nullptr)
        return nullptr;
    // A linear search: objects are small, and of two members with one name the first one counts.
    const auto found = std::ranges::find(*members, name, &json_member::name);
    return found == members->end() ? nullptr : &found->value;
}

bool is_whole_within(const json_value& v, std::int64_t low, std::int64_t high)
{
    const json_value::number* n = v.as_number();
    return n != nullptr && n->whole && n->value >= static_cast<double>(low) && n->value <= static_cast<double>(high);
}

result<json_value> parse_json(std::string_view text, const json_selection& kept)
{
    // The parser takes a zero byte for the end of the text and would accept anything after it.
    if (const auto zero = text.find('\0'); zero != std::string_view::npos)
        return not_json_at(zero, "a zero byte");
    rapidjson::MemoryStream bytes(text.data(), text.size());
    // This stream also skips a byte order mark.
    rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> stream(bytes);
    tree_builder builder(kept);
    rapidjson::Reader reader;
    const rapidjson::ParseResult parsed = reader.Parse<parse_flags>(stream, builder);
    if (parsed.IsError())
        return failure_of(parsed);
    return std::move(builder.root);
}

} // namespace ov1
