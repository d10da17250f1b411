// SPDX-License-Identifier: Apache-2.0
//
// NetworkTable.cpp: sets of points of five kinds into a triangulated network, every library.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "rivals/Growth.h"
#include "rivals/Race.h"
#include "rivals/SpatialTables.h"
#include "rivals/Table.h"

namespace {

constexpr int MOST_RUNS = 7;
constexpr double TIME_EACH = 4.0;
constexpr double STEEPEST_GROWTH = 1.15;
constexpr long GROWTH_FROM = 1000;
constexpr long LEAD_AT = 100000;
constexpr double MOST_BEHIND = 3.0;  ///< times the time of CGAL, at 100,000 uniform points
/// Flat triangles along the hull, on which tolerances and exact numbers decide differently: so many, or their share of
/// all.
constexpr double MOST_DISAGREEING = 10.0;
constexpr double MOST_DISAGREEING_SHARE = 1e-3;

struct Series {
    PointKind kind;
    long fewest;
    long most;
    bool isGrowthHeld;
};

constexpr Series SERIES[] = {
    {PointKind::UNIFORM, 1000, 1000000, true},  {PointKind::GRID, 1000, 1000000, true},
    {PointKind::CLUSTERS, 1000, 1000000, true}, {PointKind::TWO_ROWS, 1000, 10000, true},
    {PointKind::CIRCLE, 1000, 10000, false},
};

class NetworkRace {
public:
    NetworkRace(const SpatialEngines& engines, const std::vector<QnGePoint>& points) : m_engines(engines.networks) {
        m_triangles.assign(m_engines.size(), 0);
        m_scores.resize(m_engines.size());
        std::vector<Race::Runner> runners;
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            m_scores[i].isOut = static_cast<long>(points.size()) > m_engines[i]->GetMostPoints();
            if (!m_scores[i].isOut) {
                m_engines[i]->Load(points);
            }
            runners.push_back([this, i] { return RunOnce(i); });
        }
        Race(MOST_RUNS, TIME_EACH).Run(runners, m_scores);
    }

    const std::vector<Score>& GetScores() const { return m_scores; }
    long GetTriangleNum() const { return m_triangles[0]; }

    bool IsAgreed() const {
        for (std::size_t i = 1; i < m_engines.size(); i++) {
            const double gap = std::fabs(static_cast<double>(m_triangles[i] - m_triangles[0]));
            const double most =
                std::max(MOST_DISAGREEING, MOST_DISAGREEING_SHARE * static_cast<double>(m_triangles[0]));
            if (m_scores[i].HasTime() && gap > most) {
                std::printf("%s has %ld triangles instead of %ld.\n", m_engines[i]->GetName().c_str(), m_triangles[i],
                            m_triangles[0]);
                return false;
            }
        }
        return true;
    }

private:
    double RunOnce(std::size_t i) {
        NetworkEngine& engine = *m_engines[i];
        double seconds = -1.0;
        try {
            seconds = Measure([&] { engine.Run(); });
            m_triangles[i] = engine.GetTriangleNum();
        } catch (const std::exception& fault) {
            std::printf("%s: %s\n", engine.GetName().c_str(), fault.what());
        }
        engine.Clear();
        return seconds;
    }

    const std::vector<std::unique_ptr<NetworkEngine>>& m_engines;
    std::vector<Score> m_scores;
    std::vector<long> m_triangles;
};

/// Our time over that of CGAL, not a number without it.
double GetBehind(const SpatialEngines& engines, const std::vector<Score>& scores) {
    for (std::size_t i = 1; i < scores.size(); i++) {
        if (engines.networks[i]->GetName() == "CGAL" && scores[i].HasTime()) {
            return scores[0].best / scores[i].best;
        }
    }
    return std::nan("");
}

}  // namespace

bool RunNetworks(const SpatialEngines& engines, const Options& options) {
    std::vector<std::string> heads = {"kind", "n", "triangles"};
    for (const auto& engine : engines.networks) {
        heads.push_back(engine->GetName());
    }
    heads.emplace_back("ours / CGAL");
    heads.emplace_back("ours, a point");
    Table table(heads, 1);
    Table growths({"kind", "from", "to", "growth"}, 1);
    bool isGood = true;
    for (const Series& series : SERIES) {
        const long most = options.isQuick && series.most > LEAD_AT ? LEAD_AT : series.most;
        Growth growth(GROWTH_FROM, most);
        for (long n = series.fewest; n <= most; n *= 10) {
            const std::vector<QnGePoint> points = MakePoints(series.kind, n);
            const NetworkRace race(engines, points);
            const std::vector<Score>& scores = race.GetScores();
            const double behind = GetBehind(engines, scores);
            std::vector<std::string> cells = {GetName(series.kind), FormatCount(static_cast<long>(points.size())),
                                              FormatCount(race.GetTriangleNum())};
            for (const Score& score : scores) {
                cells.push_back(score.HasTime() ? FormatTime(score.best) : "-");
            }
            cells.push_back(std::isnan(behind) ? "-" : FormatNumber(behind));
            cells.push_back(FormatTime(scores[0].best / static_cast<double>(points.size())));
            table.AddRow(cells);
            growth.Note(n, scores[0].best);
            const bool isGoal = series.kind == PointKind::UNIFORM && n == LEAD_AT;
            isGood = isGood && race.IsAgreed() && !(isGoal && behind > MOST_BEHIND);
        }
        growths.AddRow({GetName(series.kind), FormatCount(GROWTH_FROM), FormatCount(most),
                        "n^" + FormatNumber(growth.GetExponent())});
        isGood = isGood && (!series.isGrowthHeld || growth.GetExponent() <= STEEPEST_GROWTH);
    }
    std::printf("### Triangulated networks of n points\n\n");
    table.Print();
    std::printf("\nOur growth:\n\n");
    growths.Print();
    std::printf(
        "\nNumbers of triangles agree, at most %.0f times CGAL at %s uniform points, growth within n^%.2f on all but "
        "the "
        "circle: %s.\n\n",
        MOST_BEHIND, FormatCount(LEAD_AT).c_str(), STEEPEST_GROWTH, isGood ? "yes" : "NO");
    return isGood;
}
