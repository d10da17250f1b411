// SPDX-License-Identifier: Apache-2.0
//
// HitTable.cpp: points against one outline, every library by its plain loop over the edges.
//
// Long outlines get fewer points, the same for all libraries; what the table gives is the time for one point. A
// prepared form, an index that is made once per outline, stands beside the plain ones and does not take part in the
// comparison.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "rivals/Race.h"
#include "rivals/Table.h"
#include "rivals/Tables.h"

namespace {

constexpr long FEWEST_VERTICES = 10;
constexpr long LEAD_FROM = 1000;
constexpr long MOST_POINTS = 100000;
constexpr long MOST_EDGE_VISITS = 200000000;
constexpr int MOST_RUNS = 7;
constexpr double TIME_EACH = 2.0;
/// Points that may lie so near to the outline that whole-number coordinates or a tolerance decide otherwise.
constexpr long MOST_DISAGREEING = 2;

class HitRace {
public:
    HitRace(const Engines& engines, long count)
        : m_engines(engines.hits), m_count(count), m_inside(m_engines.size(), -1) {}

    std::vector<Score> Run() {
        std::vector<Score> scores(m_engines.size());
        std::vector<Race::Runner> runners;
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            runners.push_back([this, i] { return RunOnce(i); });
        }
        Race(MOST_RUNS, TIME_EACH).Run(runners, scores);
        return scores;
    }

    bool IsAgreed() const {
        return std::all_of(m_inside.begin(), m_inside.end(),
                           [this](long inside) { return std::labs(inside - m_inside[0]) <= MOST_DISAGREEING; });
    }

private:
    double RunOnce(std::size_t i) {
        return Measure([&] { m_inside[i] = m_engines[i]->CountInside(m_count); });
    }

    const std::vector<std::unique_ptr<HitEngine>>& m_engines;
    long m_count;
    std::vector<long> m_inside;
};

double GetLead(const Engines& engines, const std::vector<Score>& scores) {
    double bestRival = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < scores.size(); i++) {
        if (!engines.hits[i]->IsPrepared()) {
            bestRival = std::min(bestRival, scores[i].best);
        }
    }
    return bestRival / scores[0].best;
}

}  // namespace

bool RunHits(const Engines& engines, const Options& options) {
    std::vector<std::string> heads = {"kind", "n", "points"};
    for (const auto& engine : engines.hits) {
        heads.push_back(engine->GetName());
    }
    heads.emplace_back("ours, a vertex");
    heads.emplace_back("best plain rival / ours");
    Table table(heads, 1);
    const std::vector<QnGePoint> points = MakeHitPoints(MOST_POINTS);
    bool isGood = true;
    for (const OutlineKind kind : OUTLINE_KINDS) {
        for (long n = FEWEST_VERTICES; n <= options.GetMostVertices(); n *= 10) {
            const std::vector<QnGePoint> outline = MakeOutline(kind, n);
            for (const auto& engine : engines.hits) {
                engine->Load(outline, points);
            }
            const long count = std::min(MOST_POINTS, MOST_EDGE_VISITS / n);
            HitRace race(engines, count);
            const std::vector<Score> scores = race.Run();
            const double lead = GetLead(engines, scores);
            std::vector<std::string> cells = {GetName(kind), FormatCount(n), FormatCount(count)};
            for (const Score& score : scores) {
                cells.push_back(FormatTime(score.best / static_cast<double>(count)));
            }
            cells.push_back(FormatTime(scores[0].best / static_cast<double>(count) / static_cast<double>(n)));
            cells.push_back(std::isfinite(lead) ? FormatNumber(lead) : "-");
            table.AddRow(cells);
            if (!race.IsAgreed()) {
                std::printf("The libraries do not agree on what is inside: %s, %ld vertices.\n", GetName(kind), n);
            }
            isGood = isGood && race.IsAgreed() && (n < LEAD_FROM || lead > 1.0);
        }
    }
    std::printf("### Hit tests: time for one point against an outline of n vertices\n\n");
    table.Print();
    std::printf("\nAnswers agree, ahead of every rival's plain form from %ld vertices on: %s.\n\n", LEAD_FROM,
                isGood ? "yes" : "NO");
    return isGood;
}
