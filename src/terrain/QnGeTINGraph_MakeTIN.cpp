// SPDX-License-Identifier: Apache-2.0
//
// QnGeTINGraph_MakeTIN.cpp: the network of all nodes of a list.
//
// The nodes are inserted in the breadth-first order of a point tree over them: coarse cells first, which keeps the
// early triangles large and spread. The tree itself is never made (detail/InsertionOrder.h). A node that comes as the
// third while all are on one line goes to the end of the queue.
//
// Ownership  The nodes leave NodeList and come back to it one by one as Insert takes them.
// Fails      The queue never empties for three or more nodes that all lie on one slanted line: each in turn is sent
//            back.
#include "terrain/QnGeTINGraph.h"

#include "terrain/detail/InsertionOrder.h"
#include "terrain/detail/TriangleFinder.h"

namespace {

constexpr long AHEAD = 8;  ///< nodes lie in memory in the given order, so the next are fetched in time

}  // namespace

void QnGeTINGraph::MakeTIN() {
    if (NodeList.IsEmpty()) {
        return;
    }
    const QnGeTINNode& first = **NodeList.GetFirst();
    QnGeExtent2d extent(first.x, first.x, first.y, first.y);
    for (QnGeTINNode* const* entry = NodeList.GetFirst(); entry != nullptr; entry = NodeList.GetNext(entry)) {
        extent += QnGeExtent2d((*entry)->x, (*entry)->x, (*entry)->y, (*entry)->y);
    }
    if (!IsGreater(extent.GetLength(), g_distZero) || !IsGreater(extent.GetHeight(), g_distZero)) {
        return;
    }
    SetRange(extent.x.min, extent.x.max, extent.y.min, extent.y.max);

    QnList<QnGeTINNode*> nodes;
    nodes.Conbine(NodeList, 0);
    qn_detail::SortForInsertion(nodes, NodeTree);
    QnGeTINNode* const* ahead = nodes.GetTo(AHEAD);
    QnGeTINNode* const* soon = nodes.GetTo(2);
    while (!nodes.IsEmpty()) {
        if (ahead != nullptr) {
            __builtin_prefetch(*ahead);
            ahead = nodes.GetNext(ahead);
        }
        if (soon != nullptr) {
            m_finder->ReadAhead(**soon);
            soon = nodes.GetNext(soon);
        }
        QnGeTINNode* const node = *nodes.GetFirst();
        nodes.DelHead();
        if (!Insert(node)) {
            nodes.Append(node);
        }
    }
}
