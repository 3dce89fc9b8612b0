// What libav's encoders write otherwise than the picture is, put right in the encoded bytes.
#pragma once

#include "media/stills/still_info.h"

#include <cstdint>
#include <vector>

namespace ov1::media
{

/// TIFF: alpha is marked associated if it is, the compression gets its standard number, and
/// the colour profile is added where libav leaves it out. DPX: the transfer is the
/// source's, or video. PNG: the source's colour chunks are put in. Other formats are left alone.
void fix_encoded(std::vector<std::uint8_t>& file, const still_info& info);

} // namespace ov1::media
