// Corrects in the encoded bytes what libav's encoders write wrongly or leave out.
#pragma once

#include "media/stills/still_info.h"

#include <cstdint>
#include <vector>

namespace ov1::media
{

/// TIFF: the kind of alpha, the standard number of the compression, and the colour profile where libav leaves it out.
/// DPX: the source's transfer, or video. PNG: the source's colour chunks. Other formats are unchanged.
void fix_encoded(std::vector<std::uint8_t>& file, const still_info& info);

} // namespace ov1::media
