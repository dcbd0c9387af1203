#include "float_state.h"

#include <xmmintrin.h>

namespace model {

namespace {

constexpr std::uint32_t flags = 0x3F;

void loadControl(std::uint16_t control)
{
    asm volatile("fnclex\n\tfldcw %0" : : "m"(control));
}

} // namespace

FloatState::FloatState(const support::Entry& entry) : mxcsr_(_mm_getcsr())
{
    asm volatile("fnstcw %0" : "=m"(control_));
    loadControl(entry.x87Control);
    _mm_setcsr(entry.mxcsr & ~flags);
}

FloatState::~FloatState()
{
    loadControl(control_);
    _mm_setcsr(mxcsr_);
}

std::uint32_t FloatState::raised()
{
    std::uint16_t status = 0;
    asm volatile("fnstsw %0" : "=m"(status));
    return (_mm_getcsr() | status) & flags;
}

void FloatState::recover()
{
    asm volatile("fninit");
    _mm_setcsr(0x1F80);
}

} // namespace model
