#include "terrain/options.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include <getopt.h>

namespace examples {
namespace {

constexpr double smallestCell = 0.01, largestCell = 100'000, mostUnequal = 10;

double number(const std::string& option, const std::string& value, double from, double to)
{
    double result = 0;
    const char* const end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, result);
    if (value.empty() || error != std::errc{} || stop != end || !(from <= result && result <= to)) {
        char range[64];
        std::snprintf(range, sizeof range, "%g to %g", from, to);
        throw UsageError("--" + option + " takes a number from " + range + ", not '" + value + "'");
    }
    return result;
}

void parseCell(Options& options, const std::string& value)
{
    const std::size_t x = value.find('x');
    options.cellWidth = number("cell", value.substr(0, x), smallestCell, largestCell);
    options.cellHeight = x == std::string::npos
                             ? options.cellWidth
                             : number("cell", value.substr(x + 1), smallestCell, largestCell);
    if (std::abs(std::log(options.cellWidth / options.cellHeight)) > std::log(mostUnequal))
        throw UsageError("--cell takes sides of which one is at most 10 times the other, not '" + value +
                         "'");
}

unsigned parseWindow(const std::string& value)
{
    if (value != "3" && value != "5")
        throw UsageError("--window takes 3 or 5, not '" + value + "'");
    return value == "3" ? 3 : 5;
}

} // namespace

const char* const usage =
    "usage: terrain [OPTION]... FILE.pgm\n"
    "\n"
    "Fits a quadratic surface to the window round every cell of an elevation model, a binary PGM picture of\n"
    "8 or 16 bits with heights in metres and north at the top. Tells slope, aspect and curvature, and writes "
    "two\n"
    "pictures, hillshade.png and curvature.png.\n"
    "\n"
    "  -o, --output DIR       where the pictures go; made if missing (default: here)\n"
    "  -w, --window N         fit to windows of N x N cells, 3 or 5 (default: 3)\n"
    "  -a, --azimuth DEGREES  where the light comes from, clockwise from north (default: 315, north-west)\n"
    "  -e, --altitude DEGREES how high the sun stands, 0 to 90 (default: 45)\n"
    "  -c, --cell WxH         metres from cell to cell, west to east and south to north, or one number for "
    "both\n"
    "                         (default: 74.5x92.6, as in the model that comes with the examples)\n"
    "  -h, --help             this text\n";

Options parseOptions(int argc, char** argv)
{
    static const option known[] = {
        {"output", required_argument, nullptr, 'o'},
        {"window", required_argument, nullptr, 'w'},
        {"azimuth", required_argument, nullptr, 'a'},
        {"altitude", required_argument, nullptr, 'e'},
        {"cell", required_argument, nullptr, 'c'},
        {"help", no_argument, nullptr, 'h'},
        {nullptr, 0, nullptr, 0},
    };
    Options options;
    opterr = 0;
    for (int letter; (letter = getopt_long(argc, argv, ":o:w:a:e:c:h", known, nullptr)) != -1;)
        switch (letter) {
        case 'o':
            options.output = optarg;
            break;
        case 'w':
            options.window = parseWindow(optarg);
            break;
        case 'a':
            options.azimuth = number("azimuth", optarg, -360, 360);
            break;
        case 'e':
            options.altitude = number("altitude", optarg, 0, 90);
            break;
        case 'c':
            parseCell(options, optarg);
            break;
        case 'h':
            options.help = true;
            return options;
        case ':':
            throw UsageError(std::string(argv[optind - 1]) + " takes a value");
        default:
            throw UsageError("unknown option " + std::string(argv[optind - 1]));
        }
    if (options.output.empty())
        throw UsageError("--output takes a directory");
    if (optind + 1 != argc)
        throw UsageError(optind == argc ? "no elevation model is given"
                                        : "more than one elevation model is given");
    options.input = argv[optind];
    return options;
}

} // namespace examples
