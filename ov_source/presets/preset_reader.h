// Reads presets: a text is checked whole before anything of it is applied.
#pragma once

#include "shared/param_value.h"
#include "shared/uid.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

class icomponent_v1;

/// Files beyond it are no presets; one of the effect's own has about 150,000 bytes.
inline constexpr std::size_t preset_size_limit = std::size_t{4} << 20;

/// An entry of the parameter list. Its type is that of the accepted word ("continuos", "integral", "boolean", "color")
/// and unset for every other one, "continuous" among them: the value is then not taken.
struct preset_entry
{
    std::string name;
    uid id = invalid_id;
    param_type type = param_type::unset;
    param_cell value;
};

/// What is taken from a preset: the list, then the state, which has the last word.
struct preset_content
{
    std::vector<preset_entry> entries;
    std::vector<std::uint8_t> state; ///< passes check_state_blob
};

/// Reads a text of JSON in UTF-8 however deeply nested it is. Refused, with content as it was, are texts that are no
/// JSON, members that are missing or of the wrong kind, counts that do not fit, and a state that is cut short. The
/// reason is one line of English that names the member.
[[nodiscard]] bool read_preset_text(std::string_view text, preset_content& content, std::string& reason);

/// The same for a file, pipe or device; more than preset_size_limit bytes are not read.
[[nodiscard]] bool read_preset_file(const std::string& path, preset_content& content, std::string& reason);

/// Sets all parameters to their defaults, then gives back what the preset holds, within one restore guard and with
/// edit false, so that a host learns of it. Entries whose id or name is unknown or does not match, and those of another
/// type than their parameter, are skipped; values are brought within the bounds and colours outside theirs are dropped.
/// False, with nothing applied, for a component without parameters, for a state that it refuses, and while the user
/// holds a control of its open view.
[[nodiscard]] bool apply_preset(const preset_content& content, icomponent_v1& component, std::string& reason);

/// What apply_preset refuses whatever the user does: the component's word on the state.
[[nodiscard]] bool is_preset_accepted(const preset_content& content, icomponent_v1& component, std::string& reason);

} // namespace ov1
