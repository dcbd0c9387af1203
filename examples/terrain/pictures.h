// Maps of a plane of values, with title, legend, scale and the direction of north.
#pragma once

#include <string>

#include "terrain/canvas.h"
#include "terrain/runs.h"

namespace examples {

struct Tick
{
    float value;
    std::string label;
};

struct Legend
{
    std::string title, subtitle;
    float from, to;            // the values at the ends of the colour bar
    Colour (*colour)(float t); // of the value that is the share t of the way between them
    std::vector<Tick> ticks;
    std::string left, right; // words under the ends of the bar
};

// North is up, and a pixel is as wide as it is high: cellWidth and cellHeight are the metres that a value
// stands for.
Canvas drawMap(const Plane& plane, double cellWidth, double cellHeight, const Legend& legend);

// What is bright faces the sun.
Legend hillshadeLegend(const std::string& name, double azimuth, double altitude);

// From the strongest ridges over even ground to the strongest hollows, each with its own colour. Bends that
// are weaker than `weakest` in all of the plane stay pale.
Legend curvatureLegend(const std::string& name, const Plane& curvature, float weakest);

// One of the eight winds in words, for degrees clockwise from north.
std::string wind(double degrees);

} // namespace examples
