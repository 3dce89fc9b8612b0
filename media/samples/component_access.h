// Rows of a frame's components between memory and floats.
#pragma once

#include "media/samples/picture_view.h"
#include "media/samples/sample_kernel.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace ov1::media
{

/// Reads and writes count samples of a component from x on, in its own row y. Codes that are not plain (frame_form.h)
/// take an intermediate row. Nothing is checked: the samples lie within the view. One thread at a time.
class component_access
{
public:
    /// For rows of up to width samples.
    explicit component_access(std::size_t width)
        : codes(width)
    {
    }

    /// Values of the codes, to two roundings; floats as stored. Writes up to margin floats after the last.
    void read(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
              float* out)
    {
        read_by(view, form, x, y, count, out,
                [&](const auto* from) { sample_kernel::widen(from, count, form.range, out); });
    }

    /// The same, rounded once: the floats nearest to the exact values.
    void read_exactly(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                      std::size_t count, float* out)
    {
        read_by(view, form, x, y, count, out,
                [&](const auto* from) { sample_kernel::widen_exactly(from, count, form.range, out); });
    }

    /// Consecutive codes of two bytes in this machine's order: the frame's own memory where it stores them so, else a
    /// copy that is valid until the next call.
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

    /// The nearest codes, ties to even, limited to the range; a NaN is 0. Floats are stored as they are.
    void write(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
               const float* in)
    {
        write_by(view, form, x, y, count, in, [&](auto* to) { sample_kernel::narrow(in, count, form.range, to); });
    }

    /// For components whose codes begin at 0; limits to 0..1 and rounds ties upward.
    void write_half_up(const picture_view& view, const component_form& form, std::size_t x, std::size_t y,
                       std::size_t count, const float* in)
    {
        write_by(view, form, x, y, count, in,
                 [&](auto* to) { sample_kernel::narrow_half_up(in, count, form.range.codes_per_unit, to); });
    }

    /// Has `make` write consecutive codes of two bytes, and takes them to their places.
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

    /// A row for codes that nobody reads, width of them.
    std::uint16_t* spare() { return codes.data(); }

    /// The address of sample x of row y, both counted in the component's own plane.
    static std::uint8_t* place_of(const picture_view& view, const sample_layout& layout, std::size_t x, std::size_t y)
    {
        return view.row(layout.plane, y) + x * static_cast<std::size_t>(layout.step) + layout.offset;
    }

private:
    /// Calls widen with consecutive codes, 8 or 16 bits wide; floats are only moved.
    template <typename function>
    void read_by(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
                 float* out, const function& widen)
    {
        const std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            each_code(form.layout, row, count,
                      [=](std::size_t i, std::uint32_t code) { out[i] = std::bit_cast<float>(code); });
        else if (form.is_plain() && form.layout.bytes == 1)
            widen(row);
        else
            widen(wide_codes(view, form, x, y, count));
    }

    /// Calls narrow with room for consecutive codes, 8 or 16 bits wide; floats are only moved.
    template <typename function>
    void write_by(const picture_view& view, const component_form& form, std::size_t x, std::size_t y, std::size_t count,
                  const float* in, const function& narrow)
    {
        std::uint8_t* const row = place_of(view, form.layout, x, y);
        if (form.layout.is_float)
            each_place(form.layout, row, count,
                       [&](std::size_t i, std::uint8_t* to)
                       {
                           const auto bits = std::bit_cast<std::uint32_t>(in[i]);
                           store(to, form.layout.swap ? swapped(bits) : bits);
                       });
        else if (form.is_plain() && form.layout.bytes == 1)
            narrow(row);
        else
            write_wide(view, form, x, y, count, narrow);
    }

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
