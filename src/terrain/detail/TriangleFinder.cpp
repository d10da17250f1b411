// SPDX-License-Identifier: Apache-2.0
//
// TriangleFinder.cpp: the place of a node in a network without the tree.
//
// The rule is: the first triangle, in the order of the tree's lists, whose box holds the node and that does not have it
// to the right of an edge, gets it; a node on the line of such a triangle's hull edge is outside. Which triangles the
// tolerance lets in depends on the order. But where a node lies clear of all edges, one triangle alone can have it, and
// where it lies near one edge and clear of the others, the two beside that edge. These are found by walking.
//
// Phases     1  Walk      to the triangle beyond the edge that the node lies farthest to the right of.
//            2  Inside    clear of all three edges: it is in.
//               Outside   clearly to the right of a hull edge: it is in no triangle.
//               Beside    near one edge: the two beside it decide, in the order in which the tree has them.
//               Unsure    near a node, too far to walk, or not sound: the tree must be asked.
// Why so     What "clear" takes, with t the tolerance, for a node P and any triangle V that P is not in:
//              * V has P to its left or on the line at all edges, so it would let it in. All triangles run
//                counter-clockwise and the hull is one convex ring, so they do not overlap, and P is at least as far
//                from V as from the edges of its own triangle. "On the line" from A to B is half the cross product over
//                |dx| + |dy| of PA, so a distance of up to 2.83 t |PA| / |AB| from the line; P must also lie between A
//                and B by the longer of the edge's extents, so it is within 9 t of the edge if that is no shorter than
//                8 t.
//              * V has a hull edge on the line of which P lies, anywhere along it, and so ends the search. P is in the
//                box of V, so its distance from that line is at most 3 t times the size of the box over |AB|; and it
//                is no less than that from the hull, which is convex, so no less than that from the edges of P's own
//                triangle.
//            A hull that turns right by an angle in all, from rounding or from nodes that counted as on its line, is
//            off the convex by less than that angle times its extent.
//            The triangle that has P to its left by more than the tolerance also has it in its box by more, so the way
//            down the tree that brought the box into its cell brings P there too.
//            None of this holds for what was learned under another tolerance.
// Invariant  What was not sound once makes the finder unsure for good.
// Cost       The steps of the walk.
#include "terrain/detail/TriangleFinder.h"

#include <cmath>
#include <utility>

#include "terrain/detail/TriangleTree.h"
#include "values/QnGeAnalytic.h"
#include "values/detail/PathType.h"

namespace qn_detail {

namespace {

constexpr long FAR_START = 512;             ///< steps for which a nearer start is worth looking up
constexpr double SHORTEST_EDGE = 8.0;       ///< in tolerances
constexpr double CLEAR = 16.0;              ///< of triangles, in tolerances
constexpr double CLEAR_OF_LINES = 8.0;      ///< of hull edges' lines, in tolerances times the stretch
constexpr double CLEAR_OF_SLACK = 4.0;      ///< in slacks times the extent
constexpr double ROUNDING = 1e-13;          ///< of a cross product, beside the square of the size
constexpr double ROUNDING_OF_TURN = 1e-15;  ///< of the sine of an angle

double Cross(const QnGePoint& p, const QnGePoint& a, const QnGePoint& b) {
    return (a.x - p.x) * (b.y - p.y) - (a.y - p.y) * (b.x - p.x);
}

double SquareOf(const QnGePoint& a, const QnGePoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    return dx * dx + dy * dy;
}

/// No two points of a box lie farther apart, nor does |dx| + |dy| become longer.
double SizeOf(const QnGeExtent2d& box) {
    return box.GetLength() + box.GetHeight();
}

/// How a node lies to the edges of a triangle: areas, positive on the left.
struct Sides {
    double area[3];

    Sides(const QnGeTINNode& node, const QnGeTINTriangle& t)
        : area{Cross(node, *t.Node[0], *t.Node[1]), Cross(node, *t.Node[1], *t.Node[2]),
               Cross(node, *t.Node[2], *t.Node[0])} {}

    int GetLeast() const {
        const int least = area[1] < area[0] ? 1 : 0;
        return area[2] < area[least] ? 2 : least;
    }
    /// Whether the node is clearly to the left of both edges but `edge`.
    bool IsClearBut(int edge, double clear) const {
        return area[edge == 0 ? 1 : 0] >= clear && area[edge == 2 ? 1 : 2] >= clear;
    }
};

int EdgeTo(const QnGeTINTriangle& t, const QnGeTINTriangle* neighbour) {
    if (t.NearTrg[0] == neighbour) {
        return 0;
    }
    return t.NearTrg[1] == neighbour ? 1 : 2;
}

/// Whether a node is in the triangle's box or not far off, by `margin`. Then areas are exact but for what margins
/// allow.
bool IsBy(const QnGeTINNode& node, const QnGeTINTriangle& t, double margin) {
    return node.x > t.x.min - margin && node.x < t.x.max + margin && node.y > t.y.min - margin &&
           node.y < t.y.max + margin;
}

/// A node to the right of hull edge `edge`, on its line or hardly to its left: to the right or on the line it is in no
/// triangle, whichever is asked first. Triangles alone must be clear of it, not the lines of hull edges: who lies on
/// one of these is in no triangle either. From far away the side of an edge is known to the rounding of the area only.
bool IsOutside(const QnGeTINNode& node, const QnGeTINTriangle& t, int edge, const Sides& sides, double margin) {
    const QnGePoint& from = *t.Node[edge];
    const QnGePoint& to = *t.Node[edge == 2 ? 0 : edge + 1];
    if (PathTypeOf(node, from, to) == PATH_LEFT) {
        return false;
    }
    const double distance = std::sqrt(SquareOf(node, from)) + std::sqrt(SquareOf(node, to));
    const double clear = margin * std::sqrt(SquareOf(from, to)) + ROUNDING * distance * distance;
    return sides.area[edge] < -clear || (IsBy(node, t, margin) && sides.IsClearBut(edge, margin * SizeOf(t)));
}

/// Asks the two triangles beside an edge, `t` and the one beyond it, in the order of the tree.
bool DecideBeside(const QnGeTINNode& node, QnGeTINTriangle* t, QnGeTINTriangle* beyond, TriangleHit& hit) {
    using Asked = TriangleTree::Asked;
    QnGeTINTriangle* first = t;
    QnGeTINTriangle* second = beyond;
    Asked isFirst = TriangleTree::IsAsked(*first, node);
    Asked isSecond = TriangleTree::IsAsked(*second, node);
    if (isFirst == Asked::UNSURE || isSecond == Asked::UNSURE) {
        return false;
    }
    if (TriangleTree::IsBefore(*second, *first)) {
        std::swap(first, second);
        std::swap(isFirst, isSecond);
    }
    return (isFirst == Asked::YES && hit.Decide(node, first)) || (isSecond == Asked::YES && hit.Decide(node, second));
}

}  // namespace

// ---- what is known of the network ------------------------------------------------------------------

void TriangleFinder::LearnTriangle(const QnGeTINTriangle& t) {
    const double size = SizeOf(t);
    const double shortest = SHORTEST_EDGE * g_distZero;
    const double shortestSquare = shortest * shortest;
    const bool isSound = Cross(*t.Node[0], *t.Node[1], *t.Node[2]) > ROUNDING * size * size &&
                         SquareOf(*t.Node[0], *t.Node[1]) > shortestSquare &&
                         SquareOf(*t.Node[1], *t.Node[2]) > shortestSquare &&
                         SquareOf(*t.Node[2], *t.Node[0]) > shortestSquare;
    m_isSound = m_isSound && isSound && (g_distZero == m_tolerance || !m_hasLearned);
    m_tolerance = g_distZero;
    m_hasLearned = true;
    LearnHullEdges(t);
}

void TriangleFinder::LearnHullEdges(const QnGeTINTriangle& t) {
    const double size = SizeOf(t);
    for (int i = 0; i < 3; ++i) {
        if (t.NearTrg[i] == nullptr) {
            const double stretch = size * size / SquareOf(*t.Node[i], *t.Node[i == 2 ? 0 : i + 1]);
            m_stretch = stretch > m_stretch ? stretch : m_stretch;
        }
    }
}

/// The way a, b, c along the hull. A ring may run on straight, even to the right by what is nothing to the tolerance,
/// but not turn back by that: it would lie on itself, all its turns to the left.
void TriangleFinder::LearnTurn(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    const double cross = (b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x);
    const double dot = (b.x - a.x) * (c.x - b.x) + (b.y - a.y) * (c.y - b.y);
    if (dot > 0.0) {
        m_slack += cross > ROUNDING_OF_TURN * dot ? 0.0 : ROUNDING_OF_TURN - cross / dot;
        return;
    }
    const double longest = std::sqrt(std::fmax(SquareOf(a, b), SquareOf(b, c)));
    m_isSound = m_isSound && cross > CLEAR * g_distZero * longest;
}

void TriangleFinder::LearnHull(const HullRing& ring, HullEntry entry) {
    const QnGePoint* nodes[5] = {(*PreInRing(ring, entry))->Node};
    for (int i = 1; i < 5; ++i) {
        nodes[i] = (*entry)->Node;
        entry = NextInRing(ring, entry);
    }
    for (int i = 0; i < 3; ++i) {
        LearnTurn(*nodes[i], *nodes[i + 1], *nodes[i + 2]);
    }
}

/// The stretch only grows while triangles come, also with those that are gone again; so it is taken anew now and then.
void TriangleFinder::LearnSize(const HullRing& ring, const QnGeExtent2d& range, long nodeNum) {
    if (nodeNum < m_sizeToRefresh) {
        return;
    }
    m_sizeToRefresh = 2 * nodeNum;
    std::swap(m_starts, m_olderStarts);
    m_starts.Reset(range, nodeNum);
    m_stretch = 1.0;
    for (HullEntry entry = ring.GetFirst(); entry != nullptr; entry = ring.GetNext(entry)) {
        LearnHullEdges(*(*entry)->Triangle);
    }
}

/// How far a node must be from the edges of a triangle, beside its size, to be clear of all other triangles.
double TriangleFinder::GetMargin(const QnGeExtent2d& range) const {
    return g_distZero * CLEAR + (CLEAR_OF_SLACK * m_slack + ROUNDING) * SizeOf(range);
}

// ---- looking ---------------------------------------------------------------------------------------

/// A triangle found near by where the one that the tree offers is one of many.
QnGeTINTriangle* TriangleFinder::ChooseStart(const QnGeTINNode& node, const WalkStart& start) const {
    if (start.mostSteps <= FAR_START) {
        return start.triangle;
    }
    for (const StartTable* table : {&m_starts, &m_olderStarts}) {
        if (QnGeTINTriangle* const kept = table->Get(node)) {
            return kept;
        }
    }
    return start.triangle;
}

bool TriangleFinder::Find(const QnGeTINNode& node, const WalkStart& start, const QnGeExtent2d& range,
                          TriangleHit& hit) {
    if (!m_isSound || !(g_distZero > 0.0) || g_distZero != m_tolerance || start.triangle == nullptr) {
        return false;
    }
    const double margin = GetMargin(range);
    const double wideMargin = margin + g_distZero * CLEAR_OF_LINES * std::sqrt(m_stretch);
    QnGeTINTriangle* t = ChooseStart(node, start);
    for (long step = 0; step < start.mostSteps; ++step) {
        const Sides sides(node, *t);
        const int least = sides.GetLeast();
        QnGeTINTriangle* const beyond = t->NearTrg[least];
        if (beyond != nullptr && sides.area[least] < 0.0) {  // and from there exactly as much above 0: no way back
            t = beyond;
            continue;
        }
        if (start.mostSteps > FAR_START) {
            m_starts.Keep(node, t);
        }
        const double clear = wideMargin * SizeOf(*t);
        const bool isBy = IsBy(node, *t, margin);
        if (isBy && sides.area[least] >= clear) {
            hit.triangle = t;
            return TriangleTree::IsIn(*t);
        }
        if (beyond == nullptr) {
            return IsOutside(node, *t, least, sides, margin);
        }
        return isBy && sides.IsClearBut(least, clear) &&
               Sides(node, *beyond).IsClearBut(EdgeTo(*beyond, t), wideMargin * SizeOf(*beyond)) &&
               DecideBeside(node, t, beyond, hit);
    }
    return false;
}

}  // namespace qn_detail
