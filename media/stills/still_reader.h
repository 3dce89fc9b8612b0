// A still picture, decoded, and its rows as floats.
#pragma once

#include "media/stills/still_info.h"
#include "shared/argb_float.h"
#include "shared/result.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

struct AVFrame;

namespace ov1::media
{

/// Keeps the decoded picture in the layout the decoder gave it, so that rows of floats are made piece by piece.
class still_reader
{
public:
    still_reader();
    ~still_reader();
    still_reader(still_reader&&) noexcept;
    still_reader& operator=(still_reader&&) noexcept;

    /// Reads and decodes a file whole. The format is told by the content (by the name for TGA, which has no mark).
    /// Fails for clips, for pictures whose decoded colours would be wrong, and for truncated or damaged files: no part
    /// of a picture is ever given for the whole. What was open before is then still open.
    result<> open(const std::string& path);

    /// Takes over a frame of a clip and what is known of it, in a layout that can be unpacked.
    void take(AVFrame* decoded, still_info known);

    const still_info& info() const { return description; }

    /// One line for each thing in the file that is left out, such as further pages.
    const std::vector<std::string>& warnings() const { return notes; }

    /// Rows of the upright picture as stored code values: integers divided by their largest code, floats as they are,
    /// alpha straight or premultiplied as the info says, 1 where there is none. Any number of threads may read.
    void read_rows(std::size_t first, std::size_t count, argb_float* out) const;

private:
    struct frame_deleter
    {
        void operator()(AVFrame* f) const;
    };

    std::unique_ptr<AVFrame, frame_deleter> frame;
    still_info description;
    std::vector<std::string> notes;
};

} // namespace ov1::media
