// The order in which every function tests its arguments, over the whole interface; exceptions by name.
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

#include "interface.h"
#include "support/call.h"
#include "support/library.h"
#include "tenk/types.h"

namespace {

using support::Argument;
using tenk::tools::Function;
using tenk::tools::Parameter;

// One call with memory of its own behind each pointer. Sources hold objects with 2 on the diagonal, which
// every family can do something with, destinations hold nothing but `untouched`; both have rows of `row`
// elements and objects of `object`. A table or list has pointers into that memory. In front of it is a row
// that some members read.
template <typename T>
class Call
{
public:
    static constexpr std::size_t row = 8, object = 64;
    static constexpr std::size_t pointers = 6 * 6 + 1; // of the largest table, and one behind it
    static constexpr T untouched = T(77);

    explicit Call(const Function& f, std::uint32_t count)
        : f_(f), blocks_(f.parameters.size()), entries_(f.parameters.size())
    {
        for (std::size_t p = 0; p < f.parameters.size(); ++p)
            addArgument(p, count);
    }

    std::int32_t status() const { return support::call(support::exportedAddress(f_.name), arguments).status; }

    bool isPointer(std::size_t p) const { return type(p).find('*') != std::string::npos; }
    bool isTableOrList(std::size_t p) const { return type(p).ends_with("* const*"); }
    bool isSize(std::size_t p) const
    {
        return tenk::sizeWords.find(" " + f_.parameters[p].word + " ") != std::string_view::npos;
    }
    std::vector<const T*>& entries(std::size_t p) { return entries_[p]; }

    // How many pointers the table of one operand has; sizes are all 2 or all that of the name.
    std::size_t tableLength(std::size_t p) const
    {
        const std::string& word = f_.parameters[p].word;
        const tenk::Code code = word == "dst" ? f_.member.destination()
                                              : f_.member.source(word == "src2"   ? 1
                                                                 : word == "src3" ? 2
                                                                                  : 0);
        return code.kind == 'm' ? order() * order() : order();
    }

    // Whether anything has been written, and whether to object k or to result k.
    bool isWritten() const { return isWritten(0, pointers * object); }
    bool isWritten(std::size_t k) const
    {
        for (const Parameter& parameter : f_.parameters)
            if (parameter.word == "result")
                return isWritten(k, k + 1);
        return isWritten(k * object, (k + 1) * object);
    }

    std::vector<Argument> arguments;

private:
    bool isWritten(std::size_t first, std::size_t end) const
    {
        for (std::size_t p = 0; p < blocks_.size(); ++p)
            for (std::size_t e = first; f_.parameters[p].name == "dst" && e < end; ++e)
                if (blocks_[p][row + e] != untouched)
                    return true;
        return false;
    }
    const std::string& type(std::size_t p) const { return f_.parameters[p].type; }
    std::size_t order() const { return f_.member.general() ? 2 : f_.member.size; }

    void addArgument(std::size_t p, std::uint32_t count)
    {
        const Parameter& parameter = f_.parameters[p];
        Argument a;
        if (isPointer(p)) {
            a.kind = Argument::Kind::pointer;
            std::vector<T>& block = blocks_[p];
            block.assign(row + pointers * object, parameter.name == "dst" ? untouched : T(0));
            if (parameter.word.starts_with("src"))
                for (std::size_t k = 0; k < 3; ++k)
                    for (std::size_t i = 0; i < 6; ++i)
                        block[row + k * object + i * row + i] = T(2);
            for (std::size_t e = 0; e < pointers; ++e)
                entries_[p].push_back(&block[row + e * object]);
            a.bits = isTableOrList(p) ? reinterpret_cast<std::uintptr_t>(entries_[p].data())
                                      : reinterpret_cast<std::uintptr_t>(block.data() + row);
        } else if (type(p) != "uint32_t") {
            a.kind = sizeof(T) == 4 ? Argument::Kind::value32f : Argument::Kind::value64f;
            const T value = T(0.5);
            std::memcpy(&a.bits, &value, sizeof value);
        } else if (isSize(p)) {
            a.bits = 2;
        } else if (parameter.word == "count") {
            a.bits = count;
        } else {
            const std::size_t elements = parameter.field == "stride0"   ? object
                                         : parameter.field == "stride1" ? row
                                         : parameter.field == "stride2" ? 1
                                                                        : 0;
            a.bits = elements * sizeof(T);
        }
        arguments.push_back(a);
    }

    const Function& f_;
    std::vector<std::vector<T>> blocks_;
    std::vector<std::vector<const T*>> entries_;
};

// Calls visit(function, call) for every function of the library that a regular expression does not name.
template <typename F>
void eachFunction(std::uint32_t count, const char* exceptions, F visit)
{
    const std::regex except(exceptions);
    unsigned visited = 0;
    for (const Function& f : tenk::tools::allFunctionsOfTheTable()) {
        if (!support::exportedAddress(f.name) || std::regex_match(f.name, except))
            continue;
        ++visited;
        if (f.member.type == tenk::Type::f32)
            visit(f, [&] { return Call<float>(f, count); });
        else
            visit(f, [&] { return Call<double>(f, count); });
    }
    if (support::exportedNames().size() == tenk::allFunctions) {
        EXPECT_GT(visited, 5000U);
    }
}

// Some members of Extract test nothing at all.
constexpr const char* testNothing = "tenkExtract_(m_..f_P|mT_..f_P|v_64f_P)";

TEST(Arguments, ANullPointerComesBeforeAllSizesAndEntriesAndTheCount)
{
    eachFunction(0, testNothing, [](const Function& f, auto make) {
        for (std::size_t p = 0; p < f.parameters.size(); ++p) {
            auto call = make();
            if (!call.isPointer(p))
                continue;
            for (std::size_t other = 0; other < f.parameters.size(); ++other) {
                if (call.isSize(other))
                    call.arguments[other].bits = 0;
                for (auto& entry : call.entries(other))
                    entry = nullptr;
            }
            call.arguments[p].bits = 0;
            EXPECT_EQ(call.status(), tenkNullPointerError) << f.name << " without " << f.parameters[p].name;
            EXPECT_FALSE(call.isWritten()) << f.name;
        }
    });
}

TEST(Arguments, ASizeOfZeroComesBeforeAllEntriesAndTheCount)
{
    // Copy of matrices tests no size, a product of an array and one matrix not that one's width.
    const std::string exceptions = std::string(testNothing) + "|tenkCopy_ma_.*";
    const std::regex productOfArrayAndOne("tenkMul_mam_..f(_[SPL].*)?");
    eachFunction(0, exceptions.c_str(), [&](const Function& f, auto make) {
        for (std::size_t p = 0; p < f.parameters.size(); ++p) {
            auto call = make();
            if (!call.isSize(p) ||
                (f.parameters[p].name == "src2Width" && std::regex_match(f.name, productOfArrayAndOne)))
                continue;
            for (std::size_t other = 0; other < f.parameters.size(); ++other)
                for (auto& entry : call.entries(other))
                    entry = nullptr;
            call.arguments[p].bits = 0;
            EXPECT_EQ(call.status(), tenkSizeError) << f.name << " with " << f.parameters[p].name << " 0";
            EXPECT_FALSE(call.isWritten()) << f.name;
        }
    });
}

TEST(Arguments, ACountOfZeroIsNoError)
{
    // To Extract and LoadIdentity it is a size. Sums of an array and one matrix of 3 x 3 count it as one,
    // those of lists go to the entry before the list; their own tests show that.
    eachFunction(0, "tenk(Extract|LoadIdentity)_.*|tenk(Add|Sub)_mamT?_32f_3x3(_L)?",
                 [](const Function& f, auto make) {
                     if (!f.member.batch())
                         return;
                     const auto call = make();
                     EXPECT_EQ(call.status(), tenkOk) << f.name;
                     EXPECT_FALSE(call.isWritten()) << f.name;
                 });
}

TEST(Arguments, ANullEntryAtTheEndOfATableComesBeforeACountOfZero)
{
    // Copy and some products test no entry; Trace tests those of the first row; to Extract and LoadIdentity
    // the count is a size.
    constexpr const char* exceptions =
        "tenk(Copy|Trace|Extract|LoadIdentity)_.*|tenkMul_(mam|maTm|mamT)_32f_3x3_PS?2?";
    eachFunction(0, exceptions, [](const Function& f, auto make) {
        if (!f.member.batch() || !isTable(f.member.layout))
            return;
        for (std::size_t p = 0; p < f.parameters.size(); ++p) {
            auto call = make();
            if (!call.isTableOrList(p))
                continue;
            call.entries(p)[call.tableLength(p)] = nullptr; // behind the table
            EXPECT_EQ(call.status(), tenkOk)
                << f.name << " with a null pointer behind " << f.parameters[p].name;
            call.entries(p)[call.tableLength(p) - 1] = nullptr;
            EXPECT_EQ(call.status(), tenkNullPointerError) << f.name << " in " << f.parameters[p].name;
            EXPECT_FALSE(call.isWritten()) << f.name;
        }
    });
}

TEST(Arguments, ANullEntryOfAListComesWhenItsObjectIsReached)
{
    // Moves but transposition and some products test no entry; some sums look at others as well, some norms
    // at several at a time.
    constexpr const char* exceptions =
        "tenk(Copy|Extract|LoadIdentity)_.*|tenkMul_maT?mT?_32f_3x3_LS2|tenk(Add|Sub)_mamT?_32f_3x3_L|"
        "tenkFrobNorm_ma_..f_(3x3|4x4)_L";
    eachFunction(3, exceptions, [](const Function& f, auto make) {
        if (!f.member.batch() || !isList(f.member.layout))
            return;
        for (std::size_t p = 0; p < f.parameters.size(); ++p) {
            auto call = make();
            if (!call.isTableOrList(p))
                continue;
            call.entries(p)[1] = nullptr;
            EXPECT_EQ(call.status(), tenkNullPointerError) << f.name << " in " << f.parameters[p].name;
            EXPECT_TRUE(call.isWritten(0)) << f.name << " in " << f.parameters[p].name;
            EXPECT_FALSE(call.isWritten(1)) << f.name << " in " << f.parameters[p].name;
            EXPECT_FALSE(call.isWritten(2)) << f.name << " in " << f.parameters[p].name;
        }
    });
}

} // namespace
