#include "terrain/surface.h"

#include <cmath>

namespace examples {
namespace {

// A row per cell of the window, from the north-west, and a column per coefficient.
std::vector<float> designMatrix(unsigned window, double cellWidth, double cellHeight)
{
    const int half = static_cast<int>(window / 2);
    std::vector<float> matrix;
    for (int south = -half; south <= half; ++south)
        for (int east = -half; east <= half; ++east) {
            const double x = east * cellWidth, y = -south * cellHeight;
            for (const double value : {1.0, x, y, x * x / 2, x * y, y * y / 2})
                matrix.push_back(static_cast<float>(value));
        }
    return matrix;
}

} // namespace

SurfaceFit::SurfaceFit(const Elevation& grid, unsigned window, double cellWidth, double cellHeight)
    : grid_(grid),
      window_(window),
      unit_(static_cast<float>(std::pow(10, std::round(std::log10(std::sqrt(cellWidth * cellHeight))))))
{
    const double unit = unit_;
    factor_ = designMatrix(window, cellWidth / unit, cellHeight / unit);
    buffer_.resize(window * window);
    constexpr std::uint32_t stride = coefficients * sizeof(float);
    check(tenkQRDecomp_m_32f(factor_.data(), stride, buffer_.data(), factor_.data(), stride, coefficients,
                             window * window),
          "tenkQRDecomp_m_32f");
    for (const float& element : factor_)
        factorTable_.push_back(&element);
    for (unsigned i = 0; i < window; ++i)
        for (unsigned j = 0; j < window; ++j)
            windowTable_.push_back(grid.at(i, j));
}

void SurfaceFit::fitRow(unsigned row, const std::array<float*, coefficients>& to)
{
    // Cell (i, j) of window k is at windowTable[i window + j] + k in the northernmost row; the shift moves
    // all of them down to this one.
    const auto shift = static_cast<std::uint32_t>(std::size_t{row} * grid_.columns * sizeof(float));
    check(tenkQRBackSubst_mva_32f_P(factorTable_.data(), 0, buffer_.data(), windowTable_.data(), shift,
                                    to.data(), 0, coefficients, window_ * window_, across()),
          "tenkQRBackSubst_mva_32f_P");
}

} // namespace examples
