#include "media/samples/unpack_span.h"

#include "media/samples/sample_access.h"

#include <array>

namespace ov1::media
{

namespace
{

constexpr std::size_t chunk = 128; // pixels whose chroma is interpolated at once, on the stack

const std::uint8_t* row_of(const AVFrame& frame, int plane, std::size_t y)
{
    return frame.data[plane] + static_cast<std::ptrdiff_t>(y) * frame.linesize[plane];
}

/// One component of a span as code values, into every stride-th float.
void gather(const AVFrame& frame, const sample_layout& layout, std::size_t x, std::size_t y, std::size_t count,
            float* out, std::size_t stride)
{
    const std::uint8_t* from =
        row_of(frame, layout.plane, y) + x * static_cast<std::size_t>(layout.step) + layout.offset;
    if (layout.is_float)
        return each_code(layout, from, count,
                         [=](std::size_t i, std::uint32_t code) { out[i * stride] = std::bit_cast<float>(code); });
    const double scale = 1.0 / layout.mask(); // in double the product rounds to the same float as the quotient
    each_code(layout, from, count,
              [=](std::size_t i, std::uint32_t code) { out[i * stride] = static_cast<float>(code * scale); });
}

void unpack_palette(const AVFrame& frame, std::size_t x, std::size_t y, std::size_t count, argb_float* out)
{
    const std::uint8_t* index = row_of(frame, 0, y) + x;
    const auto channel = [](std::uint32_t color, int shift)
    { return static_cast<float>((color >> shift & 255) * (1.0 / 255)); };
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto color = load<std::uint32_t>(frame.data[1] + std::size_t{4} * index[i]);
        out[i] = {channel(color, 24), channel(color, 16), channel(color, 8), channel(color, 0)};
    }
}

/// One bit a pixel, the leftmost highest.
void unpack_bits(const AVFrame& frame, std::size_t x, std::size_t y, std::size_t count, argb_float* out)
{
    const std::uint8_t* row = row_of(frame, 0, y);
    const unsigned white = frame.format == AV_PIX_FMT_MONOWHITE ? 0 : 1;
    for (std::size_t i = 0; i < count; ++i)
    {
        const unsigned bit = row[(x + i) / 8] >> (7 - (x + i) % 8) & 1u;
        const float value = bit == white ? 1.0f : 0.0f;
        out[i] = {1.0f, value, value, value};
    }
}

/// Where along an axis chroma lies between its samples: sample index and the weight of the one after it.
/// The first chroma sample sits offset2 half pixels behind the first luma sample, one follows every 2^log2 pixels.
struct chroma_place
{
    std::ptrdiff_t index;
    float weight;
};

chroma_place chroma_at(std::ptrdiff_t luma, int log2, int offset2)
{
    const std::ptrdiff_t halves = 2 * luma - offset2;
    const std::ptrdiff_t index = halves >> (log2 + 1);
    const std::ptrdiff_t rest = halves - (index << (log2 + 1));
    return {index, static_cast<float>(rest) / static_cast<float>(2 << log2)};
}

/// The conversion of one frame: weights, ranges and chroma siting.
class yuv_reader
{
public:
    yuv_reader(const AVFrame& frame, const AVPixFmtDescriptor& format)
        : frame(frame)
        , luma(layout_of(format, 0))
        , cb(layout_of(format, 1))
        , cr(layout_of(format, 2))
        , log2_x(format.log2_chroma_w)
        , log2_y(format.log2_chroma_h)
        , chroma_width(-(-frame.width >> log2_x))
        , chroma_height(-(-frame.height >> log2_y))
    {
        const bool full = frame.color_range == AVCOL_RANGE_JPEG || full_range_by_name(frame.format);
        const double unit = 1 << (luma.depth - 8);
        luma_zero = full ? 0 : 16 * unit;
        luma_scale = full ? 1.0 / luma.mask() : 1 / (219 * unit);
        chroma_zero = 128 * unit;
        chroma_scale = full ? 1.0 / cb.mask() : 1 / (224 * unit);
        place_chroma();
        set_weights();
    }

    /// At most a chunk of pixels; alpha is left alone.
    void unpack(std::size_t x, std::size_t y, std::size_t count, argb_float* out) const
    {
        std::array<float, chunk> u{}, v{};
        interpolate(cb, x, y, count, u.data());
        interpolate(cr, x, y, count, v.data());
        const std::uint8_t* from = row_of(frame, luma.plane, y) + x * static_cast<std::size_t>(luma.step) + luma.offset;
        each_code(luma, from, count,
                  [&](std::size_t i, std::uint32_t code)
                  {
                      const auto light = static_cast<float>((code - luma_zero) * luma_scale);
                      out[i].r = limited(light + red_v * v[i]);
                      out[i].g = limited(light - green_u * u[i] - green_v * v[i]);
                      out[i].b = limited(light + blue_u * u[i]);
                  });
    }

private:
    static float limited(float value) { return std::clamp(value, 0.0f, 1.0f); }

    static bool full_range_by_name(int format)
    {
        return format == AV_PIX_FMT_YUVJ420P || format == AV_PIX_FMT_YUVJ422P || format == AV_PIX_FMT_YUVJ444P ||
               format == AV_PIX_FMT_YUVJ440P || format == AV_PIX_FMT_YUVJ411P;
    }

    /// Chroma sits on the first luma sample (0), amid its luma samples, or on the last (both in half pixels).
    void place_chroma()
    {
        const int amid_x = (1 << log2_x) - 1;
        const int amid_y = (1 << log2_y) - 1;
        const AVChromaLocation where = frame.chroma_location;
        const bool left =
            where == AVCHROMA_LOC_LEFT || where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_BOTTOMLEFT;
        const bool top = where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_TOP;
        const bool bottom = where == AVCHROMA_LOC_BOTTOMLEFT || where == AVCHROMA_LOC_BOTTOM;
        offset2_x = left ? 0 : amid_x;
        offset2_y = top ? 0 : bottom ? 2 * amid_y : amid_y;
    }

    void set_weights()
    {
        double kr = 0.299, kb = 0.114; // BT.601
        if (frame.colorspace == AVCOL_SPC_BT709)
            kr = 0.2126, kb = 0.0722;
        else if (frame.colorspace == AVCOL_SPC_BT2020_NCL)
            kr = 0.2627, kb = 0.0593;
        const double kg = 1 - kr - kb;
        red_v = static_cast<float>(2 * (1 - kr));
        blue_u = static_cast<float>(2 * (1 - kb));
        green_u = static_cast<float>(2 * (1 - kb) * kb / kg);
        green_v = static_cast<float>(2 * (1 - kr) * kr / kg);
    }

    /// Chroma of a span, -0.5..0.5: first between two rows, then along the row; the outermost samples go on.
    void interpolate(const sample_layout& layout, std::size_t x, std::size_t y, std::size_t count, float* out) const
    {
        const auto [row, below] = chroma_at(static_cast<std::ptrdiff_t>(y), log2_y, offset2_y);
        const std::ptrdiff_t first = chroma_at(static_cast<std::ptrdiff_t>(x), log2_x, offset2_x).index;
        const std::ptrdiff_t last = chroma_at(static_cast<std::ptrdiff_t>(x + count - 1), log2_x, offset2_x).index + 1;
        std::array<float, chunk + 2> upper, lower;
        samples(layout, row, first, last, upper.data());
        samples(layout, row + 1, first, last, lower.data());
        for (std::ptrdiff_t i = 0; i <= last - first; ++i)
            upper[i] += (lower[i] - upper[i]) * below;
        for (std::size_t i = 0; i < count; ++i)
        {
            const auto [index, after] = chroma_at(static_cast<std::ptrdiff_t>(x + i), log2_x, offset2_x);
            const float here = upper[index - first];
            out[i] = here + (upper[index - first + 1] - here) * after;
        }
    }

    void samples(const sample_layout& layout, std::ptrdiff_t row, std::ptrdiff_t first, std::ptrdiff_t last,
                 float* out) const
    {
        row = std::clamp<std::ptrdiff_t>(row, 0, chroma_height - 1);
        const std::ptrdiff_t begin = std::clamp<std::ptrdiff_t>(first, 0, chroma_width - 1);
        const std::ptrdiff_t end = std::clamp<std::ptrdiff_t>(last, 0, chroma_width - 1);
        const std::uint8_t* from = row_of(frame, layout.plane, row) + begin * layout.step + layout.offset;
        float* inner = out + (begin - first);
        each_code(layout, from, end - begin + 1, [&](std::size_t i, std::uint32_t code)
                  { inner[i] = static_cast<float>((code - chroma_zero) * chroma_scale); });
        std::fill(out, inner, *inner);
        std::fill(inner + (end - begin + 1), out + (last - first + 1), inner[end - begin]);
    }

    const AVFrame& frame;
    sample_layout luma, cb, cr;
    int log2_x, log2_y;
    std::ptrdiff_t chroma_width, chroma_height;
    int offset2_x = 0, offset2_y = 0;
    double luma_zero, luma_scale, chroma_zero, chroma_scale;
    float red_v = 0, blue_u = 0, green_u = 0, green_v = 0;
};

void unpack_yuv(const AVFrame& frame, const AVPixFmtDescriptor& format, std::size_t x, std::size_t y, std::size_t count,
                argb_float* out)
{
    const yuv_reader reader(frame, format);
    for (std::size_t done = 0; done < count; done += chunk)
        reader.unpack(x + done, y, std::min(chunk, count - done), out + done);
}

} // namespace

bool can_unpack(const AVFrame& frame)
{
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if (format == nullptr || (format->flags & (AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BAYER)) != 0)
        return false;
    if (frame.format == AV_PIX_FMT_XYZ12LE || frame.format == AV_PIX_FMT_XYZ12BE)
        return false;
    if ((format->flags & AV_PIX_FMT_FLAG_BITSTREAM) != 0)
        return frame.format == AV_PIX_FMT_MONOBLACK || frame.format == AV_PIX_FMT_MONOWHITE;
    if ((format->flags & AV_PIX_FMT_FLAG_FLOAT) != 0)
        return format->comp[0].depth == 32 && ((format->flags & AV_PIX_FMT_FLAG_RGB) != 0 || format->nb_components < 3);
    const bool yuv = (format->flags & AV_PIX_FMT_FLAG_RGB) == 0 && format->nb_components >= 3;
    const AVColorSpace matrix = frame.colorspace;
    const bool known = matrix == AVCOL_SPC_UNSPECIFIED || matrix == AVCOL_SPC_BT470BG ||
                       matrix == AVCOL_SPC_SMPTE170M || matrix == AVCOL_SPC_BT709 || matrix == AVCOL_SPC_BT2020_NCL;
    return format->comp[0].depth <= 16 && (!yuv || (known && format->comp[0].depth >= 8));
}

void unpack_span(const AVFrame& frame, std::size_t x, std::size_t y, std::size_t count, argb_float* out)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if ((format.flags & AV_PIX_FMT_FLAG_PAL) != 0)
        return unpack_palette(frame, x, y, count, out);
    if ((format.flags & AV_PIX_FMT_FLAG_BITSTREAM) != 0)
        return unpack_bits(frame, x, y, count, out);

    constexpr std::size_t stride = sizeof(argb_float) / sizeof(float);
    const int components = format.nb_components;
    const bool has_alpha = (format.flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
    const auto take = [&](int component, float* first)
    { gather(frame, layout_of(format, component), x, y, count, first, stride); };
    if (has_alpha)
        take(components - 1, &out->a);
    else
        std::for_each(out, out + count, [](argb_float& c) { c.a = 1.0f; });
    if (components < 3)
    {
        take(0, &out->r);
        std::for_each(out, out + count, [](argb_float& c) { c.g = c.b = c.r; });
    }
    else if ((format.flags & AV_PIX_FMT_FLAG_RGB) == 0)
        unpack_yuv(frame, format, x, y, count, out);
    else
    {
        take(0, &out->r);
        take(1, &out->g);
        take(2, &out->b);
    }
}

} // namespace ov1::media
