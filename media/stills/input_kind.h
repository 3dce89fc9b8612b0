// Whether a file is a still picture or a clip.
#pragma once

#include <string>

namespace ov1::media
{

enum class input_kind
{
    still, ///< or unknown: still_reader then gives the reason
    clip,
};

/// By the first bytes of the file.
input_kind input_kind_of(const std::string& path);

/// Whether a file can be read as either; selects the files of a folder.
bool is_media_file(const std::string& path);

} // namespace ov1::media
