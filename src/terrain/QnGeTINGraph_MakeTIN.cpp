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

// Nodes lie in memory in the given order, so the next are fetched in time, and then where their walks begin.
constexpr long NODES_AHEAD = 8;
constexpr long STARTS_AHEAD = 2;

/// Goes ahead of a queue; null behind its end.
class Scout {
public:
    Scout(const QnList<QnGeTINNode*>& nodes, long ahead) : m_nodes(nodes), m_entry(nodes.GetTo(ahead)) {}

    const QnGeTINNode* Next() {
        const QnGeTINNode* const node = m_entry != nullptr ? *m_entry : nullptr;
        m_entry = m_nodes.GetNext(m_entry);
        return node;
    }

private:
    const QnList<QnGeTINNode*>& m_nodes;
    QnGeTINNode* const* m_entry;
};

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
    Scout nodeScout(nodes, NODES_AHEAD);
    Scout startScout(nodes, STARTS_AHEAD);
    while (!nodes.IsEmpty()) {
        qn_detail::ReadAhead(nodeScout.Next());
        const QnGeTINNode* const soon = startScout.Next();
        if (soon != nullptr) {
            m_finder->ReadAhead(*soon);
        }
        QnGeTINNode* const node = *nodes.GetFirst();
        nodes.DelHead();
        if (!Insert(node)) {
            nodes.Append(node);
        }
    }
}
