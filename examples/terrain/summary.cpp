#include "terrain/summary.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "terrain/pictures.h"

namespace examples {
namespace {

struct Range
{
    double least, mean, most;
};

Range rangeOf(const std::vector<float>& values)
{
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    return {static_cast<double>(*least), sum / static_cast<double>(values.size()),
            static_cast<double>(*most)};
}

void printSlopes(const Facts& facts, double cells)
{
    const auto steepest = static_cast<double>(facts.steepest),
               aspect = static_cast<double>(facts.steepestAspect);
    std::printf("  steepest slope    %.2f degrees, in row %u, column %u", steepest, facts.steepestRow,
                facts.steepestColumn);
    if (steepest > 0)
        std::printf(", facing %s (%.1f degrees)", wind(aspect).c_str(), aspect);
    std::printf("\n  mean slope        %.2f degrees\n  facing           ", facts.slopeSum / cells);
    static constexpr std::array names{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
    for (std::size_t k = 0; k < names.size(); ++k)
        std::printf(" %s %.1f%%,", names[k], 100 * static_cast<double>(facts.facing[k]) / cells);
    std::printf(" level %.1f%%\n", 100 * static_cast<double>(facts.level) / cells);
}

void printCurvature(const Relief& relief, double cells)
{
    const Facts& facts = relief.facts();
    const Range curvature = rangeOf(relief.curvature().values);
    std::printf("  curvature         %.3f to %.3f per km, mean %.3f (half the Trace of the Hessian)\n",
                curvature.least, curvature.most, curvature.mean);
    const auto percent = [&](std::size_t count) { return 100 * static_cast<double>(count) / cells; };
    std::printf(
        "  shapes            domes %.1f%%, bowls %.1f%%, saddles %.1f%%, straight one way or flat %.1f%%\n"
        "                    (by Trace and Det of the Hessian, both of general order)\n",
        percent(facts.domes), percent(facts.bowls), percent(facts.saddles), percent(facts.others));
}

void printTimes(const Stages& stages, double cells)
{
    constexpr std::array table{Stage::fit, Stage::gradient, Stage::curvature, Stage::normals, Stage::shading};
    double all = 0;
    const auto line = [&](const char* name, double time) {
        std::printf("  %-17s %9.2f ms  %7.2f million objects per second\n", name, time, cells / time / 1e3);
    };
    for (const Stage stage : table) {
        line(stageNames[static_cast<std::size_t>(stage)], stages.milliseconds(stage));
        all += stages.milliseconds(stage);
    }
    line("all of these", all);
    for (const Stage stage : {Stage::read, Stage::pictures})
        std::printf("  %-17s %9.2f ms\n", stageNames[static_cast<std::size_t>(stage)],
                    stages.milliseconds(stage));
}

} // namespace

void printSummary(const Options& options, const Elevation& grid, const SurfaceFit& fit, const Relief& relief,
                  const Stages& stages)
{
    const double cells = static_cast<double>(fit.across()) * fit.down();
    const auto [lowest, highest] = std::minmax_element(grid.heights.begin(), grid.heights.end());
    std::printf("%s: %u x %u cells of %g m x %g m, heights from %g to %g m\n", options.input.c_str(),
                grid.columns, grid.rows, options.cellWidth, options.cellHeight, static_cast<double>(*lowest),
                static_cast<double>(*highest));
    std::printf("  surfaces          %.0f, fitted to windows of %u x %u cells\n", cells, options.window,
                options.window);
    printSlopes(relief.facts(), cells);
    printCurvature(relief, cells);
    const Range shading = rangeOf(relief.shading().values);
    std::printf("  shading           %.4f to %.4f, mean %.4f\n", shading.least, shading.most, shading.mean);
    printTimes(stages, cells);
}

} // namespace examples
