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

/// For previews and for frames that become pictures. One thread at a time.
class clip_reader
{
public:
    clip_reader();
    ~clip_reader();
    clip_reader(clip_reader&&) noexcept;
    clip_reader& operator=(clip_reader&&) noexcept;

    /// Of the request, range, matrix and threads matter. Fails for what is no clip, or of a form that is not read.
    result<> open(const std::string& path, const clip_request& request);

    const clip_info& info() const;

    /// The frame with an index from 0 on, upright; of a clip whose rate varies the one that is shown at index divided
    /// by the mean rate, and the last one for an index beyond. Frames one after the other are read without searching.
    /// Fails where nothing can be decoded there.
    result<still_reader> read_frame(std::uint64_t index);

    /// The frame after the last one that was read, the first one after opening; false at the end. Damage on the way is
    /// added.
    [[nodiscard]] bool read_next(still_reader& picture, std::vector<clip_damage>& damages);

private:
    struct state;
    std::unique_ptr<state> opened;
};

} // namespace ov1::media
