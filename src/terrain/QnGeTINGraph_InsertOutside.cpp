// SPDX-License-Identifier: Apache-2.0
//
// QnGeTINGraph_InsertOutside.cpp: a node joins the network from outside its hull.
//
// The hull is a counter-clockwise ring of records, one per edge. The edges that face a node outside are one run of it;
// each becomes the edge 1 of a new triangle with the node at index 0, and two new edges through the node replace the
// run.
//
// Order      The walk starts at the head of the ring, and the first edge that faces the node or takes it decides. Where
//            the ring begins is therefore part of the state, and so is where the two new records go: in place of the
//            run.
// Invariant  After each insertion the ring is closed: the next record's node is the end of the edge before it.
// Why so     A long hull has an index that passes over edges which cannot decide (detail/HullIndex.h); the walk stays
//            that over all edges in order.
// Ownership  As Insert: the node is the graph's on true.
#include <algorithm>
#include <cmath>

#include "terrain/QnGeTINGraph.h"
#include "terrain/detail/HullIndex.h"
#include "terrain/detail/HullRing.h"
#include "terrain/detail/TriangleFinder.h"
#include "values/QnGeBaseLine2d.h"
#include "values/detail/PathType.h"

namespace {

using qn_detail::NextInRing;
using Ring = qn_detail::HullRing;

/// Hulls of more edges are indexed.
constexpr long LONG_HULL = 128;

/// Puts the cursor of a ring on an element whose index is known, so that operations by indexes near it are short.
class RingCursor : public Ring {
public:
    static void PutOn(Ring& ring, QnGeTINOutEdge* const* entry, long index) {
        ring.*(&RingCursor::m_pCurrent) = NodeOf(entry);
        ring.*(&RingCursor::m_nCur) = index;
    }
};

/// How the edge from this record to the next turns towards the node; a right turn faces it.
int TurnTo(const Ring& ring, QnGeTINOutEdge* const* entry, const QnGeTINNode& node) {
    return qn_detail::PathTypeOf(*(*entry)->Node, *(*NextInRing(ring, entry))->Node, node);
}

/// Whether a node on the line of an edge is surely neither on the edge nor at its ends. On a straight row this is so of
/// almost all edges.
bool IsBeyondEnds(const Ring& ring, QnGeTINOutEdge* const* entry, const QnGeTINNode& node) {
    constexpr double NEAR = 5.0;  // in tolerances; on the line means within 2.9 of it
    constexpr double ROUNDING = 1e-14;
    const QnGeTINNode& a = *(*entry)->Node;
    const QnGeTINNode& b = *(*NextInRing(ring, entry))->Node;
    const double distance = std::fabs(node.x - a.x) + std::fabs(node.y - a.y);
    const double margin = NEAR * std::fabs(g_distZero) + ROUNDING * distance;
    return std::max(a.x, b.x) < node.x - margin || std::min(a.x, b.x) > node.x + margin ||
           std::max(a.y, b.y) < node.y - margin || std::min(a.y, b.y) > node.y + margin;
}

}  // namespace

/// The index of the hull if it is long. The list is open to callers: one who turns it round, or takes records off or
/// puts some in at its ends, puts the index out of step, and it is made anew.
qn_detail::HullIndex* QnGeTINGraph::GetHullIndex() {
    const long length = OutEdgeList.GetLength();
    if (length <= LONG_HULL) {
        m_hull.reset();
    } else if (m_hull == nullptr || !m_hull->FitsTo(OutEdgeList)) {
        m_hull = std::make_unique<qn_detail::HullIndex>(OutEdgeList);
    }
    return m_hull.get();
}

bool QnGeTINGraph::InsertOutside(QnGeTINNode* node) {
    qn_detail::HullIndex* const hull = GetHullIndex();
    QnGeTINOutEdge* const* entry = OutEdgeList.GetFirst();
    long i = 0;
    long count = OutEdgeList.GetLength();
    while (hull == nullptr || (count = hull->FindNext(*node, i, entry)) > 0) {
        for (; count > 0; --count) {
            const int turn = TurnTo(OutEdgeList, entry, *node);
            if (turn == PATH_RIGHT) {
                RingCursor::PutOn(OutEdgeList, entry, i);
                JoinHullEdges(node, i);
                return true;
            }
            if (turn == PATH_STRAIGHT && !IsBeyondEnds(OutEdgeList, entry, *node)) {
                RingCursor::PutOn(OutEdgeList, entry, i);
                if (JoinHullLine(node, i)) {
                    return true;
                }
            }
            entry = OutEdgeList.GetNext(entry);
            ++i;
        }
        if (hull == nullptr) {
            break;
        }
    }
    return false;
}

long QnGeTINGraph::FindAndRotateEdge(QnGeTINNode* node, long& index) {
    const long length = OutEdgeList.GetLength();
    if (index + 1 >= length) {
        return 1;
    }
    long count = 1;
    QnGeTINOutEdge* const* entry = OutEdgeList.GetNext(OutEdgeList.GetTo(index));
    while (entry != nullptr && TurnTo(OutEdgeList, entry, *node) == PATH_RIGHT) {
        ++count;
        entry = OutEdgeList.GetNext(entry);
    }
    if (index != 0) {
        return count;
    }
    qn_detail::HullIndex* const hull = GetHullIndex();
    // Backwards from the end, but never over the edges counted already.
    long first = length;
    entry = OutEdgeList.GetLast();
    while (count < length && TurnTo(OutEdgeList, entry, *node) == PATH_RIGHT) {
        ++count;
        --first;
        entry = OutEdgeList.GetPre(entry);
    }
    if (first < length) {
        OutEdgeList.Rotate(first, 0);
        if (hull != nullptr) {
            hull->Rotate(first);
        }
        index = 0;
    }
    return count;
}

/// Takes a record off the ring. In a network that has come apart other edges than its own may show it too, so there it
/// stays, off the ring, until the graph goes.
void QnGeTINGraph::DropHullRecord(long index) {
    QnGeTINOutEdge* const record = OutEdgeList.TakeOff(index);
    if (m_finder->IsSound()) {
        delete record;
    } else {
        m_goneRecords.Append(record);
    }
}

/// Joins the node to the run of facing edges round `index`, each of which gets a triangle.
void QnGeTINGraph::JoinHullEdges(QnGeTINNode* node, long index) {
    const long count = FindAndRotateEdge(node, index);
    QnGeTINTriangle* firstNew = nullptr;
    QnGeTINTriangle* lastNew = nullptr;
    for (long n = 0; n < count; ++n) {
        QnGeTINOutEdge* const* const entry = OutEdgeList.GetTo(index);
        QnGeTINNode* const a = (*entry)->Node;
        QnGeTINNode* const b = (*NextInRing(OutEdgeList, entry))->Node;
        QnGeTINTriangle* const inner = (*entry)->Triangle;
        QnGeTINTriangle* const outer = NewTriangle();
        outer->Node[0] = node;
        outer->Node[1] = b;
        outer->Node[2] = a;
        outer->NearTrg[1] = inner;
        const long k = inner->GetNodeIndex(a);
        inner->NearTrg[k] = outer;
        inner->OutEdge[k] = nullptr;
        if (lastNew != nullptr) {
            lastNew->NearTrg[0] = outer;
            outer->NearTrg[2] = lastNew;
        } else {
            firstNew = outer;
        }
        lastNew = outer;
        TrgList.Append(outer);
        PushLOP(outer);
        DropHullRecord(index);
    }
    NodeList.Append(node);
    QnGeTINOutEdge* const second = lastNew->CreateOutEdge(0);
    QnGeTINOutEdge* const first = firstNew->CreateOutEdge(2);
    ReplaceHullEdges(index, count, first, second);
}

/// Puts two records in the place of the `count` from `index` on that are out of the ring already.
void QnGeTINGraph::ReplaceHullEdges(long index, long count, QnGeTINOutEdge* first, QnGeTINOutEdge* second) {
    OutEdgeList.Insert(index, second);
    OutEdgeList.Insert(index, first);
    QnGeTINOutEdge* const* const entry = OutEdgeList.GetTo(index);
    m_finder->LearnHull(OutEdgeList, entry);
    if (m_hull != nullptr) {
        m_hull->Replace(index, count, entry, OutEdgeList.GetNext(entry));
    }
}

/// Takes a node on the line of hull edge `index`, if it lies on the edge or at one of its ends.
bool QnGeTINGraph::JoinHullLine(QnGeTINNode* node, long index) {
    QnGeTINOutEdge* const* const entry = OutEdgeList.GetTo(index);
    QnGeTINNode* const a = (*entry)->Node;
    QnGeTINNode* const b = (*NextInRing(OutEdgeList, entry))->Node;
    if (*node == *a) {
        Merge(*a, node);
        return true;
    }
    if (*node == *b) {
        Merge(*b, node);
        return true;
    }
    double pa = 0.0;
    QnGeBaseLine2d(*a, *b).GetPaFromPt(*node, pa);
    const QnGeTINTriangle& triangle = *(*entry)->Triangle;
    // In a network that has come apart the triangle need not lie on the edge, and the two be no nodes of it.
    const bool isOfTriangle = triangle.GetNodeIndex(a) != triangle.GetNodeIndex(b);
    if (!(pa > 0.0 && pa < 1.0) || !isOfTriangle) {
        return false;
    }
    SplitHullEdge(node, index, a, b);
    return true;
}

/// Splits hull edge `index` from a to b, and the triangle a b c on it, in two: p b c, which the old one becomes, and
/// the new p c a.
void QnGeTINGraph::SplitHullEdge(QnGeTINNode* node, long index, QnGeTINNode* from, QnGeTINNode* to) {
    QnGeTINTriangle* const triangle = (*OutEdgeList.GetTo(index))->Triangle;
    DropHullRecord(index);
    const long edgeAB = triangle->GetNodeIndex(from);
    const long edgeBC = triangle->GetNodeIndex(to);
    const long edgeCA = 3 - edgeAB - edgeBC;
    QnGeTINNode* const c = triangle->Node[edgeCA];
    QnGeTINTriangle* const nearBC = triangle->NearTrg[edgeBC];
    QnGeTINOutEdge* const outBC = triangle->OutEdge[edgeBC];
    QnGeTINTriangle* const nearCA = triangle->NearTrg[edgeCA];
    QnGeTINOutEdge* const outCA = triangle->OutEdge[edgeCA];
    QnGeTINTriangle* const added = NewTriangle();

    triangle->Node[0] = node;
    triangle->Node[1] = to;
    triangle->Node[2] = c;
    triangle->NearTrg[0] = nullptr;
    triangle->NearTrg[1] = nearBC;
    triangle->NearTrg[2] = added;
    triangle->OutEdge[1] = outBC;
    triangle->OutEdge[2] = nullptr;
    added->Node[0] = node;
    added->Node[1] = c;
    added->Node[2] = from;
    added->NearTrg[0] = triangle;
    added->NearTrg[1] = nearCA;
    if (nearCA != nullptr) {
        nearCA->ReplaceNearTrg(triangle, added);
    }
    added->OutEdge[1] = outCA;
    if (outCA != nullptr) {
        outCA->Triangle = added;
    }

    QnGeTINOutEdge* const second = triangle->CreateOutEdge(0);
    QnGeTINOutEdge* const first = added->CreateOutEdge(2);
    ReplaceHullEdges(index, 1, first, second);
    NodeList.Append(node);
    TrgList.Append(added);
    PushLOP(added);
    PushLOP(triangle);
}
