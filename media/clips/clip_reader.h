// Single frames of a clip, as pictures.
#pragma once

#include "media/clips/clip_info.h"
#include "media/clips/clip_request.h"
#include "media/stills/still_reader.h"
#include "shared/result.h"

#include <cstdint>
#include <memory>
#include <string>

namespace ov1::media
{

class clip_source;

/// For previews and for frames that are written as pictures. Their colours are those of the graded clip. One thread at
/// a time.
class clip_reader
{
public:
    clip_reader();
    ~clip_reader();
    clip_reader(clip_reader&&) noexcept;
    clip_reader& operator=(clip_reader&&) noexcept;

    /// Uses range, matrix and threads of the request. Fails for files that are no clips, and for pixel formats and
    /// colour matrices that are not supported; after a failure the former clip is still open.
    result<> open(const std::string& path, const clip_request& request);

    const clip_info& info() const;

    /// The frame with an index from 0 on, upright; the last one for an index beyond. Where the frame rate varies, it is
    /// the frame shown at the time index / mean rate. Consecutive frames are read without seeking. Fails where nothing
    /// can be decoded there.
    result<still_reader> read_frame(std::uint64_t index);

    /// The frame after the one that was read last, at first the first one; false at the end. Damage in between is
    /// appended to damages.
    [[nodiscard]] bool read_next(still_reader& picture, std::vector<clip_damage>& damages);

private:
    struct state;
    std::unique_ptr<state> opened;
};

} // namespace ov1::media
