#include "scopes/scope_type.h"

namespace ov1
{

namespace
{

/// Neutral, because luma has no hue.
constexpr scope_colour luma_trace{226, 226, 226};

} // namespace

bool& chosen(scope_selection& selection, scope_type type)
{
    switch (type)
    {
    case scope_type::waveform:
        return selection.waveform;
    case scope_type::parade:
        return selection.parade;
    case scope_type::vectorscope:
        return selection.vectorscope;
    default:
        return selection.histogram;
    }
}

bool is_chosen(const scope_selection& selection, scope_type type)
{
    // A copy, so that one switch serves both functions.
    scope_selection copy = selection;
    return chosen(copy, type);
}

scope_sampling sampling_for(const rect& area, int line_width)
{
    scope_sampling sampling;
    // More columns than pixels would be added up again when they are drawn.
    sampling.waveform_columns = static_cast<std::size_t>(area.width);
    // The first part is enough: their widths differ by at most one pixel.
    sampling.parade_columns = static_cast<std::size_t>(parade_areas(area, line_width)[0].width);
    return sampling;
}

void draw_scope(scope_type type, const scope_counts& counts, bool skin_line, const rect& area, int line_width,
                scope_picture& picture)
{
    switch (type)
    {
    case scope_type::waveform:
        return draw_waveform(counts.waveform, luma_trace, area, line_width, picture);
    case scope_type::parade:
        return draw_parade(counts.parade, area, line_width, picture);
    case scope_type::vectorscope:
        return draw_vectorscope(counts.vectorscope, skin_line, area, line_width, picture);
    case scope_type::histogram:
        return draw_histogram(counts.histogram, area, line_width, picture);
    }
}

scope_labels scope_labels_of(scope_type type, const rect& area, int line_width)
{
    switch (type)
    {
    case scope_type::waveform:
        return waveform_labels(area, line_width);
    case scope_type::parade:
        return parade_labels(area, line_width);
    case scope_type::vectorscope:
        return vectorscope_labels(area);
    default:
        return histogram_labels(area, line_width);
    }
}

} // namespace ov1
