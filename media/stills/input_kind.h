// Whether a file is to be taken for a still picture or for a clip.
#pragma once

#include <string>

namespace ov1::media
{

enum class input_kind
{
    still, ///< or nothing that is known: the still's reader then says what is wrong
    clip,
};

/// Told by the first bytes.
input_kind input_kind_of(const std::string& path);

/// Whether a file holds something that is read, for choosing the files of a folder.
bool is_media_file(const std::string& path);

} // namespace ov1::media
