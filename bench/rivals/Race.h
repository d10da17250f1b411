// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <time.h>

#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

/// Processor time of this thread so far.
inline double GetThreadSeconds() {
    constexpr double NANO = 1e-9;
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + NANO * static_cast<double>(now.tv_nsec);
}

/// How one runner did.
struct Score {
    double best = std::numeric_limits<double>::infinity();  ///< seconds; infinite if it never ran
    double spent = 0.0;
    int runs = 0;
    bool isOut = false;  ///< it gave a wrong answer, threw, or would take too long

    bool HasTime() const { return runs > 0; }
};

/// Times several ways to do one thing against each other in turns, so that what disturbs the machine disturbs all: a
/// warm-up run each, then round after round one run each, until a runner has had its runs or its time.
class Race {
public:
    /// Does the thing once and answers how long the timed part took; below 0 if it failed.
    using Runner = std::function<double()>;

    Race(int mostRuns, double timeEach) : m_mostRuns(mostRuns), m_timeEach(timeEach) {}

    void Run(const std::vector<Runner>& runners, std::vector<Score>& scores) const {
        for (std::size_t i = 0; i < runners.size(); i++) {
            WarmUp(runners[i], scores[i]);
        }
        for (int round = 0; round < m_mostRuns; round++) {
            for (std::size_t i = 0; i < runners.size(); i++) {
                // Every other round runs the other way round, so that nobody always follows the same one.
                const std::size_t turn = round % 2 == 0 ? i : runners.size() - 1 - i;
                TakeTurn(runners[turn], scores[turn]);
            }
        }
    }

private:
    /// A warm-up run that used up the time already is the only run.
    void WarmUp(const Runner& runner, Score& score) const {
        if (score.isOut) {
            return;
        }
        const double seconds = runner();
        if (seconds < 0.0) {
            score.isOut = true;
            return;
        }
        score.spent = seconds;
        if (seconds > m_timeEach) {
            Note(seconds, score);
        }
    }

    void TakeTurn(const Runner& runner, Score& score) const {
        const bool isDone = score.HasTime() && score.spent > m_timeEach;
        if (score.isOut || isDone) {
            return;
        }
        const double seconds = runner();
        if (seconds < 0.0) {
            score.isOut = true;
            return;
        }
        score.spent += seconds;
        Note(seconds, score);
    }

    static void Note(double seconds, Score& score) {
        score.runs++;
        score.best = seconds < score.best ? seconds : score.best;
    }

    int m_mostRuns;
    double m_timeEach;
};

/// Seconds of the processor that `work` takes. No library here works in threads, and what other programs on the machine
/// take in between does not count.
template <class Work>
double Measure(Work work) {
    const double start = GetThreadSeconds();
    work();
    return GetThreadSeconds() - start;
}
