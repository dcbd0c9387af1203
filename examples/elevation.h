// Elevation models: grids of heights, read from PGM files of any kind with libnetpbm.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace examples {

struct Elevation
{
    unsigned columns = 0, rows = 0;
    std::vector<float> heights; // row after row, from the north

    const float* at(unsigned row, unsigned column) const
    {
        return &heights[std::size_t{row} * columns + column];
    }
};

// Throws std::runtime_error with a message for people if the file is missing, is no PGM, or ends too early.
Elevation readElevation(const std::string& path);

} // namespace examples
