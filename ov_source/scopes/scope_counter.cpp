#include "scopes/scope_counter.h"

#include "platform/rows.h"
#include "shared/image.h"

#include <algorithm>
#include <utility>

namespace ov1
{

namespace
{

/// For each pixel of a row the offset of the bins of its column.
using column_starts = std::vector<std::uint32_t>;

/// Multiplies before dividing, so that columns are exactly floor(x * columns / width).
column_starts starts_of(std::size_t width, std::size_t columns)
{
    column_starts starts(width);
    for (std::size_t x = 0; x < width; ++x)
        starts[x] = static_cast<std::uint32_t>(x * columns / width * level_count);
    return starts;
}

/// Clears only what will be counted: the vectorscope alone has 65,536 bins.
void reset(const scope_selection& selection, std::size_t waveform_columns, std::size_t parade_columns,
           scope_counts& counts)
{
    if (selection.waveform)
        counts.waveform.reset(waveform_columns);
    if (selection.parade)
        for (waveform_counts& channel : counts.parade)
            channel.reset(parade_columns);
    if (selection.vectorscope)
        counts.vectorscope.reset();
    if (selection.histogram)
        counts.histogram = {};
}

// Counting is one increment per pixel and signal. Levels are within 0..255, so that no index is checked.
void count_waveform(const signal_levels::plane& levels, const std::uint32_t* starts, std::size_t count,
                    waveform_counts& counts)
{
    std::uint32_t* const bins = counts.bins.data();
    for (std::size_t i = 0; i < count; ++i)
        ++bins[starts[i] + levels[i]];
}

void count_parade(const signal_levels& levels, const std::uint32_t* starts, std::size_t count, parade_counts& counts)
{
    std::uint32_t* const r = counts[0].bins.data();
    std::uint32_t* const g = counts[1].bins.data();
    std::uint32_t* const b = counts[2].bins.data();
    for (std::size_t i = 0; i < count; ++i)
    {
        ++r[starts[i] + levels.r[i]];
        ++g[starts[i] + levels.g[i]];
        ++b[starts[i] + levels.b[i]];
    }
}

void count_vectorscope(const signal_levels& levels, std::size_t count, vectorscope_counts& counts)
{
    std::uint32_t* const bins = counts.bins.data();
    for (std::size_t i = 0; i < count; ++i)
        ++bins[levels.difference[i]];
}

void count_histogram(const signal_levels& levels, std::size_t count, histogram_counts& counts)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        ++counts.bins[0][levels.r[i]];
        ++counts.bins[1][levels.g[i]];
        ++counts.bins[2][levels.b[i]];
    }
}

/// The histogram of a channel is the sum of the columns of its waveform.
void add_columns(const parade_counts& parade, histogram_counts& histogram)
{
    for (std::size_t i = 0; i < parade.size(); ++i)
        for (std::size_t c = 0; c < parade[i].columns; ++c)
            for (std::size_t level = 0; level < level_count; ++level)
                histogram.bins[i][level] += parade[i].column(c)[level];
}

} // namespace

/// What all workers of a frame read. It does not change while they run.
struct scope_counter::plan
{
    scope_frame frame;
    scope_selection selection;
    std::size_t waveform_columns;
    std::size_t parade_columns;
    std::size_t row_step;
    signal_selection signals{};
    bool counts_histogram = false; ///< false with the parade, whose columns add up to the histogram
    column_starts waveform_starts{};
    column_starts parade_starts{};
};

void scope_counter::count_rows(const plan& wanted, std::size_t first, std::size_t end, scope_counts& counts)
{
    const scope_frame& frame = wanted.frame;
    signal_levels levels;
    for (std::size_t i = first; i < end; ++i)
        // Pieces of a row that fit into signal_levels, whose arrays stay in the first-level cache.
        for (std::size_t x = 0; x < frame.width; x += signal_levels::most)
        {
            const std::size_t count = std::min(signal_levels::most, frame.width - x);
            read_levels(frame.pixels + i * wanted.row_step * frame.width + x, count, wanted.signals, levels);
            if (wanted.selection.waveform)
                count_waveform(levels.luma, wanted.waveform_starts.data() + x, count, counts.waveform);
            if (wanted.selection.parade)
                count_parade(levels, wanted.parade_starts.data() + x, count, counts.parade);
            if (wanted.selection.vectorscope)
                count_vectorscope(levels, count, counts.vectorscope);
            if (wanted.counts_histogram)
                count_histogram(levels, count, counts.histogram);
        }
}

scope_frame frame_of(const image& picture)
{
    return {reinterpret_cast<const argb_float*>(picture.pixels()), picture.get_width(), picture.get_height()};
}

scope_counts& scope_counter::borrow(const plan& wanted)
{
    // Counts are borrowed for one piece and not bound to a thread: the thread pool does not number its threads.
    scope_counts* taken = nullptr;
    {
        const std::scoped_lock guard(workers_mutex);
        if (!idle_workers.empty())
        {
            taken = idle_workers.back();
            idle_workers.pop_back();
            return *taken;
        }
        // Memory of earlier frames is used again before more is allocated.
        if (used_workers == workers.size())
            workers.push_back(std::make_unique<scope_counts>());
        taken = workers[used_workers++].get();
    }
    // Outside the lock, because clearing takes longer than all of the above.
    reset(wanted.selection, wanted.waveform_columns, wanted.parade_columns, *taken);
    return *taken;
}

void scope_counter::give_back(scope_counts& counts)
{
    const std::scoped_lock guard(workers_mutex);
    idle_workers.push_back(&counts);
}

void scope_counter::count(const scope_frame& frame, const scope_selection& selection, const scope_sampling& sampling)
{
    // A frame without pixels still gets one column.
    const std::size_t most = std::max<std::size_t>(1, frame.width);
    plan wanted{frame, selection, std::clamp<std::size_t>(sampling.waveform_columns, 1, most),
                std::clamp<std::size_t>(sampling.parade_columns, 1, most), sampling.row_step};
    // With the parade, merge() derives the histogram from its columns, which saves a pass over the pixels.
    wanted.counts_histogram = selection.histogram && !selection.parade;
    wanted.signals = {selection.parade || selection.histogram, selection.waveform, selection.vectorscope};
    wanted.waveform_starts = starts_of(frame.width, wanted.waveform_columns);
    wanted.parade_starts = starts_of(frame.width, wanted.parade_columns);
    // The workers' counts are those of the frame before until borrow() clears them.
    used_workers = 0;
    idle_workers.clear();
    const auto count_piece = [&](std::size_t first, std::size_t end)
    {
        scope_counts& counts = borrow(wanted);
        count_rows(wanted, first, end, counts);
        give_back(counts);
    };
    const std::size_t rows = (frame.height + sampling.row_step - 1) / sampling.row_step;
    for_each_picture_piece(frame.width, rows, sampling.max_threads, count_piece);
    merge(wanted);
}

void scope_counter::merge(const plan& wanted)
{
    const scope_selection& selection = wanted.selection;
    // Without rows no worker was borrowed, so that none has been cleared.
    if (used_workers == 0)
        reset(selection, wanted.waveform_columns, wanted.parade_columns, total);
    else
        // Swapping saves one addition; the worker keeps the old memory for the next frame.
        std::swap(total, *workers[0]);
    for (std::size_t i = 1; i < used_workers; ++i)
    {
        const scope_counts& part = *workers[i];
        if (selection.waveform)
            total.waveform.add(part.waveform);
        for (std::size_t c = 0; c < part.parade.size() && selection.parade; ++c)
            total.parade[c].add(part.parade[c]);
        if (selection.vectorscope)
            total.vectorscope.add(part.vectorscope);
        if (wanted.counts_histogram)
            total.histogram.add(part.histogram);
    }
    if (selection.histogram && !wanted.counts_histogram)
        add_columns(total.parade, total.histogram);
}

} // namespace ov1
