// Facts in the header of a picture that libav's decoder does not report.
#pragma once

#include "media/stills/still_info.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ov1::media
{

struct picture_facts
{
    unsigned orientation = 1; ///< 1..8
    bool has_exif = false;
    bool premultiplied = false; ///< alpha, if there is one, is associated
    bool half_float = false;    ///< samples are stored as half floats
    bool truncated = false;     ///< the file ends before the picture does
    std::optional<media::transfer> transfer;
    bool full_range = false; ///< YCbCr without a range tag uses all codes
    std::vector<std::uint8_t> png_color;
    std::uint16_t dpx_transfer = 0;
    std::string refusal;               ///< why libav would decode the picture wrongly; empty if it would not
    std::vector<std::string> warnings; ///< parts of the file that are ignored
};

// Each reads a whole file of its format. Damaged files give fewer facts, never an error.

/// Exif orientation, animation, colour chunks. Source: W3C Portable Network Graphics, third edition.
picture_facts png_facts(std::span<const std::uint8_t> file);
/// Exif orientation, number of components, end of image. Source: ITU-T T.81, Annex B; Exif 2.3, 4.7.2.
picture_facts jpeg_facts(std::span<const std::uint8_t> file);
/// Orientation, kind of alpha, kind of samples, pages. Source: TIFF 6.0.
picture_facts tiff_facts(std::span<const std::uint8_t> file);
/// Half or float, channels, windows. Source: OpenEXR file layout.
picture_facts exr_facts(std::span<const std::uint8_t> file);
/// Transfer and colorimetric bytes. Source: SMPTE ST 268, image information header.
picture_facts dpx_facts(std::span<const std::uint8_t> file);

/// The orientation in an Exif block, which is laid out as a TIFF file; 1 if it names none.
unsigned exif_orientation(std::span<const std::uint8_t> exif);

} // namespace ov1::media
