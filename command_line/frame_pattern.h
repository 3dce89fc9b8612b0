// Names of numbered pictures: "shot.%04d.exr", and which of them are meant.
#pragma once

#include "shared/result.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// A path with a number in its last part, as printf writes it: %d, or %04d for four digits at least.
struct frame_pattern
{
    std::string before; ///< of the whole path
    std::string after;
    std::size_t digits = 1;

    std::string name_of(int frame) const;
};

/// Nothing if there is no "%d" in the last part of the path, or more than one.
std::optional<frame_pattern> find_frame_pattern(std::string_view path);

/// The frames that exist as files, in order.
std::vector<int> existing_frames(const frame_pattern& pattern);

/// Both included.
struct frame_range
{
    int first = 0;
    int last = 0;
};

/// "101-200" or "7".
result<frame_range> read_frame_range(std::string_view text);

} // namespace ov1
