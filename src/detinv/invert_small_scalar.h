// The inverse of fixed order, element by element: the same formulas in both types, for the layouts whose
// elements are not adjacent.
//
// Every operation is rounded to the element type, but a reciprocal in 32f is divided in the wide unit first.
//
// Only order 4 writes before it knows that the matrix is regular: a singular one leaves its cofactors,
// unscaled and transposed, in the destination. Orders 4 to 6 cannot work in place.
#pragma once

#include "detinv/grid.h"
#include "detinv/limits.h"

namespace tenk {

TENK_INLINE float wideReciprocal(float d)
{
    return static_cast<float>(1.0L / d);
}
TENK_INLINE double wideReciprocal(double d)
{
    return 1 / d;
}

template <typename T, unsigned rows, unsigned columns, typename View>
TENK_INLINE Grid<T, rows, columns> loadGrid(const View& from)
{
    return grid<T, rows, columns>([&](auto i, auto j) TENK_LAMBDA { return load<T>(from.at(i, j)); });
}

// Orders 5 and 6.
template <typename T, unsigned n>
struct Scalar
{
    static constexpr unsigned q = 3, p = n - q;

    // Chooses the columns of the first block one by one: at each position the one that makes the leading
    // determinant largest, the first of equals, a NaN never. The search ends with position 4, in order 6 too:
    // the last column of that order is never chosen.
    template <typename View>
    TENK_INLINE static void chooseColumns(const View& from, std::size_t (&columnOrder)[n])
    {
        each<n>([&](auto j) TENK_LAMBDA { columnOrder[j] = j; });
        each<p>([&](auto position) TENK_LAMBDA {
            constexpr unsigned order = position + 1;
            Grid<T, order, order> leading;
            const auto setColumn = [&](auto j, std::size_t candidate) TENK_LAMBDA {
                each<order>([&](auto i) TENK_LAMBDA {
                    leading.at[i][j] = load<T>(from.at(i, columnOrder[candidate]));
                });
            };
            each<position>([&](auto j) TENK_LAMBDA { setColumn(j, j); });

            std::size_t best = position;
            T bestMagnitude{};
            for (std::size_t candidate = position; candidate <= 4; ++candidate) {
                setColumn(index<position>, candidate);
                const T value = magnitude(determinantByRow0(leading));
                if (candidate == position || value > bestMagnitude) {
                    best = candidate;
                    bestMagnitude = value;
                }
            }
            const std::size_t column = columnOrder[position];
            columnOrder[position] = columnOrder[best];
            columnOrder[best] = column;
        });
    }

    template <typename From, typename To>
    TENK_INLINE static bool invert(const From& from, const To& to)
    {
        std::size_t columnOrder[n];
        chooseColumns(from, columnOrder);

        // The matrix in that order of its columns:  P B
        //                                           C D
        const auto block = [&]<unsigned rows, unsigned columns>(unsigned i0, unsigned j0) TENK_LAMBDA {
            return grid<T, rows, columns>(
                [&](auto i, auto j) TENK_LAMBDA { return load<T>(from.at(i0 + i, columnOrder[j0 + j])); });
        };
        const auto P = block.template operator()<p, p>(0, 0);
        const T d1 = determinantByRow0(P);
        if (isInBand(d1))
            return false;
        const auto B = block.template operator()<p, q>(0, p);
        const auto C = block.template operator()<q, p>(p, 0);
        const auto D = block.template operator()<q, q>(p, p);

        const auto inverseP = adjugate(P) * wideReciprocal(d1);
        const auto W = -inverseP * B;
        const auto S = grid<T, q, q>([&](auto i, auto j) TENK_LAMBDA {
            T sum = C.at[i][0] * W.at[0][j] + D.at[i][j];
            each<p - 1>([&](auto k) TENK_LAMBDA { sum = sum + C.at[i][k + 1] * W.at[k + 1][j]; });
            return sum;
        });
        const T d2 = (S.at[0][2] * cofactor3(S, 0, 2) + S.at[0][0] * cofactor3(S, 0, 0)) +
                     S.at[0][1] * cofactor3(S, 0, 1);
        if (isInBand(d2))
            return false;
        const auto inverseS = adjugate(S) * wideReciprocal(d2);

        const auto lowerLeft = (-inverseS * C) * inverseP;
        const auto upperRight = W * inverseS;
        const auto upperLeft = grid<T, p, p>([&](auto i, auto j) TENK_LAMBDA {
            T sum = inverseP.at[i][j];
            each<q>([&](auto k) TENK_LAMBDA { sum = sum + W.at[i][k] * lowerLeft.at[k][j]; });
            return sum;
        });

        // The columns were exchanged, so the rows of the inverse are.
        each<n>([&](auto i) TENK_LAMBDA {
            each<n>([&](auto j) TENK_LAMBDA {
                T element;
                if constexpr (i < p && j < p)
                    element = upperLeft.at[i][j];
                else if constexpr (i < p)
                    element = upperRight.at[i][j - p];
                else if constexpr (j < p)
                    element = lowerLeft.at[i - p][j];
                else
                    element = inverseS.at[i - p][j - p];
                store(to.at(columnOrder[i], j), element);
            });
        });
        return true;
    }
};

template <typename T>
struct Scalar<T, 3>
{
    template <typename From, typename To>
    TENK_INLINE static bool invert(const From& from, const To& to)
    {
        const auto a = loadGrid<T, 3, 3>(from);
        const T determinant = determinantByRow0(a);
        if (isInBand(determinant))
            return false;
        const auto inverse = adjugate(a) * wideReciprocal(determinant);
        each<3>([&](auto i) TENK_LAMBDA {
            each<3>([&](auto j) TENK_LAMBDA { store(to.at(i, j), inverse.at[i][j]); });
        });
        return true;
    }
};

template <typename T>
struct Scalar<T, 4>
{
    // The 2 x 2 minors of two rows, by their columns.
    struct Minors
    {
        T of[4][4];

        TENK_INLINE Minors(const Grid<T, 4, 4>& a, unsigned upper, unsigned lower)
        {
            each<3>([&](auto j) TENK_LAMBDA {
                each<4>([&](auto k) TENK_LAMBDA {
                    if constexpr (j < k)
                        of[j][k] = a.at[upper][j] * a.at[lower][k] - a.at[upper][k] * a.at[lower][j];
                });
            });
        }
    };

    // The signed cofactor of an element in column j whose row is left out with sign `sign`: the elements of
    // `row` times the minors of the two rows of the other half.
    template <int sign, std::size_t j>
    TENK_INLINE static T cofactor(const T (&row)[4], const Minors& minors, Index<j>)
    {
        constexpr std::size_t a = j == 0 ? 1 : 0, b = j <= 1 ? 2 : 1, c = j <= 2 ? 3 : 2;
        if constexpr ((sign > 0) == (j % 2 == 0))
            return (row[a] * minors.of[b][c] - row[b] * minors.of[a][c]) + row[c] * minors.of[a][b];
        else
            return (row[b] * minors.of[a][c] - row[a] * minors.of[b][c]) - row[c] * minors.of[a][b];
    }

    template <typename From, typename To>
    TENK_INLINE static bool invert(const From& from, const To& to)
    {
        const auto a = loadGrid<T, 4, 4>(from);
        const Minors upper(a, 0, 1), lower(a, 2, 3);
        Grid<T, 4, 4> cofactors;
        each<4>([&](auto j) TENK_LAMBDA {
            cofactors.at[0][j] = cofactor<1>(a.at[1], lower, j);
            cofactors.at[1][j] = cofactor<-1>(a.at[0], lower, j);
            cofactors.at[2][j] = cofactor<1>(a.at[3], upper, j);
            cofactors.at[3][j] = cofactor<-1>(a.at[2], upper, j);
        });
        each<4>([&](auto i) TENK_LAMBDA {
            each<4>([&](auto j) TENK_LAMBDA { store(to.at(i, j), cofactors.at[j][i]); });
        });

        const auto product = [&](auto i) TENK_LAMBDA { return a.at[i][0] * cofactors.at[i][0]; };
        const T determinant =
            ((product(index<1>) + product(index<2>)) + product(index<3>)) + product(index<0>);
        if (isInBand(determinant))
            return false;
        const T reciprocal = wideReciprocal(determinant);
        each<4>([&](auto i) TENK_LAMBDA {
            each<4>([&](auto j) TENK_LAMBDA { store(to.at(i, j), load<T>(to.at(i, j)) * reciprocal); });
        });
        return true;
    }
};

} // namespace tenk
