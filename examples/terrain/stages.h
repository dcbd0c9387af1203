// How long the stages of the job take.
#pragma once

#include <array>
#include <chrono>

namespace examples {

enum class Stage
{
    read,
    fit,
    gradient,
    curvature,
    normals,
    shading,
    pictures
};

constexpr std::array stageNames{"read",    "fit surfaces", "slope and aspect", "curvature",
                                "normals", "shading",      "pictures"};

class Stages
{
public:
    template <class Work>
    void time(Stage stage, const Work& work)
    {
        const auto start = Clock::now();
        work();
        spent_[static_cast<std::size_t>(stage)] += Clock::now() - start;
    }

    double milliseconds(Stage stage) const
    {
        return std::chrono::duration<double, std::milli>(spent_[static_cast<std::size_t>(stage)]).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    std::array<Clock::duration, stageNames.size()> spent_{};
};

} // namespace examples
