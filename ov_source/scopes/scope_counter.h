// Counts a picture for the selected scopes, on several threads.
#pragma once

#include "scopes/histogram.h"
#include "scopes/parade.h"
#include "scopes/vectorscope.h"
#include "scopes/waveform.h"
#include "shared/argb_float.h"

#include <memory>
#include <mutex>
#include <vector>

namespace ov1
{

class image;

/// Pixels in rows without padding, top or bottom row first; not owned.
struct scope_frame
{
    const argb_float* pixels = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// The pixels of an image, which must outlive the frame. The first row in memory comes first.
scope_frame frame_of(const image& picture);

/// The scopes that are counted; the others cost no time.
struct scope_selection
{
    bool waveform = false;
    bool parade = false;
    bool vectorscope = false;
    bool histogram = false;

    bool operator==(const scope_selection&) const = default;
};

/// How finely a frame is counted.
struct scope_sampling
{
    std::size_t waveform_columns = 1; ///< clamped to 1..width of the frame, like the next
    std::size_t parade_columns = 1;   ///< per waveform
    std::size_t row_step = 1;         ///< at least 1: every row_step-th row is counted; use 2 during a drag
    unsigned max_threads = 0;         ///< 0 for one per processor; the counts do not depend on it
};

/// Scopes that were not selected are undefined.
struct scope_counts
{
    waveform_counts waveform; ///< of luma
    parade_counts parade;
    vectorscope_counts vectorscope;
    histogram_counts histogram;
};

/// Keeps its memory between frames. One caller at a time.
class scope_counter
{
public:
    /// Counts every pixel of the rows 0, row_step, 2 * row_step ... once in each selected scope.
    void count(const scope_frame& frame, const scope_selection& selection, const scope_sampling& sampling);

    /// The counts of the last frame. They change at the next count().
    const scope_counts& get_counts() const { return total; }

private:
    struct plan;

    /// Counts the sampled rows first..end-1. Any thread; no other thread uses these counts meanwhile.
    static void count_rows(const plan& wanted, std::size_t first, std::size_t end, scope_counts& counts);
    /// Counts for one piece of rows, cleared at their first use in a frame. Any thread.
    scope_counts& borrow(const plan& wanted);
    void give_back(scope_counts& counts);
    /// Adds the counts of all workers to the total, after the last piece.
    void merge(const plan& wanted);

    scope_counts total;
    std::mutex workers_mutex;                           ///< held only to take or return a worker
    std::vector<std::unique_ptr<scope_counts>> workers; ///< the first used_workers work on this frame
    std::vector<scope_counts*> idle_workers;            ///< of these, the ones that are not counting now
    std::size_t used_workers = 0;
};

} // namespace ov1
