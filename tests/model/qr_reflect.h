// One step of the QR factorisation: the reflector of a column, applied to the columns from there on.
#pragma once

#include "frame.h"

#include <cstdint>
#include <vector>

namespace model {

// A matrix row by row.
template <typename T>
struct Grid
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<T> elements;

    T& at(std::uint32_t i, std::uint32_t j) { return elements[std::size_t{i} * width + j]; }
    T at(std::uint32_t i, std::uint32_t j) const { return elements[std::size_t{i} * width + j]; }
};

// All matrices that step k may leave; none if the column is below the floor. In binary64 there is one. In
// binary32 it is open for every square in the two sums whether it is rounded before it is added, so there can
// be several; throws Undecided where that decides about the floor.
std::vector<Grid<float>> reflected(const Grid<float>& d, std::uint32_t k);
std::vector<Grid<double>> reflected(const Grid<double>& d, std::uint32_t k);

} // namespace model
