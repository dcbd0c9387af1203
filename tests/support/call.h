// Calls any exported function by address with arguments made at run time, the way a C caller would,
// and watches what the caller's processor state looks like afterwards.
#pragma once

#include <cstdint>
#include <span>

namespace support {

// One argument, as the binary interface passes it. Pointers and words are zero-extended in `bits`;
// values are passed as the bits of a binary32 or binary64.
struct Argument
{
    enum class Kind
    {
        pointer,
        word,
        value32f,
        value64f
    };
    Kind kind = Kind::word;
    std::uint64_t bits = 0;
};

// The state in which the function is entered.
struct Entry
{
    // Stack pointer modulo 16 at the call instruction, in 0, 4, 8, 12. x86-64 allows 0 only and ignores this.
    unsigned stackOffset = 0;
    // MXCSR and x87 control word in force during the call.
    std::uint32_t mxcsr = 0x1F80;
    std::uint16_t x87Control = 0x037F;
};

struct Outcome
{
    std::int32_t status = 0;
    bool x87Empty = false;       // no register of the x87 stack is in use after the call
    bool controlKept = false;    // both control words are as they were on entry (sticky flags apart)
    bool registersKept = false;  // the callee-saved registers are as they were
    std::uint32_t raised = 0;    // MXCSR exception flags (low six bits) raised during the call
    std::uint32_t x87Raised = 0; // x87 exception flags (low six bits) raised during the call
};

Outcome call(void* function, std::span<const Argument> arguments, const Entry& entry = {});

} // namespace support
