// What the stages hand to each other: runs, one value for each cell of a grid row, and tables that tell where
// runs begin. Such a table describes a batch of vectors or small matrices to the library in the Pointer
// layout: element i of object k is at table[i] + k, so nothing is ever gathered.
#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "tenk.h"

namespace examples {

using Run = std::vector<float>;

// A value for each cell of a grid.
struct Plane
{
    unsigned columns = 0, rows = 0;
    std::vector<float> values;

    Plane(unsigned columns, unsigned rows) : columns(columns), rows(rows), values(std::size_t{columns} * rows)
    {
    }

    float* row(unsigned row) { return values.data() + std::size_t{row} * columns; }
    float at(unsigned row, unsigned column) const { return values[std::size_t{row} * columns + column]; }
};

// Nothing that the stages pass to the library can fail; a status other than tenkOk is a mistake in here.
inline void check(tenkStatus status, const char* what)
{
    if (status != tenkOk)
        throw std::logic_error(std::string(what) + " answered with status " + std::to_string(status));
}

} // namespace examples
