// Numbers of the TIFF format that both reading and correcting a file need. Source: TIFF 6.0, section 2 and appendix A.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ov1::media::tiff
{

/// Bytes of a directory entry: tag and type of two bytes each, number of values and value (or its offset) of four each.
inline constexpr std::size_t entry_size = 12;

inline constexpr std::uint32_t bits_tag = 258;
inline constexpr std::uint32_t compression_tag = 259;
inline constexpr std::uint32_t photometric_tag = 262;
inline constexpr std::uint32_t orientation_tag = 274;
inline constexpr std::uint32_t tile_width_tag = 322;
inline constexpr std::uint32_t extra_samples_tag = 338; ///< the kind of alpha
inline constexpr std::uint32_t sample_format_tag = 339;
inline constexpr std::uint32_t reference_tag = 532; ///< codes of black and white
inline constexpr std::uint32_t exif_tag = 34665;    ///< the offset of the camera's data
inline constexpr std::uint32_t icc_tag = 34675;     ///< the colour profile

/// The value of extra_samples_tag for premultiplied alpha.
inline constexpr std::uint32_t associated_alpha = 1;

} // namespace ov1::media::tiff
