// A progress bar on stderr.
#pragma once

#include <cstdio>
#include <string>

#include <unistd.h>

namespace examples {

class Progress
{
public:
    // Stays silent for small jobs, and where nobody watches.
    Progress(const char* what, std::size_t steps, bool large)
        : what_(what), steps_(steps), shown_(large && isatty(STDERR_FILENO) != 0)
    {
    }

    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    ~Progress()
    {
        if (shown_)
            std::fputs("\r\033[K", stderr); // the line is free again
    }

    void done(std::size_t steps)
    {
        const std::size_t percent = steps * 100 / steps_;
        if (!shown_ || percent == percent_)
            return;
        percent_ = percent;
        const std::size_t filled = percent * width / 100;
        std::fprintf(stderr, "\r%s [%s%s] %3zu %%", what_, std::string(filled, '#').c_str(),
                     std::string(width - filled, '.').c_str(), percent);
    }

private:
    static constexpr std::size_t width = 40;
    const char* what_;
    std::size_t steps_, percent_ = 101;
    bool shown_;
};

} // namespace examples
