// The road of a still picture: stored rows, display-referred code values, the grade, and back.
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

/// Grades one row: display-referred code values in 0..1, straight. The alpha of out is ignored. The two rows are apart.
using row_grade = std::function<void(std::size_t y, const argb_float* in, argb_float* out, std::size_t count)>;

struct grade_report
{
    std::uint64_t limited_pixels = 0;  ///< with a colour channel outside 0..1, NaN included, before the grade
    std::vector<std::string> warnings; ///< of the grade, one line each; reader and writer keep their own
};

/// Takes every row of the picture to the writer, which was created for it with the same transfer choice. Premultiplied
/// alpha is undone before the grade and redone after it; the picture's own alpha is written, or the picture laid over
/// black where the output has none. Where a premultiplied
/// alpha is 0 there is light, but nothing that it lies on: such pixels pass ungraded. Linear samples are encoded
/// with the sRGB curve for the grade. Without a grade (an empty function) samples that the output stores alike pass
/// untouched. The grade is called from whatever threads the runner uses.
grade_report grade_still(const still_reader& source, still_writer& target, const row_grade& grade,
                         transfer_choice choice = transfer_choice::automatic, const piece_runner& run = run_in_turn);

} // namespace ov1::media
