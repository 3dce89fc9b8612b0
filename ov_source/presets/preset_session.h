// The presets of one editor session: which of them is current, and whether the grade has changed since.
#pragma once

#include "presets/preset_manager.h"
#include "shared/param_value.h"
#include "shared/uid.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ov1
{

class iparameter_v1;

/// A preset by name and kind: a user's own and a bundled one may have the same name.
struct preset_choice
{
    std::string name;
    bool is_bundled = false; ///< comes with the product and cannot be deleted

    bool operator==(const preset_choice&) const = default;
};

/// What a user may choose from.
struct preset_list
{
    std::vector<preset_choice> choices; ///< the user's own in byte order, then the bundled ones
    std::vector<std::string> files;     ///< the path of each choice
    std::optional<failure> own_failure; ///< why the user's own could not be listed
};

/// Knows no toolkit: who calls it asks the questions and shows the reasons. Failures leave grade and session unchanged
/// and name no subject. Belongs to the editor's thread.
class preset_session
{
public:
    explicit preset_session(std::weak_ptr<icomponent_v1> component);

    /// Reads both folders at every call; what cannot be listed is left out, with own_failure set for the user's own.
    preset_list list();

    /// Replaces the grade as one undo step and makes the preset the current one.
    result<> load(const preset_choice& choice);

    /// Whether save would need overwrite.
    bool exists(const std::string& name) { return manager.preset_exists(name); }
    /// Writes the grade as one of the user's own presets and makes it the current one.
    result<> save(const std::string& name, bool overwrite);

    /// Deletes one of the user's own presets; none is current then if it was this one.
    result<> remove(const std::string& name);

    /// No preset is current any more.
    void forget_current();

    /// The preset that was loaded or saved last.
    const std::optional<preset_choice>& get_current() const { return current; }
    /// The current preset if the user may delete it and would save under its name; else null.
    const preset_choice* get_own_current() const;
    /// Whether the grade is no longer the current preset's. The bypass does not count.
    bool is_changed() const { return changed_count > 0; }

    /// To be called after each change of a parameter. Returns true if is_changed has become another.
    bool parameter_changed(iparameter_v1& parameter);

private:
    struct preset_value
    {
        uid id = invalid_id;
        param_cell value;
        bool is_changed = false; ///< the parameter has another value now
    };

    void set_current(const preset_choice& choice, icomponent_v1& effect);

    const std::weak_ptr<icomponent_v1> component;
    preset_manager manager;
    std::optional<preset_choice> current;
    std::vector<preset_value> values; ///< of the current preset, without the bypass
    std::size_t changed_count = 0;    ///< of the values
};

} // namespace ov1
