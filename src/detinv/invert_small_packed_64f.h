// The inverse of fixed order on packed rows, 64f.
//
// Orders 5 and 6 work by blocks: the first two rows and columns, and the others. What is tested differs: the
// band on the determinant of the first block, but only before its columns are exchanged; in order 3, and so
// in the second block of order 5, the reciprocal of the determinant, which is 0 for an infinite determinant
// and not for 0; in order 4, and so in order 6, the determinant. Nothing is written before the last test has
// passed.
#pragma once

#include "detinv/column_exchange.h"
#include "detinv/limits.h"
#include "frame/packed.h"

namespace tenk {

using Pair = Vector<double>;

// As integers, for which there is an instruction that keeps its source.
TENK_INLINE Pair exchangePair(Pair v)
{
    typedef std::int32_t Bits __attribute__((vector_size(16)));
    const auto bits = reinterpret_cast<Bits>(v);
    return reinterpret_cast<Pair>(shuffle<2, 3, 0, 1>(bits, bits));
}

// Three elements multiply, add and subtract in a pair and one behind it.
template <unsigned n>
TENK_INLINE Row<double, n> operator*(double factor, const Row<double, n>& row)
{
    return Row<double, n>::repeat(factor) * row;
}

// ---------------------------------------------------------------------------------------------------------------
// Orders 3 and 4, as blocks in registers: the inverse takes the place of the block unless that is singular
// ---------------------------------------------------------------------------------------------------------------

// Row j of the adjugate is the cross product of the columns that come next: elements 0 and 1 of it in a pair.
// The elements 2 of rows 0 and 1 are a pair of the cross product of rows 0 and 1 of the matrix.
TENK_INLINE bool invertBlock(Block<double, 3>& a)
{
    each<3>([&](auto i) TENK_LAMBDA { a.row[i].vector[0] = inRegister(a.row[i].vector[0]); });
    const auto& r = a.row;
    const auto lastOf = [&](unsigned i, unsigned j) TENK_LAMBDA { return Pair{r[i].rest, r[j].rest}; };
    struct Column
    {
        Pair from1, from2; // elements 1 2, and 2 0
    };
    const Column columns[3] = {
        {shuffle<0, 2>(r[1].vector[0], r[2].vector[0]), shuffle<0, 2>(r[2].vector[0], r[0].vector[0])},
        {shuffle<1, 3>(r[1].vector[0], r[2].vector[0]), shuffle<1, 3>(r[2].vector[0], r[0].vector[0])},
        {lastOf(1, 2), lastOf(2, 0)}};
    const auto cross = [](const Column& u, const Column& v)
                           TENK_LAMBDA { return u.from1 * v.from2 - v.from1 * u.from2; };
    const Pair last0 = lastOf(0, 0), last1 = lastOf(1, 1);
    const Column row0{shuffle<1, 2>(r[0].vector[0], last0), shuffle<0, 2>(last0, r[0].vector[0])};
    const Column row1{shuffle<1, 2>(r[1].vector[0], last1), shuffle<0, 2>(last1, r[1].vector[0])};

    const Pair adjugate0 = cross(columns[1], columns[2]), adjugate1 = cross(columns[2], columns[0]),
               adjugate2 = cross(columns[0], columns[1]), ends = cross(row0, row1);
    const double end2 = r[0].vector[0][0] * r[1].vector[0][1] - r[0].vector[0][1] * r[1].vector[0][0];

    const double reciprocal = 1 / ((r[0].vector[0][0] * adjugate0[0] + r[2].vector[0][0] * ends[0]) +
                                   r[1].vector[0][0] * adjugate0[1]);
    if (reciprocal == 0)
        return false;
    const Pair scale = broadcast(reciprocal), scaledEnds = scale * ends;
    a.row[0] = {{scale * adjugate0}, scaledEnds[0]};
    a.row[1] = {{scale * adjugate1}, scaledEnds[1]};
    a.row[2] = {{scale * adjugate2}, reciprocal * end2};
    return true;
}

// With eight vector registers, rows of order 4 are read again for each pair of rows: kept, they would go to
// the stack and come back from there.
TENK_INLINE void readAgainIfRegistersAreFew()
{
    if constexpr (fewRegisters)
        asm volatile("" ::: "memory");
}

// Two rows of the adjugate of order 4, from 2 v on: the cofactors in vector v of each row, which take
// products of two elements from the other vectors alone; rows(i, v) is vector v of row i. Six products of
// three elements to a cofactor, as in 32f, its lanes exchanged as there, and each pair of rows done with
// before the next one is begun. In two parts: the first two pairs, and the others.
template <unsigned v, typename Rows>
struct AdjugateRows
{
    struct Products
    {
        Pair plus, minus;
    };
    const Rows& rows;
    Pair c[4], next2, next3;

    TENK_INLINE explicit AdjugateRows(const Rows& r) : rows(r) {}

    TENK_INLINE Pair exchanged(unsigned i) const { return exchangePair(rows(i, 1 - v)); }
    TENK_INLINE Products products(unsigned i, Pair next) const
    {
        readAgainIfRegistersAreFew();
        const Pair minus = rows(i, 1 - v) * next;
        return {exchangePair(minus), minus};
    }
    TENK_INLINE Pair triples(unsigned i, const Products& p) const
    {
        const Pair r = rows(i, v);
        return r * p.plus - r * p.minus;
    }
    TENK_INLINE void set(unsigned i, Pair x) { c[i] = inRegister(x); }

    TENK_INLINE void begin()
    {
        next3 = exchanged(3);
        const Products p03 = products(0, next3);
        set(1, triples(2, p03));
        set(2, triples(1, p03));
        next2 = exchanged(2);
        const Products p02 = products(0, next2);
        set(1, c[1] - triples(3, p02));
        set(3, triples(1, p02));
    }

    TENK_INLINE void finish(Block<double, 4>& adjugate)
    {
        const Products p01 = products(0, exchanged(1));
        set(2, triples(3, p01) - c[2]);
        set(3, c[3] - triples(2, p01));
        const Products p13 = products(1, next3);
        set(0, triples(2, p13));
        set(2, c[2] + triples(0, p13));
        const Products p12 = products(1, next2);
        set(0, triples(3, p12) - c[0]);
        set(3, c[3] - triples(0, p12));
        const Products p23 = products(2, next3);
        set(0, c[0] + triples(1, p23));
        set(1, c[1] - triples(0, p23));
        adjugate.row[2 * v] = {{inRegister(shuffle<1, 3>(c[0], c[1])), inRegister(shuffle<1, 3>(c[2], c[3]))},
                               {}};
        adjugate.row[2 * v + 1] = {
            {inRegister(shuffle<0, 2>(c[0], c[1])), inRegister(shuffle<0, 2>(c[2], c[3]))}, {}};
    }
};

template <typename Rows>
TENK_INLINE bool invertRows(const Rows& rows, Block<double, 4>& inverse)
{
    Block<double, 4> adjugate;
    AdjugateRows<0, Rows> upper(rows);
    upper.begin();
    upper.finish(adjugate);
    // Begun before the determinant, so that there is something to do while that is on its way.
    AdjugateRows<1, Rows> lower(rows);
    lower.begin();
    readAgainIfRegistersAreFew();
    // (a00 C00 + a20 C20) + (a10 C10 + a30 C30), in both lanes.
    const Pair terms = shuffle<0, 2>(rows(0, 0), rows(1, 0)) * adjugate.row[0].vector[0] +
                       shuffle<0, 2>(rows(2, 0), rows(3, 0)) * adjugate.row[0].vector[1];
    const Pair determinant = terms + exchangePair(terms);
    if (determinant[0] == 0)
        return false;
    const Pair reciprocal = inRegister(broadcast(1.0)) / determinant;
    lower.finish(adjugate);
    inverse = Block<double, 4>::map([&](Pair x) TENK_LAMBDA { return reciprocal * x; }, adjugate);
    return true;
}

TENK_INLINE bool invertBlock(Block<double, 4>& a)
{
    each<4>([&](auto i) TENK_LAMBDA {
        each<2>([&](auto v) TENK_LAMBDA { a.row[i].vector[v] = inRegister(a.row[i].vector[v]); });
    });
    return invertRows([&](unsigned i, unsigned v) TENK_LAMBDA { return a.row[i].vector[v]; }, a);
}

// ---------------------------------------------------------------------------------------------------------------
// The members
// ---------------------------------------------------------------------------------------------------------------

// Orders 5 and 6.
template <unsigned n>
struct Packed<double, n>
{
    static constexpr unsigned p = 2, q = n - p;

    TENK_INLINE static bool invert(const DenseView<double>& from, const DenseView<double>& to)
    {
        return invertWithExchange<double, n>(from, to);
    }

    TENK_INLINE static bool columnsMayStay(const DenseView<double>& from)
    {
        const auto a = [&](unsigned i, unsigned j) TENK_LAMBDA { return load<double>(from.at(i, j)); };
        return !isInBand(a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0));
    }

    // The first pair of columns, from the right, that will do. Its columns are put in front by four
    // assignments, which lose column e when d is 0: column 0 then stands in two places, the matrix is divided
    // by what sent it searching, and row e of the destination is not written.
    TENK_INLINE static bool chooseColumns(const DenseView<double>& from, ColumnExchange<double, n>& exchanged)
    {
        const auto a = [&](unsigned i, std::size_t j) TENK_LAMBDA { return load<double>(from.at(i, j)); };
        for (std::size_t e = n - 1; e > 0; --e)
            for (std::size_t d = e; d-- > 0;)
                if (!isInBand(a(1, d) * a(0, e) - a(0, d) * a(1, e))) {
                    exchanged.columnOrder[0] = e;
                    exchanged.columnOrder[e] = 0;
                    exchanged.columnOrder[1] = d;
                    exchanged.columnOrder[d] = 1;
                    return true;
                }
        return false;
    }

    TENK_INLINE static bool invertAsItStands(const DenseView<double>& from, const DenseView<double>& to)
    {
        using RowQ = Row<double, q>;
        // P B
        // C D
        Pair P[p], C[q];
        RowQ B[p];
        Block<double, q> S;
        each<p>([&](auto i) TENK_LAMBDA {
            P[i] = loadVector<double>(from.at(i, 0));
            B[i] = RowQ::load(from.at(i, p));
        });
        each<q>([&](auto i) TENK_LAMBDA { C[i] = loadVector<double>(from.at(p + i, 0)); });

        const double r1 = 1 / (P[0][0] * P[1][1] - P[0][1] * P[1][0]);
        const Pair inverseP[p] = {Pair{P[1][1], -P[0][1]} * broadcast(r1),
                                  Pair{-P[1][0], P[0][0]} * broadcast(r1)};
        RowQ W[p];
        each<p>([&](auto i) TENK_LAMBDA { W[i] = -inverseP[i][0] * B[0] + -inverseP[i][1] * B[1]; });
        each<q>([&](auto i) TENK_LAMBDA {
            S.row[i] = (C[i][0] * W[0] + RowQ::load(from.at(p + i, p))) + C[i][1] * W[1];
        });
        if (!invertBlock(S))
            return false;

        Pair lowerLeft[q];
        each<q>([&](auto i) TENK_LAMBDA {
            Pair x = broadcast(-S.row[i].get(index<0>)) * C[0];
            each<q - 1>([&](auto k)
                            TENK_LAMBDA { x = x + broadcast(-S.row[i].get(index<k + 1>)) * C[k + 1]; });
            lowerLeft[i] = broadcast(x[0]) * inverseP[0] + broadcast(x[1]) * inverseP[1];
        });
        each<p>([&](auto i) TENK_LAMBDA {
            Pair upperLeft = inverseP[i];
            each<q>([&](auto k)
                        TENK_LAMBDA { upperLeft = upperLeft + broadcast(W[i].get(k)) * lowerLeft[k]; });
            RowQ upperRight = W[i].get(index<0>) * S.row[0];
            each<q - 1>([&](auto k)
                            TENK_LAMBDA { upperRight = upperRight + W[i].get(index<k + 1>) * S.row[k + 1]; });
            storeVector<double>(to.at(i, 0), upperLeft);
            upperRight.store(to.at(i, p));
        });
        each<q>([&](auto i) TENK_LAMBDA {
            storeVector<double>(to.at(p + i, 0), lowerLeft[i]);
            S.row[i].store(to.at(p + i, p));
        });
        return true;
    }
};

template <>
struct Packed<double, 3>
{
    TENK_INLINE static bool invert(const DenseView<double>& from, const DenseView<double>& to)
    {
        auto a = Block<double, 3>::load(from);
        if (!invertBlock(a))
            return false;
        a.store(to);
        return true;
    }
};

template <>
struct Packed<double, 4>
{
    template <typename From, typename To>
    TENK_INLINE static bool invert(const From& from, const To& to)
    {
        if constexpr (!fewRegisters) {
            auto a = Block<double, 4>::load(from);
            if (!invertBlock(a))
                return false;
            a.store(to);
            return true;
        } else {
            // Rows without gaps all begin at multiples of 16, or none does.
            if constexpr (requires { From::aligned; })
                if (from.start % 16 == 0)
                    return invertFromMemory(GaplessView<double, 4, true>{from.start}, to);
            return invertFromMemory(from, to);
        }
    }

    // Rows at multiples of 16 are operands of the arithmetic without being loaded first.
    template <typename From, typename To>
    TENK_INLINE static bool invertFromMemory(const From& from, const To& to)
    {
        const auto rows = [&](unsigned i, unsigned v) TENK_LAMBDA {
            const Address vector = from.row(i) + v * 16;
            if constexpr (requires { requires From::aligned; })
                return loadAligned<double>(vector);
            else
                return loadVector<double>(vector);
        };
        Block<double, 4> inverse;
        if (!invertRows(rows, inverse))
            return false;
        inverse.store(to);
        return true;
    }
};

} // namespace tenk
