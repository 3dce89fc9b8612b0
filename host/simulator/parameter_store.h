// The parameters of one effect as a video host keeps them: values, keyframes, and undo by actions.
#pragma once

#include <CoreMedia/CMTime.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <variant>
#include <vector>

namespace ov1
{

struct store_color
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 0.0;

    bool operator==(const store_color&) const = default;
};

/// The archive of a custom value.
using store_archive = std::vector<std::uint8_t>;

/// A float slider's value, an integer slider's or a popup's index, a toggle's, a colour, a custom value.
using store_value = std::variant<double, int, bool, store_color, store_archive>;

struct time_order
{
    bool operator()(const CMTime& a, const CMTime& b) const { return CMTimeCompare(a, b) < 0; }
};

struct stored_parameter
{
    std::string name;
    std::uint32_t flags = 0;
    double min = 0.0; ///< of sliders
    double max = 0.0;
    std::vector<std::string> entries; ///< of a popup
    store_value default_value;
    store_value value;                                   ///< while there are no keyframes
    std::map<CMTime, store_value, time_order> keyframes; ///< of numbers and colours, linear in between; others hold
};

/// Whether value and keyframes are the same.
[[nodiscard]] bool same_values(const stored_parameter& a, const stored_parameter& b);

using parameters_by_id = std::map<std::uint32_t, stored_parameter>;

/// Any thread.
class parameter_store
{
public:
    /// False for an id that is taken or outside 1..9998.
    bool declare(std::uint32_t id, stored_parameter parameter);

    /// False for an unknown id, and for a value of another kind.
    bool get(std::uint32_t id, CMTime time, store_value& value) const;
    /// Where there are keyframes, at the time; else for all times. Outside an action it is one of its own. Numbers are
    /// limited to the parameter's bounds.
    bool set(std::uint32_t id, CMTime time, store_value value);
    bool set_keyframe(std::uint32_t id, CMTime time, store_value value);
    bool get_flags(std::uint32_t id, std::uint32_t& flags) const;
    bool set_flags(std::uint32_t id, std::uint32_t flags);

    /// Actions nest; what changed within the outermost is one step of undo.
    void begin_action();
    void end_action();
    int get_open_actions() const;
    /// False where there is nothing to undo or redo.
    bool undo();
    bool redo();
    std::size_t get_undo_count() const;

    /// How often values were set, with what was set without an effect.
    std::size_t get_set_count() const;
    parameters_by_id copy() const;
    /// Values and keyframes of those that are declared alike; what is not declared is passed over.
    void restore(const parameters_by_id& saved);

private:
    stored_parameter* find(std::uint32_t id, const store_value& kind);

    mutable std::recursive_mutex lock;
    parameters_by_id parameters;
    std::vector<parameters_by_id> undo_steps;
    std::vector<parameters_by_id> redo_steps;
    parameters_by_id before_action;
    int open_actions = 0;
    bool changed_in_action = false;
    std::size_t sets = 0;
};

} // namespace ov1
