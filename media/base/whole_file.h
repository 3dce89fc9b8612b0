// The bytes of a file, all at once.
#pragma once

#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace ov1::media
{

/// Owns a file's bytes. Behind them lie zeros, as many as libav may read beyond an end.
class whole_file
{
public:
    /// Fails for a missing, unreadable, empty or too large file (2 GiB and beyond) and for a folder.
    static result<whole_file> read(const std::string& path);

    std::span<const std::uint8_t> bytes() const { return {data.get(), count}; }

    /// Hands the bytes over, zeros included, to be freed with delete[]; the file is empty then.
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
