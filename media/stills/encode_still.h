// Encodes a picture whose rows are computed one after the other.
#pragma once

#include "media/stills/still_info.h"
#include "shared/argb_float.h"
#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ov1::media
{

/// Returns the code values of rows first..first + count - 1, without padding between them. They must stay valid until
/// the next call.
using row_source = std::function<const argb_float*(std::size_t first, std::size_t count)>;

/// Encodes a picture like `info` with the default settings of still_writer, in the format of the path's extension; no
/// file is opened. The rows are asked for on this thread, in ascending order, at most still_writer::row_multiple at
/// once. Failures have no subject.
result<std::vector<std::uint8_t>> encode_still(const std::string& path, const still_info& info, const row_source& rows);

} // namespace ov1::media
