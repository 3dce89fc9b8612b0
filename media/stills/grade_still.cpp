#include "media/stills/grade_still.h"

#include "media/samples/transfer_curve.h"

#include <algorithm>
#include <atomic>

namespace ov1::media
{

namespace
{

constexpr std::size_t piece_rows = 16; // of a wide picture as many as a core's cache holds
static_assert(piece_rows % still_writer::row_multiple == 0);

template <typename function>
void for_channels(argb_float& c, function&& f)
{
    c.r = f(c.r);
    c.g = f(c.g);
    c.b = f(c.b);
}

void divide_by_alpha(argb_float& c)
{
    for_channels(c, [a = c.a](float v) { return v / a; });
}

void multiply_by_alpha(argb_float& c)
{
    for_channels(c, [a = c.a](float v) { return v * a; });
}

bool outside(float v) { return !(v >= 0.0f && v <= 1.0f); }

/// The comparison sends NaN to 0.
float limited(float v) { return v > 0.0f ? std::min(v, 1.0f) : 0.0f; }

/// The samples of source and target, and what lies between them and the grade.
class road
{
public:
    road(const still_reader& source, still_writer& target, const row_grade& grade, transfer_choice choice)
        : source(source)
        , target(target)
        , grade(grade)
        , width(source.info().width)
        , from_linear(choice == transfer_choice::linear ||
                      (choice == transfer_choice::automatic && source.info().transfer == transfer::linear))
        , to_linear(choice != transfer_choice::none && target.info().transfer == transfer::linear)
        , from_premultiplied(source.info().alpha == alpha_kind::premultiplied)
        , over_black(from_premultiplied && target.info().alpha == alpha_kind::none)
        , to_premultiplied(over_black || target.info().alpha == alpha_kind::premultiplied)
    {
    }

    void carry(std::size_t piece)
    {
        const std::size_t first = piece * piece_rows;
        const std::size_t rows = std::min(piece_rows, source.info().height - first);
        std::vector<argb_float> pixels(rows * width);
        source.read_rows(first, rows, pixels.data());
        if (grade)
            grade_rows(first, pixels);
        else if (from_linear != to_linear || from_premultiplied != to_premultiplied)
            for (argb_float& c : pixels)
                leave(enter(c), c);
        target.write_rows(first, rows, pixels.data());
    }

    std::uint64_t limited_pixels() const { return limited_count; }

private:
    void grade_rows(std::size_t first, std::vector<argb_float>& pixels)
    {
        std::vector<argb_float> in(width), out(width);
        std::uint64_t count = 0;
        for (std::size_t row = 0; row * width < pixels.size(); ++row)
        {
            argb_float* const stored = pixels.data() + row * width;
            for (std::size_t x = 0; x < width; ++x)
            {
                in[x] = enter(stored[x]);
                count += outside(in[x].r) || outside(in[x].g) || outside(in[x].b);
                for_channels(in[x], limited);
            }
            grade(first + row, in.data(), out.data(), width);
            for (std::size_t x = 0; x < width; ++x)
                leave(out[x], stored[x]);
        }
        limited_count += count;
    }

    bool passes(const argb_float& stored) const { return from_premultiplied && !(stored.a > 0.0f); }

    /// Stored samples to straight display-referred ones.
    argb_float enter(argb_float c) const
    {
        if (passes(c))
            return {c.a, 0, 0, 0};
        if (from_premultiplied)
            divide_by_alpha(c);
        if (from_linear)
            for_channels(c, srgb_encoded);
        return c;
    }

    /// What is not graded still takes the output's transfer.
    void pass(argb_float& stored) const
    {
        if (from_linear && !to_linear)
            for_channels(stored, srgb_encoded);
        else if (to_linear && !from_linear)
            for_channels(stored, srgb_decoded);
    }

    /// Back again; the alpha is the stored one's.
    void leave(argb_float graded, argb_float& stored) const
    {
        if (passes(stored))
            return pass(stored);
        graded.a = stored.a;
        const bool lay_as_light = over_black && from_linear && !to_linear;
        if (to_linear || lay_as_light)
            for_channels(graded, srgb_decoded);
        if (to_premultiplied)
            multiply_by_alpha(graded);
        if (lay_as_light)
            for_channels(graded, srgb_encoded);
        stored = graded;
    }

    const still_reader& source;
    still_writer& target;
    const row_grade& grade;
    std::size_t width;
    bool from_linear, to_linear;
    bool from_premultiplied;
    bool over_black; ///< alpha is dropped: what is left is the picture over black, laid there as the source would
    bool to_premultiplied;
    std::atomic<std::uint64_t> limited_count = 0;
};

std::string limited_warning(std::uint64_t count, const still_info& info)
{
    return std::to_string(count) + " of " + std::to_string(info.width * info.height) +
           " pixels lay outside 0..1 and were limited";
}

} // namespace

grade_report grade_still(const still_reader& source, still_writer& target, const row_grade& grade,
                         transfer_choice choice, const piece_runner& run)
{
    const still_info& info = source.info();
    road way(source, target, grade, choice);
    run((info.height + piece_rows - 1) / piece_rows, [&](std::size_t piece) { way.carry(piece); });

    grade_report report{way.limited_pixels(), {}};
    if (info.transfer == transfer::pq || info.transfer == transfer::hlg)
        report.warnings.push_back(std::string(info.transfer == transfer::pq ? "PQ" : "HLG") +
                                  " material is graded on its code values");
    if (report.limited_pixels != 0)
        report.warnings.push_back(limited_warning(report.limited_pixels, info));
    return report;
}

} // namespace ov1::media
