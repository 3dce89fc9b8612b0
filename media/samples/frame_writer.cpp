#include "media/samples/frame_writer.h"

#include "media/samples/row_encoder.h"
#include "shared/half_float.h"

#include <algorithm>
#include <cassert>

namespace ov1::media
{

namespace
{

constexpr std::size_t block_pixels = 512; ///< that the first cache holds as floats; a multiple of 4

/// libav's EXR encoder truncates floats to halfs, so it gets floats that are halfs already.
void round_to_half(float* values, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        values[i] = half_to_float(float_to_half(values[i]));
}

} // namespace

/// What a thread needs to write rows.
struct frame_writer::worker
{
    worker(const frame_form& form, const picture_view& picture, bool rounds_to_half)
        : form(form)
        , picture(picture)
        , rounds_to_half(rounds_to_half)
        , encoder(form, picture.width)
        , access(block_pixels)
        // Chroma is gathered from a whole row; RGB needs no more than a block.
        , rows(form.family == colour_family::ycbcr ? picture.width : block_pixels)
        , alpha(block_pixels)
    {
    }

    void write_ycbcr(std::size_t first, std::size_t count, const argb_float* in)
    {
        encoder.begin_strip(picture, first, first + count);
        for (std::size_t y = first; y < first + count; ++y, in += picture.width)
        {
            for (std::size_t x = 0; x < picture.width; x += block_pixels)
            {
                const std::size_t wanted = std::min(block_pixels, picture.width - x);
                sample_kernel::to_planes(in + x, wanted, rows.in_order.from(x), alpha.get());
                if (form.has_pairs())
                    rows.split_pairs(x, wanted);
                encoder.encode(x, y, wanted, rows);
            }
            encoder.finish_row(y, rows);
        }
    }

    void write_rgb(std::size_t y, const argb_float* in)
    {
        const rgb_planes<float> row = rows.in_order.from(0);
        for (std::size_t x = 0; x < picture.width; x += block_pixels)
        {
            const std::size_t count = std::min(block_pixels, picture.width - x);
            sample_kernel::to_planes(in + x, count, row, alpha.get());
            // The form's components are in this order, wherever they lie in memory.
            std::size_t component = 0;
            for (float* const values : {row.r, row.g, row.b, alpha.get()})
            {
                if (component == 3 && !form.has_alpha)
                    break;
                if (rounds_to_half)
                    round_to_half(values, count);
                access.write_half_up(picture, form.components[component++], x, y, count, values);
            }
        }
    }

    const frame_form& form;
    picture_view picture;
    bool rounds_to_half;
    row_encoder encoder;
    component_access access;
    pixel_rows rows;
    float_row alpha;
};

frame_writer::frame_writer(AVFrame& frame, const frame_form& form, bool rounds_to_half)
    : frame(frame)
    , form(form)
    , rounds_to_half(rounds_to_half)
    , workers([this]
              { return std::make_unique<worker>(this->form, view_of(this->frame, this->form), this->rounds_to_half); })
{
    assert(can_be_written(form) && !form.down.site);
}

frame_writer::~frame_writer() = default;

void frame_writer::write(std::size_t first, std::size_t count, const argb_float* in)
{
    // Calls that begin within a chroma sample would write it twice, each with only a part of its pixels.
    assert(first % row_multiple == 0);
    const auto own = workers.take();
    if (form.family == colour_family::ycbcr)
        return own->write_ycbcr(first, count, in);
    for (std::size_t y = 0; y < count; ++y)
        own->write_rgb(first + y, in + y * static_cast<std::size_t>(frame.width));
}

} // namespace ov1::media
