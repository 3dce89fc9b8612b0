// Rows of floats between a frame's codes and a grade.
#pragma once

#include "media/samples/sample_kernel.h"
#include "media/samples/ycbcr_kernel.h"
#include "shared/rgb_planes.h"

#include <algorithm>
#include <cstddef>
#include <memory>

namespace ov1::media
{

/// A row of floats between two margins (sample_kernel.h). The row itself is not initialised.
class float_row
{
public:
    explicit float_row(std::size_t count)
        : values(std::make_unique_for_overwrite<float[]>(count + 2 * sample_kernel::margin))
    {
        std::fill_n(get() + count, sample_kernel::margin, 0.0f); // whole vectors are read
    }

    /// The first sample; the margins lie before it and after the last one.
    float* get() { return values.get() + sample_kernel::margin; }

    /// Repeats the outermost samples in the margins, as far as any loop reads there.
    void extend(std::size_t count)
    {
        get()[-1] = get()[0];
        get()[count] = get()[count - 1];
    }

private:
    std::unique_ptr<float[]> values;
};

/// A row of both chroma planes, -0.5..0.5.
struct chroma_rows
{
    explicit chroma_rows(std::size_t count)
        : cb(count)
        , cr(count)
    {
    }

    float_row cb;
    float_row cr;
};

/// Red, green and blue of a row; while it is encoded Cr, Y and Cb. Not limited to 0..1.
struct colour_rows
{
    explicit colour_rows(std::size_t count)
        : red(count)
        , green(count)
        , blue(count)
    {
    }

    /// The three planes from pixel x on.
    rgb_planes<float> from(std::size_t x) { return {red.get() + x, green.get() + x, blue.get() + x}; }

    float_row red, green, blue;
};

/// A row of pixels in one of two arrangements: in order, or as pairs, those at even places apart from those at odd
/// ones (frame_form::has_pairs).
struct pixel_rows
{
    /// For rows of up to width pixels, in either arrangement.
    explicit pixel_rows(std::size_t width)
        : in_order(width)
        , even((width + 1) / 2)
        , odd((width + 1) / 2)
    {
    }

    /// From an even x on.
    ycbcr_kernel::pixel_pairs pairs(std::size_t x) { return {even.from(x / 2), odd.from(x / 2)}; }

    /// Rearranges count pixels from an even x on, from pairs to order and back; the source stays as it is.
    void join_pairs(std::size_t x, std::size_t count)
    {
        for (const auto plane : {&colour_rows::red, &colour_rows::green, &colour_rows::blue})
            sample_kernel::join((even.*plane).get() + x / 2, (odd.*plane).get() + x / 2, (count + 1) / 2,
                                (in_order.*plane).get() + x);
    }
    void split_pairs(std::size_t x, std::size_t count)
    {
        for (const auto plane : {&colour_rows::red, &colour_rows::green, &colour_rows::blue})
            sample_kernel::split((in_order.*plane).get() + x, (count + 1) / 2, (even.*plane).get() + x / 2,
                                 (odd.*plane).get() + x / 2);
    }

    colour_rows in_order;  ///< pixel x at index x
    colour_rows even, odd; ///< pixel x at index x / 2 of one of them
};

} // namespace ov1::media
