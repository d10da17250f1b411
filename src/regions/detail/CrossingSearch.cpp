// SPDX-License-Identifier: Apache-2.0
//
// CrossingSearch.cpp: the pairs of edges of two straight outlines that meet, part 1 of 3 (then CrossingGraph.cpp and
// CrossingGraph_Trace.cpp).
//
// The result is that of the plain double loop, pair by pair and bit by bit; only pairs that cannot count are left out.
//
// Phases     For each 64 edges of the first outline, in order:
//            1  Descend      the blocks of eight edges of the second outline whose box meets theirs
//            2  SearchBlock  for each eight of the 64, the blocks among these that are near them; for each edge of the
//                            eight, the edges of those blocks whose boxes meet its own and that are not all on
//                            one side of it
//            3  TestPair     where the two lines meet, with the very operations of QnGeBaseLine2d::IntersectWith
// Order      Every step goes through its candidates in ascending order, so pairs appear by edge of the first
//            outline and then by edge of the second without any sort.
// Why so     The tests of a pair are made on parameters, which may exceed [0, 1] by g_fZero, and for nearly parallel
//            edges the parameters themselves are uncertain: two edges may count as meeting though they are a little
//            apart. GetMargin bounds how far apart they can be. A box too many costs time and changes nothing.
//            Without a usable margin (a tolerance of 0, coordinates that are no numbers) every pair is tested.
// See        docs/algorithms/polygon-booleans.md
#include "regions/detail/CrossingSearch.h"

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"
#include "regions/detail/PtFlag.h"

namespace qn_detail {

namespace {

constexpr int LANES = BoxLanes::COUNT;

// Rounding of a coordinate difference relative to the coordinates, as it enters a parameter.
constexpr double ROUNDING = 1e-15;
// Four roundings to float, relative to coordinates that are measured from within the hull.
constexpr double FLOAT_ROUNDING = 1e-6;
// Clearance from an edge's line, in spans, at which the parameter of the crossing is out of range beyond all rounding.
constexpr double SIDE_CLEARANCE = 4e-6;
constexpr double SIDE_CLEARANCE_OF_TOLERANCE = 1e6;
// What the two divisions of a parameter may lose.
constexpr double DIVISION_ROUNDING = 1e-14;

// Boxes of long slanted edges say little. From three candidates in a block on it pays to ask on which side of the edge
// they lie.
bool HasThreeLanes(unsigned lanes) {
    lanes &= lanes - 1;
    lanes &= lanes - 1;
    return lanes != 0;
}

double Cross(const EdgeDirection& a, const EdgeDirection& b) {
    return a.x * b.y - a.y * b.x;
}

double Dot(const EdgeDirection& a, const EdgeDirection& b) {
    return a.x * b.x + a.y * b.y;
}

}  // namespace

CrossingSearch::CrossingSearch(OutlineIndex& first, OutlineIndex& second)
    : m_first(first),
      m_second(second),
      m_fZero(g_fZero),
      m_slack(std::max(2.0 * m_fZero, m_fZero + DIVISION_ROUNDING)) {}

void CrossingSearch::Run(PodArray<EdgeCrossing>& crossings) {
    if (m_first.GetEdgeNum() == 0 || m_second.GetEdgeNum() == 0) {
        return;
    }
    m_found = &crossings;
    const double span = GetSpan();
    const double margin = GetMargin(span);
    if (!(m_fZero > 0.0) || !OutlineIndex::CanWiden(margin) || !m_first.IsUsable() || !m_second.IsUsable()) {
        TestAllPairs();
        return;
    }
    m_margin = static_cast<float>(2.0 * margin);  // one box is widened for both
    m_clearance = static_cast<float>(SIDE_CLEARANCE * span * (1.0 + SIDE_CLEARANCE_OF_TOLERANCE * m_fZero));
    const long groups = (m_first.GetBlockNum() - 1) / LANES + 1;
    for (long group = 0; group < groups; ++group) {
        SearchGroup(group);
    }
}

// Width and height of what both outlines cover.
double CrossingSearch::GetSpan() const {
    const FloatBox hull = m_first.GetHull().With(m_second.GetHull());
    return (static_cast<double>(hull.x1) - static_cast<double>(hull.x0)) +
           (static_cast<double>(hull.y1) - static_cast<double>(hull.y0));
}

// How far apart two edges can be that still count. Beside the tolerance of lengths: a parameter may stray by g_fZero of
// an edge, and near-parallel edges (down to a sine of g_fZero) blow up the rounding of their coordinates.
double CrossingSearch::GetMargin(double span) const {
    return g_distZero + 4.0 * (m_fZero + ROUNDING / m_fZero) * span + FLOAT_ROUNDING * span;
}

void CrossingSearch::TestAllPairs() {
    for (long i = 0; i < m_first.GetEdgeNum(); ++i) {
        for (long j = 0; j < m_second.GetEdgeNum(); ++j) {
            TestPair(i, j);
        }
    }
}

// The box of a block of the first outline.
FloatBox CrossingSearch::GetBlockBox(long block) const {
    return m_first.GetLanes(1, block / LANES).GetBox(static_cast<int>(block % LANES));
}

// The box of a group of eight blocks of the first outline. An outline of a single group has no level above its blocks.
FloatBox CrossingSearch::GetGroupBox(long group) const {
    if (m_first.GetTopLevel() == 1) {
        return m_first.GetHull();
    }
    return m_first.GetLanes(2, group / LANES).GetBox(static_cast<int>(group % LANES));
}

void CrossingSearch::SearchGroup(long group) {
    m_near.Clear();
    Descend(m_second.GetTopLevel(), 0, GetGroupBox(group).Widened(m_margin));
    if (m_near.IsEmpty()) {
        return;
    }
    const long end = std::min((group + 1) * LANES, m_first.GetBlockNum());
    for (long block = group * LANES; block < end; ++block) {
        SearchBlock(block, GetBlockBox(block).Widened(m_margin));
    }
}

void CrossingSearch::Descend(int level, long group, const FloatBox& box) {
    unsigned lanes = m_second.GetLanes(level, group).GetMeeting(box);
    while (lanes != 0) {
        const long child = group * LANES + TakeLowestLane(lanes);
        if (level == 1) {
            m_near.Append(static_cast<std::int32_t>(child));
        } else {
            Descend(level - 1, child, box);
        }
    }
}

void CrossingSearch::SearchBlock(long block, const FloatBox& box) {
    m_candidate.Clear();
    for (const std::int32_t other : m_near) {
        if (m_second.GetLanes(1, other / LANES).GetBox(other % LANES).Meets(box)) {
            m_candidate.Append(other);
        }
    }
    if (m_candidate.IsEmpty()) {
        return;
    }
    const BoxLanes& edgeBoxes = m_first.GetEdgeBoxes(block);
    const long first = block * LANES;
    const long count = std::min<long>(LANES, m_first.GetEdgeNum() - first);
    for (long k = 0; k < count; ++k) {
        const FloatBox edgeBox = edgeBoxes.GetBox(static_cast<int>(k)).Widened(m_margin);
        for (const std::int32_t other : m_candidate) {
            unsigned lanes = m_second.GetEdgeBoxes(other).GetMeeting(edgeBox);
            if (HasThreeLanes(lanes)) {
                lanes &= ~GetEdgesBeside(first + k, other);
            }
            while (lanes != 0) {
                TestPair(first + k, static_cast<long>(other) * LANES + TakeLowestLane(lanes));
            }
        }
    }
}

// The edges of a block of the second outline that lie clear of the line of edge `i` of the first.
unsigned CrossingSearch::GetEdgesBeside(long i, long block) {
    const EdgeDirection& direction = m_first.GetDirection(i);
    const FloatBox origin = m_first.GetFrameBox(m_first.GetVertex(i));
    const auto x = static_cast<float>(direction.x);
    const auto y = static_cast<float>(direction.y);
    return m_second.GetBlockVertices(block).GetEdgesBeside(x, y, x * origin.y0 - y * origin.x0, m_clearance);
}

// The operations, and their order, are those of LineIntersect2d on normalised directions.
void CrossingSearch::TestPair(long i, long j) {
    const EdgeDirection& a = m_first.GetDirection(i);
    const EdgeDirection& b = m_second.GetDirection(j);
    const double det = Cross(a, b);
    if (IsZero(det, m_fZero)) {
        return;  // parallel edges meet at their ends only, through the edges that follow
    }
    const QnGePoint& p1 = m_first.GetVertex(i);
    const QnGePoint& p2 = m_second.GetVertex(j);
    const double gapX = p1.x - p2.x;
    const double gapY = p1.y - p2.y;
    const double n1 = b.x * gapY - b.y * gapX;
    const double n2 = a.x * gapY - a.y * gapX;

    // Most pairs go here, before the divisions.
    const double sign = det > 0.0 ? 1.0 : -1.0;
    const double reachA = std::fabs(det) * a.length;
    const double reachB = std::fabs(det) * b.length;
    if (sign * n1 < -m_slack * reachA || sign * n1 > (1.0 + m_slack) * reachA || sign * n2 < -m_slack * reachB ||
        sign * n2 > (1.0 + m_slack) * reachB) {
        return;
    }

    const double paA = n1 / det / a.length;
    const double paB = n2 / det / b.length;
    const bool onBoth = paA >= -m_fZero && paA - 1.0 <= m_fZero && paB >= -m_fZero && paB - 1.0 <= m_fZero;
    if (!onBoth) {
        return;
    }
    const std::uint32_t flags = GetFlags(i, j, paA, paB, det);
    EdgeCrossing& crossing = m_found->AppendUnset();
    crossing.edge[0] = static_cast<std::int32_t>(i);
    crossing.edge[1] = static_cast<std::int32_t>(j);
    crossing.pa[0] = paA;
    crossing.pa[1] = paB;
    crossing.flags = flags;
}

// What ends on the other outline's edge end is left to the edge that follows there: its start gives the same node.
std::uint32_t CrossingSearch::GetFlags(long i, long j, double paA, double paB, double det) {
    const bool secondToLeft = IsGreater(det, m_fZero);
    std::uint32_t flags = 0;
    if (!IsZero(paB - 1.0, m_fZero)) {
        flags |= GetFlagsOfOne(m_first, i, paA, m_second.GetDirection(j), secondToLeft, PT_A_LEAVES, PT_A_ENTERS);
    }
    if (!IsZero(paA - 1.0, m_fZero)) {
        flags |= GetFlagsOfOne(m_second, j, paB, m_first.GetDirection(i), !secondToLeft, PT_B_LEAVES, PT_B_ENTERS);
    }
    return flags;
}

// The inside lies left of each edge: who crosses `across` from its left to its right leaves.
std::uint32_t CrossingSearch::GetFlagsOfOne(OutlineIndex& own, long edge, double pa, const EdgeDirection& across,
                                            bool crossesToRight, std::uint32_t leaves, std::uint32_t enters) {
    const bool atStart = IsZero(pa, m_fZero);
    if (!atStart && !IsZero(pa - 1.0, m_fZero)) {
        return crossesToRight ? leaves : enters;
    }
    const EdgeDirection& in = own.GetDirection(atStart ? (edge == 0 ? own.GetVertexNum() : edge) - 1 : edge);
    const EdgeDirection& out = own.GetDirection(atStart ? edge : own.GetVertexAfter(edge));
    const bool runsAlong = atStart ? IsZero(Cross(in, across), m_fZero) && IsLess(Dot(in, across), m_fZero)
                                   : IsZero(Cross(out, across), m_fZero) && IsGreater(Dot(out, across), m_fZero);
    if (runsAlong) {
        return 0;
    }
    const bool turnsRight = IsLess(Cross(in, out), m_fZero);
    const bool acrossToLeft = IsGreater(Cross(atStart ? in : out, across), m_fZero);
    if (turnsRight) {
        return !acrossToLeft && !crossesToRight ? enters : leaves;
    }
    return acrossToLeft && crossesToRight ? leaves : enters;
}

}  // namespace qn_detail
