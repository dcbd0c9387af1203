// Slope, aspect, curvature and shading from the coefficients of fitted surfaces.
#pragma once

#include "terrain/stages.h"
#include "terrain/surface.h"

namespace examples {

struct Sun
{
    double azimuth, altitude; // degrees
};

// Principal curvatures below this bend of the surface, in metres within a unit, are taken for rounding.
constexpr float straight = 0.02F;

struct Facts
{
    double slopeSum = 0; // degrees
    float steepest = -1; // degrees, and where that is in the grid, and which way it looks
    unsigned steepestRow = 0, steepestColumn = 0;
    float steepestAspect = 0;
    std::array<std::size_t, 8> facing{}; // cells by the way they look: north, north-east, ...
    std::size_t level = 0;               // cells that look nowhere
    std::size_t domes = 0, bowls = 0, saddles = 0, others = 0;
};

class Relief
{
public:
    Relief(SurfaceFit& fit, Sun sun);

    // Does all stages for a row of cells, counted without the frame.
    void doRow(unsigned row, Stages& stages);

    const Plane& shading() const { return shading_; } // 0 to 1
    const Plane& curvature() const
    {
        return curvature_;
    } // mean curvature of the surface, 1/km, positive in hollows
    const Facts& facts() const { return facts_; }

private:
    void findGradient();
    void findSlopes(unsigned row);
    void findCurvature(unsigned row);
    void classify();
    void findNormals();
    void shade(unsigned row);

    SurfaceFit& fit_;
    std::uint32_t across_;
    std::array<Run, coefficients> surface_; // a to f
    std::array<Run, 2> gradient_;           // metres per metre, to the east and to the north
    std::array<Run, 3> normal_;
    Run zeros_, ones_, length_, trace_, determinant_;
    std::array<float, 3> sun_;
    Plane shading_, curvature_;
    Facts facts_;
};

} // namespace examples
