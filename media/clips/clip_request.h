// What is asked of a graded clip; what is left open follows the source.
#pragma once

#include "media/stills/still_info.h"

#include <optional>
#include <string>

namespace ov1::media
{

enum class range_choice
{
    automatic, ///< as the stream says; limited, if it does not
    full,
    limited,
};

enum class matrix_choice
{
    automatic, ///< as the stream says; by its size, if it does not
    bt601,
    bt709,
    bt2020,
};

struct clip_request
{
    std::string codec = {};          ///< "h264", "prores_hq", ...; the source's if it is empty
    std::optional<int> quality = {}; ///< 1..100, of codecs that have one
    std::optional<media::depth> depth = {};
    std::string pixel_format = {};                   ///< libav's name
    range_choice range = range_choice::automatic;    ///< in place of the stream's tag, in and out
    matrix_choice matrix = matrix_choice::automatic; ///< in place of the stream's tag, in and out
    unsigned int threads = 0;                        ///< of decoder and encoder; 0 for all processors
};

} // namespace ov1::media
