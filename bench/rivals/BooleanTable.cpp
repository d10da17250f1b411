// SPDX-License-Identifier: Apache-2.0
//
// BooleanTable.cpp: union, intersection and difference, each kind of outline, each size, every library.
//
// Phases   for each kind and size
//          1  Load       all libraries take the pair in, untimed
//          2  Race       warm-up and rounds, each run followed by a check of its area
//          3  AddRow     best times, and the best rival's over ours
//          after that the growth of each over the two decades from 1,000 vertices on
// Why so   A rival that would need longer than LONGEST_RUN for one run gets a dash: its time is estimated from
//          its growth so far, which is taken to steepen as it did before.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <iterator>
#include <limits>
#include <map>

#include "rivals/Race.h"
#include "rivals/Table.h"
#include "rivals/Tables.h"
#include "support/CrossingCount.h"

namespace {

constexpr Operation OPERATIONS[] = {Operation::UNION, Operation::INTERSECTION, Operation::DIFFERENCE};
constexpr long FEWEST_VERTICES = 100;
constexpr long GROWTH_FROM = 1000;  ///< growth and lead count from here on
constexpr long GROWTH_TO = 100000;
constexpr double STEEPEST_GROWTH = 1.1;
constexpr int MOST_RUNS = 200;
constexpr double TIME_EACH = 1.0;  ///< seconds for all runs of a library at one operation and size
constexpr double LONGEST_RUN = 60.0;
constexpr double NEVER = std::numeric_limits<double>::infinity();
constexpr double UNKNOWN = std::numeric_limits<double>::quiet_NaN();

const char* GetName(Operation operation) {
    switch (operation) {
        case Operation::UNION:
            return "union";
        case Operation::INTERSECTION:
            return "intersection";
        case Operation::DIFFERENCE:
            break;
    }
    return "difference";
}

/// All runs of one kind and operation over the sizes.
class BooleanSeries {
public:
    BooleanSeries(const Engines& engines, OutlineKind kind, Operation operation)
        : m_engines(engines.booleans), m_kind(kind), m_operation(operation) {}

    /// Requires  All engines have loaded a pair of `n` vertices each.
    void Run(long n, long crossings, Table& table) {
        std::vector<Score> scores = MakeScores(n);
        std::vector<Race::Runner> runners;
        m_areas.assign(m_engines.size(), UNKNOWN);
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            runners.push_back([this, i] { return RunOnce(i); });
        }
        Race(MOST_RUNS, TIME_EACH).Run(runners, scores);
        AddRow(n, crossings, scores, table);
        m_scores[n] = scores;
    }

    /// One row: the exponents of all libraries between 1,000 and 100,000 vertices.
    void AddGrowth(Table& table) {
        const auto from = m_scores.find(GROWTH_FROM);
        const auto to = m_scores.find(GROWTH_TO);
        if (from == m_scores.end() || to == m_scores.end()) {
            return;
        }
        std::vector<std::string> cells = {GetName(m_kind), GetName(m_operation)};
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            const bool hasBoth = from->second[i].HasTime() && to->second[i].HasTime();
            const double growth = std::log(to->second[i].best / from->second[i].best) /
                                  std::log(static_cast<double>(GROWTH_TO) / static_cast<double>(GROWTH_FROM));
            cells.push_back(hasBoth ? "n^" + FormatNumber(growth) : "-");
            m_isGood = m_isGood && (i > 0 || growth <= STEEPEST_GROWTH);
        }
        table.AddRow(cells);
    }

    bool IsGood() const { return m_isGood; }

private:
    using Sizes = std::map<long, std::vector<Score>>;

    std::vector<Score> MakeScores(long n) const {
        std::vector<Score> scores(m_engines.size());
        for (std::size_t i = 0; i < scores.size(); i++) {
            scores[i].isOut = EstimateTime(i, n) > LONGEST_RUN;
        }
        return scores;
    }

    /// The exponent of the growth up to the size that `to` stands for, from the size before it.
    double GetGrowth(std::size_t i, Sizes::const_reverse_iterator to) const {
        const auto from = std::next(to);
        const double step = std::log(static_cast<double>(to->first) / static_cast<double>(from->first));
        return std::log(to->second[i].best / from->second[i].best) / step;
    }

    double EstimateTime(std::size_t i, long n) const {
        if (m_scores.empty()) {
            return 0.0;
        }
        const auto last = m_scores.rbegin();
        if (!last->second[i].HasTime()) {
            return NEVER;
        }
        double growth = 1.0;
        if (m_scores.size() > 2) {
            const double lastGrowth = GetGrowth(i, last);
            const double steeper = lastGrowth - GetGrowth(i, std::next(last));
            growth = std::max(growth, lastGrowth + std::max(0.0, steeper));
        }
        const double ratio = static_cast<double>(n) / static_cast<double>(last->first);
        return last->second[i].best * std::pow(ratio, growth);
    }

    double RunOnce(std::size_t i) {
        BooleanEngine& engine = *m_engines[i];
        try {
            const double seconds = Measure([&] { engine.Run(m_operation); });
            if (std::isnan(m_areas[i])) {  // the warm-up run
                m_areas[i] = engine.GetArea();
            }
            engine.Clear();
            const double gap = std::fabs(m_areas[i] - m_areas[0]);
            if (gap <= engine.GetAreaTolerance() * std::fabs(m_areas[0])) {
                return seconds;
            }
            std::printf("%s: the area %.15g is not %.15g\n", engine.GetName().c_str(), m_areas[i], m_areas[0]);
        } catch (const std::exception& fault) {
            std::printf("%s: %s\n", engine.GetName().c_str(), fault.what());
            engine.Clear();
        }
        m_isGood = false;
        return -1.0;
    }

    void AddRow(long n, long crossings, const std::vector<Score>& scores, Table& table) {
        std::vector<std::string> cells = {GetName(m_kind), GetName(m_operation), FormatCount(n),
                                          FormatCount(crossings)};
        double bestRival = NEVER;
        for (std::size_t i = 0; i < scores.size(); i++) {
            cells.push_back(scores[i].HasTime() ? FormatTime(scores[i].best) : "-");
            bestRival = i > 0 ? std::min(bestRival, scores[i].best) : bestRival;
        }
        const double lead = bestRival / scores[0].best;
        cells.push_back(std::isfinite(lead) ? FormatNumber(lead) : "-");
        m_isGood = m_isGood && (n < GROWTH_FROM || lead > 1.0);
        table.AddRow(cells);
    }

    const std::vector<std::unique_ptr<BooleanEngine>>& m_engines;
    OutlineKind m_kind;
    Operation m_operation;
    std::vector<double> m_areas;
    Sizes m_scores;
    bool m_isGood = true;
};

Table MakeTable(const Engines& engines, std::vector<std::string> heads, const char* lastHead) {
    for (const auto& engine : engines.booleans) {
        heads.push_back(engine->GetName());
    }
    if (lastHead != nullptr) {
        heads.emplace_back(lastHead);
    }
    return Table(heads, 2);
}

}  // namespace

bool RunBooleans(const Engines& engines, const Options& options) {
    Table times = MakeTable(engines, {"kind", "operation", "n", "crossings"}, "best rival / ours");
    Table growths = MakeTable(engines, {"kind", "operation"}, nullptr);
    bool isGood = true;
    for (const OutlineKind kind : OUTLINE_KINDS) {
        std::vector<BooleanSeries> series;
        for (const Operation operation : OPERATIONS) {
            series.emplace_back(engines, kind, operation);
        }
        for (long n = FEWEST_VERTICES; n <= options.GetMostVertices(); n *= 10) {
            const OutlinePair pair = MakeOutlinePair(kind, n);
            const long crossings = CountCrossings(pair);
            if (!IsExpectedCount(kind, n, crossings)) {
                std::printf("The outlines do not cross as often as they should.\n");
                isGood = false;
            }
            for (const auto& engine : engines.booleans) {
                engine->Load(pair);
            }
            for (BooleanSeries& one : series) {
                one.Run(n, crossings, times);
            }
        }
        for (BooleanSeries& one : series) {
            one.AddGrowth(growths);
            isGood = isGood && one.IsGood();
        }
    }
    std::printf("### Booleans of two outlines of n vertices each\n\n");
    times.Print();
    std::printf("\n-: one run would have taken more than about %.0f s, as far as the growth before tells.\n",
                LONGEST_RUN);
    if (!options.isQuick) {
        std::printf("\nGrowth from %ld to %ld vertices:\n\n", GROWTH_FROM, GROWTH_TO);
        growths.Print();
    }
    std::printf("\nAreas agree, ahead of every rival from %ld vertices on%s: %s.\n\n", GROWTH_FROM,
                options.isQuick ? "" : ", growth within n^1.1", isGood ? "yes" : "NO");
    return isGood;
}
