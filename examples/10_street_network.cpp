// SPDX-License-Identifier: Apache-2.0
// A street network: roads as they were surveyed, broken wherever two meet, are the edges of a graph.
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Example.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGeExtent2d.h"

namespace {

constexpr double TOLERANCE = 1e-9;  // of the length

// The middle of the town, and how much around it is shown.
constexpr double TOWN_X = 150700.0;
constexpr double TOWN_Y = 268200.0;
constexpr double TOWN_REACH = 650.0;

const QnGeCurve2d& CurveAt(const QnGeObject* const* entry) {
    return static_cast<const QnGeCurve2d&>(**entry);
}

double LengthOf(const QnGeObjList& list) {
    double length = 0.0;
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        length += CurveAt(entry).Length();
    }
    return length;
}

/// The graph of the pieces: its nodes are the places where pieces end.
class StreetGraph {
public:
    explicit StreetGraph(const QnGeObjList& pieces) {
        for (auto entry = pieces.GetFirst(); entry != nullptr; entry = pieces.GetNext(entry)) {
            QnGePoint from;
            QnGePoint to;
            CurveAt(entry).GetStartPoint(from);
            CurveAt(entry).GetEndPoint(to);
            const std::size_t a = NodeAt(from);
            const std::size_t b = NodeAt(to);
            ++m_nodes[a].degree;
            ++m_nodes[b].degree;
            m_root[Root(a)] = Root(b);
            ++m_edgeNum;
        }
    }

    long GetEdgeNum() const { return m_edgeNum; }
    long GetNodeNum() const { return static_cast<long>(m_nodes.size()); }

    long GetPartNum() {
        long parts = 0;
        for (std::size_t i = 0; i < m_root.size(); ++i) {
            parts += Root(i) == i ? 1 : 0;
        }
        return parts;
    }

    /// Of a plane graph whose edges meet at nodes only, by Euler's formula.
    long GetFaceNum() { return GetEdgeNum() - GetNodeNum() + GetPartNum(); }

    void DrawJunctions(SvgPicture& picture) const {
        constexpr int JUNCTION = 3;
        for (const Node& node : m_nodes) {
            if (node.degree >= JUNCTION) {
                picture.Dot(node.place, SvgRole::Plain);
            }
        }
    }

private:
    struct Node {
        QnGePoint place;
        int degree;
    };

    /// The data are rounded to centimetres; crossings are computed along either road.
    std::size_t NodeAt(const QnGePoint& pt) {
        constexpr double PER_METRE = 1e4;
        const auto key = std::make_pair(std::lround(pt.x * PER_METRE), std::lround(pt.y * PER_METRE));
        const auto found = m_index.emplace(key, m_nodes.size());
        if (found.second) {
            m_nodes.push_back({pt, 0});
            m_root.push_back(m_root.size());
        }
        return found.first->second;
    }

    std::size_t Root(std::size_t i) {
        while (m_root[i] != i) {
            i = m_root[i] = m_root[m_root[i]];
        }
        return i;
    }

    long m_edgeNum = 0;
    std::vector<Node> m_nodes;
    std::vector<std::size_t> m_root;
    std::map<std::pair<long, long>, std::size_t> m_index;
};

/// How many pieces each road has become. The pieces come in the order of the roads, and along each.
std::vector<int> CountPieces(const QnGeObjList& roads, const QnGeObjList& pieces) {
    std::vector<int> counts;
    auto piece = pieces.GetFirst();
    for (auto road = roads.GetFirst(); road != nullptr; road = roads.GetNext(road)) {
        const double length = CurveAt(road).Length();
        double reached = 0.0;
        int count = 0;
        for (; piece != nullptr && reached < length * (1.0 - TOLERANCE); piece = pieces.GetNext(piece)) {
            reached += CurveAt(piece).Length();
            ++count;
        }
        Require(RelativeError(reached, length, length) <= TOLERANCE, "the pieces of a road are as long as the road");
        counts.push_back(count);
    }
    Require(piece == nullptr, "every piece belongs to a road");
    return counts;
}

SvgRole RoleOf(int pieces) {
    if (pieces == 1) {
        return SvgRole::Plain;
    }
    return pieces <= 3 ? SvgRole::A : (pieces <= 9 ? SvgRole::Result : SvgRole::Mark);
}

void DrawRoads(const QnGeObjList& roads, const std::vector<int>& counts, SvgPicture& picture) {
    picture.Panel("each road as it was surveyed, by its number of pieces");
    std::size_t i = 0;
    for (auto road = roads.GetFirst(); road != nullptr; road = roads.GetNext(road)) {
        picture.Draw(**road, RoleOf(counts[i++]));
    }
}

void DrawPieces(const QnGeObjList& pieces, const StreetGraph& graph, SvgPicture& picture) {
    const QnGeExtent2d town(TOWN_X - TOWN_REACH, TOWN_X + TOWN_REACH, TOWN_Y - TOWN_REACH, TOWN_Y + TOWN_REACH);
    const std::array<SvgRole, 4> roles = {SvgRole::A, SvgRole::B, SvgRole::Result, SvgRole::Mark};
    picture.Panel("the middle of the town: pieces in turn in four colours, junctions as dots").Focus(town);
    std::size_t i = 0;
    for (auto piece = pieces.GetFirst(); piece != nullptr; piece = pieces.GetNext(piece)) {
        picture.Draw(**piece, roles[i++ % roles.size()]);
    }
    graph.DrawJunctions(picture);
}

void Run(const std::string& data, const std::string& out) {
    const std::string name = "linework/roads_mackay.txt";
    QnGeObjList roads;
    for (const QnGeMLine2d& line : data_files::ReadLines(data + "/" + name)) {
        roads.Append(line.Clone());
    }
    const data_files::CsvTable table(data + "/linework/expected_linework.csv");
    const std::size_t row = table.Find("file", name);
    const double length = table.Number(row, "total_length");

    QnGeObjList pieces;
    roads.InterBreakCurve2d(pieces);
    Require(RelativeError(LengthOf(pieces), length, length) <= TOLERANCE, "length of all pieces");

    // Some roads run along others for a while: without these stretches the pieces are the edges of a graph.
    QnGeObjList edges;
    roads.InterBreakCurveEx2d(edges);
    StreetGraph graph(edges);
    Require(graph.GetEdgeNum() == std::lround(table.Number(row, "noded_edges")), "number of edges");
    Require(graph.GetNodeNum() == std::lround(table.Number(row, "nodes")), "number of nodes");
    Require(graph.GetFaceNum() == std::lround(table.Number(row, "faces")), "number of blocks");

    const std::vector<int> counts = CountPieces(roads, pieces);
    std::printf("roads    %6ld   %10.2f m\n", roads.GetLength(), LengthOf(roads));
    std::printf("pieces   %6ld   %10.2f m\n", pieces.GetLength(), LengthOf(pieces));
    std::printf("edges    %6ld   %10.2f m   every stretch once\n", graph.GetEdgeNum(), LengthOf(edges));
    std::printf("nodes    %6ld\n", graph.GetNodeNum());
    std::printf("parts    %6ld\n", graph.GetPartNum());
    std::printf("blocks   %6ld   as many as the polygons of the same network elsewhere\n", graph.GetFaceNum());

    SvgPicture picture("A street network broken at its crossings",
                       "Roads around Mackay, Idaho (US Census Bureau, public domain).");
    picture.Columns(2).PanelShape(1.0).Legend(SvgRole::Plain, "one piece").Legend(SvgRole::A, "2 or 3 pieces");
    picture.Legend(SvgRole::Result, "4 to 9 pieces").Legend(SvgRole::Mark, "10 pieces and more");
    DrawRoads(roads, counts, picture);
    DrawPieces(edges, graph, picture);
    picture.Save(out + "/10_street_network.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
