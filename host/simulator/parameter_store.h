// The parameters of one effect as a video host stores them: values, keyframes, and undo steps.
#pragma once

#include <CoreMedia/CMTime.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ov1
{

/// Double precision, as in the host's interface; not limited to 0..1.
struct store_color
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 0.0;

    bool operator==(const store_color&) const = default;
};

/// An archived custom value (value_archive.h).
using store_archive = std::vector<std::uint8_t>;

/// The value of a float slider, of an integer slider or a popup (its index), of a toggle, of a colour, a custom value.
using store_value = std::variant<double, int, bool, store_color, store_archive>;

/// Equal times share one keyframe, whatever their timescales.
struct time_order
{
    bool operator()(const CMTime& a, const CMTime& b) const { return CMTimeCompare(a, b) < 0; }
};

/// One parameter, as the effect declared it and the user set it.
struct stored_parameter
{
    std::string name = {};
    std::uint32_t flags = 0; ///< kFxParameterFlag bits
    double min = 0.0;        ///< bounds of sliders and of a popup's index; not used unless min < max
    double max = 0.0;
    std::vector<std::string> entries = {}; ///< of a popup
    store_value default_value = {};
    store_value value = {}; ///< used while there are no keyframes; its type never changes
    /// Floats and colours run linearly between keyframes; other types hold until the next one.
    std::map<CMTime, store_value, time_order> keyframes = {};
};

/// Whether the values and keyframes are equal.
[[nodiscard]] bool same_values(const stored_parameter& a, const stored_parameter& b);

/// In the order of the ids, which is the order of the inspector.
using parameters_by_id = std::map<std::uint32_t, stored_parameter>;

/// Any thread. A value has the type of its parameter: double for a float slider, and so on.
class parameter_store
{
public:
    /// Adds a parameter with its default as its value. False for an id that is taken or outside 1..9998.
    bool declare(std::uint32_t id, stored_parameter parameter);

    /// The value at a time; nothing for an unknown id.
    std::optional<store_value> get(std::uint32_t id, CMTime time) const;
    /// Sets a keyframe at the time if the parameter has keyframes, else the value for all times. Numbers are limited to
    /// the parameter's bounds. Outside an action, the call is an action of its own. False for an unknown id and for a
    /// value of another type.
    bool set(std::uint32_t id, CMTime time, store_value value);
    /// Like set, but always makes a keyframe.
    bool set_keyframe(std::uint32_t id, CMTime time, store_value value);
    /// Both are false for an unknown id. Flags are not part of an undo step on their own.
    bool get_flags(std::uint32_t id, std::uint32_t& flags) const;
    bool set_flags(std::uint32_t id, std::uint32_t flags);

    /// Actions nest. All changes within the outermost action are one undo step; an action without a change is none.
    void begin_action();
    void end_action();
    /// Actions that have begun and not ended; 0 unless an effect forgot to end one.
    int get_open_actions() const;
    /// False when there is nothing to undo or redo. A new step discards the steps to redo.
    bool undo();
    bool redo();
    /// The number of steps that can be undone.
    std::size_t get_undo_count() const;

    /// How often `set` was called, including calls that changed nothing or failed.
    std::size_t get_set_count() const;
    /// All parameters as they are now.
    parameters_by_id copy() const;
    /// Takes values and keyframes from the saved parameters whose id, name and type are declared here; skips the
    /// others. Not an undo step.
    void restore(const parameters_by_id& saved);

private:
    /// Null for an unknown id and for a parameter of another type than the value's.
    stored_parameter* find(std::uint32_t id, const store_value& value);

    /// Puts the newest step of `from` in force and the current parameters onto `to`.
    bool step(std::vector<parameters_by_id>& from, std::vector<parameters_by_id>& to);

    mutable std::recursive_mutex lock;        // set opens an action
    parameters_by_id parameters;              ///< guarded by lock, like all that follows
    std::vector<parameters_by_id> undo_steps; ///< all parameters before each step; the newest last
    std::vector<parameters_by_id> redo_steps;
    parameters_by_id before_action; ///< when the outermost action began
    int open_actions = 0;
    bool changed_in_action = false;
    std::size_t sets = 0;
};

} // namespace ov1
