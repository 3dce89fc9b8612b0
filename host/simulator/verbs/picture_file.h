// Picture files as the simulated host's pictures, and back.
#pragma once

#include "host/simulator/rgba_picture.h"
#include "media/stills/still_reader.h"
#include "shared/result.h"

#include <string>

namespace ov1
{

/// A picture file with its code values as stored, linear ones and all: the host hands them on as they are.
struct picture_file
{
    media::still_reader reader;
    rgba_picture picture;
};

result<picture_file> read_picture(const std::string& path);

/// Writes a picture like the one that was read, with that one's alpha: the effect says that it leaves alpha alone, so
/// the host does not take the effect's.
result<> write_picture(const std::string& path, const picture_file& like, const rgba_picture& picture, bool overwrite);

} // namespace ov1
