// Resamples a row of bins to a row of pixels.
#pragma once

#include <cstddef>
#include <vector>

namespace ov1
{

/// The weights of neighbouring bins for each pixel: not negative, with a sum of 1, or none at all. Interpolates if
/// pixels are closer together than bins, else averages.
class tent_axis
{
public:
    /// Pixel i is at position first + i * step, bin k at position k. From half a bin outside the bins on, the values
    /// are 0.
    tent_axis(std::size_t bins, std::size_t pixels, double first, double step);

    /// The number of pixels.
    std::size_t size() const { return taps.size(); }

    /// The interpolated value at a pixel.
    /// `bins` has as many values as the axis has bins.
    float at(std::size_t pixel, const float* bins) const
    {
        const tap_list& tap = taps[pixel];
        float sum = 0;
        for (std::size_t i = 0; i < tap.count; ++i)
            sum += weights[tap.offset + i] * bins[tap.first + i];
        return sum;
    }

    /// The values of `width` rows at a pixel: bin k of all rows is at rows[k * width], consecutively. Writes width
    /// values to sums.
    void at_all(std::size_t pixel, const float* rows, std::size_t width, float* sums) const;

private:
    /// The bins first..first + count - 1 and the position of their weights.
    struct tap_list
    {
        std::size_t first;
        std::size_t count;
        std::size_t offset; ///< in weights
    };

    /// One per pixel.
    std::vector<tap_list> taps;
    /// The weights of all pixels, consecutively.
    std::vector<float> weights;
};

} // namespace ov1
