// Grades a still picture: stored rows, display-referred code values, the grade, and back.
#pragma once

#include "media/samples/piece_runner.h"
#include "media/stills/still_reader.h"
#include "media/stills/still_writer.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ov1::media
{

/// Grades one row in place: display-referred code values in 0..1, straight. The alpha that it leaves is ignored.
using row_grade = std::function<void(std::size_t y, argb_float* row, std::size_t count)>;

struct grade_report
{
    std::uint64_t limited_pixels = 0;  ///< with a colour channel outside 0..1, or a NaN, before the grade
    std::vector<std::string> warnings; ///< of the grade, one line each; reader and writer have their own
};

/// Grades every row of the picture into the writer, which was created for it with the same transfer choice. Colours
/// with premultiplied alpha are divided by it before the grade and multiplied after it. The picture's own alpha is
/// written; where the output has none, the picture is composited over black. Pixels with a premultiplied alpha of 0 (a
/// glow) are not graded. Linear samples are encoded with the sRGB curve for the grade. Without a grade (an empty
/// function) samples that the output stores in the same way are unchanged. The grade is called from any threads that
/// the runner uses.
grade_report grade_still(const still_reader& source, still_writer& target, const row_grade& grade_row,
                         transfer_choice choice = transfer_choice::automatic, const piece_runner& run = run_in_turn);

} // namespace ov1::media
