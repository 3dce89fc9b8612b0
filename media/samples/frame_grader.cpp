#include "media/samples/frame_grader.h"

#include "media/samples/object_pool.h"
#include "media/samples/picture_view.h"
#include "media/samples/strip_grader.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ov1::media
{

namespace
{

constexpr std::size_t strip_rows = 32; ///< a multiple of the rows that share a chroma sample

} // namespace

void frame_grader::grade(const AVFrame& in, AVFrame& out, const plane_grade& grade_row, const piece_runner& run) const
{
    const picture_view whole_in = view_of(in, from), whole_out = view_of(out, to);
    std::vector<std::pair<picture_view, picture_view>> pictures;
    if (has_fields(in, from) || has_fields(in, to))
        for (const std::size_t parity : {0, 1})
            pictures.emplace_back(field_of(whole_in, parity), field_of(whole_out, parity));
    else
        pictures.emplace_back(whole_in, whole_out);

    object_pool<strip_grader> graders([&]
                                      { return std::make_unique<strip_grader>(from, to, grade_row, whole_in.width); });
    const std::size_t strips = (pictures[0].first.height + strip_rows - 1) / strip_rows;
    run(strips * pictures.size(),
        [&](std::size_t piece)
        {
            const auto& [source, target] = pictures[piece / strips];
            const std::size_t first = piece % strips * strip_rows;
            const std::size_t end = std::min(first + strip_rows, source.height);
            if (first < end) // the second field may have a strip less
                graders.take()->grade(source, target, first, end);
        });
}

} // namespace ov1::media
