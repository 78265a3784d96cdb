// How long a piece of work takes at its best.
#pragma once
#include <algorithm>
#include <ctime>

namespace bench
{
/// Nanoseconds that this program itself has run.
inline double ownTime()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

/// Nanoseconds of this program's own time that a piece of work takes.
template <class Work> double timeOf(const Work& work)
{
    const double start = ownTime();
    work();
    return ownTime() - start;
}

/// The quickest of some rounds, in nanoseconds of this program's own time, so that a busy machine disturbs little.
template <class Work> double fastest(int rounds, const Work& work)
{
    double best = 1e300;
    for (int round = 0; round < rounds; ++round)
        best = std::min(best, timeOf(work));
    return best;
}
} // namespace bench
