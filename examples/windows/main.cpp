// Every 3 x 3 window of an elevation model as a matrix of its own, in three ways, with no loop over elements
// here:
//
//   strides  the windows of a grid row are objects one element apart, whose rows are a grid row apart
//   runs     a table of nine pointers into the grid: entry (i, j) begins the run of all elements (i, j) of a
//   row's
//            windows, and a shift moves the table down from grid row to grid row
//   list     a list with one pointer per window, for the whole grid in one call
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "elevation.h"
#include "tenk.h"

namespace {

constexpr unsigned order = 3;
constexpr std::uint32_t element = sizeof(float);

class Windows
{
public:
    explicit Windows(const examples::Elevation& grid)
        : grid_(grid),
          across_(grid.columns - order + 1),
          down_(grid.rows - order + 1),
          gridRow_(grid.columns * element)
    {
    }

    std::size_t count() const { return std::size_t{across_} * down_; }

    void byStrides(std::vector<float>& to) const
    {
        for (unsigned row = 0; row < down_; ++row)
            check(tenkExtract_ma_32f_S2(grid_.at(row, 0), element, gridRow_, element, target(to, row), order,
                                        order, across_));
    }

    void byRuns(std::vector<float>& to) const
    {
        std::vector<const float*> table;
        for (unsigned i = 0; i < order; ++i)
            for (unsigned j = 0; j < order; ++j)
                table.push_back(grid_.at(i, j));
        for (unsigned row = 0; row < down_; ++row)
            check(tenkExtract_ma_32f_PS2(table.data(), row * gridRow_, element, target(to, row), order, order,
                                         across_));
    }

    void byList(std::vector<float>& to) const
    {
        std::vector<const float*> list;
        list.reserve(count());
        for (unsigned row = 0; row < down_; ++row)
            for (unsigned column = 0; column < across_; ++column)
                list.push_back(grid_.at(row, column));
        check(tenkExtract_ma_32f_LS2(list.data(), 0, gridRow_, element, to.data(), order, order,
                                     static_cast<std::uint32_t>(list.size())));
    }

private:
    // The matrices of the windows of a grid row.
    float* target(std::vector<float>& to, unsigned row) const
    {
        return to.data() + std::size_t{row} * across_ * order * order;
    }

    static void check(tenkStatus status)
    {
        if (status != tenkOk)
            throw std::runtime_error("tenk answered with status " + std::to_string(status));
    }

    const examples::Elevation& grid_;
    unsigned across_, down_;
    std::uint32_t gridRow_;
};

// Runs a way of gathering a few times and tells the shortest time in milliseconds.
double milliseconds(const std::function<void()>& gather)
{
    double best = 1e9;
    for (int n = 0; n < 5; ++n) {
        const auto start = std::chrono::steady_clock::now();
        gather();
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        best = took.count() < best ? took.count() : best;
    }
    return best;
}

int run(const std::string& path)
{
    const examples::Elevation grid = examples::readElevation(path);
    if (grid.columns < order || grid.rows < order)
        throw std::runtime_error(path + ": has no 3 x 3 window");

    const Windows windows(grid);
    const std::size_t elements = windows.count() * order * order;
    std::vector<float> strides(elements), runs(elements), list(elements);
    const double strideTime = milliseconds([&] { windows.byStrides(strides); });
    const double runTime = milliseconds([&] { windows.byRuns(runs); });
    const double listTime = milliseconds([&] { windows.byList(list); });
    const bool agree = std::memcmp(strides.data(), runs.data(), elements * element) == 0 &&
                       std::memcmp(strides.data(), list.data(), elements * element) == 0;

    std::printf("%s: %u x %u cells, %zu windows of 3 x 3\n", path.c_str(), grid.columns, grid.rows,
                windows.count());
    std::printf("  %-8s %8.2f ms  %6.1f million windows per second\n", "strides", strideTime,
                static_cast<double>(windows.count()) / strideTime / 1e3);
    std::printf("  %-8s %8.2f ms  %6.1f million windows per second\n", "runs", runTime,
                static_cast<double>(windows.count()) / runTime / 1e3);
    std::printf("  %-8s %8.2f ms  %6.1f million windows per second\n", "list", listTime,
                static_cast<double>(windows.count()) / listTime / 1e3);
    std::printf("  the three agree: %s\n", agree ? "yes" : "NO");
    return agree ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 || std::strcmp(argv[1], "--help") == 0) {
        std::fprintf(
            argc == 2 ? stdout : stderr,
            "usage: windows FILE.pgm\nGathers every 3 x 3 window of an elevation model in three ways.\n");
        return argc == 2 ? 0 : 2;
    }
    try {
        return run(argv[1]);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "windows: %s\n", e.what());
        return 1;
    }
}
