// Pictures for tests: made in memory, written to a folder of their own, read back.
#pragma once

#include "media/stills/still_reader.h"
#include "media/stills/still_writer.h"

#include "support/temp_folder.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace ov1::media
{

using file_bytes = std::vector<std::uint8_t>;
using rows = std::vector<argb_float>;

inline still_info picture_info(std::size_t width, std::size_t height, depth d, alpha_kind alpha = alpha_kind::none)
{
    still_info info;
    info.width = width;
    info.height = height;
    info.depth = d;
    info.alpha = alpha;
    return info;
}

/// Why something failed; empty if it did not.
template <typename T>
std::string reason_of(const result<T>& outcome)
{
    return outcome ? std::string() : outcome.error().reason;
}

/// The bytes of a picture whose samples are stored as given.
inline file_bytes encoded(const std::string& name, const still_info& info, const rows& pixels,
                          write_request request = {.transfer = transfer_choice::none})
{
    still_writer writer;
    const auto created = writer.create(name, info, request);
    EXPECT_TRUE(created) << reason_of(created);
    writer.write_rows(0, info.height, pixels.data());
    auto bytes = writer.finish();
    EXPECT_TRUE(bytes) << reason_of(bytes);
    return std::move(*bytes);
}

/// A test with a folder that goes with it.
class media_test : public testing::Test
{
protected:
    std::string save(const std::string& name, const file_bytes& bytes) const
    {
        std::filesystem::remove(folder / name); // some file systems flush a file that is written anew
        return folder.with_file(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }

    /// Saves and opens a file, which must succeed.
    still_reader opened(const std::string& name, const file_bytes& bytes) const
    {
        still_reader reader;
        const auto read = reader.open(save(name, bytes));
        EXPECT_TRUE(read) << reason_of(read);
        return reader;
    }
    still_reader stored(const std::string& name, const still_info& info, const rows& pixels) const
    {
        return opened(name, encoded(name, info, pixels));
    }

    temp_folder folder;
};

inline rows all_rows(const still_reader& reader)
{
    rows pixels(reader.info().width * reader.info().height);
    reader.read_rows(0, reader.info().height, pixels.data());
    return pixels;
}

/// Different values in every channel; without alpha it is 1.
template <typename value>
rows random_rows(std::size_t count, bool with_alpha, value&& next)
{
    rows pixels(count);
    for (argb_float& c : pixels)
        c = {with_alpha ? next() : 1.0f, next(), next(), next()};
    return pixels;
}

} // namespace ov1::media
