// The floating-point state of the thread: both control words and both sets of flags.
#pragma once

#include "../support/call.h"

#include <cstdint>

namespace model {

// Puts the thread into the state of `entry` with no flag raised, and back again when it goes.
class FloatState
{
public:
    explicit FloatState(const support::Entry& entry);
    ~FloatState();
    FloatState(const FloatState&) = delete;
    FloatState& operator=(const FloatState&) = delete;

    // The flags of both units raised since, as the low six bits of MXCSR.
    static std::uint32_t raised();

    // Back to the usual state with an empty stack, whatever state a fault left.
    static void recover();

private:
    std::uint32_t mxcsr_ = 0;
    std::uint16_t control_ = 0;
};

} // namespace model
