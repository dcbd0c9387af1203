// Benchmarks: tenk side by side with its peers, over the same memory, in one program.
//
// A case is one function on batches of one size in one layout. For each case a benchmark file gives one
// closure per contestant, each of which processes the whole batch once; bench/main.cpp prints a line per
// case.
#pragma once

#include <Eigen/Dense>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "tenk.h"

namespace bench {

enum class Layout
{
    Standard,
    List,
    Pointer
};

inline std::string suffix(Layout l)
{
    return l == Layout::Standard ? "" : l == Layout::List ? "_L" : "_P";
}

template <typename T>
std::string typeName()
{
    return sizeof(T) == 4 ? "32f" : "64f";
}

// `count` objects of rows x columns random elements, dense, as one layout wants them: object after object for
// Standard and List, a run of `count` values per element for Pointer. A vector has one row.
template <typename T, Layout layout, unsigned rows, unsigned columns>
class Batch
{
public:
    using Matrix = Eigen::Matrix<T, rows == 1 ? columns : rows, rows == 1 ? 1 : columns,
                                 rows == 1 ? Eigen::ColMajor : Eigen::RowMajor>;

    explicit Batch(unsigned count, unsigned seed = 1)
        : count_(count), values_(std::size_t{count} * rows * columns + 16)
    {
        std::mt19937 random(seed);
        std::uniform_real_distribution<T> number(T(-1), T(1));
        for (T& x : values_)
            x = number(random);
        // A heavy diagonal keeps inverses and factors well away from their limits, and rows where they are.
        // With BENCH_EXCHANGED in the environment the rows of each object are turned by another number of
        // places.
        const bool exchanged = std::getenv("BENCH_EXCHANGED") != nullptr;
        for (unsigned k = 0; k < count; ++k)
            for (unsigned i = 0; i < rows && rows > 1 && i < columns; ++i)
                *at(k, exchanged ? (i + k) % rows : i, i) += T(3);
        for (unsigned e = 0; layout == Layout::Pointer && e < rows * columns; ++e)
            pointers_.push_back(base() + std::size_t{e} * count);
        for (unsigned k = 0; layout == Layout::List && k < count; ++k)
            pointers_.push_back(base() + std::size_t{k} * rows * columns);
    }

    unsigned count() const { return count_; }

    T* at(std::size_t k, std::size_t i, std::size_t j)
    {
        const std::size_t e = i * columns + j;
        return base() + (layout == Layout::Pointer ? e * count_ + k : k * rows * columns + e);
    }

    // The arguments of the operand as an array, and as a single object (the first one).
    auto array()
    {
        constexpr std::uint32_t stride0 = rows * columns * sizeof(T), stride1 = columns * sizeof(T);
        if constexpr (layout == Layout::Pointer)
            return std::make_tuple(pointers_.data(), std::uint32_t{0});
        else if constexpr (layout == Layout::List && rows == 1)
            return std::make_tuple(pointers_.data(), std::uint32_t{0});
        else if constexpr (layout == Layout::List)
            return std::make_tuple(pointers_.data(), std::uint32_t{0}, stride1);
        else if constexpr (rows == 1)
            return std::make_tuple(base(), stride0);
        else
            return std::make_tuple(base(), stride0, stride1);
    }
    auto single()
    {
        if constexpr (layout == Layout::Pointer)
            return std::make_tuple(pointers_.data(), std::uint32_t{0});
        else if constexpr (rows == 1)
            return std::make_tuple(base());
        else
            return std::make_tuple(base(), std::uint32_t{columns * sizeof(T)});
    }
    // A plain run of elements, as reductions write them.
    auto plain() { return std::make_tuple(base()); }

    // Object k for Eigen, over the same memory.
    auto eigen(std::size_t k)
    {
        if constexpr (layout == Layout::Pointer) {
            using Steps = Eigen::Stride<Eigen::Dynamic, Eigen::Dynamic>;
            return Eigen::Map<Matrix, Eigen::Unaligned, Steps>(
                base() + k, rows == 1 ? Steps(0, count_) : Steps(columns * count_, count_));
        } else if constexpr (layout == Layout::List) {
            return Eigen::Map<Matrix>(pointers_[k]);
        } else {
            return Eigen::Map<Matrix>(base() + k * rows * columns);
        }
    }

private:
    // Rows of 16-byte multiples begin at 16-byte addresses.
    T* base()
    {
        return reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(values_.data()) + 15) &
                                    ~std::uintptr_t{15});
    }

    unsigned count_;
    std::vector<T> values_;
    std::vector<T*> pointers_;
};

// The exported function of a name, to be called with the elements of the tuples one after the other.
inline void* exported(const std::string& name)
{
    void* f = dlsym(RTLD_DEFAULT, name.c_str());
    if (!f) {
        std::fprintf(stderr, "there is no function %s\n", name.c_str());
        std::exit(1);
    }
    return f;
}

template <typename... Tuples>
auto bind(const std::string& name, Tuples... tuples)
{
    return std::apply(
        [&](auto... arguments) {
            using Function = tenkStatus (*)(decltype(arguments)...);
            const auto f = reinterpret_cast<Function>(exported(name));
            return [=] {
                if (f(arguments...) != tenkOk) {
                    std::fprintf(stderr, "%s did not answer tenkOk\n", name.c_str());
                    std::exit(1);
                }
            };
        },
        std::tuple_cat(tuples...));
}

struct Case
{
    std::string function; // tenkAdd_mama_32f_3x3_L
    unsigned count;       // objects per batch, or elements for a single long vector
};

// The cases and the contestants, in the order in which they were registered.
inline std::vector<std::string> caseNames, contestants;

inline void remember(std::vector<std::string>& names, const std::string& name)
{
    if (std::find(names.begin(), names.end(), name) == names.end())
        names.push_back(name);
}

// `run` processes the batch once.
template <typename F>
void contestant(const Case& c, const std::string& who, F run)
{
    const std::string name = c.function + "/" + std::to_string(c.count);
    remember(caseNames, name);
    remember(contestants, who);
    benchmark::RegisterBenchmark((name + "/" + who).c_str(), [run, c](benchmark::State& state) mutable {
        for (auto _ : state) {
            run();
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * c.count);
    });
}

// Calls f.template operator()<T, n, layout>(count) for the usual grid of types, orders 3 to 6, layouts and
// batches.
template <typename F>
void grid(F f)
{
    const auto orders = [&]<typename T, Layout layout>(unsigned count) {
        f.template operator()<T, 3, layout>(count);
        f.template operator()<T, 4, layout>(count);
        f.template operator()<T, 5, layout>(count);
        f.template operator()<T, 6, layout>(count);
    };
    const auto layouts = [&]<typename T>(unsigned count) {
        orders.template operator()<T, Layout::Standard>(count);
        orders.template operator()<T, Layout::List>(count);
        orders.template operator()<T, Layout::Pointer>(count);
    };
    for (unsigned count : {1U, 64U, 4096U}) {
        layouts.template operator()<float>(count);
        layouts.template operator()<double>(count);
    }
}

} // namespace bench
