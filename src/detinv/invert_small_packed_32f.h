// The inverse of fixed order on packed rows, 32f. Nothing is divided: a reciprocal is the processor's
// estimate with one Newton step.
//
// Orders 5 and 6 eliminate one or two elements and invert the remaining block of order 4; what was eliminated
// is bordered back on. The tests are the band on the pivots and zero, exactly, on the determinant of the
// block. Nothing is written before a matrix is known to be regular.
#pragma once

#include "detinv/column_exchange.h"
#include "detinv/limits.h"

namespace tenk {

using Quad = Vector<float>;

// Lanes of one vector in another order. As integers, for which there is an instruction that keeps its source.
template <unsigned... lane>
TENK_INLINE Quad reorder(Quad v)
{
    typedef std::int32_t Bits __attribute__((vector_size(16)));
    const auto bits = reinterpret_cast<Bits>(v);
    return reinterpret_cast<Quad>(shuffle<lane...>(bits, bits));
}
template <unsigned lane>
TENK_INLINE Quad spread(Quad v)
{
    return reorder<lane, lane, lane, lane>(v);
}

// The reciprocal in every lane, with the Newton step as order 3 takes it, and as the others do.
TENK_INLINE Quad refined3(float d)
{
    const Quad v = broadcast(d), x = _mm_rcp_ps(v);
    return (x + x) - ((v * x) * x);
}
TENK_INLINE Quad refined(Quad v)
{
    const Quad x = _mm_rcp_ps(v);
    return (x + x) - (v * (x * x));
}
TENK_INLINE Quad refined(float d)
{
    return refined(broadcast(d));
}

// ---------------------------------------------------------------------------------------------------------------
// Order 4, as a block in registers
// ---------------------------------------------------------------------------------------------------------------

// Lane j of the result is lane j ^ bits. Exchanges of this kind are even permutations of the columns, so a
// cofactor comes out with its sign in every lane.
template <unsigned bits>
TENK_INLINE Quad exchangeLanes(Quad v)
{
    return reorder<0 ^ bits, 1 ^ bits, 2 ^ bits, 3 ^ bits>(v);
}

// The signed cofactors of each row, each the sum of six products of three elements, in lanes whose neighbours
// are exchanged. In lane j, with [b] for lane j ^ b, those of row 0, which belong to column j ^ 1, are
//     r1 (r2[3] r3[2] - r2[2] r3[3]) + r3 (r1[3] r2[2] - r1[2] r2[3]) - r2 (r1[3] r3[2] - r1[2] r3[3])
// with the products multiplied out. Each pair of rows is done with before the next one is begun, in the order
// that takes the fewest registers. Two products that differ by an exchange of rows are subtracted before
// anything is added, so those of a third row are 0 if two rows are equal.
TENK_INLINE void cofactorsOf(const Quad (&r)[4], Quad (&c)[4])
{
    struct Products
    {
        Quad plus, minus; // a[3] b[2] and a[2] b[3]
    };
    const auto products = [&](unsigned a, unsigned b) TENK_LAMBDA {
        const Quad plus = exchangeLanes<3>(r[a]) * exchangeLanes<2>(r[b]);
        return Products{plus, exchangeLanes<1>(plus)};
    };
    const auto triples = [&](unsigned i, const Products& p)
                             TENK_LAMBDA { return r[i] * p.plus - r[i] * p.minus; };
    const auto set = [&](unsigned i, Quad x) TENK_LAMBDA { c[i] = inRegister(x); };
    const Products p03 = products(0, 3);
    set(1, triples(2, p03));
    set(2, triples(1, p03));
    const Products p02 = products(0, 2);
    set(1, c[1] - triples(3, p02));
    set(3, triples(1, p02));
    const Products p01 = products(0, 1);
    set(2, triples(3, p01) - c[2]);
    set(3, c[3] - triples(2, p01));
    const Products p13 = products(1, 3);
    set(0, triples(2, p13));
    set(2, c[2] + triples(0, p13));
    const Products p12 = products(1, 2);
    set(0, triples(3, p12) - c[0]);
    set(3, c[3] - triples(0, p12));
    const Products p23 = products(2, 3);
    set(0, c[0] + triples(1, p23));
    set(1, c[1] - triples(0, p23));
}

TENK_INLINE void transpose(const Quad (&from)[4], Quad (&to)[4])
{
    Block<float, 4> block;
    each<4>([&](auto i) TENK_LAMBDA { block.row[i].vector[0] = from[i]; });
    const auto transposed = transpose(block);
    each<4>([&](auto i) TENK_LAMBDA { to[i] = transposed.row[i].vector[0]; });
}

// What orders 5 and 6 are bordered around.
struct Block4
{
    Quad row[4];
    Quad column[4];
};

// Returns false, with no inverse, if the determinant is 0.
TENK_INLINE bool invert4(const Quad (&r)[4], Block4& inverse)
{
    Quad cofactors[4];
    cofactorsOf(r, cofactors);
    each<4>([&](auto i) TENK_LAMBDA { cofactors[i] = exchangeLanes<1>(cofactors[i]); });
    const auto product = [&](unsigned i) TENK_LAMBDA { return r[i][0] * cofactors[i][0]; };
    const float determinant = (product(3) + product(1)) + (product(2) + product(0));
    if (determinant == 0)
        return false;
    const Quad scale = refined(determinant);
    each<4>([&](auto i) TENK_LAMBDA { inverse.column[i] = cofactors[i] * scale; });
    transpose(inverse.column, inverse.row);
    return true;
}

// ---------------------------------------------------------------------------------------------------------------
// Elimination and bordering
// ---------------------------------------------------------------------------------------------------------------

// The vectors times the lanes of `weights`, summed in order, behind `first` if there is one.
TENK_INLINE Quad weightedSum(const Quad (&v)[4], Quad weights)
{
    Quad sum = v[0] * spread<0>(weights);
    sum = sum + v[1] * spread<1>(weights);
    sum = sum + v[2] * spread<2>(weights);
    return sum + v[3] * spread<3>(weights);
}
TENK_INLINE Quad weightedSum(Quad first, const Quad (&v)[4], Quad weights)
{
    Quad sum = first + v[0] * spread<0>(weights);
    sum = sum + v[1] * spread<1>(weights);
    sum = sum + v[2] * spread<2>(weights);
    return sum + v[3] * spread<3>(weights);
}
TENK_INLINE float laneSum(float first, Quad v)
{
    return (((first + v[0]) + v[1]) + v[2]) + v[3];
}

// Takes multiples of a row from the rows below.
TENK_INLINE void eliminate(Quad (&rows)[4], Quad factors, Quad pivotRow)
{
    rows[0] = rows[0] - spread<0>(factors) * pivotRow;
    rows[1] = rows[1] - spread<1>(factors) * pivotRow;
    rows[2] = rows[2] - spread<2>(factors) * pivotRow;
    rows[3] = rows[3] - spread<3>(factors) * pivotRow;
}

// The inverse of order 5 around the inverse of the block that was left of order 4.
struct Bordered
{
    float corner; // element (0, 0)
    Quad above;   // the rest of row 0
    Quad left;    // the rest of column 0

    // `reciprocal` is that of the pivot, `factors` are the multiples of its row `pivotRow` that were taken
    // from the others.
    TENK_INLINE Bordered(const Block4& inverse, Quad reciprocal, Quad factors, Quad pivotRow)
    {
        const Quad weights = reciprocal * pivotRow;
        const Quad down = weightedSum(inverse.column, factors);
        corner = laneSum(reciprocal[0], weights * down);
        left = -down;
        above = -weightedSum(inverse.row, weights);
    }
};

// The inverse of order 6 around that of order 5: the border again, with an element in front of each vector.
struct BorderedTwice
{
    float corner;
    float leftFirst, aboveFirst;
    Quad left, above;

    TENK_INLINE BorderedTwice(const Block4& inverse, const Bordered& inner, Quad reciprocal,
                              float factorFirst, Quad factors, float pivotRowFirst, Quad pivotRow)
    {
        const float weightFirst = reciprocal[0] * pivotRowFirst;
        const Quad weights = reciprocal * pivotRow;
        const float downFirst = laneSum(inner.corner * factorFirst, inner.above * factors);
        const Quad down = weightedSum(inner.left * broadcast(factorFirst), inverse.column, factors);
        corner = laneSum(reciprocal[0] + weightFirst * downFirst, weights * down);
        leftFirst = -downFirst;
        left = -down;
        aboveFirst = -laneSum(inner.corner * weightFirst, inner.left * weights);
        above = -weightedSum(inner.above * broadcast(weightFirst), inverse.row, weights);
    }
};

// ---------------------------------------------------------------------------------------------------------------
// The search for pivots
// ---------------------------------------------------------------------------------------------------------------

// The largest magnitude of a row. Of equals among the first four the last one wins, and these four go ahead
// of those behind them; a NaN never wins.
template <std::size_t n>
TENK_INLINE std::size_t largest(const float (&row)[n])
{
    std::size_t best = 0;
    float bestMagnitude = -1;
    const auto look = [&](std::size_t j) TENK_LAMBDA {
        if (magnitude(row[j]) > bestMagnitude) {
            best = j;
            bestMagnitude = magnitude(row[j]);
        }
    };
    for (std::size_t j = 4; j-- > 0;)
        look(j);
    for (std::size_t j = 4; j < n; ++j)
        look(j);
    return best;
}

// ---------------------------------------------------------------------------------------------------------------
// The members
// ---------------------------------------------------------------------------------------------------------------

// Rows or columns a0, a1, a2 turned by one and by two elements. A cross product of two of them is the vector
// of cofactors of the third.
struct Turned
{
    Quad once, twice;

    TENK_INLINE friend Quad cross(const Turned& a, const Turned& b)
    {
        return a.once * b.twice - a.twice * b.once;
    }
};

template <>
struct Packed<float, 3>
{
    TENK_INLINE static bool invert(const DenseView<float>& from, const DenseView<float>& to)
    {
        return from.rowStep == 12 && to.rowStep == 12 ? invertRun(from.start, to.start)
                                                      : invertRows(from, to);
    }

    // Row by row: cross products of rows are columns of the adjugate.
    TENK_INLINE static bool invertRows(const DenseView<float>& from, const DenseView<float>& to)
    {
        const auto a = Block<float, 3>::load(from); // lanes 0 1 1 2
        const auto turned = [&](unsigned i) TENK_LAMBDA {
            return Turned{reorder<1, 3, 3, 0>(a.row[i].rest), reorder<3, 0, 0, 1>(a.row[i].rest)};
        };
        const Turned r0 = turned(0), r1 = turned(1), r2 = turned(2);
        Block<float, 3> cofactors;
        cofactors.row[0].rest = cross(r1, r2);
        cofactors.row[1].rest = cross(r2, r0);
        cofactors.row[2].rest = cross(r0, r1);
        const auto product = [&](unsigned i)
                                 TENK_LAMBDA { return a.row[i].rest[0] * cofactors.row[i].rest[0]; };
        const float determinant = (product(1) + product(2)) + product(0);
        if (determinant == 0)
            return false;
        const Quad scale = refined3(determinant);
        each<3>([&](auto i) TENK_LAMBDA { cofactors.row[i].rest = cofactors.row[i].rest * scale; });
        transpose(cofactors).store(to);
        return true;
    }

    // Without gaps between rows an object is a run of nine, from which columns are as near as rows: their
    // cross products are rows of the adjugate. Lanes 0 1 2 2.
    TENK_INLINE static bool invertRun(Address from, Address to)
    {
        // a00 a01 a02 a10 | a11 a12 a20 a21, and a12 a20 a21 a22
        const Quad low = loadVector<float>(from), high = loadVector<float>(from + 16);
        const Quad end = loadVector<float>(from + 20);
        const Quad column0 = shuffle<0, 3, 6, 6>(low, high);
        const Quad column1 = shuffle<1, 1, 4, 7>(low, high); // lanes 0 0 1 2
        const Quad column2 = shuffle<2, 2, 4, 7>(low, end);
        const Turned c0{reorder<1, 2, 0, 0>(column0), reorder<2, 0, 1, 1>(column0)};
        const Turned c1{reorder<2, 3, 0, 0>(column1), reorder<3, 0, 2, 2>(column1)};
        const Turned c2{reorder<2, 3, 0, 0>(column2), reorder<3, 0, 2, 2>(column2)};
        const Quad row0 = cross(c1, c2), row1 = cross(c2, c0), row2 = cross(c0, c1);
        const Quad products = column0 * row0;
        const float determinant = (products[1] + products[2]) + products[0];
        if (determinant == 0)
            return false;
        const Quad scale = refined3(determinant);
        // The fourth lane of a row is overwritten by the next row.
        storeVector<float>(to, row0 * scale);
        storeVector<float>(to + 12, row1 * scale);
        const Quad last = row2 * scale;
        storeLow(to + 24, last);
        store<float>(to + 32, last[2]);
        return true;
    }
};

template <>
struct Packed<float, 4>
{
    template <typename From, typename To>
    TENK_INLINE static bool invert(const From& from, const To& to)
    {
        Quad rows[4], cofactors[4], adjugate[4]; // of the adjugate row 1, 0, 3, 2
        each<4>([&](auto i) TENK_LAMBDA { rows[i] = loadVector<float>(from.row(i)); });
        cofactorsOf(rows, cofactors);
        transpose(cofactors, adjugate);
        // The determinant in every lane, with the products of column 0 in one vector.
        const Quad column0 =
            shuffle<0, 1, 4, 5>(shuffle<0, 4, 1, 5>(rows[0], rows[1]), shuffle<0, 4, 1, 5>(rows[2], rows[3]));
        const Quad products = column0 * adjugate[1];
        const Quad sums = products + exchangeLanes<2>(products);
        const Quad determinant = exchangeLanes<1>(sums) + sums;
        if (determinant[0] == 0)
            return false;
        const Quad scale = refined(determinant);
        each<4>([&](auto i) TENK_LAMBDA { storeVector<float>(to.row(i ^ 1), adjugate[i] * scale); });
        return true;
    }
};

template <>
struct Packed<float, 5>
{
    TENK_INLINE static bool invert(const DenseView<float>& from, const DenseView<float>& to)
    {
        return invertWithExchange<float, 5>(from, to);
    }

    TENK_INLINE static bool columnsMayStay(const DenseView<float>& from)
    {
        return !isInBand(load<float>(from.at(0, 0)));
    }

    TENK_INLINE static bool chooseColumns(const DenseView<float>& from, ColumnExchange<float, 5>& exchanged)
    {
        float row[5];
        each<5>([&](auto j) TENK_LAMBDA { row[j] = load<float>(from.at(0, j)); });
        const std::size_t column = largest(row);
        exchanged.exchange(0, column);
        return !isInBand(row[column]);
    }

    TENK_INLINE static bool invertAsItStands(const DenseView<float>& from, const DenseView<float>& to)
    {
        const Quad reciprocal = refined(load<float>(from.at(0, 0)));
        const Quad pivotRow = loadVector<float>(from.at(0, 1));
        const auto first = [&](unsigned i) TENK_LAMBDA { return load<float>(from.at(i, 0)); };
        const Quad factors = reciprocal * Quad{first(1), first(2), first(3), first(4)};
        Quad rows[4];
        each<4>([&](auto i) TENK_LAMBDA { rows[i] = loadVector<float>(from.at(i + 1, 1)); });
        eliminate(rows, factors, pivotRow);
        Block4 inverse;
        if (!invert4(rows, inverse))
            return false;

        const Bordered border(inverse, reciprocal, factors, pivotRow);
        store(to.at(0, 0), border.corner);
        storeVector<float>(to.at(0, 1), border.above);
        each<4>([&](auto i) TENK_LAMBDA {
            store<float>(to.at(i + 1, 0), border.left[std::size_t{i}]);
            storeVector<float>(to.at(i + 1, 1), inverse.row[i]);
        });
        return true;
    }
};

template <>
struct Packed<float, 6>
{
    TENK_INLINE static bool invert(const DenseView<float>& from, const DenseView<float>& to)
    {
        return invertWithExchange<float, 6>(from, to);
    }

    TENK_INLINE static bool columnsMayStay(const DenseView<float>& from)
    {
        const auto a = [&](unsigned i, unsigned j) TENK_LAMBDA { return load<float>(from.at(i, j)); };
        return !isInBand(a(0, 0)) && !isInBand(a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0));
    }

    // Both pivots are searched for, the second in what the first leaves of row 1.
    TENK_INLINE static bool chooseColumns(const DenseView<float>& from, ColumnExchange<float, 6>& exchanged)
    {
        float row[6];
        each<6>([&](auto j) TENK_LAMBDA { row[j] = load<float>(from.at(0, j)); });
        const std::size_t column = largest(row);
        if (isInBand(row[column]))
            return false;
        exchanged.exchange(0, column);

        const auto a = [&](unsigned i, unsigned j)
                           TENK_LAMBDA { return load<float>(from.at(i, exchanged.columnOrder[j])); };
        const float factor = refined(a(0, 0))[0] * a(1, 0);
        float left[5];
        each<5>([&](auto j) TENK_LAMBDA { left[j] = a(1, j + 1) - factor * a(0, j + 1); });
        const std::size_t second = largest(left);
        exchanged.exchange(1, second + 1);
        return !isInBand(left[second]);
    }

    TENK_INLINE static bool invertAsItStands(const DenseView<float>& from, const DenseView<float>& to)
    {
        const auto a = [&](unsigned i, unsigned j) TENK_LAMBDA { return load<float>(from.at(i, j)); };
        const auto behind = [&](unsigned i) TENK_LAMBDA { return loadVector<float>(from.at(i, 2)); };
        // Columns 0 and 1 of rows 2 to 5.
        const Quad upper = loadHalves(from.at(2, 0), from.at(3, 0)),
                   lower = loadHalves(from.at(4, 0), from.at(5, 0));
        const Quad column0 = shuffle<0, 2, 4, 6>(upper, lower), column1 = shuffle<1, 3, 5, 7>(upper, lower);
        Quad rows[4];
        each<4>([&](auto i) TENK_LAMBDA { rows[i] = behind(i + 2); });

        const Quad reciprocal1 = refined(a(0, 0));
        const Quad pivotRow1 = behind(0);
        const float factor1First = reciprocal1[0] * a(1, 0);
        const Quad factors1 = reciprocal1 * column0;
        eliminate(rows, factors1, pivotRow1);

        const Quad reciprocal2 = refined(a(1, 1) - factor1First * a(0, 1));
        const Quad pivotRow2 = behind(1) - broadcast(factor1First) * pivotRow1;
        const Quad factors2 = reciprocal2 * (column1 - factors1 * broadcast(a(0, 1)));
        eliminate(rows, factors2, pivotRow2);

        Block4 inverse;
        if (!invert4(rows, inverse))
            return false;
        const Bordered inner(inverse, reciprocal2, factors2, pivotRow2);
        const BorderedTwice outer(inverse, inner, reciprocal1, factor1First, factors1, a(0, 1), pivotRow1);

        store(to.at(0, 0), outer.corner);
        store(to.at(0, 1), outer.aboveFirst);
        storeVector<float>(to.at(0, 2), outer.above);
        store(to.at(1, 0), outer.leftFirst);
        store(to.at(1, 1), inner.corner);
        storeVector<float>(to.at(1, 2), inner.above);
        const Quad left01 = shuffle<0, 4, 1, 5>(outer.left, inner.left);
        const Quad left23 = shuffle<2, 6, 3, 7>(outer.left, inner.left);
        storeLow(to.at(2, 0), left01);
        storeHigh(to.at(3, 0), left01);
        storeLow(to.at(4, 0), left23);
        storeHigh(to.at(5, 0), left23);
        each<4>([&](auto i) TENK_LAMBDA { storeVector<float>(to.at(i + 2, 2), inverse.row[i]); });
        return true;
    }
};

} // namespace tenk
