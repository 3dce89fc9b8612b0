#include "media/samples/frame_grader.h"

#include "media/samples/component_access.h"
#include "media/samples/sample_kernel.h"
#include "media/samples/ycbcr_kernel.h"

#include <algorithm>
#include <array>
#include <memory>
#include <mutex>
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

/// A row of floats between two margins. The row itself is not set.
class float_row
{
public:
    explicit float_row(std::size_t count)
        : values(std::make_unique_for_overwrite<float[]>(count + 2 * margin))
    {
        std::fill_n(get() + count, margin, 0.0f); // whole vectors are read
    }

    float* get() { return values.get() + margin; }

    /// The outermost samples go on in the margins, as far as any loop reads them.
    void extend(std::size_t count)
    {
        get()[-1] = get()[0];
        get()[count] = get()[count - 1];
    }

private:
    std::unique_ptr<float[]> values;
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

/// Red, green and blue of a row, or Cr, Y and Cb.
struct colour_rows
{
    explicit colour_rows(std::size_t count)
        : red(count)
        , green(count)
        , blue(count)
    {
    }

    rgb_planes<float> from(std::size_t x) { return {red.get() + x, green.get() + x, blue.get() + x}; }

    float_row red, green, blue;
};

/// The rows of a strip on their way, one after the other; chroma is kept as long as rows of samples need it. Takes one
/// strip after the other, whose rows have this width.
class strip_grader
{
public:
    strip_grader(const frame_form& from, const frame_form& to, const plane_grade& how, std::size_t width)
        : from(from)
        , to(to)
        , how(how)
        , access(width)
        , row(width)
        , even((width + 1) / 2)
        , odd((width + 1) / 2)
        , sampled(width)
        , next(width)
    {
        if (to.family == colour_family::ycbcr && shares_chroma(to))
            for (std::size_t i = 0; i < (to.down.log2 == 0 ? 1 : kept_rows); ++i)
                kept.emplace_back(to.across.samples(width));
    }

    void carry(const picture_view& source, const picture_view& target, std::size_t first, std::size_t end)
    {
        in = source;
        out = target;
        loaded.reset();
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
            if (shares_across(to) && to.down.log2 == 0)
            {
                store_gathered(y, &colour_rows::blue, to.components[1]);
                store_gathered(y, &colour_rows::red, to.components[2]);
                continue;
            }
            chroma_rows& samples = kept[y % kept.size()];
            gather(&colour_rows::blue, samples.cb);
            gather(&colour_rows::red, samples.cr);
            for (; sample < samples_end && last_row_of(sample) <= y; ++sample)
                store_chroma(sample);
        }
    }

private:
    static bool shares_chroma(const frame_form& form) { return form.across.log2 != 0 || form.down.log2 != 0; }

    /// Such rows are taken as pairs of pixels.
    static bool shares_across(const frame_form& form)
    {
        return form.family == colour_family::ycbcr && form.across.log2 == 1;
    }

    ycbcr_kernel::pixel_pairs pairs(std::size_t x) { return {even.from(x / 2), odd.from(x / 2)}; }

    void carry_block(std::size_t x, std::size_t y, std::size_t count, bool is_own)
    {
        if (shares_across(from))
            load_pairs(x, y, count);
        else
            load(x, y, count, row.from(x));
        if (how && shares_across(from))
        {
            how(y, even.from(x / 2), (count + 1) / 2);
            how(y, odd.from(x / 2), count / 2);
        }
        else if (how)
            how(y, row.from(x), count);
        if (shares_across(from) != shares_across(to))
            rearrange(x, (count + 1) / 2);
        store(x, y, count, is_own);
    }

    void rearrange(std::size_t x, std::size_t pair_count)
    {
        for (const auto plane : {&colour_rows::red, &colour_rows::green, &colour_rows::blue})
        {
            float *const all = (row.*plane).get() + x, *const first = (even.*plane).get() + x / 2,
                         *const second = (odd.*plane).get() + x / 2;
            if (shares_across(from))
                sample_kernel::join(first, second, pair_count, all);
            else
                sample_kernel::split(all, pair_count, first, second);
        }
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

    void load_pairs(std::size_t x, std::size_t y, std::size_t count)
    {
        const component_form& luma = from.components[0];
        const float *cb = sampled.cb.get() + x / 2, *cr = sampled.cr.get() + x / 2;
        if (luma.is_plain() && luma.layout.bytes == 1)
            ycbcr_kernel::shared_to_rgb({component_access::place_of(in, luma.layout, x, y), cb, cr}, count, luma.range,
                                        from.across, from.weights, pairs(x));
        else
            ycbcr_kernel::shared_to_rgb({access.wide_codes(in, luma, x, y, count), cb, cr}, count, luma.range,
                                        from.across, from.weights, pairs(x));
    }

    void load_ycbcr(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& block)
    {
        access.read(in, from.components[0], x, y, count, block.g);
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
        ycbcr_kernel::to_rgb(block, count, from.weights);
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

    void store(std::size_t x, std::size_t y, std::size_t count, bool is_own)
    {
        const rgb_planes<float> block = row.from(x);
        if (shares_across(to))
            return store_luma(x, y, count, pairs(x), to.weights, is_own);
        if (to.family == colour_family::gray)
            return store_luma(x, y, count, block, weights_of(ycbcr_matrix::bt709), is_own);
        if (to.family == colour_family::ycbcr)
            store_luma(x, y, count, block, to.weights, is_own);
        if (!is_own || shares_chroma(to))
            return;
        const bool is_rgb = to.family == colour_family::rgb;
        if (is_rgb)
            access.write(out, to.components[0], x, y, count, block.r);
        access.write(out, to.components[1], x, y, count, is_rgb ? block.g : block.b);
        access.write(out, to.components[2], x, y, count, is_rgb ? block.b : block.r);
    }

    /// Leaves Cb in b and Cr in r. Rows of other strips are needed for their chroma alone: their luma goes where nobody
    /// reads it.
    template <class pixels>
    void store_luma(std::size_t x, std::size_t y, std::size_t count, const pixels& block, const ycbcr_weights& weights,
                    bool is_own)
    {
        const component_form& luma = to.components[0];
        if (!is_own)
            ycbcr_kernel::to_ycbcr(block, count, weights, luma.range, access.spare());
        else if (luma.is_plain() && luma.layout.bytes == 1)
            ycbcr_kernel::to_ycbcr(block, count, weights, luma.range,
                                   component_access::place_of(out, luma.layout, x, y));
        else
            access.write_wide(out, luma, x, y, count, [&](std::uint16_t* codes)
                              { ycbcr_kernel::to_ycbcr(block, count, weights, luma.range, codes); });
    }

    /// The outermost pixels go on, as far as samples are gathered from them.
    void extend_pairs(float_row colour_rows::* plane)
    {
        const std::size_t count = to.across.samples(in.width);
        float *const first = (even.*plane).get(), *const second = (odd.*plane).get();
        if (in.width % 2 != 0)
            second[count - 1] = first[count - 1];
        first[-1] = second[-1] = first[0];
        first[count] = second[count] = second[count - 1];
    }

    /// A row of samples that no other row has a part in.
    void store_gathered(std::size_t y, float_row colour_rows::* plane, const component_form& form)
    {
        extend_pairs(plane);
        const float *const first = (even.*plane).get(), *const second = (odd.*plane).get();
        const std::size_t count = to.across.samples(in.width);
        if (form.is_plain() && form.layout.bytes == 1)
            ycbcr_kernel::gather(first, second, count, to.across, form.range,
                                 component_access::place_of(out, form.layout, 0, y));
        else
            access.write_wide(out, form, 0, y, count, [&](std::uint16_t* codes)
                              { ycbcr_kernel::gather(first, second, count, to.across, form.range, codes); });
    }

    void gather(float_row colour_rows::* plane, float_row& samples)
    {
        const std::size_t count = to.across.samples(in.width);
        if (shares_across(to))
        {
            extend_pairs(plane);
            return ycbcr_kernel::gather((even.*plane).get(), (odd.*plane).get(), count, to.across, samples.get());
        }
        const float* const pixels = (row.*plane).get();
        const std::size_t width = std::size_t{1} << to.across.log2;
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::size_t end = std::min((i + 1) * width, in.width);
            float sum = 0;
            for (std::size_t x = i * width; x < end; ++x)
                sum += pixels[x];
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

    void store_mixed(std::size_t sample, float_row chroma_rows::* part, const component_form& form,
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
    const plane_grade& how;
    picture_view in{};
    picture_view out{};
    component_access access;
    colour_rows row;
    colour_rows even, odd; ///< in place of it where two pixels share a chroma sample
    chroma_rows sampled, next;
    std::optional<chroma_source> loaded; ///< which samples are in `sampled`
    std::vector<chroma_rows> kept;       ///< row y at y modulo their number
};

/// As many as threads ask for at a time: their rows are made once a frame.
class strip_graders
{
public:
    explicit strip_graders(std::function<std::unique_ptr<strip_grader>()> make)
        : make(std::move(make))
    {
    }

    std::unique_ptr<strip_grader> take()
    {
        {
            const std::scoped_lock guard(idle_mutex);
            if (!idle.empty())
            {
                auto taken = std::move(idle.back());
                idle.pop_back();
                return taken;
            }
        }
        return make();
    }

    void give_back(std::unique_ptr<strip_grader> grader)
    {
        const std::scoped_lock guard(idle_mutex);
        idle.push_back(std::move(grader));
    }

private:
    std::function<std::unique_ptr<strip_grader>()> make;
    std::mutex idle_mutex;
    std::vector<std::unique_ptr<strip_grader>> idle;
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
    strip_graders idle([&] { return std::make_unique<strip_grader>(from, to, how, pictures[0].first.width); });
    const std::size_t strips = (pictures[0].first.height + strip_rows - 1) / strip_rows;
    run(strips * pictures.size(),
        [&](std::size_t piece)
        {
            const auto& [source, target] = pictures[piece / strips];
            const std::size_t first = piece % strips * strip_rows;
            const std::size_t end = std::min(first + strip_rows, source.height);
            if (first >= end)
                return;
            auto grader = idle.take();
            grader->carry(source, target, first, end);
            idle.give_back(std::move(grader));
        });
}

} // namespace ov1::media
