// SPDX-License-Identifier: Apache-2.0
//
// BoxTable.cpp: filling an index of boxes, asking it for points and for windows, emptying it, every library.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numeric>
#include <random>

#include "rivals/Race.h"
#include "rivals/SpatialTables.h"
#include "rivals/Table.h"

namespace {

constexpr BoxWork WORKS[] = {BoxWork::INSERT, BoxWork::POINTS, BoxWork::WINDOWS, BoxWork::REMOVE};
constexpr long FEWEST_BOXES = 10000;
constexpr long MOST_BOXES = 1000000;
constexpr long MOST_QUICK_BOXES = 100000;
constexpr long POINTS = 100000;
constexpr long WINDOWS = 10000;
constexpr int MOST_RUNS = 5;
constexpr double TIME_EACH = 3.0;
constexpr unsigned REMOVAL_SEED = 20240616U;

const char* GetName(BoxWork work) {
    switch (work) {
        case BoxWork::INSERT:
            return "insert";
        case BoxWork::POINTS:
            return "point query";
        case BoxWork::WINDOWS:
            return "window query";
        case BoxWork::REMOVE:
            break;
    }
    return "delete";
}

/// How many single works one run does.
long GetWorkNum(BoxWork work, long boxes) {
    switch (work) {
        case BoxWork::POINTS:
            return POINTS;
        case BoxWork::WINDOWS:
            return WINDOWS;
        default:
            return boxes;
    }
}

BoxTask MakeTask(long boxes) {
    BoxTask task;
    task.boxes = MakeBoxes(boxes);
    task.points = MakeBoxPoints(POINTS);
    task.windows = MakeWindows(WINDOWS, boxes);
    task.removal.resize(static_cast<std::size_t>(boxes));
    std::iota(task.removal.begin(), task.removal.end(), 0L);
    std::shuffle(task.removal.begin(), task.removal.end(), std::mt19937(REMOVAL_SEED));
    return task;
}

class BoxRace {
public:
    explicit BoxRace(const SpatialEngines& engines) : m_engines(engines.boxes), m_answers(m_engines.size()) {}

    std::vector<Score> Run(BoxWork work) {
        std::vector<Score> scores(m_engines.size());
        std::vector<Race::Runner> runners;
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            scores[i].isOut = work == BoxWork::REMOVE && !m_engines[i]->IsDynamic();
            runners.push_back([this, i, work] { return RunOnce(*m_engines[i], work, m_answers[i]); });
        }
        Race(MOST_RUNS, TIME_EACH).Run(runners, scores);
        return scores;
    }

    /// Of the works run last.
    bool IsAgreed(const std::vector<Score>& scores) const {
        for (std::size_t i = 1; i < m_engines.size(); i++) {
            if (scores[i].HasTime() && m_answers[i] != m_answers[0]) {
                std::printf("%s answers %ld instead of %ld.\n", m_engines[i]->GetName().c_str(), m_answers[i],
                            m_answers[0]);
                return false;
            }
        }
        return true;
    }

    long GetAnswer() const { return m_answers[0]; }

private:
    /// The queries find the index that the last insertion left; each removal makes a new one before.
    static double RunOnce(BoxEngine& engine, BoxWork work, long& answer) {
        switch (work) {
            case BoxWork::INSERT:
                engine.Clear();
                answer = 0;
                return Measure([&] { engine.Insert(); });
            case BoxWork::POINTS:
                return Measure([&] { answer = engine.FindPoints(); });
            case BoxWork::WINDOWS:
                return Measure([&] { answer = engine.FindWindows(); });
            case BoxWork::REMOVE:
                break;
        }
        engine.Clear();
        engine.Insert();
        return Measure([&] { answer = engine.Remove(); });
    }

    const std::vector<std::unique_ptr<BoxEngine>>& m_engines;
    std::vector<long> m_answers;
};

/// Whom we mean not to be behind: GEOS's Quadtree in everything, Boost's dynamic trees in inserting and deleting.
bool IsRival(const std::string& name, BoxWork work) {
    const bool isChange = work == BoxWork::INSERT || work == BoxWork::REMOVE;
    return name == "GEOS Quadtree" || (isChange && (name == "Boost R*" || name == "Boost quadratic"));
}

double GetLead(const SpatialEngines& engines, BoxWork work, const std::vector<Score>& scores) {
    double bestRival = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < scores.size(); i++) {
        if (scores[i].HasTime() && IsRival(engines.boxes[i]->GetName(), work)) {
            bestRival = std::min(bestRival, scores[i].best);
        }
    }
    return bestRival / scores[0].best;
}

}  // namespace

bool RunBoxes(const SpatialEngines& engines, const Options& options) {
    std::vector<std::string> heads = {"work", "boxes", "found"};
    for (const auto& engine : engines.boxes) {
        heads.push_back(engine->GetName());
    }
    heads.emplace_back("best named rival / ours");
    Table table(heads, 1);
    bool isGood = true;
    const long most = options.isQuick ? MOST_QUICK_BOXES : MOST_BOXES;
    for (long n = FEWEST_BOXES; n <= most; n *= 10) {
        const BoxTask task = MakeTask(n);
        for (const auto& engine : engines.boxes) {
            engine->Load(task);
        }
        BoxRace race(engines);
        for (const BoxWork work : WORKS) {
            const std::vector<Score> scores = race.Run(work);
            const double lead = GetLead(engines, work, scores);
            std::vector<std::string> cells = {GetName(work), FormatCount(n),
                                              work == BoxWork::INSERT ? "-" : FormatCount(race.GetAnswer())};
            for (const Score& score : scores) {
                cells.push_back(score.HasTime() ? FormatTime(score.best / static_cast<double>(GetWorkNum(work, n)))
                                                : "-");
            }
            cells.push_back(std::isfinite(lead) ? FormatNumber(lead) : "-");
            table.AddRow(cells);
            isGood = isGood && race.IsAgreed(scores) && lead >= 1.0;
        }
        for (const auto& engine : engines.boxes) {
            engine->Clear();
        }
    }
    std::printf("### Indexes of boxes: time for one box or query\n\n");
    table.Print();
    std::printf(
        "\nAnswers agree, not behind GEOS's Quadtree in any work nor behind Boost's dynamic trees in inserting and "
        "deleting: %s.\n\n",
        isGood ? "yes" : "NO");
    return isGood;
}
