#include "media/samples/row_decoder.h"

#include "media/samples/ycbcr_kernel.h"

#include <algorithm>

namespace ov1::media
{

row_decoder::row_decoder(const frame_form& form, std::size_t width)
    : form(form)
    , access(width)
    , chroma(width)
    , chroma_below(width)
{
}

void row_decoder::set_picture(const picture_view& new_picture)
{
    picture = new_picture;
    loaded.reset();
}

void row_decoder::read_chroma(std::size_t y, std::size_t begin, std::size_t end)
{
    if (form.family != colour_family::ycbcr || !form.shares_chroma())
        return;
    // Pixels beside a sited sample also take the one before or after it.
    const std::size_t samples = form.across.samples(picture.width);
    const std::size_t first = begin >> form.across.log2;
    const std::size_t last = (end - 1) >> form.across.log2;
    const chroma_span wanted{chroma_at(form.down, y, picture.chroma_height), first == 0 ? 0 : first - 1,
                             std::min(last + 2, samples)};
    // Rows of pixels that share a row of samples follow each other: it is converted once for them.
    if (loaded == wanted)
        return;
    read_samples(wanted, form.components[1], chroma.cb, chroma_below.cb);
    read_samples(wanted, form.components[2], chroma.cr, chroma_below.cr);
    loaded = wanted;
}

void row_decoder::read_samples(const chroma_span& span, const component_form& component, float_row& samples,
                               float_row& below)
{
    const std::size_t count = span.end - span.first;
    float* const to = samples.get() + span.first;
    access.read(picture, component, span.first, span.rows.sample, count, to);
    // Rows of pixels halfway between two rows of samples take their mean.
    if (span.rows.with_next)
    {
        access.read(picture, component, span.first, span.rows.sample + 1, count, below.get());
        sample_kernel::halve(to, below.get(), count, to);
    }
    // The outermost samples are repeated for the pixels that would take one from outside the picture.
    if (span.first == 0)
        samples.get()[-1] = samples.get()[0];
    if (span.end == form.across.samples(picture.width))
        samples.get()[span.end] = samples.get()[span.end - 1];
}

void row_decoder::decode(std::size_t x, std::size_t y, std::size_t count, pixel_rows& to)
{
    if (form.has_pairs())
        decode_pairs(x, y, count, to.pairs(x));
    else
        decode_in_order(x, y, count, to.in_order.from(x));
}

void row_decoder::decode_pairs(std::size_t x, std::size_t y, std::size_t count, const ycbcr_kernel::pixel_pairs& to)
{
    const component_form& luma = form.components[0];
    const float *const cb = chroma.cb.get() + x / 2, *const cr = chroma.cr.get() + x / 2;
    // Plain codes are read where they lie; others go through a row of 16-bit codes.
    if (luma.is_plain() && luma.layout.bytes == 1)
        ycbcr_kernel::shared_to_rgb({component_access::place_of(picture, luma.layout, x, y), cb, cr}, count, luma.range,
                                    form.across, form.weights, to);
    else
        ycbcr_kernel::shared_to_rgb({access.wide_codes(picture, luma, x, y, count), cb, cr}, count, luma.range,
                                    form.across, form.weights, to);
}

void row_decoder::decode_in_order(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& to)
{
    const auto& components = form.components;
    if (form.family == colour_family::gray)
    {
        access.read(picture, components[0], x, y, count, to.r);
        std::copy_n(to.r, count, to.g);
        std::copy_n(to.r, count, to.b);
        return;
    }
    if (form.family == colour_family::rgb)
    {
        access.read(picture, components[0], x, y, count, to.r);
        access.read(picture, components[1], x, y, count, to.g);
        access.read(picture, components[2], x, y, count, to.b);
        return;
    }
    // to_rgb takes Y from g, Cb from b and Cr from r, and overwrites them.
    access.read(picture, components[0], x, y, count, to.g);
    if (!form.shares_chroma())
    {
        access.read(picture, components[1], x, y, count, to.b);
        access.read(picture, components[2], x, y, count, to.r);
    }
    else
        // Four pixels share a sample (4:1:1, 4:1:0), or only rows do (4:4:0): rare, so a plain loop will do.
        for (std::size_t i = 0; i < count; ++i)
        {
            to.b[i] = chroma.cb.get()[(x + i) >> form.across.log2];
            to.r[i] = chroma.cr.get()[(x + i) >> form.across.log2];
        }
    ycbcr_kernel::to_rgb(to, count, form.weights);
}

} // namespace ov1::media
