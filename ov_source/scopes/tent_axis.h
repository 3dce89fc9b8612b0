// A row of bins read at the places of a row of pixels.
#pragma once

#include <cstddef>
#include <vector>

namespace ov1
{

/// For each pixel the weights of neighbouring bins, none negative; they add up to 1, or there are none. Interpolates
/// where pixels stand closer than bins, averages where they stand wider apart.
class tent_axis
{
public:
    /// Pixel i reads place first + i * step, in bins; bin k is at place k. Half a bin beyond the last one and further
    /// the values are 0.
    tent_axis(std::size_t bins, std::size_t pixels, double first, double step);

    std::size_t size() const { return taps.size(); }

    /// The value at a pixel.
    float at(std::size_t pixel, const float* bins) const
    {
        const tap_list& tap = taps[pixel];
        float sum = 0;
        for (std::size_t i = 0; i < tap.count; ++i)
            sum += weights[tap.offset + i] * bins[tap.first + i];
        return sum;
    }

    /// The values at a pixel of many rows of bins side by side: bin k of all stands in rows[k * width ..]; sums takes
    /// width values.
    void at_all(std::size_t pixel, const float* rows, std::size_t width, float* sums) const;

private:
    struct tap_list
    {
        std::size_t first;
        std::size_t count;
        std::size_t offset; ///< into weights
    };

    std::vector<tap_list> taps;
    std::vector<float> weights;
};

} // namespace ov1
