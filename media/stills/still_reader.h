// A still picture, decoded, and its rows as floats.
#pragma once

#include "media/stills/still_info.h"
#include "shared/argb_float.h"
#include "shared/result.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ov1::media
{

class frame_reader;

/// Keeps the decoded picture in the layout that the decoder gave it; rows of floats are made piece by piece.
class still_reader
{
public:
    still_reader();
    ~still_reader();
    still_reader(still_reader&&) noexcept;
    still_reader& operator=(still_reader&&) noexcept;

    /// Reads and decodes a whole file. Its content tells the format (its name for TGA, which has no signature). Fails
    /// for clips, for pictures whose decoded colours would be wrong, and for truncated or damaged files, even where
    /// part of the picture could be decoded. After a failure the former picture is still open.
    result<> open(const std::string& path);

    /// Makes a frame of a clip the picture.
    void take(std::unique_ptr<frame_reader> new_frame, still_info known);

    const still_info& info() const { return description; }

    /// One line for each part of the file that is ignored, such as further pages.
    const std::vector<std::string>& warnings() const { return notes; }

    /// Rows of the upright picture as stored code values: integers divided by their largest code, floats as they are,
    /// YCbCr as red, green and blue within 0..1, alpha straight or premultiplied as the info says, 1 where there is
    /// none. Any number of threads may read.
    void read_rows(std::size_t first, std::size_t count, argb_float* out) const;

private:
    void read_turned_rows(std::size_t first, std::size_t count, argb_float* out) const;

    std::unique_ptr<frame_reader> frame;
    still_info description;
    std::vector<std::string> notes;
};

} // namespace ov1::media
