// Rows of colours into the frame that a still encoder takes.
#pragma once

#include "media/samples/frame_form.h"
#include "media/samples/object_pool.h"
#include "shared/argb_float.h"

#include <cstddef>

namespace ov1::media
{

/// Integers are limited to 0..1 and rounded to the nearest code, a NaN is 0; floats are stored as they are, or rounded
/// to the nearest half float. Alpha is written where the form has it.
class frame_writer
{
public:
    /// First rows of write are multiples of this: no two calls then share a chroma sample.
    static constexpr std::size_t row_multiple = 2;

    /// The frame outlives the writer. Its form can be written (frame_form.h): RGB of all codes or floats, or YCbCr
    /// whose chroma samples do not lie on rows.
    frame_writer(AVFrame& frame, const frame_form& form, bool rounds_to_half = false);
    ~frame_writer();

    /// Whole rows, without gaps, from row first on, which is a multiple of row_multiple; only the last call's count may
    /// be odd. Any number of threads may write, each its own rows.
    void write(std::size_t first, std::size_t count, const argb_float* in);

private:
    struct worker;

    AVFrame& frame;
    frame_form form;
    bool rounds_to_half; ///< floats are stored as half floats by the encoder
    object_pool<worker> workers;
};

} // namespace ov1::media
