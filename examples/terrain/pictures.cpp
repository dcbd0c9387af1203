#include "terrain/pictures.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace examples {
namespace {

constexpr Colour paper{252, 251, 247}, ink{35, 35, 38}, faint{110, 110, 115};

// The largest of 1, 2, 3, 5, 10, 20, ... that is no larger.
double roundNumber(double limit)
{
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double digit : {5.0, 3.0, 2.0})
        if (digit * power <= limit)
            return digit * power;
    return power;
}

std::string format(const char* pattern, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, value);
    return text;
}

// The value at a place between the cells, of which cell (0, 0) reaches from 0 to 1 both ways.
float sample(const Plane& plane, double x, double y)
{
    const double column = std::clamp(x - 0.5, 0.0, plane.columns - 1.0);
    const double row = std::clamp(y - 0.5, 0.0, plane.rows - 1.0);
    const auto left = static_cast<unsigned>(column), top = static_cast<unsigned>(row);
    const unsigned right = std::min(left + 1, plane.columns - 1), bottom = std::min(top + 1, plane.rows - 1);
    const auto across = static_cast<float>(column - left), down = static_cast<float>(row - top);
    const auto mix = [](float a, float b, float share) { return a + (b - a) * share; };
    return mix(mix(plane.at(top, left), plane.at(top, right), across),
               mix(plane.at(bottom, left), plane.at(bottom, right), across), down);
}

// Where things stand in the picture.
struct Layout
{
    double pixel; // metres
    unsigned mapWidth, mapHeight;
    unsigned scale; // of all that is not the map
    unsigned margin, mapLeft, mapTop, legendTop, width, height;

    Layout(const Plane& plane, double cellWidth, double cellHeight)
    {
        constexpr double wanted = 800, most = 32; // pixels along the longer side, and for a cell
        const double side = std::min(cellWidth, cellHeight);
        const double longer = std::max(plane.columns * cellWidth, plane.rows * cellHeight) / side;
        pixel = side / std::min(std::ceil(wanted / longer), most);
        mapWidth = pixels(plane.columns * cellWidth);
        mapHeight = pixels(plane.rows * cellHeight);
        scale = std::max(1U, mapWidth / 900);
        margin = 24 * scale;
        width = std::max(mapWidth, 680 * scale) + 2 * margin;
        mapLeft = (width - mapWidth) / 2;
        mapTop = margin + 64 * scale;
        legendTop = mapTop + mapHeight + 18 * scale;
        height = legendTop + 58 * scale + margin;
    }

    unsigned pixels(double metres) const
    {
        return std::max(1U, static_cast<unsigned>(std::lround(metres / pixel)));
    }
};

void centred(Canvas& canvas, unsigned x, unsigned y, unsigned size, const std::string& words)
{
    const unsigned half = Canvas::textWidth(size, words) / 2;
    canvas.text(x - std::min(x, half), y, size, words, ink);
}

void drawTitle(Canvas& canvas, const Layout& at, const Legend& legend)
{
    const unsigned room = at.width - 2 * at.margin;
    std::string title = legend.title;
    while (title.size() > 4 && Canvas::textWidth(22 * at.scale, title) > room)
        title.replace(title.size() - 4, 4, "..."); // a character shorter each time
    canvas.text(at.margin, at.margin + 22 * at.scale, 22 * at.scale, title, ink);
    canvas.text(at.margin, at.margin + 48 * at.scale, 13 * at.scale, legend.subtitle, faint);
}

void drawPlane(Canvas& canvas, const Layout& at, const Plane& plane, const Legend& legend)
{
    canvas.fill(at.mapLeft - 1, at.mapTop - 1, at.mapWidth + 2, at.mapHeight + 2, faint);
    for (unsigned y = 0; y < at.mapHeight; ++y)
        for (unsigned x = 0; x < at.mapWidth; ++x) {
            const float value =
                sample(plane, (x + 0.5) * plane.columns / at.mapWidth, (y + 0.5) * plane.rows / at.mapHeight);
            const float share = (value - legend.from) / (legend.to - legend.from);
            canvas.set(at.mapLeft + x, at.mapTop + y, legend.colour(std::clamp(share, 0.0F, 1.0F)));
        }
}

void drawColourBar(Canvas& canvas, const Layout& at, const Legend& legend)
{
    const unsigned s = at.scale, width = 300 * s, height = 14 * s, left = at.margin + 14 * s;
    canvas.fill(left - 1, at.legendTop - 1, width + 2, height + 2, faint);
    for (unsigned x = 0; x < width; ++x)
        canvas.fill(left + x, at.legendTop, 1, height,
                    legend.colour((static_cast<float>(x) + 0.5F) / static_cast<float>(width)));
    for (const Tick& tick : legend.ticks) {
        const float share = (tick.value - legend.from) / (legend.to - legend.from);
        const unsigned x = left + static_cast<unsigned>(std::lround(share * static_cast<float>(width)));
        canvas.fill(x, at.legendTop + height, s, 4 * s, ink);
        centred(canvas, x, at.legendTop + height + 20 * s, 12 * s, tick.label);
    }
    const unsigned y = at.legendTop + height + 40 * s;
    canvas.text(left, y, 12 * s, legend.left, ink);
    canvas.text(left + width - Canvas::textWidth(12 * s, legend.right), y, 12 * s, legend.right, ink);
}

void drawScale(Canvas& canvas, const Layout& at)
{
    const unsigned s = at.scale, right = at.width - at.margin - 50 * s;
    const double metres = roundNumber(at.pixel * std::max(8U, std::min(at.mapWidth / 3, 200 * s)));
    const unsigned width = at.pixels(metres), left = right - width, y = at.legendTop + 10 * s;
    canvas.fill(left, y, width, 4 * s, ink);
    canvas.fill(left, y - 5 * s, s, 9 * s, ink);
    canvas.fill(right - s, y - 5 * s, s, 9 * s, ink);
    centred(canvas, left + width / 2, y + 24 * s, 12 * s,
            metres < 1000 ? format("%g m", metres) : format("%g km", metres / 1000));
}

void drawNorth(Canvas& canvas, const Layout& at)
{
    const unsigned s = at.scale, x = at.width - at.margin - 12 * s, top = at.legendTop - 4 * s;
    for (unsigned row = 0; row < 24 * s; ++row)
        canvas.fill(x - row / 3, top + row, 2 * (row / 3) + 1, 1, ink);
    centred(canvas, x, top + 42 * s, 14 * s, "N");
}

Colour grey(float t)
{
    return {255 * t, 255 * t, 255 * t};
}

Colour diverging(float t)
{
    constexpr std::array<Colour, 7> stops{{{120, 60, 5},
                                           {200, 125, 40},
                                           {240, 205, 140},
                                           {247, 247, 245},
                                           {155, 205, 225},
                                           {60, 135, 185},
                                           {15, 65, 120}}};
    const float place = t * (stops.size() - 1);
    const auto stop = std::min(static_cast<std::size_t>(place), stops.size() - 2);
    return between(stops[stop], stops[stop + 1], place - static_cast<float>(stop));
}

} // namespace

std::string wind(double degrees)
{
    static constexpr std::array names{"north", "north-east", "east", "south-east",
                                      "south", "south-west", "west", "north-west"};
    const long eighth = std::lround(degrees / 45) % 8;
    return names[static_cast<std::size_t>(eighth < 0 ? eighth + 8 : eighth)];
}

Canvas drawMap(const Plane& plane, double cellWidth, double cellHeight, const Legend& legend)
{
    const Layout at(plane, cellWidth, cellHeight);
    Canvas canvas(at.width, at.height, paper);
    drawTitle(canvas, at, legend);
    drawPlane(canvas, at, plane, legend);
    drawColourBar(canvas, at, legend);
    drawScale(canvas, at);
    drawNorth(canvas, at);
    return canvas;
}

Legend hillshadeLegend(const std::string& name, double azimuth, double altitude)
{
    return {"Hillshade: " + name,
            "light from the " + wind(azimuth) + " (" + format("%.4g", azimuth) + " degrees), " +
                format("%.4g", altitude) + " degrees high",
            0,
            1,
            grey,
            {{0, "0"}, {0.5F, "0.5"}, {1, "1"}},
            "turned away",
            "facing the light"};
}

Legend curvatureLegend(const std::string& name, const Plane& curvature, float weakest)
{
    // About the strongest hundredth is in full colour.
    std::vector<float> strengths(curvature.values.size());
    std::transform(curvature.values.begin(), curvature.values.end(), strengths.begin(),
                   [](float value) { return std::abs(value); });
    const auto place = strengths.begin() + static_cast<std::ptrdiff_t>((strengths.size() - 1) * 99 / 100);
    std::nth_element(strengths.begin(), place, strengths.end());
    const auto end = static_cast<float>(roundNumber(1.5 * static_cast<double>(std::max(*place, weakest))));

    Legend legend{"Curvature: " + name,
                  "change of slope per kilometre: where the ground bends",
                  -end,
                  end,
                  diverging,
                  {},
                  "ridges, crests",
                  "hollows, valleys"};
    for (const float share : {-1.0F, -0.5F, 0.0F, 0.5F, 1.0F})
        legend.ticks.push_back(
            {share * end, format(share == 0 ? "%g" : "%+g", static_cast<double>(share * end))});
    return legend;
}

} // namespace examples
