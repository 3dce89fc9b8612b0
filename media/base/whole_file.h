// All bytes of a file.
#pragma once

#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace ov1::media
{

/// Owns a file's bytes; move only. They are followed by zeros, as many as libav may read beyond an end.
class whole_file
{
public:
    /// Fails for a missing, unreadable, empty or too large file (2 GiB and beyond) and for a folder.
    static result<whole_file> read(const std::string& path);

    /// Valid until release or the end of the object.
    std::span<const std::uint8_t> bytes() const { return {data.get(), count}; }

    /// Gives up the bytes with their zeros; the caller frees them with delete[]. The file is empty then.
    std::uint8_t* release()
    {
        count = 0;
        return data.release();
    }

private:
    std::unique_ptr<std::uint8_t[]> data;
    std::size_t count = 0;
};

} // namespace ov1::media
