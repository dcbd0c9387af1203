#include "terrain/relief.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace examples {
namespace {

constexpr double degree = std::numbers::pi / 180;

// The table of runs that begin together.
template <std::size_t n>
std::array<float*, n> tableOf(std::array<Run, n>& runs)
{
    std::array<float*, n> table;
    std::transform(runs.begin(), runs.end(), table.begin(), [](Run& run) { return run.data(); });
    return table;
}

// Degrees clockwise from north, 0 up to 360, of the way down a slope.
float aspectOf(float east, float north)
{
    const double degrees = std::atan2(-static_cast<double>(east), -static_cast<double>(north)) / degree;
    return static_cast<float>(degrees < 0 ? degrees + 360 : degrees);
}

} // namespace

Relief::Relief(SurfaceFit& fit, Sun sun)
    : fit_(fit),
      across_(fit.across()),
      zeros_(across_, 0.0F),
      ones_(across_, 1.0F),
      length_(across_),
      trace_(across_),
      determinant_(across_),
      sun_{static_cast<float>(std::sin(sun.azimuth * degree) * std::cos(sun.altitude * degree)),
           static_cast<float>(std::cos(sun.azimuth * degree) * std::cos(sun.altitude * degree)),
           static_cast<float>(std::sin(sun.altitude * degree))},
      shading_(fit.across(), fit.down()),
      curvature_(fit.across(), fit.down())
{
    for (Run& run : surface_)
        run.resize(across_);
    for (Run& run : gradient_)
        run.resize(across_);
    for (Run& run : normal_)
        run.resize(across_);
}

void Relief::doRow(unsigned row, Stages& stages)
{
    stages.time(Stage::fit, [&] { fit_.fitRow(row, tableOf(surface_)); });
    stages.time(Stage::gradient, [&] {
        findGradient();
        findSlopes(row);
    });
    stages.time(Stage::curvature, [&] {
        findCurvature(row);
        classify();
    });
    stages.time(Stage::normals, [&] { findNormals(); });
    stages.time(Stage::shading, [&] { shade(row); });
}

void Relief::findGradient()
{
    const std::array<const float*, 2> slopes{surface_[1].data(), surface_[2].data()}; // b, c
    const auto gradient = tableOf(gradient_);
    check(tenkMul_vac_32f_P(slopes.data(), 0, 1 / fit_.unit(), gradient.data(), 0, 2, across_),
          "tenkMul_vac_32f_P");
    check(tenkL2Norm_va_32f_P(gradient.data(), 0, length_.data(), 2, across_), "tenkL2Norm_va_32f_P");
}

void Relief::findSlopes(unsigned row)
{
    for (unsigned k = 0; k < across_; ++k) {
        const auto slope = static_cast<float>(std::atan(static_cast<double>(length_[k])) / degree);
        const float aspect = aspectOf(gradient_[0][k], gradient_[1][k]);
        facts_.slopeSum += static_cast<double>(slope);
        if (slope > facts_.steepest) {
            facts_.steepest = slope;
            facts_.steepestRow = row + fit_.frame();
            facts_.steepestColumn = k + fit_.frame();
            facts_.steepestAspect = aspect;
        }
        if (length_[k] * fit_.unit() < straight)
            ++facts_.level;
        else
            ++facts_.facing[static_cast<unsigned>(std::lround(aspect / 45)) % 8];
    }
}

// The Hessian [[d, e], [e, f]] of each surface is a 2 x 2 matrix in the Pointer layout. Half its trace is the
// mean curvature of the surface. The determinant is the one of general order, the only one there is for order
// 2; it takes pivots below 2^-23 for zeros, which is why the unit is about a cell.
void Relief::findCurvature(unsigned row)
{
    const std::array<const float*, 4> hessian{surface_[3].data(), surface_[4].data(), surface_[4].data(),
                                              surface_[5].data()};
    check(tenkTrace_ma_32f_P(hessian.data(), 0, 2, trace_.data(), across_), "tenkTrace_ma_32f_P");
    std::array<std::uint32_t, 2 * 2 + 2> buffer; // a matrix, and a word per row
    check(tenkDet_ma_32f_P(hessian.data(), 0, 2, buffer.data(), determinant_.data(), across_),
          "tenkDet_ma_32f_P");

    const float perKilometre = 1000 / (fit_.unit() * fit_.unit());
    const std::array<const float*, 1> from{trace_.data()};
    const std::array<float*, 1> to{curvature_.row(row)};
    check(tenkMul_vac_32f_P(from.data(), 0, perKilometre / 2, to.data(), 0, 1, across_), "tenkMul_vac_32f_P");
}

// Trace and determinant together give the principal curvatures, whose signs tell the shape.
void Relief::classify()
{
    for (unsigned k = 0; k < across_; ++k) {
        const float middle = trace_[k] / 2;
        const float spread = std::sqrt(std::max(0.0F, middle * middle - determinant_[k]));
        const float least = middle - spread, most = middle + spread;
        if (most < -straight)
            ++facts_.domes;
        else if (least > straight)
            ++facts_.bowls;
        else if (least < -straight && most > straight)
            ++facts_.saddles;
        else
            ++facts_.others;
    }
}

// A normal is the cross product of the tangents to the east, (1, 0, b), and to the north, (0, 1, c).
void Relief::findNormals()
{
    const std::array<const float*, 3> east{ones_.data(), zeros_.data(), gradient_[0].data()};
    const std::array<const float*, 3> north{zeros_.data(), ones_.data(), gradient_[1].data()};
    const auto normals = tableOf(normal_);
    check(tenkCrossProduct_vava_32f_3x1_P(east.data(), 0, north.data(), 0, normals.data(), 0, across_),
          "tenkCrossProduct_vava_32f_3x1_P");
    check(tenkL2Norm_va_32f_3x1_P(normals.data(), 0, length_.data(), across_), "tenkL2Norm_va_32f_3x1_P");
    // Each by its own constant; a normal is no shorter than 1.
    for (unsigned k = 0; k < across_; ++k) {
        constexpr auto step = static_cast<std::uint32_t>(sizeof(float));
        check(tenkMul_vc_32f_3x1_P(normals.data(), k * step, 1 / length_[k], normals.data(), k * step),
              "tenkMul_vc_32f_3x1_P");
    }
}

void Relief::shade(unsigned row)
{
    const auto normals = tableOf(normal_);
    const std::array<const float*, 3> sun{&sun_[0], &sun_[1], &sun_[2]};
    float* const shading = shading_.row(row);
    check(tenkDotProduct_vav_32f_3x1_P(normals.data(), 0, sun.data(), 0, shading, across_),
          "tenkDotProduct_vav_32f_3x1_P");
    // What looks away from the sun is black, no matter how far.
    std::transform(shading, shading + across_, shading, [](float light) { return std::max(0.0F, light); });
}

} // namespace examples
