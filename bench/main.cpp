// Runs the benchmarks of a file and prints one table: nanoseconds per object of every contestant, the
// smallest of all repetitions, and how many times as long as tenk each peer takes.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "support.h"

void registerAll();

namespace {

using bench::caseNames;
using bench::contestants;

struct Line
{
    std::map<std::string, double> nanoseconds; // by contestant
};

class Table : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration)
                continue;
            std::string name = run.run_name.function_name;
            const std::size_t bar = name.rfind('/');
            const std::string who = name.substr(bar + 1);
            name.resize(bar);
            const double ns = 1e9 / run.counters.at("items_per_second");
            double& best = lines_[name].nanoseconds[who];
            best = best == 0 ? ns : std::min(best, ns);
        }
    }

    void print() const
    {
        std::printf("| function | batch |");
        for (const std::string& who : contestants)
            std::printf(who == "tenk" ? " tenk |" : " %s | ratio |", who.c_str());
        std::printf("\n|:--|--:|");
        for (const std::string& who : contestants)
            std::printf(who == "tenk" ? "--:|" : "--:|--:|");
        std::printf("\n");
        for (const std::string& name : caseNames) {
            if (!lines_.contains(name))
                continue; // left out by --benchmark_filter
            const std::size_t bar = name.rfind('/');
            std::printf("| %s | %s |", name.substr(0, bar).c_str(), name.substr(bar + 1).c_str());
            for (const std::string& who : contestants) {
                const double ns = nanoseconds(name, who);
                if (who == "tenk")
                    std::printf(" %.2f |", ns);
                else if (ns == 0)
                    std::printf(" | |");
                else
                    std::printf(" %.2f | %.2f |", ns, ns / nanoseconds(name, "tenk"));
            }
            std::printf("\n");
        }
        std::printf("\n");
        std::printf("| Standard and List, 64 objects and more | peer | mean of the ratios | smallest | of |\n"
                    "|:--|:--|--:|--:|:--|\n");
        std::vector<std::string> groups;
        for (const std::string& name : caseNames)
            if (lines_.contains(name) && isHot(name))
                bench::remember(groups, groupOf(name));
        for (const std::string& group : groups)
            for (const std::string& who : contestants)
                if (who != "tenk")
                    summarise(group, who);
    }

private:
    double nanoseconds(const std::string& name, const std::string& who) const
    {
        const auto& all = lines_.at(name).nanoseconds;
        const auto found = all.find(who);
        return found == all.end() ? 0 : found->second;
    }

    // What the library is for.
    static bool isHot(const std::string& name)
    {
        return name.find("_P/") == name.npos && name.find("_P order") == name.npos &&
               std::stoul(name.substr(name.rfind('/') + 1)) >= 64;
    }

    // tenkAdd_mama_32f for its fixed sizes, tenkAdd_mama_32f, general for the others.
    static std::string groupOf(const std::string& name)
    {
        const std::size_t type = name.find("_32f") != name.npos ? name.find("_32f") : name.find("_64f");
        const bool fixed = name.size() > type + 5 && std::isdigit(name[type + 5]) && name[type + 4] == '_';
        return name.substr(0, type + 4) + (fixed ? "" : ", general");
    }

    // The geometric mean, and the smallest.
    void summarise(const std::string& group, const std::string& who) const
    {
        double logs = 0, worst = INFINITY;
        std::string worstName;
        int n = 0;
        for (const std::string& name : caseNames) {
            if (!lines_.contains(name) || !isHot(name) || groupOf(name) != group ||
                nanoseconds(name, who) == 0)
                continue;
            const double ratio = nanoseconds(name, who) / nanoseconds(name, "tenk");
            logs += std::log(ratio);
            ++n;
            if (ratio < worst) {
                worst = ratio;
                worstName = name;
            }
        }
        if (n > 0)
            std::printf("| %s | %s | %.2f | %.2f | %s |\n", group.c_str(), who.c_str(), std::exp(logs / n),
                        worst, worstName.c_str());
    }

    std::map<std::string, Line> lines_;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    registerAll();
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    table.print();
}
