// The presets of an effect: the user's own, kept as files in one folder, and those that come with the product.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace ov1
{

class icomponent_v1;

/// Whether a preset may have this name: 1 to 250 bytes, not all blanks, without control characters and path separators,
/// and not beginning with a dot. The reason is one line of English.
[[nodiscard]] bool is_preset_name(const std::string& name, std::string& reason);

/// Asks nothing and shows nothing: that is the caller's part, with the texts of preset_messages.h. Every operation has
/// a form that gives the reason of a failure, one line of English without the preset's name. With the component gone
/// all of them fail, and nothing throws. Belongs to one thread.
class preset_manager
{
public:
    explicit preset_manager(std::weak_ptr<icomponent_v1> component);

    /// "Plugin Presets" and the effect's name under the utilities' common directory, made at the first call and kept.
    /// Empty without a home or a component.
    std::string get_preset_path();

    /// Appends the user's own presets, in the order of their bytes. Files without ".json" behind a preset's name are
    /// none. False, with names as they were, where the folder cannot be read.
    bool getPresets(std::vector<std::string>& names);

    /// Replaces the grade by a preset's; a failure leaves it as it was. read_preset_file and apply_preset say what is
    /// refused.
    bool load_preset(const std::string& name);
    bool load_preset(const std::string& name, std::string& reason);

    /// Writes the present grade. An existing preset is replaced only with overwrite; it stays whole when anything
    /// fails.
    bool save_preset(const std::string& name, bool overwrite);
    bool save_preset(const std::string& name, bool overwrite, std::string& reason);

    /// Removes a preset of the user's own; without a reason asked for, failures pass in silence.
    void delete_preset(const std::string& name);
    bool delete_preset(const std::string& name, std::string& reason);

    /// Whether load_preset would refuse, and why; message is empty when it would not. A held control is no matter here.
    bool preset_rejected(const std::string& name, std::string& message);

    /// Whether there is a file of this name, for the question before an overwrite.
    bool preset_exists(const std::string& name);

    /// The file of a preset of the user's own; empty, with the reason, where there can be none.
    std::string get_preset_file(const std::string& name, std::string& reason);

    /// The looks that come with the product, as above. They are read only: no operation writes to or removes them, and
    /// the user's own may bear the same names.
    bool get_bundled_presets(std::vector<std::string>& names);
    bool load_bundled_preset(const std::string& name, std::string& reason);
    std::string get_bundled_preset_file(const std::string& name, std::string& reason);

private:
    bool load_file(const std::string& file, std::string& reason);

    std::weak_ptr<icomponent_v1> component;
    std::string preset_path;
};

} // namespace ov1
