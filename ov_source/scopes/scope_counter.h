// One picture through the scopes that are wanted, on several threads.
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

/// Pixels in rows without padding, in either order of rows; not owned.
struct scope_frame
{
    const argb_float* pixels = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
};

scope_frame frame_of(const image& picture);

struct scope_selection
{
    bool waveform = false;
    bool parade = false;
    bool vectorscope = false;
    bool histogram = false;

    bool operator==(const scope_selection&) const = default;
};

struct scope_sampling
{
    std::size_t waveform_columns = 1; ///< limited to 1 .. the frame's width, as is the next
    std::size_t parade_columns = 1;   ///< of each of the three
    std::size_t row_step = 1;         ///< 1 or more: one row of so many is counted; 2 is for a drag that must not wait
    unsigned max_threads = 0;         ///< 0 for as many as there are processors; the counts do not depend on it
};

/// What was not selected is undefined.
struct scope_counts
{
    waveform_counts waveform; ///< of luma
    parade_counts parade;
    vectorscope_counts vectorscope;
    histogram_counts histogram;
};

/// Keeps its storage from frame to frame. For one caller at a time.
class scope_counter
{
public:
    /// Counts every pixel of the rows 0, row_step, 2 row_step .. once in each selected scope.
    void count(const scope_frame& frame, const scope_selection& selection, const scope_sampling& sampling);

    const scope_counts& get_counts() const { return total; }

private:
    struct plan;

    static void count_rows(const plan& wanted, std::size_t first, std::size_t end, scope_counts& counts);
    scope_counts& borrow(const plan& wanted);
    void give_back(scope_counts& counts);
    void merge(const plan& wanted);

    scope_counts total;
    std::mutex workers_mutex;                           ///< held for a choice or a return alone
    std::vector<std::unique_ptr<scope_counts>> workers; ///< those before used_workers take part in this frame
    std::vector<scope_counts*> idle_workers;            ///< those of them that count nothing now
    std::size_t used_workers = 0;
};

} // namespace ov1
