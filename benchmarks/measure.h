// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef MEASURE_H
#define MEASURE_H

#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>
#include <vector>

/// Nanoseconds on a clock that only goes forward.
inline qint64 now()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

template <class Action>
qint64 elapsed(Action action)
{
    const qint64 start = now();
    action();
    return now() - start;
}

/// Medians in nanoseconds.
struct Medians
{
    qint64 library = 0;
    qint64 floor = 0;
    /// A second floor, for windows: the form with nothing in it. 0 without one.
    qint64 empty = 0;
};

typedef std::function<qint64()> Sampler;

/// Takes samples of the library and of its floors in turns, so that what else happens on the machine meets
/// all of them. Each sampler returns the nanoseconds of one sample.
inline Medians interleave(double seconds, const Sampler &library, const Sampler &floor, const Sampler &empty = nullptr)
{
    const std::size_t warmUp = 2;
    const std::size_t least = 9;
    const std::size_t most = 1001;

    std::vector<std::pair<Sampler, std::vector<qint64>>> all = {{library, {}}, {floor, {}}};
    if (empty) {
        all.push_back({empty, {}});
    }
    const qint64 start = now();
    std::size_t rounds = 0;
    while (rounds < least || (rounds < most && static_cast<double>(now() - start) < seconds * 1e9)) {
        // Whoever comes later finds the memory as the one before has left it.
        for (std::size_t i = 0; i < all.size(); ++i) {
            auto &next = all[(i + rounds) % all.size()];
            next.second.push_back(next.first());
        }
        ++rounds;
    }
    std::vector<qint64> medians;
    for (auto &samples : all) {
        const auto first = samples.second.begin() + static_cast<std::ptrdiff_t>(warmUp);
        const auto middle = first + (samples.second.end() - first) / 2;
        std::nth_element(first, middle, samples.second.end());
        medians.push_back(*middle);
    }
    return {medians[0], medians[1], empty ? medians[2] : 0};
}

#endif
