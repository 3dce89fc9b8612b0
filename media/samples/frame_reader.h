// Rows of colours out of a frame of any supported form: for stills, single frames and previews.
#pragma once

#include "media/base/libav.h"
#include "media/samples/frame_form.h"
#include "media/samples/object_pool.h"
#include "shared/argb_float.h"

#include <array>
#include <cstddef>

namespace ov1::media
{

/// Colours are the same that a frame_grader takes from the same frame, to rounding: RGB, grey and alpha are rounded
/// once (the float nearest to code / largest code). Integers of any family are limited to 0..1, floats are as stored.
/// Grey is repeated in red, green and blue; alpha is 1 where there is none.
class frame_reader
{
public:
    /// Owns the frame, which has this form.
    frame_reader(frame_ptr frame, const frame_form& form);
    ~frame_reader();

    /// A rectangle within the frame, row after row without gaps. Any number of threads may read.
    void read(std::size_t x, std::size_t y, std::size_t width, std::size_t height, argb_float* out) const;

private:
    struct worker;

    /// One row of the frame; the worker is the calling thread's.
    void read_row(worker& own, std::size_t x, std::size_t y, std::size_t width, argb_float* out) const;

    frame_ptr frame;
    frame_form form;
    bool in_fields; ///< the frame is interlaced and its fields are read as two pictures
    mutable object_pool<worker> workers;
};

} // namespace ov1::media
