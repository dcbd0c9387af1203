// Every exported function against the model, on calls drawn from its name. TENK_MODEL_ROUNDS sets the number
// of calls of each function, TENK_MODEL_SEED draws others, and TENK_MODEL_CALL makes one call alone, by its
// number.
#include "compare.h"
#include "manners.h"
#include "model.h"

#include "../support/library.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace model {

// So that a failure names the root.
static void PrintTo(Root root, std::ostream* out)
{
    *out << rootText(root);
}

} // namespace model

namespace {

std::uint64_t setting(const char* name, std::uint64_t otherwise)
{
    const char* text = std::getenv(name);
    return text ? std::strtoull(text, nullptr, 0) : otherwise;
}

constexpr std::uint64_t usualRounds = 96;
constexpr std::uint64_t allCalls = ~std::uint64_t{0};

// The members that share root and operand codes, which are tested together.
struct Group
{
    model::Root root;
    std::string codes;
};

void PrintTo(const Group& group, std::ostream* out)
{
    *out << model::rootText(group.root) << ' ' << group.codes;
}

std::vector<Group> groups()
{
    std::vector<Group> list;
    for (const model::Name& name : model::allNames()) {
        if (list.empty() || list.back().root != name.root || list.back().codes != name.codeText)
            list.push_back({name.root, name.codeText});
    }
    return list;
}

std::vector<const model::Name*> exportedMembers(model::Root root)
{
    std::vector<const model::Name*> list;
    for (const std::string& text : support::exportedNames()) {
        const model::Name* name = model::find(text);
        if (name && name->root == root)
            list.push_back(name);
    }
    return list;
}

// Draws calls of one function until one differs, and returns what it was.
std::string firstDifference(const model::Name& name)
{
    const model::Behaviour behaviour = model::behaviour(name);
    if (!behaviour)
        return name.text + " has no model";
    void* function = support::exportedAddress(name.text);
    if (!function)
        return name.text + " cannot be found in the library";
    const std::uint64_t rounds =
        setting("TENK_MODEL_ROUNDS", usualRounds) * model::mannersOf(name).moreRounds;
    const std::uint64_t only = setting("TENK_MODEL_CALL", allCalls);
    const std::uint64_t seed = model::seedOf(name.text) + (setting("TENK_MODEL_SEED", 0) << 32);
    std::uint64_t made = 0;
    for (std::uint64_t round = only == allCalls ? 0 : only; round < (only == allCalls ? rounds : only + 1);
         ++round) {
        model::Random random(seed + round);
        // A call that cannot be compared is drawn anew.
        for (int attempt = 0; attempt < 8; ++attempt) {
            const model::Draw draw = model::drawCall(name, random);
            const model::Verdict verdict = model::compareCall(draw, behaviour, function);
            if (!verdict.difference.empty())
                return draw.text() + "\n  " + verdict.difference +
                       "\n  (TENK_MODEL_CALL=" + std::to_string(round) + " makes this call alone)";
            if (verdict.made) {
                ++made;
                break;
            }
        }
    }
    if (only == allCalls && made < rounds * 3 / 4)
        return name.text + ": only " + std::to_string(made) + " of " + std::to_string(rounds) +
               " calls could be compared";
    return {};
}

class Model : public testing::TestWithParam<Group>
{
};

TEST_P(Model, agreesWithTheLibrary)
{
    const Group& group = GetParam();
    const std::vector<const model::Name*> members = exportedMembers(group.root);
    if (members.empty())
        GTEST_SKIP() << "the library has no " << model::rootText(group.root);
    int failures = 0;
    for (const model::Name* name : members) {
        if (name->codeText != group.codes)
            continue;
        const std::string difference = firstDifference(*name);
        if (difference.empty())
            continue;
        // A family that is wrong altogether need not be shown member by member.
        if (++failures <= 8)
            ADD_FAILURE() << difference;
    }
    EXPECT_EQ(failures, 0);
}

INSTANTIATE_TEST_SUITE_P(All, Model, testing::ValuesIn(groups()), [](const auto& info) {
    return std::string(model::rootText(info.param.root)) + "_" + info.param.codes;
});

class Exports : public testing::TestWithParam<model::Root>
{
};

// A root that is in the library at all is there with every member.
TEST_P(Exports, areComplete)
{
    const model::Root root = GetParam();
    const std::vector<const model::Name*> members = exportedMembers(root);
    if (members.empty())
        GTEST_SKIP() << "the library has no " << model::rootText(root);
    std::size_t expected = 0;
    for (const model::Name& name : model::allNames())
        expected += name.root == root ? 1u : 0u;
    EXPECT_EQ(members.size(), expected);
}

INSTANTIATE_TEST_SUITE_P(All, Exports, testing::ValuesIn(model::allRoots()),
                         [](const auto& info) { return std::string(model::rootText(info.param)); });

TEST(Grammar, knowsEveryExport)
{
    for (const std::string& text : support::exportedNames())
        EXPECT_TRUE(text == "tenkGetLibVersion" || model::find(text)) << text;
}

} // namespace
