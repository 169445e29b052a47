#include "Goals.h"

#include <cstdio>
#include <vector>

namespace
{
struct TGoal {
    std::string what;
    double ratio;
    double most;
};

std::vector<TGoal>& All()
{
    static std::vector<TGoal> goals;
    return goals;
}
} // namespace

void Goals::Expect(const std::string& what, double ratio, double most)
{
    All().push_back({what, ratio, most});
}

int Goals::Print()
{
    int nMissed = 0;
    std::printf("\n%-58s %8s %8s\n", "goal", "is", "at most");
    for (const TGoal& goal : All()) {
        const bool bKept = goal.ratio <= goal.most;
        nMissed += bKept ? 0 : 1;
        std::printf("%-58s %8.2f %8.2f%s\n", goal.what.c_str(), goal.ratio, goal.most,
                    bKept ? "" : "  missed");
    }
    std::printf("%d of %d goals missed\n", nMissed, static_cast<int>(All().size()));
    return nMissed;
}
