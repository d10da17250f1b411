// SPDX-License-Identifier: Apache-2.0
//
// QnGeTINGraph_InsertOutside.cpp: a node joins the network from outside its hull.
//
// The hull is a counter-clockwise ring of records, one per edge. The edges that face a node outside are one run of it;
// each becomes the edge 1 of a new triangle with the node at index 0, and two new edges through the node replace the run.
//
// Order      The walk starts at the head of the ring, and the first edge that faces the node or takes it decides. Where
//            the ring begins is therefore part of the state, and so is where the two new records go: in place of the run.
// Invariant  After each insertion the ring is closed: the next record's node is the end of the edge before it.
// Ownership  As Insert: the node is the graph's on true.
#include "terrain/QnGeTINGraph.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

namespace {

using Ring = QnPDList<QnGeTINOutEdge>;

QnGeTINOutEdge* const* NextInRing(const Ring& ring, QnGeTINOutEdge* const* entry) {
    QnGeTINOutEdge* const* const next = ring.GetNext(entry);
    return next != nullptr ? next : ring.GetFirst();
}

/// How the edge from this record to the next turns towards the node; a right turn faces it.
int TurnTo(const Ring& ring, QnGeTINOutEdge* const* entry, const QnGeTINNode& node) {
    return GetPathType(*(*entry)->Node, *(*NextInRing(ring, entry))->Node, node);
}

}  // namespace

bool QnGeTINGraph::InsertOutside(QnGeTINNode* node) {
    long i = 0;
    for (QnGeTINOutEdge* const* entry = OutEdgeList.GetFirst(); entry != nullptr; entry = OutEdgeList.GetNext(entry)) {
        const int turn = TurnTo(OutEdgeList, entry, *node);
        if (turn == PATH_RIGHT) {
            JoinHullEdges(node, i);
            return true;
        }
        if (turn == PATH_STRAIGHT && JoinHullLine(node, i)) {
            return true;
        }
        ++i;
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
        index = 0;
    }
    return count;
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
        OutEdgeList.Del(index);
    }
    NodeList.Append(node);
    OutEdgeList.Insert(index, lastNew->CreateOutEdge(0));
    OutEdgeList.Insert(index, firstNew->CreateOutEdge(2));
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
    if (!(pa > 0.0 && pa < 1.0)) {
        return false;
    }
    SplitHullEdge(node, index, a, b);
    return true;
}

/// Splits hull edge `index` from a to b, and the triangle a b c on it, in two: p b c, which the old one becomes, and
/// the new p c a.
void QnGeTINGraph::SplitHullEdge(QnGeTINNode* node, long index, QnGeTINNode* from, QnGeTINNode* to) {
    QnGeTINTriangle* const triangle = (*OutEdgeList.GetTo(index))->Triangle;
    OutEdgeList.Del(index);
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

    OutEdgeList.Insert(index, triangle->CreateOutEdge(0));
    OutEdgeList.Insert(index, added->CreateOutEdge(2));
    NodeList.Append(node);
    TrgList.Append(added);
    PushLOP(added);
    PushLOP(triangle);
}
