// Writes a still picture: rows of floats become the bytes of a file.
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

class frame_writer;

/// Which transfer the input is taken to have, and the output given.
enum class transfer_choice
{
    automatic, ///< the input as it is tagged; the output as other programs expect its format: EXR linear, others
               ///< display
    none,      ///< code values are kept as they are
    linear,    ///< input and output are linear, whatever the tags
};

struct write_request
{
    std::optional<media::depth> depth = {}; ///< else the source's, or the one that loses least
    std::optional<int> quality = {};        ///< 1..100, for JPEG only; else 95
    std::string pixel_format = {};          ///< libav's name; if empty, the usual one of the format
    std::vector<std::pair<std::string, std::string>> options = {}; ///< of libav's encoder; they override our own
    transfer_choice transfer = transfer_choice::automatic;
};

/// Holds a whole frame between create and finish.
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
    /// is requested. Opens no file.
    result<> create(const std::string& path, const still_info& source, const write_request& request);

    /// What is written: its depth, alpha and transfer say what write_rows takes.
    const still_info& info() const { return description; }

    /// What the format or its encoder cannot store, in one line; empty if all of the source is kept.
    const std::string& warning() const { return left_out; }

    /// Code values of whole rows, alpha straight or premultiplied as the info says. Integers are limited to 0..1 and
    /// rounded to the nearest. Any number of threads may write, each its own rows, from a multiple of row_multiple on.
    void write_rows(std::size_t first, std::size_t count, const argb_float* in);

    /// Encodes the picture; the same picture always gives the same bytes. The writer cannot be used again.
    result<std::vector<std::uint8_t>> finish();

private:
    struct frame_deleter
    {
        void operator()(AVFrame* f) const;
    };

    std::unique_ptr<AVFrame, frame_deleter> frame;
    std::unique_ptr<frame_writer> rows; ///< into the frame
    still_info description;
    write_request asked;
    std::string left_out;
};

} // namespace ov1::media
