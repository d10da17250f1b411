// SPDX-License-Identifier: Apache-2.0
//
// QnGeTINGraph_MakeTIN.cpp: the network of all nodes of a list.
//
// The nodes are inserted in the breadth-first order of a point tree over them: coarse cells first, which keeps the early
// triangles large and spread. A node that comes as the third while all are on one line goes to the end of the queue.
//
// Ownership  The nodes leave NodeList and come back to it one by one as Insert takes them.
// Fails      The queue never empties for three or more nodes that all lie on one slanted line: each in turn is sent back.
#include "terrain/QnGeTINGraph.h"

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
    for (QnGeTINNode* const* entry = nodes.GetFirst(); entry != nullptr; entry = nodes.GetNext(entry)) {
        NodeTree.Insert(*entry);
    }
    nodes.Reset();
    QnList<QnGePoint*> order;
    NodeTree.GetAllPoint(order, 1);
    NodeTree.Reset();
    while (!order.IsEmpty()) {
        QnGeTINNode* const node = static_cast<QnGeTINNode*>(*order.GetFirst());
        order.DelHead();
        if (!Insert(node)) {
            order.Append(node);
        }
    }
}
