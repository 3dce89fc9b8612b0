// Reads and applies presets. A text is checked whole before anything of it is applied.
#pragma once

#include "shared/param_value.h"
#include "shared/result.h"
#include "shared/uid.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

class icomponent_v1;

/// In bytes. Larger files are refused; the effect's own presets have about 150,000.
inline constexpr std::size_t preset_size_limit = std::size_t{4} << 20;

/// An entry of the parameter list. The type follows from the word in the text: "continuos", "integral", "boolean" or
/// "color". It is unset for every other word, "continuous" among them, and the value is then not applied.
struct preset_entry
{
    std::string name;
    uid id = invalid_id;
    param_type type = param_type::unset;
    param_cell value;
};

/// What is applied of a preset: the entries first, then the state, which overrides them.
struct preset_content
{
    std::vector<preset_entry> entries;
    std::vector<std::uint8_t> state; ///< passes check_state_blob
};

/// Reads JSON text in UTF-8. Refused are texts that are not JSON, members that are missing or of the wrong kind, counts
/// that do not match, and a state that is cut short; the reason names the member. Deep nesting is safe. Failures are of
/// kind invalid_grade, without a subject.
result<preset_content> read_preset_text(std::string_view text);

/// The same for a file, pipe or device, which may also be unreadable.
result<preset_content> read_preset_file(const std::string& path);

/// Whether the effect accepts the preset. apply_preset checks the same.
result<> check_preset(preset_content& content, icomponent_v1& component);

/// Replaces the grade as one undo step. Every parameter ends at the value that the state holds for it; without one, at
/// the value of its entry; without either, at its default. Entries whose id, name or type does not match a parameter
/// are skipped; numbers are limited to the parameter's bounds and colours outside 0..1 are skipped. All of it is one
/// restore with edit false, so that the host is notified of each parameter.
/// Fails, with grade and undo history unchanged, if the effect has no parameters or refuses the state, and while the
/// user is dragging a control.
result<> apply_preset(preset_content content, icomponent_v1& component);

} // namespace ov1
