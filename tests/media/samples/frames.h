// Frames for tests: made in memory, their codes set and read by libav's own accessor.
#pragma once

#include "media/base/libav.h"
#include "media/samples/frame_form.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace ov1::media
{

inline frame_ptr new_frame(AVPixelFormat pixels, int width, int height)
{
    frame_ptr frame(av_frame_alloc());
    frame->format = pixels;
    frame->width = width;
    frame->height = height;
    EXPECT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
    for (int i = 0; i < AV_NUM_DATA_POINTERS && frame->buf[i] != nullptr; ++i)
        std::fill_n(frame->buf[i]->data, frame->buf[i]->size, std::uint8_t{0}); // codes are added to what is there
    return frame;
}

inline frame_form form(AVPixelFormat pixels, const colour_tags& tags = {}, int width = 64, int height = 64)
{
    const auto made = form_of(pixels, tags, width, height);
    EXPECT_TRUE(made) << made.error().reason;
    return *made;
}

inline std::vector<std::uint16_t> codes_of(const AVFrame& frame, int component, int y, int width)
{
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    std::vector<std::uint16_t> codes(static_cast<std::size_t>(width));
    av_read_image_line(codes.data(), const_cast<const std::uint8_t**>(frame.data), frame.linesize, format, 0, y,
                       component, width, 0);
    return codes;
}

inline void set_codes(AVFrame& frame, int component, int y, const std::vector<std::uint16_t>& codes)
{
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    av_write_image_line(codes.data(), frame.data, frame.linesize, format, 0, y, component,
                        static_cast<int>(codes.size()));
}

struct component_size
{
    int width;
    int height;
};

inline component_size size_of(const AVFrame& frame, const frame_form& form, int component)
{
    const bool is_chroma = form.family == colour_family::ycbcr && (component == 1 || component == 2);
    return is_chroma ? component_size{static_cast<int>(form.across.samples(frame.width)),
                                      static_cast<int>(form.down.samples(frame.height))}
                     : component_size{frame.width, frame.height};
}

inline int components_of(const frame_form& form)
{
    return (form.family == colour_family::gray ? 1 : 3) + (form.has_alpha ? 1 : 0);
}

/// Sets every code at random; luma and chroma so far from the ends that their colours lie within red, green and blue
/// of 0..1.
inline void fill(AVFrame& frame, const frame_form& form, unsigned seed)
{
    std::mt19937 engine(seed);
    const double unit = std::ldexp(1, form.bits - 8);
    for (int c = 0; c < components_of(form); ++c)
    {
        const bool is_chroma = form.family == colour_family::ycbcr && (c == 1 || c == 2);
        std::uniform_int_distribution<int> code(static_cast<int>((is_chroma ? 104 : 72) * unit),
                                                static_cast<int>((is_chroma ? 152 : 184) * unit));
        const auto [width, height] = size_of(frame, form, c);
        for (int y = 0; y < height; ++y)
        {
            std::vector<std::uint16_t> row(static_cast<std::size_t>(width));
            for (auto& value : row)
                value = static_cast<std::uint16_t>(code(engine));
            set_codes(frame, c, y, row);
        }
    }
}

} // namespace ov1::media
