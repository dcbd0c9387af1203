// What a user of this library would do with it: an elevation model, a quadratic surface fitted to the window
// round every cell, and from the surfaces slope, aspect, curvature and shading, as numbers and as pictures.
//
//   surface     the fit: one factorisation, and all right-hand sides straight out of the grid
//   relief      all that follows from the coefficients
//   pictures    maps with legends, drawn on a canvas
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>

#include "terrain/options.h"
#include "terrain/pictures.h"
#include "terrain/progress.h"
#include "terrain/relief.h"
#include "terrain/summary.h"

namespace {

using namespace examples;

void requireWindows(const Options& options, const Elevation& grid)
{
    const std::string size = std::to_string(grid.columns) + " x " + std::to_string(grid.rows) + " cells";
    if (grid.columns < options.window || grid.rows < options.window)
        throw std::runtime_error(options.input + ": has no window of " + std::to_string(options.window) +
                                 " x " + std::to_string(options.window) + " in its " + size);
    if (grid.heights.size() > SurfaceFit::largest)
        throw std::runtime_error(options.input + ": is too large, with " + size);
}

// Known before the work begins, not after it.
void requireDirectory(const std::string& path)
{
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error)
        throw std::runtime_error(path + ": cannot be made: " + error.message());
    if (access(path.c_str(), W_OK | X_OK) != 0)
        throw std::runtime_error(path + ": cannot be written to");
}

std::string write(const Canvas& picture, const std::filesystem::path& path)
{
    picture.writePng(path.string());
    return path.string() + " (" + std::to_string(picture.width()) + " x " + std::to_string(picture.height()) +
           ")";
}

void run(const Options& options)
{
    Stages stages;
    Elevation grid;
    stages.time(Stage::read, [&] { grid = readElevation(options.input); });
    requireWindows(options, grid);
    requireDirectory(options.output);

    SurfaceFit fit(grid, options.window, options.cellWidth, options.cellHeight);
    Relief relief(fit, {options.azimuth, options.altitude});
    constexpr std::size_t large = 1'000'000;
    {
        Progress progress("terrain", fit.down(), grid.heights.size() >= large);
        for (unsigned row = 0; row < fit.down(); ++row) {
            relief.doRow(row, stages);
            progress.done(row + 1);
        }
    }

    const std::string name = std::filesystem::path(options.input).stem().string();
    const std::filesystem::path directory(options.output);
    std::string hillshade, curvature;
    stages.time(Stage::pictures, [&] {
        const float weakest = straight * 1000 / (fit.unit() * fit.unit());
        hillshade = write(drawMap(relief.shading(), options.cellWidth, options.cellHeight,
                                  hillshadeLegend(name, options.azimuth, options.altitude)),
                          directory / "hillshade.png");
        curvature = write(drawMap(relief.curvature(), options.cellWidth, options.cellHeight,
                                  curvatureLegend(name, relief.curvature(), weakest)),
                          directory / "curvature.png");
    });
    printSummary(options, grid, fit, relief, stages);
    std::printf("  %s\n  %s\n", hillshade.c_str(), curvature.c_str());
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const Options options = parseOptions(argc, argv);
        if (options.help)
            std::fputs(usage, stdout);
        else
            run(options);
        return 0;
    } catch (const UsageError& e) {
        std::fprintf(stderr, "terrain: %s\nTry 'terrain --help'.\n", e.what());
        return 2;
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "terrain: there is not enough memory for this elevation model\n");
    } catch (const std::exception& e) {
        std::fprintf(stderr, "terrain: %s\n", e.what());
    }
    return 1;
}
