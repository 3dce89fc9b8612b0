#include "media/samples/pack_rows.h"

#include "media/samples/sample_access.h"

#include <cassert>

namespace ov1::media
{

namespace
{

constexpr float kr = 0.299f, kg = 0.587f, kb = 0.114f; // BT.601

template <typename T>
void store(std::uint8_t* to, T value)
{
    std::memcpy(to, &value, sizeof value);
}

/// Limited and rounded; the comparison sends NaN to 0.
std::uint32_t code_of(float value, float largest)
{
    const float limited = value > 0.0f ? std::min(value, 1.0f) : 0.0f;
    return static_cast<std::uint32_t>(limited * largest + 0.5f);
}

std::uint8_t* row_of(AVFrame& frame, int plane, std::size_t y)
{
    return frame.data[plane] + static_cast<std::ptrdiff_t>(y) * frame.linesize[plane];
}

/// One component of a row, from every stride-th float.
void scatter(const sample_layout& layout, std::uint8_t* to, std::size_t count, const float* in, std::size_t stride)
{
    const auto step = static_cast<std::size_t>(layout.step);
    const auto largest = static_cast<float>(layout.mask());
    assert(layout.shift == 0);
    if (layout.is_float)
        for (std::size_t i = 0; i < count; ++i)
        {
            const auto bits = std::bit_cast<std::uint32_t>(in[i * stride]);
            store(to + i * step, layout.swap ? swapped(bits) : bits);
        }
    else if (layout.bytes == 1)
        for (std::size_t i = 0; i < count; ++i)
            to[i * step] = static_cast<std::uint8_t>(code_of(in[i * stride], largest));
    else
        for (std::size_t i = 0; i < count; ++i)
        {
            const auto code = static_cast<std::uint16_t>(code_of(in[i * stride], largest));
            store(to + i * step, layout.swap ? swapped(code) : code);
        }
}

void pack_rgb_row(AVFrame& frame, const AVPixFmtDescriptor& format, std::size_t y, const argb_float* in)
{
    const auto put = [&](int component, const float* first)
    {
        const sample_layout layout = layout_of(format, component);
        scatter(layout, row_of(frame, layout.plane, y) + layout.offset, static_cast<std::size_t>(frame.width), first,
                sizeof(argb_float) / sizeof(float));
    };
    put(0, &in->r);
    put(1, &in->g);
    put(2, &in->b);
    if (format.nb_components == 4)
        put(3, &in->a);
}

float limited(float value) { return value > 0.0f ? std::min(value, 1.0f) : 0.0f; }

float luma_of(const argb_float& c) { return kr * limited(c.r) + kg * limited(c.g) + kb * limited(c.b); }

void pack_luma_row(AVFrame& frame, std::size_t y, const argb_float* in)
{
    std::uint8_t* to = row_of(frame, 0, y);
    for (std::size_t x = 0; x < static_cast<std::size_t>(frame.width); ++x)
        to[x] = static_cast<std::uint8_t>(code_of(luma_of(in[x]), 255.0f));
}

/// One row of both chroma planes from so many rows of pixels.
void pack_chroma_row(AVFrame& frame, std::size_t chroma_y, std::size_t block_width, std::size_t rows,
                     const argb_float* in)
{
    const auto width = static_cast<std::size_t>(frame.width);
    std::uint8_t* u = row_of(frame, 1, chroma_y);
    std::uint8_t* v = row_of(frame, 2, chroma_y);
    for (std::size_t left = 0; left < width; left += block_width)
    {
        const std::size_t columns = std::min(block_width, width - left);
        float luma = 0, red = 0, blue = 0;
        for (std::size_t y = 0; y < rows; ++y)
            for (std::size_t x = left; x < left + columns; ++x)
            {
                const argb_float& c = in[y * width + x];
                luma += luma_of(c);
                red += limited(c.r);
                blue += limited(c.b);
            }
        const float pixels = static_cast<float>(columns * rows);
        constexpr float zero = 128.0f / 255.0f;
        *u++ = static_cast<std::uint8_t>(code_of((blue - luma) / pixels / (2 * (1 - kb)) + zero, 255.0f));
        *v++ = static_cast<std::uint8_t>(code_of((red - luma) / pixels / (2 * (1 - kr)) + zero, 255.0f));
    }
}

} // namespace

void pack_rows(AVFrame& frame, std::size_t first, std::size_t rows, const argb_float* in)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const auto width = static_cast<std::size_t>(frame.width);
    const bool rgb = (format.flags & AV_PIX_FMT_FLAG_RGB) != 0;
    assert(first % pack_row_multiple == 0);
    for (std::size_t y = 0; y < rows; ++y)
        if (rgb)
            pack_rgb_row(frame, format, first + y, in + y * width);
        else
            pack_luma_row(frame, first + y, in + y * width);
    if (rgb)
        return;
    const std::size_t block_width = std::size_t{1} << format.log2_chroma_w;
    const std::size_t block_height = std::size_t{1} << format.log2_chroma_h;
    for (std::size_t y = 0; y < rows; y += block_height)
        pack_chroma_row(frame, (first + y) >> format.log2_chroma_h, block_width, std::min(block_height, rows - y),
                        in + y * width);
}

} // namespace ov1::media
