// The properties of a still picture: size, samples, alpha, transfer and metadata.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ov1::media
{

/// How a sample is stored: an unsigned integer of 8 to 16 bits, or an IEEE 754 float of 16 or 32 bits.
enum class depth
{
    u8,
    u10,
    u12,
    u16,
    half,
    full_float,
};

/// "8", "10", "12", "16", "half" or "float".
std::string_view name_of(depth d);

/// The depth with one of these names; none for any other text.
std::optional<depth> depth_named(std::string_view name);

inline bool is_float(depth d) { return d >= depth::half; }

enum class alpha_kind
{
    none,
    straight,
    premultiplied, ///< colour is multiplied by alpha: "associated"
};

/// How code values relate to light.
enum class transfer
{
    display, ///< display-referred, sRGB or near it
    linear,  ///< proportional to light
    pq,      ///< SMPTE ST 2084
    hlg,     ///< ITU-R BT.2100 hybrid log-gamma
};

enum class still_format
{
    png,
    jpeg,
    tiff,
    exr,
    dpx,
    other, ///< read, never written
};

/// How a stored picture is turned upright: first rows and columns are swapped, then the axes are mirrored.
struct turn
{
    bool swap_axes = false;
    bool flip_x = false; ///< of the upright picture
    bool flip_y = false; ///< of the upright picture
};

/// The turn of an orientation 1..8 of TIFF 6.0 and Exif (tag 274); none for any other number.
turn turn_of(unsigned orientation);

struct still_info
{
    std::size_t width = 0;  ///< pixels, upright
    std::size_t height = 0; ///< pixels, upright
    media::depth depth = media::depth::u8;
    bool gray = false; ///< one colour channel is stored; rows repeat it in red, green and blue
    alpha_kind alpha = alpha_kind::none;
    media::transfer transfer = media::transfer::display;
    still_format format = still_format::other;
    std::string format_name;             ///< "PNG", "JPEG", ...
    unsigned orientation = 1;            ///< 1..8 as stored; rows are read upright
    std::vector<std::uint8_t> icc;       ///< the colour profile, empty if there is none
    bool has_exif = false;               ///< the file has camera data
    std::vector<std::uint8_t> png_color; ///< whole cICP, sRGB, gAMA and cHRM chunks of a PNG
    std::uint16_t dpx_transfer =
        0; ///< transfer and colorimetric bytes of a DPX header, the first one high; 0 elsewhere
};

} // namespace ov1::media
