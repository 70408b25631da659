#pragma once

#include <algorithm>
#include <ctime>
#include <vector>

/// The processor's time that `action` takes, in milliseconds: the median of some rounds. The
/// machine's other work does not count.
template <typename Action>
double cpuMilliseconds(int rounds, Action action)
{
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    };
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const double start = now();
        action();
        times.push_back(now() - start);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
