// Inverses of orders 3 to 6 by every member, for the tests of them.
#pragma once

#include "square.h"
#include "tenk.h"

namespace inverses {

using namespace square;

constexpr double untouched = -9;

struct Member
{
    std::string code, layout;

    bool packed() const { return layout.empty() || layout == "_L"; }
    bool array() const { return code == "ma"; }
    template <typename T>
    std::string name(std::size_t n) const
    {
        const std::string size = std::to_string(n);
        return "tenkInvert_" + code + "_" + typeName<T>() + "_" + size + "x" + size + layout;
    }
};

enum class Class
{
    packed,
    scalar,
    both
};

template <typename F>
void eachMember(Class which, F f)
{
    for (const std::string code : {"m", "ma"})
        for (const std::string& layout : layoutsOf(code)) {
            const Member m{code, layout};
            if (which == Class::both || m.packed() == (which == Class::packed))
                f(m);
        }
}

template <typename T>
struct Result
{
    std::int32_t status;
    std::vector<T> inverse;
    T at(std::size_t n, std::size_t i, std::size_t j) const { return inverse[i * n + j]; }
};

inline Matrix diagonal(const Matrix& d)
{
    Matrix a(d.size() * d.size());
    for (std::size_t i = 0; i < d.size(); ++i)
        a[i * d.size() + i] = d[i];
    return a;
}

// A batch has the matrix between two times the identity on either side.
template <typename T>
Result<T> invert(const Member& m, const Matrix& values, std::size_t n)
{
    const std::size_t count = m.array() ? 3 : 1, k = m.array() ? 1 : 0;
    Objects<T> src(m.layout, n, count), dst(m.layout, n, count);
    for (std::size_t other = 0; other < count; ++other)
        src.set(other, diagonal(Matrix(n, 2)));
    src.set(k, values);
    dst.fill(T(untouched));
    Arguments arguments;
    src.addTo(arguments, m.array());
    dst.addTo(arguments, m.array());
    if (m.array())
        arguments.push_back(word(3));
    const std::string name = m.name<T>(n);
    const std::int32_t status = callByName(name, arguments);
    EXPECT_TRUE(dst.gapsAreUntouched()) << name;
    if (m.array()) {
        EXPECT_NEAR(dst.at(0, 1, 1), 0.5, 1e-6) << name;
        if (status == tenkOk) {
            EXPECT_NEAR(dst.at(2, 1, 1), 0.5, 1e-6) << name;
        } else {
            EXPECT_TRUE(dst.is(2, T(untouched))) << name;
        }
    }
    return {status, dst.object(k)};
}

template <typename T>
void expectSingular(Class which, const Matrix& values)
{
    const auto n = static_cast<std::size_t>(std::lround(std::sqrt(static_cast<double>(values.size()))));
    eachMember(which, [&](const Member& m) {
        const Result<T> r = invert<T>(m, values, n);
        EXPECT_EQ(r.status, tenkSingularError) << m.name<T>(n);
        // Two kinds of members may write before they know.
        const bool cofactors = !m.packed() && n == 4, scratch = m.packed() && sizeof(T) == 4 && n >= 5;
        if (!cofactors && !scratch) {
            EXPECT_EQ(r.inverse, std::vector<T>(n * n, T(untouched))) << m.name<T>(n);
        }
    });
}

template <typename T>
void expectRegular(Class which, const Matrix& values)
{
    const auto n = static_cast<std::size_t>(std::lround(std::sqrt(static_cast<double>(values.size()))));
    eachMember(which,
               [&](const Member& m) { EXPECT_EQ(invert<T>(m, values, n).status, tenkOk) << m.name<T>(n); });
}

} // namespace inverses
