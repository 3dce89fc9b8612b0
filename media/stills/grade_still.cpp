#include "media/stills/grade_still.h"

#include "media/samples/object_pool.h"
#include "media/samples/transfer_curve.h"
#include "shared/clamp.h"

#include <algorithm>
#include <atomic>
#include <span>

namespace ov1::media
{

namespace
{

constexpr std::size_t piece_rows = 16; // as many rows of a wide picture as a core's cache holds
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

/// Limits colours to 0..1 and returns how many pixels had one outside.
std::uint64_t limit(argb_float* row, std::size_t count)
{
    const auto is_outside = [](float v) { return !(v >= 0.0f && v <= 1.0f); };
    std::uint64_t outside = 0;
    for (argb_float& c : std::span(row, count))
    {
        outside += is_outside(c.r) || is_outside(c.g) || is_outside(c.b);
        for_channels(c, [](float v) { return clamped(v); });
    }
    return outside;
}

/// Between the stored samples of source and target and the values that are graded.
class still_grader
{
public:
    still_grader(const still_reader& source, still_writer& target, const row_grade& grade_row, transfer_choice choice)
        : source(source)
        , target(target)
        , grade_row(grade_row)
        , width(source.info().width)
        , from_linear(choice == transfer_choice::linear ||
                      (choice == transfer_choice::automatic && source.info().transfer == transfer::linear))
        , to_linear(choice != transfer_choice::none && target.info().transfer == transfer::linear)
        , has_alpha(source.info().alpha != alpha_kind::none)
        , from_premultiplied(source.info().alpha == alpha_kind::premultiplied)
        , over_black(from_premultiplied && target.info().alpha == alpha_kind::none)
        , to_premultiplied(over_black || target.info().alpha == alpha_kind::premultiplied)
        , may_be_outside(is_float(source.info().depth) || from_premultiplied)
        , buffers([this] { return std::make_unique<buffer>(width, has_alpha); })
    {
    }

    void grade_piece(std::size_t piece)
    {
        const std::size_t first = piece * piece_rows;
        const std::size_t rows = std::min(piece_rows, source.info().height - first);
        // A buffer for each thread that is at work, reused for all its pieces.
        const auto own = buffers.take();
        source.read_rows(first, rows, own->pixels.data());
        for (std::size_t row = 0; row < rows; ++row)
        {
            argb_float* const stored = own->pixels.data() + row * width;
            if (grade_row)
                grade_stored(first + row, stored, has_alpha ? own->straight.data() : stored);
            else if (from_linear != to_linear || from_premultiplied != to_premultiplied)
                for (std::size_t x = 0; x < width; ++x)
                    leave(enter(stored[x]), stored[x]);
        }
        target.write_rows(first, rows, own->pixels.data());
    }

    std::uint64_t limited_pixels() const { return limited_count; }

private:
    /// Rows that a thread works on.
    struct buffer
    {
        buffer(std::size_t width, bool has_alpha)
            : pixels(piece_rows * width)
            , straight(has_alpha ? width : 0)
        {
        }

        std::vector<argb_float> pixels;   ///< of a piece, as stored
        std::vector<argb_float> straight; ///< a row that is graded while its alpha is kept; else it is graded in place
    };

    /// Grades a stored row in `graded`, which may be the same.
    void grade_stored(std::size_t y, argb_float* stored, argb_float* graded)
    {
        if (graded != stored || from_linear)
            for (std::size_t x = 0; x < width; ++x)
                graded[x] = enter(stored[x]);
        if (may_be_outside)
            limited_count += limit(graded, width);
        grade_row(y, graded, width);
        if (graded != stored || to_linear)
            for (std::size_t x = 0; x < width; ++x)
                leave(graded[x], stored[x]);
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

    /// Back again; the alpha is that of stored.
    void leave(argb_float graded, argb_float& stored) const
    {
        if (passes(stored))
            return pass(stored);
        graded.a = stored.a;
        // Compositing is done in the light of the source, even where the output is display-referred.
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
    const row_grade& grade_row;
    std::size_t width;
    bool from_linear, to_linear;
    bool has_alpha;
    bool from_premultiplied;
    bool over_black; ///< alpha is dropped: what is left is the picture over black, composited as the source would
    bool to_premultiplied;
    bool may_be_outside; ///< of 0..1 when it is graded: integers are not, and the sRGB curve keeps them there
    object_pool<buffer> buffers;
    std::atomic<std::uint64_t> limited_count = 0;
};

std::string limited_warning(std::uint64_t count, const still_info& info)
{
    return std::to_string(count) + " of " + std::to_string(info.width * info.height) +
           " pixels lay outside 0..1 and were limited";
}

} // namespace

grade_report grade_still(const still_reader& source, still_writer& target, const row_grade& grade_row,
                         transfer_choice choice, const piece_runner& run)
{
    const still_info& info = source.info();
    still_grader grader(source, target, grade_row, choice);
    run((info.height + piece_rows - 1) / piece_rows, [&](std::size_t piece) { grader.grade_piece(piece); });

    grade_report report{grader.limited_pixels(), {}};
    if (info.transfer == transfer::pq || info.transfer == transfer::hlg)
        report.warnings.push_back(std::string(info.transfer == transfer::pq ? "PQ" : "HLG") +
                                  " material is graded on its code values");
    if (report.limited_pixels != 0)
        report.warnings.push_back(limited_warning(report.limited_pixels, info));
    return report;
}

} // namespace ov1::media
