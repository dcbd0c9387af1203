#include "support/call.h"

#include <cstring>
#include <vector>

namespace support {
namespace {

// What the assembly below reads and writes. Its offsets are spelled out there.
struct Frame
{
    void* function;               //  0
    const std::uintptr_t* stack;  //  8 / 4   words to be put on the stack, the first at the lowest address
    std::uintptr_t stackWords;    // 16 / 8
    std::uintptr_t stackOffset;   // 24 / 12  of the stack pointer at the call, modulo 16
    std::uint32_t mxcsr;          // 32 / 16
    std::uint32_t mxcsrAfter;     // 36 / 20
    std::uint16_t control;        // 40 / 24
    std::uint16_t controlAfter;   // 42 / 26
    std::uint32_t status;         // 44 / 28
    std::uint32_t registersKept;  // 48 / 32
    std::uint32_t pad;            // 52 / 36
    std::uint8_t environment[32]; // 56 / 40  the x87 environment after the call
#ifdef __x86_64__
    std::uintptr_t integer[6]; // 88
    double value[2];           // 136
#endif
};

extern "C" void supportCallWithFrame(Frame* frame);

} // namespace

#ifdef __x86_64__

// rdi: Frame*. Callee-saved registers are filled with marks that must still be there after the call.
asm(R"(
    .text
    .globl supportCallWithFrame
    .type supportCallWithFrame, @function
supportCallWithFrame:
    pushq %rbp
    movq %rsp, %rbp
    pushq %rbx
    pushq %r12
    pushq %r13
    pushq %r14
    pushq %r15
    pushq %rdi                  /* -48(%rbp): the frame */
    subq $16, %rsp
    stmxcsr -56(%rbp)
    fnstcw -60(%rbp)
    movq %rdi, %rbx
    movq 16(%rbx), %rcx         /* words on the stack, which is to be aligned to 16 at the call */
    leaq (,%rcx,8), %rax
    subq %rax, %rsp
    andq $-16, %rsp
    movq 8(%rbx), %rsi
    movq %rsp, %rdi
    rep movsq
    fninit
    fldcw 40(%rbx)
    ldmxcsr 32(%rbx)
    movsd 136(%rbx), %xmm0
    movsd 144(%rbx), %xmm1
    movq 88(%rbx), %rdi
    movq 96(%rbx), %rsi
    movq 104(%rbx), %rdx
    movq 112(%rbx), %rcx
    movq 120(%rbx), %r8
    movq 128(%rbx), %r9
    movq %rsp, %r12
    movq $0x1111111111111111, %r13
    movq $0x2222222222222222, %r14
    movq $0x3333333333333333, %r15
    call *(%rbx)
    cld
    movq -48(%rbp), %rdi        /* rbp itself must have been kept, or this faults */
    xorl %edx, %edx
    cmpq %rdi, %rbx
    jne 1f
    cmpq %rsp, %r12
    jne 1f
    movq $0x1111111111111111, %rcx
    cmpq %rcx, %r13
    jne 1f
    movq $0x2222222222222222, %rcx
    cmpq %rcx, %r14
    jne 1f
    movq $0x3333333333333333, %rcx
    cmpq %rcx, %r15
    jne 1f
    movl $1, %edx
1:  movl %edx, 48(%rdi)
    movl %eax, 44(%rdi)
    stmxcsr 36(%rdi)
    fnstcw 42(%rdi)
    fnstenv 56(%rdi)
    fninit
    fldcw -60(%rbp)
    ldmxcsr -56(%rbp)
    leaq -40(%rbp), %rsp
    popq %r15
    popq %r14
    popq %r13
    popq %r12
    popq %rbx
    popq %rbp
    ret
    .size supportCallWithFrame, . - supportCallWithFrame
)");

#else

asm(R"(
    .text
    .globl supportCallWithFrame
    .type supportCallWithFrame, @function
supportCallWithFrame:
    pushl %ebp
    movl %esp, %ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    subl $16, %esp
    stmxcsr -20(%ebp)
    fnstcw -24(%ebp)
    movl 8(%ebp), %ebx
    movl 8(%ebx), %ecx          /* words on the stack */
    leal (,%ecx,4), %eax
    subl %eax, %esp
    andl $-16, %esp
    subl $16, %esp              /* stack pointer at the call: stackOffset modulo 16 */
    addl 12(%ebx), %esp
    movl 4(%ebx), %esi
    movl %esp, %edi
    rep movsl
    fninit
    fldcw 24(%ebx)
    ldmxcsr 16(%ebx)
    movl %esp, -28(%ebp)
    movl $0x11111111, %esi
    movl $0x22222222, %edi
    call *(%ebx)
    cld
    xorl %edx, %edx
    cmpl %ebx, 8(%ebp)          /* ebp itself must have been kept, or this faults */
    jne 1f
    cmpl %esp, -28(%ebp)
    jne 1f
    cmpl $0x11111111, %esi
    jne 1f
    cmpl $0x22222222, %edi
    jne 1f
    movl $1, %edx
1:  movl 8(%ebp), %ebx
    movl %edx, 32(%ebx)
    movl %eax, 28(%ebx)
    stmxcsr 20(%ebx)
    fnstcw 26(%ebx)
    fnstenv 40(%ebx)
    fninit
    fldcw -24(%ebp)
    ldmxcsr -20(%ebp)
    leal -12(%ebp), %esp
    popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    ret
    .size supportCallWithFrame, . - supportCallWithFrame
)");

#endif

Outcome call(void* function, std::span<const Argument> arguments, const Entry& entry)
{
    Frame frame{};
    frame.function = function;
    frame.mxcsr = entry.mxcsr & ~0x3FU;
    frame.control = entry.x87Control;

    std::vector<std::uintptr_t> stack;
#ifdef __x86_64__
    unsigned integers = 0, values = 0;
    for (const Argument& a : arguments) {
        if (a.kind == Argument::Kind::value32f || a.kind == Argument::Kind::value64f)
            std::memcpy(&frame.value[values++], &a.bits, sizeof a.bits);
        else if (integers < 6)
            frame.integer[integers++] = a.bits;
        else
            stack.push_back(a.bits);
    }
#else
    frame.stackOffset = entry.stackOffset;
    for (const Argument& a : arguments) {
        stack.push_back(static_cast<std::uint32_t>(a.bits));
        if (a.kind == Argument::Kind::value64f)
            stack.push_back(static_cast<std::uint32_t>(a.bits >> 32));
    }
#endif
    frame.stack = stack.data();
    frame.stackWords = stack.size();
    supportCallWithFrame(&frame);

    // In the environment: control word at 0, status word at 4, tag word at 8.
    std::uint16_t statusWord = 0, tagWord = 0;
    std::memcpy(&statusWord, frame.environment + 4, 2);
    std::memcpy(&tagWord, frame.environment + 8, 2);
    Outcome outcome;
    outcome.status = static_cast<std::int32_t>(frame.status);
    outcome.x87Empty = tagWord == 0xFFFF;
    outcome.controlKept = (frame.mxcsrAfter & ~0x3FU) == frame.mxcsr && frame.controlAfter == frame.control;
    outcome.registersKept = frame.registersKept == 1;
    outcome.raised = frame.mxcsrAfter & 0x3FU;
    outcome.x87Raised = statusWord & 0x3FU;
    return outcome;
}

} // namespace support
