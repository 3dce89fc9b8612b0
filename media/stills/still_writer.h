// A still picture in the making, from rows of floats to the bytes of a file.
#pragma once

#include "media/stills/still_info.h"
#include "shared/argb_float.h"
#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct AVFrame;

namespace ov1::media
{

/// Which transfer the input is taken to have, and the output given.
enum class transfer_choice
{
    automatic, ///< as the input is tagged; the output as its format is read elsewhere: EXR linear, others display
    none,      ///< code values pass as they are
    linear,    ///< input and output are linear, whatever they are tagged
};

struct write_request
{
    std::optional<media::depth> depth = {}; ///< the source's, or the one that loses least, if it is left open
    std::optional<int> quality = {};        ///< 1..100, JPEG alone; 95 if it is left open
    std::string pixel_format = {};          ///< libav's name; the format's usual one if it is empty
    std::vector<std::pair<std::string, std::string>> options = {}; ///< of libav's encoder, over our own choice
    transfer_choice transfer = transfer_choice::automatic;
};

class still_writer
{
public:
    /// First rows of write_rows are multiples of this.
    static constexpr std::size_t row_multiple = 2;

    still_writer();
    ~still_writer();
    still_writer(still_writer&&) noexcept;
    still_writer& operator=(still_writer&&) noexcept;

    /// Prepares a picture like the source, in the format of the name's extension. Fails if the format cannot hold what
    /// is asked for. Touches no file.
    result<> create(const std::string& path, const still_info& source, const write_request& request);

    /// What is written: its depth, alpha and transfer say what write_rows takes.
    const still_info& info() const { return description; }

    /// What the format or its encoder cannot carry, on one line; empty if all of the source is kept.
    const std::string& warning() const { return left_out; }

    /// Code values of whole rows, alpha straight or premultiplied as the info says. Integers are limited to 0..1 and
    /// rounded to the nearest. Any number of threads may write, each its own rows, beginning at a multiple of
    /// row_multiple.
    void write_rows(std::size_t first, std::size_t count, const argb_float* in);

    /// Encodes the picture; the bytes are the same for the same picture. The writer is then used up.
    result<std::vector<std::uint8_t>> finish();

private:
    struct frame_deleter
    {
        void operator()(AVFrame* f) const;
    };

    std::unique_ptr<AVFrame, frame_deleter> frame;
    still_info description;
    write_request asked;
    std::string left_out;
};

} // namespace ov1::media
