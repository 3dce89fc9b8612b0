// Reads picture files for the simulated host and writes its rendered pictures.
#pragma once

#include "host/simulator/rgba_picture.h"
#include "media/stills/still_reader.h"
#include "shared/result.h"

#include <string>

namespace ov1
{

/// A decoded file. The picture has the code values as stored, also of linear files: the host passes them on unchanged.
struct picture_file
{
    media::still_reader reader; ///< keeps format and metadata for write_picture
    rgba_picture picture;       ///< of the reader's size
};

/// Failures have the path as their subject.
result<picture_file> read_picture(const std::string& path);

/// Writes a picture in the format and with the metadata of the file that was read. Alpha comes from that file: the
/// effect declares that it preserves alpha, so the host does not use the effect's. Fails for an existing file unless
/// `overwrite` is set.
result<> write_picture(const std::string& path, const picture_file& like, const rgba_picture& picture, bool overwrite);

} // namespace ov1
