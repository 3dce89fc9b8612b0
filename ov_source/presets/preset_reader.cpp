#include "presets/preset_reader.h"

#include "framework/icomponent_v1.h"
#include "framework/iview_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/restore_guard.h"
#include "framework/state_blob.h"
#include "platform/atomic_file.h"
#include "presets/json_tree.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace ov1
{

namespace
{

constexpr std::size_t preset_levels = 4; // the text, its list, an entry, a colour

/// A kind of JSON value and what to call it.
struct json_kind
{
    bool (*holds)(const json_value&);
    const char* name;
};

constexpr json_kind an_array{[](const json_value& v) { return v.as_array() != nullptr; }, "an array"};
constexpr json_kind a_text{[](const json_value& v) { return v.as_text() != nullptr; }, "a text"};
constexpr json_kind an_integer{[](const json_value& v) { return is_whole_within(v, INT32_MIN, INT32_MAX); },
                               "a whole number of 32 bits"};
constexpr json_kind an_unsigned{[](const json_value& v) { return is_whole_within(v, 0, UINT32_MAX); },
                                "an unsigned whole number of 32 bits"};

std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

/// A member of the kind, or null with the reason; place says which object it should be in.
const json_value* member(const json_value& object, const char* name, const json_kind& kind, const std::string& place,
                         std::string& reason)
{
    const json_value* found = object.find(name);
    if (found == nullptr)
        reason = place + quoted(name) + " is missing";
    else if (!kind.holds(*found))
        reason = place + quoted(name) + " is not " + kind.name;
    else
        return found;
    return nullptr;
}

/// An array of as many elements as another member announces, at least one; or null with the reason.
const json_value::array* counted_array(const json_value& root, const char* count_name, const char* array_name,
                                       std::string& reason)
{
    const json_value* count = member(root, count_name, an_integer, "", reason);
    if (count == nullptr)
        return nullptr;
    const double announced = count->as_number()->value;
    if (announced < 1)
    {
        reason = quoted(count_name) + " is less than 1";
        return nullptr;
    }
    const json_value* list = member(root, array_name, an_array, "", reason);
    if (list == nullptr)
        return nullptr;
    const std::size_t size = list->as_array()->size();
    if (static_cast<double>(size) != announced)
    {
        reason = quoted(array_name) + " holds " + std::to_string(size) + " elements, but " + quoted(count_name) +
                 " is " + std::to_string(static_cast<std::int64_t>(announced));
        return nullptr;
    }
    return list->as_array();
}

/// A word of "param_type": the kind of value that belongs to it, and the type of parameter that takes it.
struct type_word
{
    std::string_view word;
    param_type value;
    param_type taken_as;
};

constexpr std::array<type_word, 5> type_words{{
    // "continuos": the format's own spelling, kept for old files. What is written says "continuous", and its values
    // come from the state.
    {"continuos", param_type::continuous, param_type::continuous},
    {"continuous", param_type::continuous, param_type::unset},
    {"integral", param_type::integral, param_type::integral},
    {"boolean", param_type::boolean, param_type::boolean},
    {"color", param_type::color, param_type::color},
}};

const char* name_of_value(param_type type)
{
    switch (type)
    {
    case param_type::continuous:
        return "a number";
    case param_type::integral:
        return an_integer.name;
    case param_type::boolean:
        return "true or false";
    default:
        return "an array of four numbers";
    }
}

float float_of(const json_value& v)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(v.as_number()->value, -largest, largest));
}

bool is_number(const json_value& v) { return v.as_number() != nullptr; }

bool read_cell(const json_value& v, param_type type, param_cell& cell)
{
    if (type == param_type::continuous && is_number(v))
        cell = param_cell::of(float_of(v));
    else if (type == param_type::integral && an_integer.holds(v))
        cell = param_cell::of(static_cast<std::int32_t>(v.as_number()->value));
    else if (type == param_type::boolean && v.as_boolean())
        cell = param_cell::of(*v.as_boolean());
    else if (const auto* c = v.as_array();
             type == param_type::color && c && c->size() == 4 && std::ranges::all_of(*c, is_number))
        cell = param_cell::of(param_argb{float_of((*c)[0]), float_of((*c)[1]), float_of((*c)[2]), float_of((*c)[3])});
    else
        return false;
    return true;
}

/// The value of an entry, whose kind follows from its word; with a word of no known kind there is nothing to check.
bool read_value(const json_value& object, std::string_view word, const std::string& place, preset_entry& entry,
                std::string& reason)
{
    const auto known = std::ranges::find(type_words, word, &type_word::word);
    if (known == type_words.end())
        return true;
    const json_value* value = object.find("param_value");
    if (value == nullptr)
        reason = place + "\"param_value\" is missing";
    else if (!read_cell(*value, known->value, entry.value))
        reason = place + "\"param_value\" is not " + name_of_value(known->value);
    else
    {
        entry.type = known->taken_as;
        return true;
    }
    return false;
}

bool read_entry(const json_value& object, std::size_t place_in_list, preset_entry& entry, std::string& reason)
{
    const std::string place = "entry " + std::to_string(place_in_list + 1) + " of \"parameters\"";
    if (object.as_object() == nullptr)
    {
        reason = place + " is not an object";
        return false;
    }
    const json_value* name = member(object, "param_name", a_text, place + ": ", reason);
    const json_value* id = name ? member(object, "param_id", an_unsigned, place + ": ", reason) : nullptr;
    const json_value* type = id ? member(object, "param_type", a_text, place + ": ", reason) : nullptr;
    if (type == nullptr)
        return false;
    entry.name = *name->as_text();
    entry.id = static_cast<uid>(id->as_number()->value);
    return read_value(object, *type->as_text(), place + ": ", entry, reason);
}

bool read_entries(const json_value& root, std::vector<preset_entry>& entries, std::string& reason)
{
    const auto* list = counted_array(root, "parameter_count", "parameters", reason);
    if (list == nullptr)
        return false;
    entries.resize(list->size());
    for (std::size_t i = 0; i < list->size(); ++i)
        if (!read_entry((*list)[i], i, entries[i], reason))
            return false;
    return true;
}

bool read_state_bytes(const json_value& root, std::vector<std::uint8_t>& state, std::string& reason)
{
    const auto* list = counted_array(root, "plugin_state_size", "plugin_state", reason);
    if (list == nullptr)
        return false;
    for (const json_value& element : *list)
    {
        if (!is_whole_within(element, 0, 255))
        {
            reason = "element " + std::to_string(state.size() + 1) + " of \"plugin_state\" is not a byte, 0 to 255";
            return false;
        }
        state.push_back(static_cast<std::uint8_t>(element.as_number()->value));
    }
    if (const auto checked = check_state_blob(state); !checked)
    {
        reason = "\"plugin_state\": " + checked.error().reason;
        return false;
    }
    return true;
}

bool is_held(icomponent_v1& component)
{
    const auto view = component.get_view();
    return view && view->is_open() && view->is_editing();
}

void apply_entry(const preset_entry& entry, icomponent_v1& component)
{
    const auto parameter = component.get_parameter(entry.id);
    if (!parameter || parameter->get_type() != entry.type || parameter->get_name() != entry.name)
        return;
    param_value v = parameter->get_param_value();
    v.value = entry.value;
    parameter->set_param_value(v, false);
}

} // namespace

bool read_preset_text(std::string_view text, preset_content& content, std::string& reason)
{
    json_value root;
    preset_content found;
    if (!parse_json(text, preset_levels, root, reason))
        return false;
    if (root.as_object() == nullptr)
    {
        reason = "not a preset: the text is not an object";
        return false;
    }
    if (!read_entries(root, found.entries, reason) || !read_state_bytes(root, found.state, reason))
        return false;
    content = std::move(found);
    return true;
}

bool read_preset_file(const std::string& path, preset_content& content, std::string& reason)
{
    const auto bytes = read_file(path, preset_size_limit);
    if (!bytes)
    {
        reason = bytes.error().reason;
        return false;
    }
    return read_preset_text({reinterpret_cast<const char*>(bytes->data()), bytes->size()}, content, reason);
}

bool is_preset_accepted(const preset_content& content, icomponent_v1& component, std::string& reason)
{
    std::vector<std::uint8_t> state = content.state;
    std::string message;
    if (component.get_parameter_count() == 0)
        message = "the effect has no parameters";
    else if (!component.is_state_rejected(state, false, message))
        return true;
    reason = message;
    return false;
}

bool apply_preset(const preset_content& content, icomponent_v1& component, std::string& reason)
{
    if (is_held(component))
    {
        reason = "a control is being moved";
        return false;
    }
    if (!is_preset_accepted(content, component, reason))
        return false;
    const restore_guard restoring(component);
    for (int i = 0; i < component.get_parameter_count(); ++i)
        component.get_parameter(i)->reset_to_default();
    for (const preset_entry& entry : content.entries)
        apply_entry(entry, component);
    std::vector<std::uint8_t> state = content.state;
    return component.set_state(state, false);
}

} // namespace ov1
