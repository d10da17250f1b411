// SPDX-License-Identifier: Apache-2.0
//
// NodingTable.cpp: lines broken at all their crossings, every library: short random segments, and real linework.
//
// Stretches that lie on one another come once per line from InterBreakCurve2d, once in all from InterBreakCurveEx2d and
// GEOSNode_r. The table of pieces has all three.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>

#include "rivals/Growth.h"
#include "rivals/Race.h"
#include "rivals/SpatialTables.h"
#include "rivals/Table.h"
#include "support/DataFiles.h"

namespace {

constexpr long FEWEST_SEGMENTS = 1000;
constexpr long MOST_SEGMENTS = 100000;
constexpr long MOST_QUICK_SEGMENTS = 10000;
constexpr int MOST_RUNS = 7;
constexpr double TIME_EACH = 3.0;
constexpr double STEEPEST_GROWTH = 1.2;
constexpr double LENGTH_TOLERANCE = 1e-9;
constexpr const char* NODE = "GEOS node";
constexpr const char* FILES[] = {"roads_mackay", "roads_north", "africa_borders_coast", "europe_rivers_borders"};

class NodingRace {
public:
    NodingRace(const SpatialEngines& engines, const std::vector<VertexLine>& lines) : m_engines(engines.noders) {
        m_pieces.assign(m_engines.size(), 0);
        m_lengths.assign(m_engines.size(), 0.0);
        m_scores.resize(m_engines.size());
        long segments = 0;
        for (const VertexLine& line : lines) {
            segments += static_cast<long>(line.size()) - 1;
        }
        std::vector<Race::Runner> runners;
        for (std::size_t i = 0; i < m_engines.size(); i++) {
            m_scores[i].isOut = segments > m_engines[i]->GetMostSegments();
            if (!m_scores[i].isOut) {
                m_engines[i]->Load(lines);
            }
            runners.push_back([this, i] { return RunOnce(i); });
        }
        Race(MOST_RUNS, TIME_EACH).Run(runners, m_scores);
    }

    const std::vector<Score>& GetScores() const { return m_scores; }
    double GetLength() const { return m_lengths[0]; }
    long GetPieceNum() const { return m_pieces[0]; }

    /// -1 if the library is not there.
    long GetPieceNum(const std::string& name) const {
        const std::size_t i = Find(name);
        return i < m_engines.size() ? m_pieces[i] : -1;
    }

    /// The time of a library over ours; not a number if it is not there.
    double GetLead(const std::string& name) const {
        const std::size_t i = Find(name);
        return i < m_engines.size() && m_scores[i].HasTime() ? m_scores[i].best / m_scores[0].best : std::nan("");
    }

    bool IsAgreed() const {
        for (std::size_t i = 1; i < m_engines.size(); i++) {
            const double gap = std::fabs(m_lengths[i] - m_lengths[0]);
            if (m_scores[i].HasTime() && (m_pieces[i] != m_pieces[0] || gap > LENGTH_TOLERANCE * m_lengths[0])) {
                std::printf("%s: %ld pieces, length %.15g instead of %ld, %.15g.\n", m_engines[i]->GetName().c_str(),
                            m_pieces[i], m_lengths[i], m_pieces[0], m_lengths[0]);
                return false;
            }
        }
        return true;
    }

private:
    std::size_t Find(const std::string& name) const {
        std::size_t i = 0;
        while (i < m_engines.size() && m_engines[i]->GetName() != name) {
            i++;
        }
        return i;
    }

    double RunOnce(std::size_t i) {
        NodingEngine& engine = *m_engines[i];
        double seconds = -1.0;
        try {
            seconds = Measure([&] { engine.Run(); });
            m_pieces[i] = engine.GetPieceNum();
            m_lengths[i] = engine.GetLength();
        } catch (const std::exception& fault) {
            std::printf("%s: %s\n", engine.GetName().c_str(), fault.what());
        }
        engine.Clear();
        return seconds;
    }

    const std::vector<std::unique_ptr<NodingEngine>>& m_engines;
    std::vector<Score> m_scores;
    std::vector<long> m_pieces;
    std::vector<double> m_lengths;
};

std::vector<VertexLine> ReadLinework(const std::string& name) {
    std::vector<VertexLine> lines;
    const std::string path = std::string(QUARN_DATA_DIR) + "/linework/" + name + ".txt";
    for (const QnGeMLine2d& line : data_files::ReadLines(path)) {
        VertexLine vertices;
        for (long i = 0; i < line.GetVertexNum(); i++) {
            vertices.push_back(line[i]);
        }
        lines.push_back(vertices);
    }
    return lines;
}

double GetLength(const std::vector<VertexLine>& lines) {
    double length = 0.0;
    for (const VertexLine& line : lines) {
        for (std::size_t i = 0; i + 1 < line.size(); i++) {
            length += std::hypot(line[i + 1].x - line[i].x, line[i + 1].y - line[i].y);
        }
    }
    return length;
}

Table MakeTimeTable(const SpatialEngines& engines) {
    std::vector<std::string> heads = {"input", "lines", "pieces"};
    for (const auto& engine : engines.noders) {
        heads.push_back(engine->GetName());
    }
    heads.emplace_back("GEOS node / ours");
    return Table(heads, 1);
}

void AddTimes(const std::string& name, std::size_t lines, const NodingRace& race, Table& table) {
    std::vector<std::string> cells = {name, FormatCount(static_cast<long>(lines)), FormatCount(race.GetPieceNum())};
    for (const Score& score : race.GetScores()) {
        cells.push_back(score.HasTime() ? FormatTime(score.best) : "-");
    }
    const double lead = race.GetLead(NODE);
    cells.push_back(std::isnan(lead) ? "-" : FormatNumber(lead));
    table.AddRow(cells);
}

bool RunRandom(const SpatialEngines& engines, const Options& options, Table& times, double& exponent) {
    const long most = options.isQuick ? MOST_QUICK_SEGMENTS : MOST_SEGMENTS;
    Growth growth(FEWEST_SEGMENTS, most);
    bool isGood = true;
    for (long n = FEWEST_SEGMENTS; n <= most; n *= 10) {
        const std::vector<VertexLine> segments = MakeRandomSegments(n);
        const NodingRace race(engines, segments);
        AddTimes("random segments", segments.size(), race, times);
        growth.Note(n, race.GetScores()[0].best);
        const bool isBehind = n == MOST_SEGMENTS && race.GetLead(NODE) < 1.0;
        isGood = isGood && race.IsAgreed() && !isBehind;
    }
    exponent = growth.GetExponent();
    return isGood && exponent <= STEEPEST_GROWTH;
}

bool RunReal(const SpatialEngines& engines, Table& times, Table& pieces) {
    bool isGood = true;
    for (const char* const file : FILES) {
        const std::vector<VertexLine> lines = ReadLinework(file);
        const NodingRace race(engines, lines);
        AddTimes(file, lines.size(), race, times);
        const double length = GetLength(lines);
        isGood = isGood && std::fabs(race.GetLength() - length) <= LENGTH_TOLERANCE * length;
        const long node = race.GetPieceNum(NODE);
        pieces.AddRow({file, FormatCount(race.GetPieceNum()), FormatCount(CountPiecesOnce(lines)),
                       node < 0 ? "-" : FormatCount(node)});
    }
    return isGood;
}

}  // namespace

bool RunNoding(const SpatialEngines& engines, const Options& options) {
    Table times = MakeTimeTable(engines);
    Table pieces({"input", "ours", "ours, overlaps once", "GEOS node"}, 1);
    double exponent = 0.0;
    bool isGood = RunRandom(engines, options, times, exponent);
    isGood = RunReal(engines, times, pieces) && isGood;
    std::printf("### Lines broken at their crossings\n\n");
    times.Print();
    std::printf("\nOur growth with random segments: n^%s.\n\nPieces of real lines:\n\n",
                FormatNumber(exponent).c_str());
    pieces.Print();
    std::printf(
        "\nPieces and lengths of random segments agree, the length of real lines is kept to %.0e, not behind "
        "GEOSNode_r "
        "at %s segments, growth within n^%.1f: %s.\n\n",
        LENGTH_TOLERANCE, FormatCount(MOST_SEGMENTS).c_str(), STEEPEST_GROWTH, isGood ? "yes" : "NO");
    return isGood;
}
