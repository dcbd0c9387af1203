// The command line of terrain.
#pragma once

#include <stdexcept>
#include <string>

namespace examples {

// What is wrong with the command line, for people.
struct UsageError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

struct Options
{
    std::string input, output = ".";
    unsigned window = 3;
    double azimuth = 315, altitude = 45;        // of the sun, in degrees, the azimuth clockwise from north
    double cellWidth = 74.5, cellHeight = 92.6; // in metres, west to east and south to north
    bool help = false;
};

extern const char* const usage;

// Throws UsageError.
Options parseOptions(int argc, char** argv);

} // namespace examples
