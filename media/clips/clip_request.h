// The request for a graded clip; whatever it leaves open follows the source.
#pragma once

#include "media/stills/still_info.h"

#include <optional>
#include <string>

namespace ov1::media
{

enum class range_choice
{
    automatic, ///< as the stream is tagged; limited without a tag
    full,
    limited,
};

enum class matrix_choice
{
    automatic, ///< as the stream is tagged; by its size without a tag
    bt601,
    bt709,
    bt2020,
};

struct clip_request
{
    std::string codec = {};          ///< "h264", "prores_hq", ...; if empty, the source's
    std::optional<int> quality = {}; ///< 1..100, for codecs that have one
    std::optional<media::depth> depth = {};
    std::string pixel_format = {};                   ///< libav's name
    range_choice range = range_choice::automatic;    ///< overrides the stream's tag, in input and output
    matrix_choice matrix = matrix_choice::automatic; ///< overrides the stream's tag, in input and output
    unsigned int threads = 0;                        ///< of decoder and encoder; 0 for all processors
};

} // namespace ov1::media
