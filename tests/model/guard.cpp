#include "guard.h"

#include "float_state.h"

#include <array>
#include <csetjmp>
#include <csignal>

namespace model {

namespace {

sigjmp_buf back;
Fault fault;

void onFault(int signal, siginfo_t* information, void*)
{
    fault = {signal, reinterpret_cast<Address>(information->si_addr)};
    siglongjmp(back, 1);
}

constexpr std::array signals = {SIGSEGV, SIGBUS, SIGFPE, SIGILL};

// Handlers stand only while the action runs, so that a fault of the tests themselves is still one.
class Handlers
{
public:
    Handlers()
    {
        struct sigaction action
        {
        };
        action.sa_sigaction = &onFault;
        action.sa_flags = SA_SIGINFO;
        for (std::size_t i = 0; i < signals.size(); ++i)
            sigaction(signals[i], &action, &before_[i]);
    }

    ~Handlers()
    {
        for (std::size_t i = 0; i < signals.size(); ++i)
            sigaction(signals[i], &before_[i], nullptr);
    }

    Handlers(const Handlers&) = delete;
    Handlers& operator=(const Handlers&) = delete;

private:
    std::array<struct sigaction, signals.size()> before_{};
};

} // namespace

std::optional<Fault> guarded(const std::function<void()>& action)
{
    const Handlers handlers;
    if (sigsetjmp(back, 1) == 0) {
        action();
        return std::nullopt;
    }
    FloatState::recover();
    return fault;
}

} // namespace model
