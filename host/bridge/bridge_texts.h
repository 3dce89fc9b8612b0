// Texts and numbers that the bridge gives to the video host: property keys, error codes, names and titles.
#pragma once

namespace ov1
{

/// Keys of the effect's property dictionary. Spelled out here, because newer releases of the host's headers no longer
/// define a macro for each of them.
namespace property_key
{
inline constexpr const char* is_thread_safe = "IsThreadSafe";
inline constexpr const char* may_remap_time = "MayRemapTime";
inline constexpr const char* uses_rational_time = "UsesRationalTime";
inline constexpr const char* desired_processing_color_info = "DesiredProcessingColorInfo";
inline constexpr const char* varies_when_params_are_static = "VariesWhenParamsAreStatic";
inline constexpr const char* needs_full_buffer = "NeedsFullBuffer";
inline constexpr const char* preserves_alpha = "PreservesAlpha";
inline constexpr const char* changes_output_size = "ChangesOutputSize";
} // namespace property_key

/// An error in the host's error domain. The host may show the description to the user.
struct bridge_error
{
    int code;                ///< one of the host's own error codes
    const char* description; ///< English
};

/// A source tile's size, layout or format differs from the destination's.
inline constexpr bridge_error incompatible_tiles{5, "Input and Output image tiles are incompatible"};
/// The caller appends the name of the method that failed.
inline constexpr bridge_error no_creation_api{14, "Unable to get the FxParameterCreationAPI_v5 in "};
/// The surface is neither of halfs nor of floats.
inline constexpr bridge_error unsupported_pixel_format{18, "Unsupported pixel format"};
/// The host has no timing interface, so the duration of a frame is unknown.
inline constexpr bridge_error no_timing_api{29, "Error requesting analysis time range."};

/// Documents contain the first two, so they must never change. The third is the title of the button.
inline constexpr const char* state_parameter_name = "State";
inline constexpr const char* state_coder_key = "fcp_wrapper_state_v1";
inline constexpr const char* gui_button_title = "Open GUI...";

} // namespace ov1
