#include "media/samples/row_encoder.h"

#include "media/samples/ycbcr_kernel.h"

#include <algorithm>
#include <array>

namespace ov1::media
{

namespace
{

constexpr std::size_t recent_rows = 8; ///< at least the rows that a chroma sample takes part of
constexpr std::size_t taps_before = 2; ///< rows before the one that a sample lies on; as many follow it

} // namespace

row_encoder::row_encoder(const frame_form& form, std::size_t width)
    : form(form)
    , access(width)
    , mixed(width)
{
    // Where rows share no chroma, each row's samples are written before the next row begins: one row is enough.
    if (form.family == colour_family::ycbcr && form.shares_chroma())
        for (std::size_t i = 0; i < (form.down.log2 == 0 ? 1 : recent_rows); ++i)
            recent.emplace_back(form.across.samples(width));
}

void row_encoder::begin_strip(const picture_view& new_picture, std::size_t first, std::size_t end)
{
    picture = new_picture;
    strip_first = first;
    strip_end = end;
    const bool is_sited = form.down.site.has_value();
    // The last sample of a strip lies on row end - 2 + site and takes part of two rows after it; the first one takes
    // part of the rows from first - 2 on.
    begin = is_sited ? std::max(first, taps_before) - taps_before : first;
    until = is_sited ? std::min(picture.height, end + *form.down.site + 1) : end;
    // A strip writes the samples of its own rows only, so that strips never write the same sample.
    next_sample = first >> form.down.log2;
    end_sample = std::min(form.down.samples(end), picture.chroma_height);
}

void row_encoder::encode(std::size_t x, std::size_t y, std::size_t count, pixel_rows& rows)
{
    if (form.has_pairs())
        return encode_luma(x, y, count, rows.pairs(x), form.weights);
    const rgb_planes<float> colours = rows.in_order.from(x);
    // The luma of equal red, green and blue is the same with any weights; a graded grey may have colour.
    if (form.family == colour_family::gray)
        return encode_luma(x, y, count, colours, weights_of(ycbcr_matrix::bt709));
    if (form.family == colour_family::ycbcr)
        encode_luma(x, y, count, colours, form.weights);
    // Shared chroma is written by finish_row, when all pixels that share a sample are known.
    if (is_border(y) || form.shares_chroma())
        return;
    const bool is_rgb = form.family == colour_family::rgb;
    if (is_rgb)
        access.write(picture, form.components[0], x, y, count, colours.r);
    access.write(picture, form.components[1], x, y, count, is_rgb ? colours.g : colours.b);
    access.write(picture, form.components[2], x, y, count, is_rgb ? colours.b : colours.r);
}

/// Leaves Cb in b and Cr in r. The luma of border rows goes where nobody reads it.
template <class pixels>
void row_encoder::encode_luma(std::size_t x, std::size_t y, std::size_t count, const pixels& colours,
                              const ycbcr_weights& weights)
{
    const component_form& luma = form.components[0];
    if (is_border(y))
        ycbcr_kernel::to_ycbcr(colours, count, weights, luma.range, access.spare());
    else if (luma.is_plain() && luma.layout.bytes == 1)
        ycbcr_kernel::to_ycbcr(colours, count, weights, luma.range,
                               component_access::place_of(picture, luma.layout, x, y));
    else
        access.write_wide(picture, luma, x, y, count, [&](std::uint16_t* codes)
                          { ycbcr_kernel::to_ycbcr(colours, count, weights, luma.range, codes); });
}

void row_encoder::finish_row(std::size_t y, pixel_rows& rows)
{
    if (form.family != colour_family::ycbcr || !form.shares_chroma())
        return;
    if (form.has_pairs() && form.down.log2 == 0)
    {
        // No other row counts: codes are made at once, without a row of samples in between.
        write_gathered(y, rows.even.blue, rows.odd.blue, form.components[1]);
        write_gathered(y, rows.even.red, rows.odd.red, form.components[2]);
        return;
    }
    chroma_rows& samples = recent[y % recent.size()];
    if (form.has_pairs())
    {
        gather_pairs(rows.even.blue, rows.odd.blue, samples.cb);
        gather_pairs(rows.even.red, rows.odd.red, samples.cr);
    }
    else
    {
        gather_means(rows.in_order.blue, samples.cb);
        gather_means(rows.in_order.red, samples.cr);
    }
    for (; next_sample < end_sample && last_row_of(next_sample) <= y; ++next_sample)
        write_chroma(next_sample);
}

/// Repeats the outermost pixels, as far as samples are gathered from them: one before the first pair and one after the
/// last. The second pixel of the last pair is missing where the width is odd.
void row_encoder::extend_pairs(float_row& even, float_row& odd) const
{
    const std::size_t count = form.across.samples(picture.width);
    float *const first = even.get(), *const second = odd.get();
    if (picture.width % 2 != 0)
        second[count - 1] = first[count - 1];
    first[-1] = second[-1] = first[0];
    first[count] = second[count] = second[count - 1];
}

void row_encoder::write_gathered(std::size_t y, float_row& even, float_row& odd, const component_form& component)
{
    extend_pairs(even, odd);
    const std::size_t count = form.across.samples(picture.width);
    if (component.is_plain() && component.layout.bytes == 1)
        ycbcr_kernel::gather(even.get(), odd.get(), count, form.across, component.range,
                             component_access::place_of(picture, component.layout, 0, y));
    else
        access.write_wide(picture, component, 0, y, count, [&](std::uint16_t* codes)
                          { ycbcr_kernel::gather(even.get(), odd.get(), count, form.across, component.range, codes); });
}

void row_encoder::gather_pairs(float_row& even, float_row& odd, float_row& samples) const
{
    extend_pairs(even, odd);
    ycbcr_kernel::gather(even.get(), odd.get(), form.across.samples(picture.width), form.across, samples.get());
}

/// A sample of each group of pixels, as their mean; the last group may be smaller.
void row_encoder::gather_means(float_row& pixels, float_row& samples) const
{
    const std::size_t count = form.across.samples(picture.width);
    const std::size_t width = std::size_t{1} << form.across.log2;
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t end = std::min((i + 1) * width, picture.width);
        float sum = 0;
        for (std::size_t x = i * width; x < end; ++x)
            sum += pixels.get()[x];
        samples.get()[i] = sum / static_cast<float>(end - i * width);
    }
}

/// The last row of pixels that a row of samples takes part of.
std::size_t row_encoder::last_row_of(std::size_t sample) const
{
    const std::size_t last = form.down.site ? 2 * sample + *form.down.site + taps_before
                                            : (sample << form.down.log2) + (std::size_t{1} << form.down.log2) - 1;
    return std::min(last, picture.height - 1);
}

/// Both chroma planes of a row of samples, from the rows of pixels that it takes part of and their weights.
void row_encoder::write_chroma(std::size_t sample)
{
    std::array<std::size_t, most_taps> rows{};
    std::array<float, most_taps> weights{};
    std::size_t count = 0;
    if (form.down.site)
        for (; count < rows.size(); ++count)
        {
            // Rows above the picture are row 0: the difference of unsigned numbers must not wrap.
            const std::size_t row = std::max(2 * sample + *form.down.site + count, taps_before) - taps_before;
            rows[count] = std::min(row, picture.height - 1); // the outermost rows are repeated
            weights[count] = taps_on_site[count];
        }
    else
    {
        for (std::size_t y = sample << form.down.log2; y <= last_row_of(sample); ++y)
            rows[count++] = y;
        std::fill_n(weights.begin(), count, 1.0f / static_cast<float>(count));
    }
    write_mixed(sample, &chroma_rows::cb, form.components[1], {rows.data(), count}, weights.data());
    write_mixed(sample, &chroma_rows::cr, form.components[2], {rows.data(), count}, weights.data());
}

/// The weighted sum of recent rows, as codes. The weight of a single row is 1, so it is written as it is.
void row_encoder::write_mixed(std::size_t sample, float_row chroma_rows::* plane, const component_form& component,
                              std::span<const std::size_t> rows, const float* weights)
{
    const std::size_t width = form.across.samples(picture.width);
    std::array<const float*, most_taps> sources{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        sources[i] = (recent[rows[i] % recent.size()].*plane).get();
    const float* row = sources[0];
    if (rows.size() > 1)
    {
        sample_kernel::mix(sources.data(), weights, rows.size(), width, (mixed.*plane).get());
        row = (mixed.*plane).get();
    }
    access.write(picture, component, 0, sample, width, row);
}

} // namespace ov1::media
