#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <vector>

// The median time of a number of runs, in milliseconds.
template <typename F>
double medianMs(F&& run, int rounds = 21) {
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
