// SPDX-License-Identifier: Apache-2.0
// Real roads, borders, coasts and rivers broken at all their crossings.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/PieceList.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "support/DataFiles.h"

namespace {

const std::string DATA = QUARN_SOURCE_DIR "/examples/data/";
constexpr double LENGTH_ERROR = 1e-9;
constexpr double SAME_PLACE = 1e-5;  // the data are rounded to 0.01

QnGeObjList AsLines(const std::vector<QnGeMLine2d>& lines) {
    QnGeObjList list;
    for (const QnGeMLine2d& line : lines) {
        list.Append(line.Clone());
    }
    return list;
}

QnGeObjList AsSegments(const std::vector<QnGeMLine2d>& lines) {
    QnGeObjList list;
    for (const QnGeMLine2d& line : lines) {
        line.Explode(list);
    }
    return list;
}

// ---- an index of the test's own ----------------------------------------------------------------------

struct Edge {
    QnGePoint from;
    QnGePoint to;
    std::size_t piece;
};

struct Ends {
    QnGePoint start;
    QnGePoint end;
};

/// The edges of all pieces in square cells, by the cells that their boxes cover.
class EdgeGrid {
public:
    explicit EdgeGrid(const QnGeObjList& pieces) {
        double length = 0.0;
        for (const QnGeCurve2d* curve : CurvesOf(pieces)) {
            QnGeObjList edges;
            if (!curve->Explode(edges)) {
                edges.Append(curve->Clone());
            }
            for (const QnGeCurve2d* edge : CurvesOf(edges)) {
                Ends ends;
                edge->GetStartPoint(ends.start);
                edge->GetEndPoint(ends.end);
                m_edges.push_back({ends.start, ends.end, m_ends.size()});
                length += GetDistance2d(ends.start, ends.end);
            }
            Ends ends;
            curve->GetStartPoint(ends.start);
            curve->GetEndPoint(ends.end);
            m_ends.push_back(ends);
        }
        m_cell = 4.0 * length / static_cast<double>(m_edges.size());
        for (std::size_t i = 0; i < m_edges.size(); ++i) {
            ForEachCell(m_edges[i], [&](std::int64_t cell) { m_cells[cell].push_back(i); });
        }
    }

    /// Visits the pairs of edges that share a cell, some of them more than once.
    template <class Visit>
    void ForEachPair(Visit visit) const {
        for (const auto& cell : m_cells) {
            for (std::size_t i = 0; i < cell.second.size(); ++i) {
                for (std::size_t j = 0; j < i; ++j) {
                    visit(m_edges[cell.second[i]], m_edges[cell.second[j]]);
                }
            }
        }
    }

    bool IsAtAnEnd(std::size_t piece, double x, double y) const {
        const QnGePoint pt(x, y);
        return GetDistance2d(m_ends[piece].start, pt) < SAME_PLACE || GetDistance2d(m_ends[piece].end, pt) < SAME_PLACE;
    }

private:
    template <class Visit>
    void ForEachCell(const Edge& edge, Visit visit) const {
        const auto cellOf = [&](double v) { return static_cast<std::int64_t>(std::floor(v / m_cell)); };
        const std::int64_t x1 = cellOf(std::max(edge.from.x, edge.to.x) + SAME_PLACE);
        const std::int64_t y1 = cellOf(std::max(edge.from.y, edge.to.y) + SAME_PLACE);
        for (std::int64_t x = cellOf(std::min(edge.from.x, edge.to.x) - SAME_PLACE); x <= x1; ++x) {
            for (std::int64_t y = cellOf(std::min(edge.from.y, edge.to.y) - SAME_PLACE); y <= y1; ++y) {
                visit(x * 1000003 + y);
            }
        }
    }

    double m_cell;
    std::vector<Edge> m_edges;
    std::vector<Ends> m_ends;
    std::unordered_map<std::int64_t, std::vector<std::size_t>> m_cells;
};

long double Difference(double a, double b) {
    return static_cast<long double>(a) - static_cast<long double>(b);
}

/// Where the insides of two edges cross, in extended precision.
bool Cross(const Edge& a, const Edge& b, double& x, double& y) {
    const long double ax = Difference(a.to.x, a.from.x);
    const long double ay = Difference(a.to.y, a.from.y);
    const long double bx = Difference(b.to.x, b.from.x);
    const long double by = Difference(b.to.y, b.from.y);
    const long double gx = Difference(b.from.x, a.from.x);
    const long double gy = Difference(b.from.y, a.from.y);
    const long double det = ax * by - ay * bx;
    if (det == 0.0L) {
        return false;
    }
    const long double t = (gx * by - gy * bx) / det;
    const long double s = (gx * ay - gy * ax) / det;
    if (!(t >= 0.0L && t <= 1.0L && s >= 0.0L && s <= 1.0L)) {
        return false;
    }
    x = a.from.x + static_cast<double>(t * ax);
    y = a.from.y + static_cast<double>(t * ay);
    return true;
}

/// "" if the insides of no two pieces cross.
std::string CheckInsides(const QnGeObjList& pieces) {
    const EdgeGrid grid(pieces);
    std::string fault;
    grid.ForEachPair([&](const Edge& a, const Edge& b) {
        double x = 0.0;
        double y = 0.0;
        const bool isFault =
            a.piece != b.piece && Cross(a, b, x, y) && !grid.IsAtAnEnd(a.piece, x, y) && !grid.IsAtAnEnd(b.piece, x, y);
        if (isFault) {
            fault = "pieces " + std::to_string(a.piece) + " and " + std::to_string(b.piece) + " cross at " +
                    std::to_string(x) + ", " + std::to_string(y);
        }
    });
    return fault;
}

/// The places where pieces end; ends that round to the same tenth of a millimetre are one.
long CountNodes(const QnGeObjList& pieces) {
    constexpr double PER_METRE = 1e4;
    std::set<std::pair<long, long>> places;
    const auto add = [&places](const QnGePoint& pt) {
        places.insert({std::lround(pt.x * PER_METRE), std::lround(pt.y * PER_METRE)});
    };
    for (const QnGeCurve2d* curve : CurvesOf(pieces)) {
        QnGePoint pt;
        curve->GetStartPoint(pt);
        add(pt);
        curve->GetEndPoint(pt);
        add(pt);
    }
    return static_cast<long>(places.size());
}

struct Sheet {
    const char* name;
    long linePieces;     ///< of whole lines
    long segmentPieces;  ///< of their segments
    long edgesBesides;   ///< noded edges of the table that are no pieces of ours
    long nodesBesides;
};

// Lines that share a stretch make a piece each; the table counts edges once, as the form that keeps overlaps once does.
//
// In the sheet of Africa a line goes on for 0.02 mm beyond another. As a parameter of the whole line that is nearer to
// its end than g_fZero: no piece of that length.
const Sheet SHEETS[] = {{"africa_borders_coast", 2167, 26834, 1, 1},
                        {"roads_mackay", 633, 2263, 0, 0},
                        {"roads_north", 2221, 29044, 0, 0},
                        {"europe_rivers_borders", 2509, 39227, 0, 0}};

class Linework : public testing::TestWithParam<Sheet> {
protected:
    Linework() : m_lines(data_files::ReadLines(DATA + "linework/" + GetParam().name + ".txt")) {
        const data_files::CsvTable table(DATA + "linework/expected_linework.csv");
        const std::size_t row = table.Find("file", std::string("linework/") + GetParam().name + ".txt");
        m_length = table.Number(row, "total_length");
        m_edges = std::lround(table.Number(row, "noded_edges"));
        m_nodes = std::lround(table.Number(row, "nodes"));
    }

    void ExpectLength(const QnGeObjList& pieces) const {
        EXPECT_NEAR(LengthOf(pieces), m_length, LENGTH_ERROR * m_length);
    }

    std::vector<QnGeMLine2d> m_lines;
    double m_length;
    long m_edges;
    long m_nodes;
};

TEST_P(Linework, LinesBreakIntoPiecesThatDoNotCross) {
    QnGeObjList pieces;
    AsLines(m_lines).InterBreakCurve2d(pieces);
    ExpectLength(pieces);
    EXPECT_EQ(pieces.GetLength(), GetParam().linePieces);
    EXPECT_EQ(CountNodes(pieces), m_nodes - GetParam().nodesBesides);
    EXPECT_EQ(CheckInsides(pieces), "");
}

TEST_P(Linework, SegmentsBreakIntoPiecesThatDoNotCross) {
    QnGeObjList pieces;
    AsSegments(m_lines).InterBreakCurve2d(pieces);
    ExpectLength(pieces);
    EXPECT_EQ(pieces.GetLength(), GetParam().segmentPieces);
    EXPECT_EQ(CheckInsides(pieces), "");
}

TEST_P(Linework, OverlapsKeptOnceTheLinesAreTheEdgesOfTheirNetwork) {
    QnGeObjList pieces;
    AsLines(m_lines).InterBreakCurveEx2d(pieces);
    EXPECT_EQ(pieces.GetLength(), m_edges - GetParam().edgesBesides);
    EXPECT_EQ(CountNodes(pieces), m_nodes - GetParam().nodesBesides);
    EXPECT_EQ(CheckInsides(pieces), "");
    QnGeObjList segments;
    AsSegments(m_lines).InterBreakCurveEx2d(segments);
    EXPECT_NEAR(LengthOf(segments), LengthOf(pieces), LENGTH_ERROR * m_length);
}

INSTANTIATE_TEST_SUITE_P(InterBreak, Linework, testing::ValuesIn(SHEETS),
                         [](const auto& sheet) { return std::string(sheet.param.name); });

}  // namespace
