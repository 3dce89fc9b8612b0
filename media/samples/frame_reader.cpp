#include "media/samples/frame_reader.h"

#include "media/samples/row_decoder.h"

#include <algorithm>

namespace ov1::media
{

namespace
{

constexpr std::size_t block_pixels = 512; ///< that the first cache holds as floats; a multiple of 4

/// libav's palettes are 256 words of 32 bits in this machine's order, alpha in the highest byte.
void read_palette(const AVFrame& frame, const std::uint8_t* index, std::size_t count, argb_float* out)
{
    const auto channel = [](std::uint32_t colour, int shift)
    { return static_cast<float>(colour >> shift & 255) / 255.0f; };
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto colour = load<std::uint32_t>(frame.data[1] + std::size_t{4} * index[i]);
        out[i] = {channel(colour, 24), channel(colour, 16), channel(colour, 8), channel(colour, 0)};
    }
}

/// The leftmost pixel is the highest bit.
void read_bits(const AVFrame& frame, const std::uint8_t* row, std::size_t x, std::size_t count, argb_float* out)
{
    const unsigned white = frame.format == AV_PIX_FMT_MONOWHITE ? 0 : 1;
    for (std::size_t i = 0; i < count; ++i)
    {
        const unsigned bit = row[(x + i) / 8] >> (7 - (x + i) % 8) & 1u;
        const float value = bit == white ? 1.0f : 0.0f;
        out[i] = {1.0f, value, value, value};
    }
}

rgb_planes<const float> as_const(const rgb_planes<float>& row) { return {row.r, row.g, row.b}; }

} // namespace

/// What a thread needs to read rows.
struct frame_reader::worker
{
    worker(const frame_form& form, const picture_view& picture)
        : form(form)
        , decoder(form, picture.width)
        , access(block_pixels)
        , rows(block_pixels)
        , alpha_row(block_pixels)
    {
        take_picture(picture, 0);
    }

    void take_picture(const picture_view& picture, std::size_t new_parity)
    {
        view = picture;
        parity = new_parity;
        decoder.set_picture(picture);
    }

    /// Null where the form has no alpha.
    const float* read_alpha(std::size_t x, std::size_t y, std::size_t count)
    {
        if (!form.has_alpha)
            return nullptr;
        access.read_exactly(view, form.alpha(), x, y, count, alpha_row.get());
        return alpha_row.get();
    }

    void read_ycbcr(std::size_t x, std::size_t y, std::size_t count, argb_float* out)
    {
        const std::size_t before = form.has_pairs() ? x % 2 : 0; // pairs begin at even pixels
        const std::size_t wanted = count + before;
        if (form.has_pairs())
        {
            decoder.decode_pairs(x - before, y, wanted, rows.pairs(0));
            rows.join_pairs(0, wanted);
        }
        else
            decoder.decode_in_order(x, y, wanted, rows.in_order.from(0));
        // Valid codes of YCbCr may lie outside red, green and blue of 0..1.
        sample_kernel::to_limited_pixels(as_const(rows.in_order.from(before)), read_alpha(x, y, count), count, out);
    }

    void read_plain(std::size_t x, std::size_t y, std::size_t count, argb_float* out)
    {
        rgb_planes<float> row = rows.in_order.from(0);
        const bool is_gray = form.family == colour_family::gray;
        access.read_exactly(view, form.components[0], x, y, count, row.r);
        if (!is_gray)
        {
            access.read_exactly(view, form.components[1], x, y, count, row.g);
            access.read_exactly(view, form.components[2], x, y, count, row.b);
        }
        else
            row.g = row.b = row.r; // three names of one row of floats
        if (form.components[0].layout.is_float)
            sample_kernel::to_pixels(as_const(row), read_alpha(x, y, count), count, out);
        else
            sample_kernel::to_limited_pixels(as_const(row), read_alpha(x, y, count), count, out);
    }

    const frame_form& form;
    picture_view view{};
    std::size_t parity = 0;
    row_decoder decoder;
    component_access access;
    pixel_rows rows;
    float_row alpha_row;
};

frame_reader::frame_reader(frame_ptr new_frame, const frame_form& form)
    : frame(std::move(new_frame))
    , form(form)
    , in_fields(has_fields(*frame, form))
    , workers(
          [this]
          {
              const picture_view whole = view_of(*frame, this->form);
              return std::make_unique<worker>(this->form, in_fields ? field_of(whole, 0) : whole);
          })
{
}

frame_reader::~frame_reader() = default;

void frame_reader::read(std::size_t x, std::size_t y, std::size_t width, std::size_t height, argb_float* out) const
{
    const auto own = workers.take();
    for (std::size_t row = 0; row < height; ++row)
        read_row(*own, x, y + row, width, out + row * width);
}

void frame_reader::read_row(worker& own, std::size_t x, std::size_t y, std::size_t width, argb_float* out) const
{
    if (form.storage == sample_storage::palette)
        return read_palette(*frame, own.view.row(0, y) + x, width, out);
    if (form.storage == sample_storage::bits)
        return read_bits(*frame, own.view.row(0, y), x, width, out);
    // The decoder keeps the chroma of one field only: reading both in turn costs a row of chroma each time.
    if (in_fields && own.parity != y % 2)
        own.take_picture(field_of(view_of(*frame, form), y % 2), y % 2);
    const std::size_t picture_y = in_fields ? y / 2 : y;
    // For the whole row, because blocks share the samples at their ends.
    if (form.family == colour_family::ycbcr)
        own.decoder.read_chroma(picture_y, x, x + width);
    // A block may begin a pixel earlier, so it leaves room for one.
    constexpr std::size_t most = block_pixels - 2;
    for (std::size_t done = 0; done < width; done += most)
    {
        const std::size_t count = std::min(most, width - done);
        if (form.family == colour_family::ycbcr)
            own.read_ycbcr(x + done, picture_y, count, out + done);
        else
            own.read_plain(x + done, picture_y, count, out + done);
    }
}

} // namespace ov1::media
