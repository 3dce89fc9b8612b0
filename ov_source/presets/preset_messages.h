// Messages about presets, as localised literals for iutils::translate.
#pragma once

namespace ov1::preset_messages
{

/// The presets cannot be listed.
inline constexpr const char* cannot_list = "{en:Error loading presets}{de:Fehler beim Laden der Presets.}";

/// A preset is refused; the reason is appended to the translated text.
inline constexpr const char* cannot_load = "{en:Cannot load preset: }{de:Preset kann nicht geladen werden: }";

/// A preset is refused, shown without the reason.
inline constexpr const char* loading_failed = "{en:Error loading preset}{de:Fehler beim Laden des Presets}";

/// Asked before an existing preset is replaced.
inline constexpr const char* overwrite_question =
    "{en:Preset exists already. Overwrite file?}{de:Preset existiert bereits. Datei überschreiben?}";

} // namespace ov1::preset_messages
