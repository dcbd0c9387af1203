// CrossProduct: a x b of vectors of three elements, each component two products and their difference, rounded
// one by one to the element type:
//
//   dst0 = a1 b2 - a2 b1      dst1 = a2 b0 - a0 b2      dst2 = a0 b1 - a1 b0
//
// A single operand beside an array is read once, before the first object.
#pragma once

#include "frame/checks.h"
#include "frame/packed.h"
#include "frame/row.h"

namespace tenk::cross {

// How many objects are read before the first of their results is written.
consteval unsigned objectsPerStep(Member m)
{
    return m == "tenkCrossProduct_vava_32f_3x1" ? 4 : 1;
}

// Behind tables each component is written before the next one is computed from what is then in memory. All
// others read both vectors of an object before they write.
consteval bool writesInTurn(Member m)
{
    return isTable(m.layout);
}

// Component j.
template <std::size_t j, typename T>
TENK_INLINE T component(const T (&a)[3], const T (&b)[3])
{
    constexpr std::size_t next = (j + 1) % 3, afterNext = (j + 2) % 3;
    return a[next] * b[afterNext] - a[afterNext] * b[next];
}

// ---------------------------------------------------------------------------------------------------------------
// Vectors of adjacent elements: in the lanes of a vector
// ---------------------------------------------------------------------------------------------------------------

// A vector in the two orders in which it is multiplied: elements 1 2 0 and elements 2 0 1, as rows.
template <typename T>
struct Turned
{
    Row<T, 3> next, afterNext;
};

template <typename T>
TENK_INLINE Turned<T> loadTurned(Address a)
{
    Turned<T> t;
    if constexpr (sizeof(T) == 4) {
        const auto v = Row<float, 3>::load(a).rest; // lanes 0 1 1 2
        t.next.rest = shuffle<1, 3, 3, 0>(v, v);
        t.afterNext.rest = shuffle<3, 0, 0, 1>(v, v);
    } else {
        const double first = load<double>(a);
        const auto v = inRegister(loadVector<double>(a + 8));
        t.next.vector[0] = v;
        t.next.rest = first;
        t.afterNext.vector[0] = shuffle<1, 2>(v, Vector<double>{first});
        t.afterNext.rest = v[0];
    }
    return t;
}

template <typename T>
TENK_INLINE Row<T, 3> product(const Turned<T>& a, const Turned<T>& b)
{
    return a.next * b.afterNext - a.afterNext * b.next;
}

// ---------------------------------------------------------------------------------------------------------------
// Vectors in any layout
// ---------------------------------------------------------------------------------------------------------------

template <typename T>
struct Elements
{
    T element[3];

    template <typename View>
    TENK_INLINE static Elements load(const View& view)
    {
        return {{tenk::load<T>(view.at(0, 0)), tenk::load<T>(view.at(0, 1)), tenk::load<T>(view.at(0, 2))}};
    }
};

// One product after the other, but for those of a step.
template <Member m>
TENK_INLINE tenkStatus products(const Source<m>& src1, const Source<m, 1>& src2, const Destination<m>& dst,
                                Count<m> count)
{
    using T = Element<m>;
    constexpr bool single1 = m.batch() && !m.source(0).array;
    constexpr bool single2 = m.batch() && !m.source(1).array;
    // What is read once, in the form in which the kernel takes it.
    const auto read = [](const auto& view) TENK_LAMBDA {
        if constexpr (isDense(m.layout))
            return loadTurned<T>(view.start);
        else
            return Elements<T>::load(view);
    };
    using Operands = decltype(read(src1.object(0, 3)));
    Operands kept1, kept2;
    if constexpr (single1)
        kept1 = read(src1.object(0, 3));
    if constexpr (single2)
        kept2 = read(src2.object(0, 3));
    const auto operand1 = [&](std::size_t k)
                              TENK_LAMBDA { return single1 ? kept1 : read(src1.object(k, 3)); };
    const auto operand2 = [&](std::size_t k)
                              TENK_LAMBDA { return single2 ? kept2 : read(src2.object(k, 3)); };

    std::size_t k = 0;
    if constexpr (constexpr unsigned step = objectsPerStep(m); step > 1)
        for (; count - k >= step; k += step) {
            Row<T, 3> result[step];
            each<step>([&](auto n) TENK_LAMBDA { result[n] = product(operand1(k + n), operand2(k + n)); });
            each<step>([&](auto n) TENK_LAMBDA { result[n].store(dst.object(k + n, 3).start); });
        }
    for (; k < count; ++k) {
        if (anyNullObject(k, src1, src2, dst))
            return tenkNullPointerError;
        const auto to = dst.object(k, 3);
        if constexpr (isDense(m.layout)) {
            product(operand1(k), operand2(k)).store(to.start);
        } else {
            auto a = operand1(k);
            auto b = operand2(k);
            T result[3];
            each<3>([&](auto j) TENK_LAMBDA {
                if constexpr (writesInTurn(m) && j != 0) {
                    a = operand1(k);
                    b = operand2(k);
                }
                result[j] = component<j>(a.element, b.element);
                if constexpr (writesInTurn(m))
                    store<T>(to.at(0, j), result[j]);
            });
            if constexpr (!writesInTurn(m))
                each<3>([&](auto j) TENK_LAMBDA { store<T>(to.at(0, j), result[j]); });
        }
    }
    return tenkOk;
}

} // namespace tenk::cross

namespace tenk {

template <Member m>
TENK_INLINE tenkStatus crossProduct(Source<m> src1, Source<m, 1> src2, Destination<m> dst, Count<m> count)
{
    if (anyNull(src1, src2, dst))
        return tenkNullPointerError;
    if (anyNullEntryOf(3, src1, src2, dst))
        return tenkNullPointerError;
    if (count == 0)
        return tenkOk;

    if constexpr (isDense(m.layout) && m.batch())
        if (gapless<3, 1>(src1) && gapless<3, 1>(src2) && gapless<3, 1>(dst))
            return cross::products<m>(packed<3, 1>(src1), packed<3, 1>(src2), packed<3, 1>(dst), count);
    return cross::products<m>(src1, src2, dst, count);
}

} // namespace tenk
