// Exports the grade as a LUT file: asks for the path, asks before it overwrites, and reports failures.
#pragma once

#include "editor/toolbar/editor_dialogs.h"
#include "framework/icomponent_v1.h"
#include "shared/result.h"

#include <memory>
#include <string>

namespace ov1
{

/// The LUT files that the editor offers.
enum class lut_file
{
    cube_17,   ///< .cube with 17 points per axis
    cube_32,   ///< .cube with 32 points per axis
    threedl_17 ///< .3dl with 17 points per axis
};

/// Writes the table of the present grade, brought up to date first. An existing file is replaced whole. Failures name
/// no subject.
result<> write_lut(icomponent_v1& component, const std::string& path, lut_file kind);

/// The dialogs outlive it. Belongs to the editor's thread.
class lut_export_action
{
public:
    lut_export_action(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs);

    /// Offers a path in the last folder, named after the preset; an empty name stands for no preset.
    void run(lut_file kind, const std::string& preset_name);

    /// The folder of the last file that was written; empty for the home folder.
    const std::string& get_last_folder() const { return last_folder; }
    void set_last_folder(std::string folder) { last_folder = std::move(folder); }

private:
    /// The last folder, or the home folder, with the preset's name or "Veridial" and the extension of the kind.
    std::string offered_path(lut_file kind, const std::string& preset_name) const;
    /// Replaces the file, and remembers its folder if that succeeds.
    void write(const std::string& path, lut_file kind);

    const std::weak_ptr<icomponent_v1> component;
    const editor_dialogs& dialogs;
    std::string last_folder;
};

} // namespace ov1
