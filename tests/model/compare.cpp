#include "compare.h"

#include "float_state.h"
#include "guard.h"
#include "manners.h"

#include <cstdio>

namespace model {

namespace {

// Invalid, divide by zero, overflow, underflow. Inexact says nothing of interest, and whether a denormal
// operand is noticed depends on the unit that does a step.
constexpr std::uint32_t comparedFlags = 0x1D;

std::string flagsInWords(std::uint32_t flags)
{
    std::string text;
    if (flags & 0x01)
        text += " invalid";
    if (flags & 0x04)
        text += " divide-by-zero";
    if (flags & 0x08)
        text += " overflow";
    if (flags & 0x10)
        text += " underflow";
    return text.empty() ? " none" : text;
}

std::string faultInWords(const Fault& fault)
{
    char text[80];
    std::snprintf(text, sizeof(text), "the library faults with signal %d at 0x%llx", fault.signal,
                  static_cast<unsigned long long>(fault.address));
    return text;
}

std::string compareOutcome(const Draw& draw, std::int32_t status, std::uint32_t flags,
                           const support::Outcome& outcome)
{
    if (outcome.status != status)
        return "the model returns " + std::to_string(status) + ", the library " +
               std::to_string(outcome.status);
    if (!outcome.x87Empty)
        return "the library leaves something on the x87 stack";
    if (!outcome.controlKept)
        return "the library changes a floating-point control word";
    if (!outcome.registersKept)
        return "the library does not keep a register that belongs to the caller";
    const std::uint32_t raised = (outcome.raised | outcome.x87Raised) & comparedFlags;
    if ((raised & ~flags) != 0 && !mannersOf(draw.call.name()).flagsOpen)
        return "the library raises" + flagsInWords(raised) + ", the model" +
               flagsInWords(flags & comparedFlags);
    return {};
}

} // namespace

Verdict compareCall(const Draw& draw, Behaviour behaviour, void* function)
{
    Arena& arena = *draw.arena;
    Memory& memory = arena.memory();
    memory.reset();

    std::int32_t status = 0;
    std::uint32_t flags = 0;
    try {
        const FloatState state(draw.entry);
        status = behaviour(draw.call, memory);
        flags = FloatState::raised();
    } catch (const OutOfMemory&) {
        arena.restore();
        return {};
    } catch (const Undecided&) {
        arena.restore();
        return {};
    }
    arena.restore();

    Verdict verdict{.made = true, .difference = {}, .status = status};
    support::Outcome outcome;
    if (draw.protect)
        arena.protect();
    const std::optional<Fault> fault =
        guarded([&] { outcome = support::call(function, draw.call.arguments(), draw.entry); });
    if (draw.protect)
        arena.unprotect();

    const std::string difference = arena.compare();
    if (fault)
        verdict.difference = faultInWords(*fault);
    else if (std::string other = compareOutcome(draw, status, flags, outcome); !other.empty())
        verdict.difference = other;
    else
        verdict.difference = difference;
    return verdict;
}

} // namespace model
