#include "media/frame_grader.h"

#include "media/sample_kernel.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

namespace ov1::media
{

namespace
{

constexpr std::size_t strip_rows = 32;    ///< a multiple of the pixels that share a chroma sample
constexpr std::size_t block_pixels = 512; ///< of a row, which the first cache holds as floats; a multiple of 4
constexpr std::size_t kept_rows = 8;      ///< of chroma, until a row of samples can be made of them
using sample_kernel::margin;

/// A frame, or one of its fields.
struct picture_view
{
    std::array<std::uint8_t*, 4> data;
    std::array<std::ptrdiff_t, 4> stride;
    std::size_t width;
    std::size_t height;
    std::size_t chroma_height;

    std::uint8_t* row(int plane, std::size_t y) const
    {
        return data[plane] + static_cast<std::ptrdiff_t>(y) * stride[plane];
    }
};

picture_view view_of(const AVFrame& frame, const frame_form& form)
{
    picture_view view{};
    for (std::size_t i = 0; i < 4; ++i)
    {
        view.data[i] = frame.data[i];
        view.stride[i] = frame.linesize[i];
    }
    view.width = static_cast<std::size_t>(frame.width);
    view.height = static_cast<std::size_t>(frame.height);
    view.chroma_height = form.down.samples(view.height);
    return view;
}

picture_view field_of(picture_view view, std::size_t parity)
{
    for (std::size_t i = 0; i < 4; ++i)
    {
        if (view.data[i] != nullptr)
            view.data[i] += static_cast<std::ptrdiff_t>(parity) * view.stride[i];
        view.stride[i] *= 2;
    }
    view.height = (view.height + 1 - parity) / 2;
    view.chroma_height = (view.chroma_height + 1 - parity) / 2;
    return view;
}

/// A row of floats between two margins.
class float_row
{
public:
    explicit float_row(std::size_t count)
        : values(count + 2 * margin)
    {
    }

    float* get() { return values.data() + margin; }

    /// The outermost samples go on in the margins, as far as any loop reads them.
    void extend(std::size_t count)
    {
        constexpr std::size_t reach = 3;
        float* const row = get();
        std::fill(row - reach, row, row[0]);
        std::fill(row + count, row + count + reach, row[count - 1]);
    }

private:
    std::vector<float> values;
};

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

/// Codes between memory and floats; those that do not lie one behind the other go by way of a row of their own.
class component_access
{
public:
    explicit component_access(std::size_t width)
        : codes(width)
    {
    }

    /// Count samples from x on, a row's own or out of it.
    void read(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
              float* out)
    {
        const std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            return each_code(form.layout, row, count,
                             [=](std::size_t i, std::uint32_t code) { out[i] = std::bit_cast<float>(code); });
        if (form.is_plain() && form.layout.bytes == 1)
            return sample_kernel::widen(row, count, form.range, out);
        sample_kernel::widen(wide_codes(view, form, x, y, count), count, form.range, out);
    }

    /// Codes of two bytes one behind the other.
    const std::uint16_t* wide_codes(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                                    std::size_t count)
    {
        const std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.is_plain() && form.layout.bytes == 2)
            return reinterpret_cast<const std::uint16_t*>(row);
        each_code(form.layout, row, count,
                  [this](std::size_t i, std::uint32_t code) { codes[i] = static_cast<std::uint16_t>(code); });
        return codes.data();
    }

    void write(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
               const float* in)
    {
        std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            return each_place(form.layout, row, count,
                              [&](std::size_t i, std::uint8_t* to)
                              {
                                  const auto bits = std::bit_cast<std::uint32_t>(in[i]);
                                  store(to, form.layout.swap ? swapped(bits) : bits);
                              });
        if (form.is_plain() && form.layout.bytes == 1)
            return sample_kernel::narrow(in, count, form.range, row);
        write_wide(view, form, x, y, count,
                   [&](std::uint16_t* to) { sample_kernel::narrow(in, count, form.range, to); });
    }

    /// Has codes of two bytes made one behind the other, and puts them where they belong.
    template <typename function>
    void write_wide(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                    std::size_t count, const function& make)
    {
        std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.is_plain() && form.layout.bytes == 2)
            return make(reinterpret_cast<std::uint16_t*>(row));
        make(codes.data());
        each_place(form.layout, row, count,
                   [&](std::size_t i, std::uint8_t* to)
                   {
                       const auto code = static_cast<std::uint16_t>(codes[i] << form.layout.shift);
                       if (form.layout.bytes == 1)
                           *to = static_cast<std::uint8_t>(code);
                       else
                           store(to, form.layout.swap ? swapped(code) : code);
                   });
    }

    /// A row to write codes to that are not wanted.
    std::uint16_t* spare() { return codes.data(); }

    static std::uint8_t* place_of(const picture_view& view, const sample_layout& layout, std::size_t x, std::size_t y)
    {
        return view.row(layout.plane, y) + x * static_cast<std::size_t>(layout.step) + layout.offset;
    }

private:
    template <typename T>
    static void store(std::uint8_t* to, T value)
    {
        std::memcpy(to, &value, sizeof value);
    }

    template <typename function>
    static void each_place(const sample_layout& layout, std::uint8_t* row, std::size_t count, const function& place)
    {
        for (std::size_t i = 0; i < count; ++i)
            place(i, row + i * static_cast<std::size_t>(layout.step));
    }

    std::vector<std::uint16_t> codes;
};

/// The rows of a strip on their way, one after the other; chroma is kept as long as rows of samples need it.
class strip
{
public:
    strip(const frame_form& from, const frame_form& to, const picture_view& in, const picture_view& out,
          const plane_grade& how)
        : from(from)
        , to(to)
        , in(in)
        , out(out)
        , how(how)
        , access(in.width)
        , red(in.width)
        , green(in.width)
        , blue(in.width)
        , sampled(in.width)
        , next(in.width)
    {
        if (to.family == colour_family::ycbcr && shares_chroma(to))
            for (std::size_t i = 0; i < (to.down.log2 == 0 ? 1 : kept_rows); ++i)
                kept.emplace_back(in.width);
    }

    void carry(std::size_t first, std::size_t end)
    {
        const bool is_sited = to.down.site.has_value();
        const std::size_t begin = is_sited ? std::max<std::size_t>(first, 2) - 2 : first;
        const std::size_t until = is_sited ? std::min(in.height, end + *to.down.site + 1) : end;
        const std::size_t samples_end = std::min(to.down.samples(end), out.chroma_height);
        std::size_t sample = first >> to.down.log2;
        for (std::size_t y = begin; y < until; ++y)
        {
            const bool is_own = y >= first && y < end;
            if (from.family == colour_family::ycbcr && shares_chroma(from))
                load_samples(y);
            for (std::size_t x = 0; x < in.width; x += block_pixels)
                carry_block(x, y, std::min(block_pixels, in.width - x), is_own);
            if (is_own)
                carry_alpha(y);
            if (to.family != colour_family::ycbcr || !shares_chroma(to))
                continue;
            chroma_rows& row = kept[y % kept.size()];
            gather(blue, row.cb);
            gather(red, row.cr);
            for (; sample < samples_end && last_row_of(sample) <= y; ++sample)
                store_chroma(sample);
        }
    }

private:
    static bool shares_chroma(const frame_form& form) { return form.across.log2 != 0 || form.down.log2 != 0; }

    rgb_planes<float> planes(std::size_t x) { return {red.get() + x, green.get() + x, blue.get() + x}; }

    void carry_block(std::size_t x, std::size_t y, std::size_t count, bool is_own)
    {
        const rgb_planes<float> block = planes(x);
        load(x, y, count, block);
        if (how)
            how(y, block, count);
        if (to.family == colour_family::ycbcr)
            store_ycbcr(x, y, count, block, is_own);
        else if (is_own)
            store_colours(x, y, count, block);
    }

    void load(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block)
    {
        const component_form& first = from.components[0];
        if (from.family == colour_family::ycbcr)
            return load_ycbcr(x, y, count, block);
        access.read(in, first, x, y, count, block.r);
        if (from.family == colour_family::gray)
        {
            std::copy_n(block.r, count, block.g);
            std::copy_n(block.r, count, block.b);
            return;
        }
        access.read(in, from.components[1], x, y, count, block.g);
        access.read(in, from.components[2], x, y, count, block.b);
    }

    void load_ycbcr(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block)
    {
        const component_form& luma = from.components[0];
        if (from.across.log2 == 1)
        {
            const float *cb = sampled.cb.get() + x / 2, *cr = sampled.cr.get() + x / 2;
            if (luma.is_plain() && luma.layout.bytes == 1)
                sample_kernel::shared_to_rgb({component_access::place_of(in, luma.layout, x, y), cb, cr}, count,
                                             luma.range, from.across, from.weights, block);
            else
                sample_kernel::shared_to_rgb({access.wide_codes(in, luma, x, y, count), cb, cr}, count, luma.range,
                                             from.across, from.weights, block);
            return;
        }
        access.read(in, luma, x, y, count, block.g);
        if (!shares_chroma(from))
        {
            access.read(in, from.components[1], x, y, count, block.b);
            access.read(in, from.components[2], x, y, count, block.r);
        }
        else
            for (std::size_t i = 0; i < count; ++i)
            {
                block.b[i] = sampled.cb.get()[(x + i) >> from.across.log2];
                block.r[i] = sampled.cr.get()[(x + i) >> from.across.log2];
            }
        sample_kernel::to_rgb(block, count, from.weights);
    }

    /// The chroma samples of a row of pixels.
    void load_samples(std::size_t y)
    {
        const chroma_source source = chroma_at(from.down, y, in.chroma_height);
        if (loaded && *loaded == source)
            return;
        load_samples(source, from.components[1], sampled.cb, next.cb);
        load_samples(source, from.components[2], sampled.cr, next.cr);
        loaded = source;
    }

    void load_samples(const chroma_source& source, const component_form& form, float_row& row, float_row& next_row)
    {
        const std::size_t count = from.across.samples(in.width);
        access.read(in, form, 0, source.sample, count, row.get());
        if (source.with_next)
        {
            access.read(in, form, 0, source.sample + 1, count, next_row.get());
            sample_kernel::halve(row.get(), next_row.get(), count, row.get());
        }
        row.extend(count);
    }

    void store_colours(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block)
    {
        if (to.family == colour_family::rgb)
        {
            access.write(out, to.components[0], x, y, count, block.r);
            access.write(out, to.components[1], x, y, count, block.g);
            access.write(out, to.components[2], x, y, count, block.b);
            return;
        }
        store_luma(x, y, count, block, weights_of(ycbcr_matrix::bt709));
    }

    void store_ycbcr(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block, bool is_own)
    {
        // Rows of other strips are needed for their chroma alone: their luma goes where nobody reads it.
        if (is_own)
            store_luma(x, y, count, block, to.weights);
        else
            sample_kernel::to_ycbcr(block, count, to.weights, to.components[0].range, access.spare());
        if (shares_chroma(to))
            return;
        access.write(out, to.components[1], x, y, count, block.b);
        access.write(out, to.components[2], x, y, count, block.r);
    }

    /// Leaves Cb in b and Cr in r.
    void store_luma(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block,
                    const ycbcr_weights& weights)
    {
        const component_form& luma = to.components[0];
        if (luma.is_plain() && luma.layout.bytes == 1)
            sample_kernel::to_ycbcr(block, count, weights, luma.range,
                                    component_access::place_of(out, luma.layout, x, y));
        else
            access.write_wide(out, luma, x, y, count,
                              [&](std::uint16_t* codes)
                              { sample_kernel::to_ycbcr(block, count, weights, luma.range, codes); });
    }

    void gather(float_row& pixels, float_row& samples)
    {
        const std::size_t count = to.across.samples(in.width);
        pixels.extend(in.width);
        if (to.across.log2 == 1)
            return sample_kernel::gather(pixels.get(), count, to.across, samples.get());
        const std::size_t width = std::size_t{1} << to.across.log2;
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::size_t end = std::min((i + 1) * width, in.width);
            float sum = 0;
            for (std::size_t x = i * width; x < end; ++x)
                sum += pixels.get()[x];
            samples.get()[i] = sum / static_cast<float>(end - i * width);
        }
    }

    std::size_t last_row_of(std::size_t sample) const
    {
        const std::size_t last =
            to.down.site ? 2 * sample + *to.down.site + 2 : (sample << to.down.log2) + (1 << to.down.log2) - 1;
        return std::min(last, in.height - 1);
    }

    void store_chroma(std::size_t sample)
    {
        std::array<std::size_t, 5> rows{};
        std::array<float, 5> weights{};
        std::size_t count = 0;
        if (to.down.site)
            for (; count < rows.size(); ++count)
            {
                const std::size_t row = std::max<std::size_t>(2 * sample + *to.down.site + count, 2) - 2;
                rows[count] = std::min(row, in.height - 1);
                weights[count] = taps_on_site[count];
            }
        else
        {
            for (std::size_t y = sample << to.down.log2; y <= last_row_of(sample); ++y)
                rows[count++] = y;
            std::fill_n(weights.begin(), count, 1.0f / static_cast<float>(count));
        }
        store_mixed(sample, &chroma_rows::cb, to.components[1], {rows.data(), count}, weights.data());
        store_mixed(sample, &chroma_rows::cr, to.components[2], {rows.data(), count}, weights.data());
    }

    void store_mixed(std::size_t sample, float_row chroma_rows::*part, const component_form& form,
                     std::span<const std::size_t> rows, const float* weights)
    {
        const std::size_t width = to.across.samples(in.width);
        std::array<const float*, 5> sources{};
        for (std::size_t i = 0; i < rows.size(); ++i)
            sources[i] = (kept[rows[i] % kept.size()].*part).get();
        const float* result = sources[0];
        if (rows.size() > 1)
        {
            sample_kernel::mix(sources.data(), weights, rows.size(), width, (next.*part).get());
            result = (next.*part).get();
        }
        access.write(out, form, 0, sample, width, result);
    }

    void carry_alpha(std::size_t y)
    {
        if (!to.has_alpha)
            return;
        if (from.has_alpha)
            access.read(in, from.alpha(), 0, y, in.width, next.cb.get());
        else
            std::fill_n(next.cb.get(), in.width, 1.0f);
        access.write(out, to.alpha(), 0, y, in.width, next.cb.get());
    }

    const frame_form& from;
    const frame_form& to;
    const picture_view& in;
    const picture_view& out;
    const plane_grade& how;
    component_access access;
    float_row red, green, blue; ///< or Cr, Y and Cb
    chroma_rows sampled, next;
    std::optional<chroma_source> loaded; ///< which samples are in `sampled`
    std::vector<chroma_rows> kept;       ///< row y at y modulo their number
};

} // namespace

void frame_grader::grade(const AVFrame& in, AVFrame& out, const plane_grade& how, const piece_runner& run) const
{
    const bool in_fields = in.interlaced_frame != 0 && (from.down.log2 != 0 || to.down.log2 != 0);
    std::vector<std::pair<picture_view, picture_view>> pictures;
    if (in_fields && in.height > 1)
        for (const std::size_t parity : {0, 1})
            pictures.emplace_back(field_of(view_of(in, from), parity), field_of(view_of(out, to), parity));
    else
        pictures.emplace_back(view_of(in, from), view_of(out, to));
    const std::size_t strips = (pictures[0].first.height + strip_rows - 1) / strip_rows;
    run(strips * pictures.size(),
        [&](std::size_t piece)
        {
            const auto& [source, target] = pictures[piece / strips];
            const std::size_t first = piece % strips * strip_rows;
            const std::size_t end = std::min(first + strip_rows, source.height);
            if (first < end)
                strip(from, to, source, target, how).carry(first, end);
        });
}

} // namespace ov1::media
