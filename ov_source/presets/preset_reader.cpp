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

// The colour table is for other programs: its 14,739 numbers are checked as JSON and not kept.
constexpr std::array<std::string_view, 4> members_read{"parameter_count", "parameters", "plugin_state_size",
                                                       "plugin_state"};
constexpr json_selection preset_members{members_read, 4}; // the outermost object, the list, an entry, a colour

/// A kind of JSON value and its name in a reason.
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

failure invalid(std::string reason) { return {failure_kind::invalid_grade, {}, std::move(reason)}; }

std::string quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

/// A member of that kind, never null. place goes before the name in the reason.
result<const json_value*> member(const json_value& object, const char* name, const json_kind& kind,
                                 const std::string& place = {})
{
    const json_value* found = object.find(name);
    if (found == nullptr)
        return invalid(place + quoted(name) + " is missing");
    if (!kind.holds(*found))
        return invalid(place + quoted(name) + " is not " + kind.name);
    return found;
}

/// An array, never null, of as many elements as another member announces; at least one.
result<const json_value::array*> counted_array(const json_value& root, const char* count_name, const char* array_name)
{
    const auto count = member(root, count_name, an_integer);
    if (!count)
        return count.error();
    const double announced = (*count)->as_number()->value;
    if (announced < 1)
        return invalid(quoted(count_name) + " is less than 1");
    const auto list = member(root, array_name, an_array);
    if (!list)
        return list.error();
    const std::size_t size = (*list)->as_array()->size();
    // Another count shows that the text was cut or edited by hand.
    if (static_cast<double>(size) != announced)
        return invalid(quoted(array_name) + " holds " + std::to_string(size) + " elements, but " + quoted(count_name) +
                       " is " + std::to_string(static_cast<std::int64_t>(announced)));
    return (*list)->as_array();
}

/// A word of "param_type".
struct type_word
{
    std::string_view word;
    param_type value;      ///< the kind that "param_value" must have
    param_type applied_to; ///< the type of parameter that takes the value; unset for none
};

constexpr std::array<type_word, 5> type_words{{
    // "continuos": the format's own spelling, kept for old files. The writer says "continuous", which is not applied:
    // those values come from the state.
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

/// Numbers beyond the range of float are limited to it; the parameter's bounds limit them further.
float float_of(const json_value& v)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(v.as_number()->value, -largest, largest));
}

bool is_number(const json_value& v) { return v.as_number() != nullptr; }

/// Converts a value to a parameter's type. False, with the cell unchanged, if the value is of another kind. A colour is
/// alpha, red, green, blue.
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

/// Reads the value of an entry, whose kind follows from the word. A value with an unknown word is not checked.
result<> read_value(const json_value& object, std::string_view word, const std::string& place, preset_entry& entry)
{
    const auto known = std::ranges::find(type_words, word, &type_word::word);
    if (known == type_words.end())
        return {};
    const json_value* value = object.find("param_value");
    if (value == nullptr)
        return invalid(place + "\"param_value\" is missing");
    if (!read_cell(*value, known->value, entry.value))
        return invalid(place + "\"param_value\" is not " + name_of_value(known->value));
    entry.type = known->applied_to;
    return {};
}

result<preset_entry> read_entry(const json_value& object, std::size_t index)
{
    // Counted from 1 in messages.
    const std::string place = "entry " + std::to_string(index + 1) + " of \"parameters\"";
    if (object.as_object() == nullptr)
        return invalid(place + " is not an object");
    const auto name = member(object, "param_name", a_text, place + ": ");
    if (!name)
        return name.error();
    const auto id = member(object, "param_id", an_unsigned, place + ": ");
    if (!id)
        return id.error();
    const auto type = member(object, "param_type", a_text, place + ": ");
    if (!type)
        return type.error();
    preset_entry entry{*(*name)->as_text(), static_cast<uid>((*id)->as_number()->value), param_type::unset, {}};
    if (auto read = read_value(object, *(*type)->as_text(), place + ": ", entry); !read)
        return read.error();
    return entry;
}

result<std::vector<preset_entry>> read_entries(const json_value& root)
{
    const auto list = counted_array(root, "parameter_count", "parameters");
    if (!list)
        return list.error();
    std::vector<preset_entry> entries;
    entries.reserve((*list)->size());
    for (const json_value& element : **list)
    {
        auto entry = read_entry(element, entries.size());
        if (!entry)
            return entry.error();
        entries.push_back(*std::move(entry));
    }
    return entries;
}

result<std::vector<std::uint8_t>> read_state_bytes(const json_value& root)
{
    const auto list = counted_array(root, "plugin_state_size", "plugin_state");
    if (!list)
        return list.error();
    std::vector<std::uint8_t> state;
    state.reserve((*list)->size());
    for (const json_value& element : **list)
    {
        if (!is_whole_within(element, 0, 255))
            return invalid("element " + std::to_string(state.size() + 1) +
                           " of \"plugin_state\" is not a byte, 0 to 255");
        state.push_back(static_cast<std::uint8_t>(element.as_number()->value));
    }
    if (const auto checked = check_state_blob(state); !checked)
        return invalid("\"plugin_state\": " + checked.error().reason);
    return state;
}

/// Whether the user is dragging a control of the open view: undo, redo and loading wait for the end of a gesture.
bool is_held(icomponent_v1& component)
{
    const auto view = component.get_view();
    return view && view->is_open() && view->is_editing();
}

/// A parameter that was renamed since has another name under the same id, or the same name under another id.
void apply_entry(const preset_entry& entry, icomponent_v1& component)
{
    const auto parameter = component.get_parameter(entry.id);
    if (!parameter || parameter->get_type() != entry.type || parameter->get_name() != entry.name)
        return;
    param_value v = parameter->get_param_value();
    // set_param_value limits numbers to the bounds and skips colours outside 0..1.
    v.value = entry.value;
    parameter->set_param_value(v, false);
}

/// Whether a parameter accepts a record of the state.
bool accepts(const param_value& present, const param_value& stored)
{
    param_value v = present;
    v.type = stored.type;
    v.value = stored.value;
    present.bounce_and_quantize(v);
    return present.is_valid(v);
}

/// The parameters that the state alone decides: to reset them first would only notify host and view twice. None if the
/// state names a former parameter, whose mapping to present ones may depend on the values that they have.
std::vector<uid> decided_by_state(const std::vector<state_record>& records, icomponent_v1& component)
{
    std::vector<uid> decided;
    for (const state_record& record : records)
    {
        const auto parameter = component.get_parameter(record.id);
        if (!parameter)
            return {};
        // A record of another type, or without a number, leaves its parameter to the entries and the default.
        if (accepts(parameter->get_param_value(), record.value))
            decided.push_back(record.id);
    }
    return decided;
}

/// In the format's order: defaults, entries, state. The guard keeps the coupling of chroma and lightness from changing
/// the values that were saved.
void restore_preset(preset_content& content, const std::vector<state_record>& records, icomponent_v1& component)
{
    const restore_guard restoring(component);
    const std::vector<uid> decided = decided_by_state(records, component);
    // A linear search is enough: the effect has a few dozen parameters.
    const auto is_decided = [&](uid id) { return std::ranges::find(decided, id) != decided.end(); };
    for (int i = 0; i < component.get_parameter_count(); ++i)
        if (const auto parameter = component.get_parameter(i); !is_decided(parameter->get_uid()))
            parameter->reset_to_default();
    for (const preset_entry& entry : content.entries)
        if (!is_decided(entry.id))
            apply_entry(entry, component);
    component.set_state(content.state, false);
}

} // namespace

result<preset_content> read_preset_text(std::string_view text)
{
    const auto root = parse_json(text, preset_members);
    if (!root)
        return root.error();
    if (root->as_object() == nullptr)
        return invalid("not a preset: the text is not an object");
    auto entries = read_entries(*root);
    if (!entries)
        return entries.error();
    auto state = read_state_bytes(*root);
    if (!state)
        return state.error();
    return preset_content{*std::move(entries), *std::move(state)};
}

result<preset_content> read_preset_file(const std::string& path)
{
    const auto bytes = read_file(path, preset_size_limit);
    if (!bytes)
        return bytes.error();
    return read_preset_text({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
}

result<> check_preset(preset_content& content, icomponent_v1& component)
{
    std::string message;
    if (component.get_parameter_count() == 0)
        return invalid("the effect has no parameters");
    if (component.is_state_rejected(content.state, false, message))
        // The component may refuse without a message.
        return invalid(message.empty() ? "the effect refuses the state" : message);
    return {};
}

result<> apply_preset(preset_content content, icomponent_v1& component)
{
    std::vector<state_record> records;
    if (is_held(component))
        return invalid("a control is being moved");
    if (auto accepted = check_preset(content, component); !accepted)
        return accepted;
    // Read before the history moves: what is refused leaves no empty step, and keeps what can be redone.
    if (!read_state(content.state, records))
        return invalid("not a state");
    // The first call stores the old grade and opens a new step; the second one stores the new grade in that step.
    component.save_state(true);
    restore_preset(content, records, component);
    component.save_state(false);
    return {};
}

} // namespace ov1
