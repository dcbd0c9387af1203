// Element-wise functions against Eigen and a plain loop.
#pragma once

#include "support.h"

namespace bench {

// dst = f(a, b) on arrays of rows x columns objects under the name `function`. f works on elements and on
// Eigen's expressions alike. Each operand is known when this is compiled.
template <typename T, Layout layout, unsigned rows, unsigned columns, bool bArray, bool aTransposed,
          typename F>
void sumCase(const std::string& function, unsigned count, F f)
{
    const Case c{function, count};
    using Objects = Batch<T, layout, rows, columns>;
    auto a = std::make_shared<Objects>(count, 1), b = std::make_shared<Objects>(count, 2),
         d = std::make_shared<Objects>(count, 3);
    const auto second = [&] {
        if constexpr (bArray)
            return b->array();
        else
            return b->single();
    }();
    contestant(c, "tenk",
               bind(function, a->array(), second, d->array(), std::make_tuple(std::uint32_t{count})));
    contestant(c, "Eigen", [a, b, d, f] {
        for (unsigned k = 0; k < a->count(); ++k) {
            if constexpr (aTransposed)
                d->eigen(k) = f(a->eigen(k).transpose(), b->eigen(bArray ? k : 0));
            else
                d->eigen(k) = f(a->eigen(k), b->eigen(bArray ? k : 0));
        }
    });
    contestant(c, "loop", [a, b, d, f] {
        for (unsigned k = 0; k < a->count(); ++k)
            for (unsigned i = 0; i < rows; ++i)
                for (unsigned j = 0; j < columns; ++j)
                    *d->at(k, i, j) =
                        f(aTransposed ? *a->at(k, j, i) : *a->at(k, i, j), *b->at(bArray ? k : 0, i, j));
    });
}

// The name of a member of fixed size.
template <typename T, unsigned n, Layout layout>
std::string member(const std::string& operation, char second)
{
    return "tenk" + operation + "_" + typeName<T>() + "_" + std::to_string(n) + "x" +
           (second == '1' ? "1" : std::to_string(n)) + suffix(layout);
}

} // namespace bench
