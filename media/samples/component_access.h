// Rows of a video frame's components between memory and floats.
#pragma once

#include "media/samples/frame_form.h"
#include "media/samples/sample_kernel.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace ov1::media
{

/// A frame, or one of its fields.
struct picture_view
{
    std::array<std::uint8_t*, 4> data;
    std::array<std::ptrdiff_t, 4> stride;
    std::size_t width;
    std::size_t height;
    std::size_t chroma_height;

    std::uint8_t* row(int plane, std::size_t y) const
    {
        return data[plane] + static_cast<std::ptrdiff_t>(y) * stride[plane];
    }
};

/// Codes between memory and floats; those that do not lie one behind the other go by way of a row of their own.
class component_access
{
public:
    explicit component_access(std::size_t width)
        : codes(width)
    {
    }

    /// Count samples from x on, a row's own or out of it.
    void read(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
              float* out)
    {
        const std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            return each_code(form.layout, row, count,
                             [=](std::size_t i, std::uint32_t code) { out[i] = std::bit_cast<float>(code); });
        if (form.is_plain() && form.layout.bytes == 1)
            return sample_kernel::widen(row, count, form.range, out);
        sample_kernel::widen(wide_codes(view, form, x, y, count), count, form.range, out);
    }

    /// Codes of two bytes one behind the other.
    const std::uint16_t* wide_codes(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                                    std::size_t count)
    {
        const std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.is_plain() && form.layout.bytes == 2)
            return reinterpret_cast<const std::uint16_t*>(row);
        each_code(form.layout, row, count,
                  [this](std::size_t i, std::uint32_t code) { codes[i] = static_cast<std::uint16_t>(code); });
        return codes.data();
    }

    void write(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
               const float* in)
    {
        std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            return each_place(form.layout, row, count,
                              [&](std::size_t i, std::uint8_t* to)
                              {
                                  const auto bits = std::bit_cast<std::uint32_t>(in[i]);
                                  store(to, form.layout.swap ? swapped(bits) : bits);
                              });
        if (form.is_plain() && form.layout.bytes == 1)
            return sample_kernel::narrow(in, count, form.range, row);
        write_wide(view, form, x, y, count,
                   [&](std::uint16_t* to) { sample_kernel::narrow(in, count, form.range, to); });
    }

    /// Has codes of two bytes made one behind the other, and puts them where they belong.
    template <typename function>
    void write_wide(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                    std::size_t count, const function& make)
    {
        std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.is_plain() && form.layout.bytes == 2)
            return make(reinterpret_cast<std::uint16_t*>(row));
        make(codes.data());
        each_place(form.layout, row, count,
                   [&](std::size_t i, std::uint8_t* to)
                   {
                       const auto code = static_cast<std::uint16_t>(codes[i] << form.layout.shift);
                       if (form.layout.bytes == 1)
                           *to = static_cast<std::uint8_t>(code);
                       else
                           store(to, form.layout.swap ? swapped(code) : code);
                   });
    }

    /// A row to write codes to that are not wanted.
    std::uint16_t* spare() { return codes.data(); }

    static std::uint8_t* place_of(const picture_view& view, const sample_layout& layout, std::size_t x, std::size_t y)
    {
        return view.row(layout.plane, y) + x * static_cast<std::size_t>(layout.step) + layout.offset;
    }

private:
    template <typename T>
    static void store(std::uint8_t* to, T value)
    {
        std::memcpy(to, &value, sizeof value);
    }

    template <typename function>
    static void each_place(const sample_layout& layout, std::uint8_t* row, std::size_t count, const function& place)
    {
        for (std::size_t i = 0; i < count; ++i)
            place(i, row + i * static_cast<std::size_t>(layout.step));
    }

    std::vector<std::uint16_t> codes;
};

} // namespace ov1::media
