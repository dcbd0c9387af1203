// Quadratic surfaces fitted to an elevation model by least squares.
#pragma once

#include <cstdint>
#include <limits>

#include "elevation.h"
#include "terrain/runs.h"

namespace examples {

// The surface round a cell, x to the east and y to the north of its centre:
//
//     z = a + b x + c y + d x²/2 + e x y + f y²/2
//
// z is in metres. x and y are in a unit of about a cell, so that the coefficients are metres too and rounding
// in the heights is small beside them: unit() is the power of ten next to the size of a cell, such as 100 m
// for 74.5 m x 92.6 m.
constexpr unsigned coefficients = 6;

class SurfaceFit
{
public:
    // As many cells as a shift, of 31 bits and a sign, can cross.
    static constexpr std::size_t largest = std::numeric_limits<std::int32_t>::max() / sizeof(float);

    // Factors the matrix of least squares, which all windows of window x window cells have in common. The
    // elevation model, which stays in use, has at least one window, and no more cells than `largest`.
    SurfaceFit(const Elevation& grid, unsigned window, double cellWidth, double cellHeight);

    // The cells with a window: the grid without a frame of half a window.
    unsigned across() const { return grid_.columns - window_ + 1; }
    unsigned down() const { return grid_.rows - window_ + 1; }
    unsigned frame() const { return window_ / 2; }
    float unit() const { return unit_; }

    // Fits the surfaces round the cells of a row, counted without the frame. The coefficient runs begin where
    // the table says, and are across() long.
    void fitRow(unsigned row, const std::array<float*, coefficients>& to);

private:
    const Elevation& grid_;
    unsigned window_;
    float unit_;
    std::vector<float> factor_, buffer_;
    std::vector<const float*> factorTable_, windowTable_;
};

} // namespace examples
