// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "support/TreeChecker.h"
#include "support/reference/PlainTin.h"
#include "terrain/QnGeTINGraph.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINOutEdge.h"
#include "terrain/QnGeTINTriangle.h"
#include "values/QnGeAnalytic.h"

/// A network whose protected members a test may use.
class OpenTin : public QnGeTINGraph {
public:
    using QnGeTINGraph::Dropped;
    using QnGeTINGraph::FindAndRotateEdge;
    using QnGeTINGraph::HitTest;
    using QnGeTINGraph::InsertInside;
    using QnGeTINGraph::InsertOutside;
    using QnGeTINGraph::LOP;
    using QnGeTINGraph::LOPStack;
    using QnGeTINGraph::NewTriangle;
    using QnGeTINGraph::NodeTree;
    using QnGeTINGraph::Range;
    using QnGeTINGraph::TreeChanged;
    using QnGeTINGraph::TrgQuene;
    using QnGeTINGraph::TrgTree;
};

/// What a structure check of a network leaves out, for input of which the answer is known to be coarse.
struct TinRules {
    bool links = true;  ///< false leaves out everything
    bool emptyCircles = true;
    bool orientation = true;
    bool treeCells = true;  ///< false for a tree without a range, which keeps all in lists
};

namespace tin_checks {

using tree_checks::At;
using tree_checks::Elements;

/// The difference without rounding of note.
inline long double Gap(double from, double to) {
    return static_cast<long double>(to) - static_cast<long double>(from);
}

/// Twice the signed area of a, b, c.
inline long double Cross(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    const long double x2 = Gap(a.x, b.x);
    const long double y2 = Gap(a.y, b.y);
    const long double x3 = Gap(a.x, c.x);
    const long double y3 = Gap(a.y, c.y);
    return x2 * y3 - x3 * y2;
}

template <class T>
std::unordered_map<const T*, long> NumbersOf(const QnPDList<T>& list) {
    std::unordered_map<const T*, long> numbers;
    for (T* element : Elements<T*>(list)) {
        numbers.emplace(element, static_cast<long>(numbers.size()));
    }
    return numbers;
}

/// How deep `p` lies within the circle through a, b, c, beyond what the arithmetic of doubles can tell.
inline long double DepthInCircle(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c, const QnGePoint& p) {
    const long double x2 = Gap(a.x, b.x);
    const long double y2 = Gap(a.y, b.y);
    const long double x3 = Gap(a.x, c.x);
    const long double y3 = Gap(a.y, c.y);
    const long double d = 2.0L * (x2 * y3 - x3 * y2);
    const long double s2 = x2 * x2 + y2 * y2;
    const long double s3 = x3 * x3 + y3 * y3;
    const long double cx = (y3 * s2 - y2 * s3) / d;
    const long double cy = (x2 * s3 - x3 * s2) / d;
    const long double radius = std::sqrt(cx * cx + cy * cy);
    const long double px = Gap(a.x, p.x);
    const long double py = Gap(a.y, p.y);
    const long double distance = std::sqrt((px - cx) * (px - cx) + (py - cy) * (py - cy));
    const long double far =
        std::max(std::fabs(static_cast<long double>(a.x)), std::fabs(static_cast<long double>(a.y)));
    const long double noise = 1e-15L * (far + radius * (8.0L + std::max(s2, s3) / std::fabs(d)));
    return radius - distance - noise;
}

inline std::string CheckTriangle(const OpenTin& graph, const QnGeTINTriangle& t, const std::string& where,
                                 const std::unordered_map<const QnGeTINTriangle*, long>& numbers,
                                 const TinRules& rules) {
    if (t.Node[0] == nullptr || t.Node[1] == nullptr || t.Node[2] == nullptr) {
        return At(where, "a node is missing");
    }
    if (rules.orientation && Cross(*t.Node[0], *t.Node[1], *t.Node[2]) <= 0.0L) {
        return At(where, "runs clockwise or is flat: ", t.Node[0]->x, ',', t.Node[0]->y, ' ', t.Node[1]->x, ',',
                  t.Node[1]->y, ' ', t.Node[2]->x, ',', t.Node[2]->y);
    }
    for (int i = 0; i < 3; ++i) {
        const QnGeTINNode* const a = t.Node[i];
        const QnGeTINNode* const b = t.Node[(i + 1) % 3];
        const QnGeTINTriangle* const u = t.NearTrg[i];
        if ((u == nullptr) != (t.OutEdge[i] != nullptr)) {
            return At(where, "edge ", i, " has neither neighbour nor hull record, or both");
        }
        if (u == nullptr) {
            if (t.OutEdge[i]->Node != a || t.OutEdge[i]->Triangle != &t) {
                return At(where, "the hull record of edge ", i, " is another edge's");
            }
            continue;
        }
        if (numbers.count(u) == 0) {
            return At(where, "neighbour ", i, " is not in the list");
        }
        int back = -1;
        for (int j = 0; j < 3; ++j) {
            if (u->NearTrg[j] == &t && u->Node[j] == b && u->Node[(j + 1) % 3] == a) {
                back = j;
            }
        }
        if (back < 0) {
            return At(where, "neighbour ", numbers.at(u), " does not point back over edge ", i);
        }
        // Of the two nodes across an edge one is asked when it comes in, against the circle of the other triangle. For
        // slivers the other way round need not give the same answer by the tolerance.
        const QnGeTINNode& beyond = *u->Node[(back + 2) % 3];
        const QnGeTINNode& opposite = *t.Node[(i + 2) % 3];
        const auto limit = static_cast<long double>(g_distZero);
        if (rules.emptyCircles && DepthInCircle(*t.Node[0], *t.Node[1], *t.Node[2], beyond) > limit &&
            DepthInCircle(*u->Node[0], *u->Node[1], *u->Node[2], opposite) > limit) {
            return At(where, "the node beyond edge ", i, " lies within the circle: ", beyond.x, ',', beyond.y);
        }
    }
    if (!t.HasBit(TRG_IN_TREE)) {
        return At(where, "is not marked as in the tree");
    }
    const auto range = [&t](double QnGePoint::*axis) {
        return QnGeExtent(std::min({t.Node[0]->*axis, t.Node[1]->*axis, t.Node[2]->*axis}),
                          std::max({t.Node[0]->*axis, t.Node[1]->*axis, t.Node[2]->*axis}));
    };
    const QnGeExtent x = range(&QnGePoint::x);
    const QnGeExtent y = range(&QnGePoint::y);
    if (t.x.min != x.min || t.x.max != x.max || t.y.min != y.min || t.y.max != y.max) {
        return At(where, "has another box than its nodes");
    }
    static_cast<void>(graph);
    return "";
}

inline std::string CheckHull(const OpenTin& graph, const std::unordered_map<const QnGeTINTriangle*, long>& numbers,
                             const TinRules& rules) {
    const std::vector<QnGeTINOutEdge*> ring = Elements<QnGeTINOutEdge*>(graph.OutEdgeList);
    long double area = 0.0L;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const std::string where = "hull record " + std::to_string(i);
        const QnGeTINOutEdge& edge = *ring[i];
        const QnGeTINOutEdge& next = *ring[(i + 1) % ring.size()];
        if (numbers.count(edge.Triangle) == 0) {
            return At(where, "its triangle is not in the list");
        }
        int slot = -1;
        for (int j = 0; j < 3; ++j) {
            if (edge.Triangle->OutEdge[j] == &edge) {
                slot = j;
            }
        }
        if (slot < 0 || edge.Triangle->Node[slot] != edge.Node) {
            return At(where, "its triangle does not have it");
        }
        if (edge.Triangle->Node[(slot + 1) % 3] != next.Node) {
            return At(where, "the next record starts elsewhere than it ends");
        }
        const QnGeTINOutEdge& afterNext = *ring[(i + 2) % ring.size()];
        if (rules.orientation && GetPathType(*edge.Node, *next.Node, *afterNext.Node) == PATH_RIGHT) {
            return At(where, "the hull turns to the right behind it");
        }
        area += Cross(*ring[0]->Node, *edge.Node, *next.Node);
    }
    return area > 0.0L ? "" : At("hull", "does not run counter-clockwise");
}

}  // namespace tin_checks

/// Whether a network is whole: links, hull ring, tree, orientation, empty circles, Euler's formula. "" or what is
/// wrong.
///
/// Cost  Linear but for the tree.
inline std::string CheckTin(const OpenTin& graph, const TinRules& rules = TinRules()) {
    using namespace tin_checks;
    if (graph.LOPStack.GetDepth() != 0) {
        return At("stack", graph.LOPStack.GetDepth(), " triangles wait");
    }
    if (!rules.links) {
        return "";
    }
    const std::vector<QnGeTINTriangle*> triangles = Elements<QnGeTINTriangle*>(graph.TrgList);
    const std::vector<QnGeExtent2d*> stored = tree_checks::Asked<QnGeExtent2d*>(
        [&](QnDynArrayBase<QnGeExtent2d*>& result) { graph.TrgTree.GetAllExtent(result); });
    if (stored.size() != triangles.size()) {
        return At("tree", stored.size(), " boxes for ", triangles.size(), " triangles");
    }
    if (triangles.empty()) {
        return graph.OutEdgeList.IsEmpty() ? "" : At("hull", "records without triangles");
    }
    const auto numbers = NumbersOf(graph.TrgList);
    const auto nodes = NumbersOf(graph.NodeList);
    std::string wrong;
    std::map<const QnGeTINNode*, long> used;
    long hullEdges = 0;
    for (std::size_t i = 0; i < triangles.size() && wrong.empty(); ++i) {
        const QnGeTINTriangle& t = *triangles[i];
        const std::string where = "triangle " + std::to_string(i);
        wrong = CheckTriangle(graph, t, where, numbers, rules);
        for (int j = 0; j < 3 && wrong.empty(); ++j) {
            ++used[t.Node[j]];
            hullEdges += t.NearTrg[j] == nullptr ? 1 : 0;
            if (nodes.count(t.Node[j]) == 0) {
                wrong = At(where, "node ", j, " is not in the list");
            }
        }
    }
    if (!wrong.empty()) {
        return wrong;
    }
    if (graph.OutEdgeList.GetLength() != hullEdges) {
        return At("hull", graph.OutEdgeList.GetLength(), " records for ", hullEdges, " edges without neighbour");
    }
    wrong = CheckHull(graph, numbers, rules);
    if (!wrong.empty()) {
        return wrong;
    }
    if (used.size() != nodes.size()) {
        return At("nodes", nodes.size(), " in the list, ", used.size(), " in triangles");
    }
    const long expected = 2 * static_cast<long>(nodes.size()) - 2 - hullEdges;
    if (static_cast<long>(triangles.size()) != expected) {
        return At("triangles", triangles.size(), " instead of ", expected);
    }
    for (QnGeExtent2d* box : stored) {
        if (numbers.count(static_cast<QnGeTINTriangle*>(box)) == 0) {
            return At("tree", "holds a box that is no triangle of the list");
        }
    }
    return rules.treeCells ? tree_checks::CheckQuadTree(graph.TrgTree) : "";
}

// ---- the same as the plain form --------------------------------------------------------------------

/// "", or the first difference of a network from the plain one made of the same nodes: nodes, triangles with their
/// first node, neighbours and hull records, ring, the tree with all its lists, range, and what was dropped.
inline std::string CompareTin(const OpenTin& graph, const PlainTin& plain) {
    using namespace tin_checks;
    const std::vector<QnGeTINNode*> nodes = Elements<QnGeTINNode*>(graph.NodeList);
    const std::vector<QnGeTINTriangle*> triangles = Elements<QnGeTINTriangle*>(graph.TrgList);
    const std::vector<QnGeTINOutEdge*> ring = Elements<QnGeTINOutEdge*>(graph.OutEdgeList);
    if (nodes.size() != plain.NodeList.size() || triangles.size() != plain.TrgList.size() ||
        ring.size() != plain.OutEdgeList.size() ||
        graph.Dropped.GetLength() != static_cast<long>(plain.Dropped.size())) {
        return At("sizes", nodes.size(), ' ', triangles.size(), ' ', ring.size(), ' ', graph.Dropped.GetLength(),
                  " instead of ", plain.NodeList.size(), ' ', plain.TrgList.size(), ' ', plain.OutEdgeList.size(), ' ',
                  plain.Dropped.size());
    }
    std::unordered_map<const void*, const void*> same;  // the plain one of each object
    same.emplace(nullptr, nullptr);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const PlainNode& p = *plain.NodeList[i];
        if (nodes[i]->x != p.x || nodes[i]->y != p.y || nodes[i]->z != p.z || nodes[i]->count != p.count) {
            return At("node " + std::to_string(i), nodes[i]->x, ',', nodes[i]->y, " z ", nodes[i]->z, " instead of ",
                      p.x, ',', p.y, " z ", p.z);
        }
        same.emplace(nodes[i], &p);
    }
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        same.emplace(triangles[i], plain.TrgList[i].get());
    }
    // A triangle of a network that has come apart may show a record that is off the ring: it counts as none.
    std::set<const void*> records;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        same.emplace(ring[i], plain.OutEdgeList[i].get());
        records.insert(plain.OutEdgeList[i].get());
    }
    for (std::size_t i = 0; i < triangles.size(); ++i) {
        const QnGeTINTriangle& t = *triangles[i];
        const PlainTrg& p = *plain.TrgList[i];
        for (int j = 0; j < 3; ++j) {
            const std::string where = "triangle " + std::to_string(i);
            if (same[t.Node[j]] != p.Node[j]) {
                return At(where, "another node at ", j, ": ", t.Node[j]->x, ',', t.Node[j]->y, " instead of ",
                          p.Node[j]->x, ',', p.Node[j]->y);
            }
            const auto record = same.find(t.OutEdge[j]);
            const void* const expected = records.count(p.OutEdge[j]) > 0 ? p.OutEdge[j] : nullptr;
            if (same[t.NearTrg[j]] != p.NearTrg[j] || (record != same.end() ? record->second : nullptr) != expected) {
                return At(where, "another neighbour or hull record at ", j);
            }
        }
    }
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (same[ring[i]->Node] != plain.OutEdgeList[i]->Node ||
            same[ring[i]->Triangle] != plain.OutEdgeList[i]->Triangle) {
            return At("hull record " + std::to_string(i), "another start or triangle");
        }
    }
    for (long i = 0; i < graph.Dropped.GetLength(); ++i) {
        const PlainNode& p = *plain.Dropped[static_cast<std::size_t>(i)];
        if (graph.Dropped.GetAt(i)->x != p.x || graph.Dropped.GetAt(i)->y != p.y) {
            return At("dropped node " + std::to_string(i), "another place");
        }
    }
    if (graph.Range.x.min != plain.Range.x.min || graph.Range.x.max != plain.Range.x.max ||
        graph.Range.y.min != plain.Range.y.min || graph.Range.y.max != plain.Range.y.max) {
        return At("range", "another one");
    }
    const auto sameTriangle = [&same](const QnGeExtent2d* a, const QnGeExtent2d* b) {
        const auto found = same.find(static_cast<const QnGeTINTriangle*>(a));
        return found != same.end() && found->second == static_cast<const PlainTrg*>(b);
    };
    return tree_checks::CompareQuadTree(graph.TrgTree, plain.TrgTree, sameTriangle, "tree");
}
