#include "editor/toolbar/lut_export_action.h"

#include "effect/lut/lut_argb_variable.h"
#include "framework/lut_exporter.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace ov1
{

result<> write_lut(icomponent_v1& component, const std::string& path, lut_file kind)
{
    iobject* found = nullptr;
    lut_argb_variable table;
    if (!component.query_interface("lut_exporter", &found) || !static_cast<lut_exporter*>(found)->get_lut(&table))
        return failure{failure_kind::unsupported, {}, "the effect has no table"};
    const std::string creator = component.get_name();
    if (kind == lut_file::threedl_17)
        return table.write_3dl(path, creator, "");
    return table.write_cube(path, kind == lut_file::cube_32 ? 32 : 17, creator, "");
}

lut_export_action::lut_export_action(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs)
    : component(std::move(component))
    , dialogs(dialogs)
{
}

/// The user can edit it, so the folder need not exist.
std::string lut_export_action::offered_path(lut_file kind, const std::string& preset_name) const
{
    const char* const home = std::getenv("HOME");
    const std::filesystem::path folder = !last_folder.empty() ? last_folder : home ? home : "/";
    const std::string stem = preset_name.empty() ? "Veridial" : preset_name;
    return (folder / (stem + (kind == lut_file::threedl_17 ? ".3dl" : ".cube"))).string();
}

void lut_export_action::run(lut_file kind, const std::string& preset_name)
{
    const editor_question which_file{"{en:Export as a LUT}{de:Als LUT exportieren}", "{en:File}{de:Datei}",
                                     "{en:Export}{de:Exportieren}"};
    dialogs.ask_for_text(which_file, offered_path(kind, preset_name),
                         [this, kind](const std::string& path)
                         {
                             // Asked here and not before: only now the path is known.
                             if (!std::filesystem::exists(path))
                                 return write(path, kind);
                             const editor_question overwrite{path,
                                                             "{en:The file exists already. Overwrite it?}"
                                                             "{de:Die Datei existiert bereits. Überschreiben?}",
                                                             "{en:Overwrite}{de:Überschreiben}"};
                             dialogs.ask(overwrite, [this, path, kind] { write(path, kind); });
                         });
}

void lut_export_action::write(const std::string& path, lut_file kind)
{
    const auto effect = component.lock();
    if (!effect)
        return;
    // A folder is kept only after a success, so that a mistyped one is not offered again.
    if (const auto written = write_lut(*effect, path, kind); written)
        last_folder = std::filesystem::path(path).parent_path().string();
    else
        dialogs.report(path, "{en:The file cannot be written: }{de:Die Datei kann nicht geschrieben werden: }",
                       written.error());
}

} // namespace ov1
