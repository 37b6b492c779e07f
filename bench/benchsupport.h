#pragma once

#include <algorithm>
#include <ctime>
#include <vector>

// The median time of a number of runs, in milliseconds of the process's own
// processor time: builds and other programs sharing the machine stretch the
// wall clock of a long run more than a short one, which would bend every ratio.
template <typename F>
double medianMs(F&& run, int rounds = 21) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        timespec start{}, end{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &start);
        run();
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &end);
        times.push_back((end.tv_sec - start.tv_sec) * 1e3 + (end.tv_nsec - start.tv_nsec) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
