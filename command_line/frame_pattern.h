// Names of numbered frames, such as "shot.%04d.exr", and ranges of frames.
#pragma once

#include "shared/result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// A path with a frame number in its last part, written as for printf: %d, or %04d for at least four digits.
struct frame_pattern
{
    std::string before; ///< the number, with the folder
    std::string after;
    /// The least number of digits, 1 to 9.
    std::size_t digits = 1;

    /// Pads with zeros to the given digits; a longer number is written in full. The frame must not be negative.
    std::string name_of(int frame) const;
};

/// Empty where the last part of the path holds no "%d", or more than one.
std::optional<frame_pattern> find_frame_pattern(std::string_view path);

/// The numbers of the frames that exist as files, in ascending order.
/// Only names that name_of could have written count, so "shot.07.exr" does not belong to "shot.%d.exr". A folder that
/// cannot be read gives no frames.
std::vector<int> existing_frames(const frame_pattern& pattern);

/// First and last frame, both included.
struct frame_range
{
    int first = 0;
    int last = 0;
};

/// "101-200", or "7" for a single frame.
/// Numbers run from 0 to 99999999, and the last is not below the first. The failure has no subject.
result<frame_range> read_frame_range(std::string_view text);

} // namespace ov1
