// The presets of an effect: the user's own, kept as files in one folder, and those that come with the product.
#pragma once

#include "shared/result.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ov1
{

class icomponent_v1;

/// Whether a preset may have this name: 1 to 250 bytes, not only blanks, without control characters and path
/// separators, and not beginning with a dot. A failure is of kind usage.
result<> check_preset_name(const std::string& name);

/// Asks nothing and shows nothing: that is the caller's part, with the texts of preset_messages.h. If the component is
/// gone, every operation on the user's own presets fails and changes nothing. Failures name no subject. Nothing throws.
/// Belongs to one thread.
class preset_manager
{
public:
    explicit preset_manager(std::weak_ptr<icomponent_v1> component);

    /// "Plugin Presets" and the effect's name under the utilities' common directory, made at the first call and kept.
    /// Empty without a home folder or a component.
    std::string get_preset_path();

    // Each of these five sets get_failure().

    /// Appends the names of the user's own presets, in byte order. Files with another extension than ".json", or whose
    /// name check_preset_name refuses, are left out. False, with names unchanged, if the folder cannot be read.
    bool getPresets(std::vector<std::string>& names);

    /// Replaces the grade by a preset's, as apply_preset does; a failure leaves it unchanged.
    bool load_preset(const std::string& name);

    /// Writes the present grade. An existing preset is replaced only with overwrite, and stays whole if that fails.
    bool save_preset(const std::string& name, bool overwrite);

    /// Removes one of the user's own presets.
    void delete_preset(const std::string& name);

    /// Whether load_preset would refuse, and why; message is empty if it would not. A drag in progress is ignored.
    bool preset_rejected(const std::string& name, std::string& message);

    /// Why the last of the operations above failed; nothing if it succeeded.
    const std::optional<failure>& get_failure() const { return last_failure; }

    /// Whether the user has a preset of this name: for the question before it is overwritten.
    bool preset_exists(const std::string& name);

    /// The path of one of the user's own presets, whether or not the file exists.
    result<std::string> get_preset_file(const std::string& name);

    /// The presets that come with the product, in byte order; none in a build without them. They are read only, and the
    /// user's own may have the same names.
    std::vector<std::string> get_bundled_presets();
    /// The path of a bundled preset, whether or not the file exists. Needs no component.
    result<std::string> get_bundled_preset_file(const std::string& name);

private:
    bool keep(const result<>& outcome);
    result<> list(std::vector<std::string>& names);
    result<> load(const std::string& name);
    result<> save(const std::string& name, bool overwrite);
    result<> remove(const std::string& name);
    result<> check(const std::string& name);

    std::weak_ptr<icomponent_v1> component;
    std::string preset_path;
    std::optional<failure> last_failure;
};

} // namespace ov1
