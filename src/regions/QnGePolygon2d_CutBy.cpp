// SPDX-License-Identifier: Apache-2.0
//
// QnGePolygon2d_CutBy.cpp: splitting a polygon along an infinite line by cutting its ring of points and re-linking it.
//
//             left                  The ring is cut wherever it meets the line, which leaves chains of points that
//        +----x==>x----+            run from the line to the line, each on one side of it. Every chain has a start
//     ---|---)|(-)|(---|----> line  and a tail there. Sorted along the line, the k-th tail on a side and the k-th
//        +----x<==x----+            start on it are neighbours: joining them closes the rings of that side.
//             right
//
// Phases     1  MakeRing     one node per vertex.
//            2  CutRing      cuts at every meeting with the line and notes the start of each chain by its side.
//            3  JoinChains   per side: sorts starts and tails along the line, joins them.
//            4  CollectRings per side: each ring once, as a polygon.
// Invariant  After phase 2 every node belongs to the chain of exactly one start; after phase 3 to exactly one ring.
// Why so     A meeting at the end of an edge is left to the next edge, which has it at its start. An edge that runs
//            along the line belongs to neither side; its run of points is a chain of its own, which is dropped.
// Order      Right pieces before left ones, on each side by the place of their first start along the line.
// Ownership  Deleting a node deletes its chain or ring. So starts own chains, and of each ring one entry is deleted.
// Cost       One intersection for each edge and a sort of the meetings.
// Kept odd   A meeting within g_distZero of the end of an edge that the next edge does not reach is lost, and with it
//            the cut.
#include <algorithm>
#include <memory>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "regions/QnGePolygon2d.h"
#include "regions/QnGePtFreeList.h"
#include "values/QnGePoint2d.h"

namespace {

using Node = QnGePtFreeList2;
using NodeArray = QnDynArray<Node*>;

constexpr long MIN_RING_NODES = 3;

bool IsSamePlace(const QnGePoint& a, const QnGePoint& b) {
    return IsZero(GetDistance2d(a, b), g_distZero);
}

bool IsEarlierOnLine(const Node* a, const Node* b) {
    return a->m_linePa < b->m_linePa;
}

void SortAlongLine(NodeArray& nodes) {
    if (nodes.GetLength() > 1) {
        Node** first = &nodes[0];
        std::stable_sort(first, first + nodes.GetLength(), IsEarlierOnLine);
    }
}

void DeleteChains(NodeArray& starts) {
    for (long i = 0; i < starts.GetLength(); ++i) {
        delete starts.GetAt(i);
    }
    starts.SetLength(0, false);
}

/// The polygon of a ring, null if the ring encloses nothing.
QnGePolygon2d* MakePolygon(const Node& ring) {
    const long count = ring.CountNodes();
    if (count < MIN_RING_NODES) {
        return nullptr;
    }
    auto polygon = std::make_unique<QnGePolygon2d>(count);
    const Node* node = &ring;
    for (long i = 0; i < count; ++i, node = node->GetNext()) {
        polygon->Outline().SetVertex(i, node->data);
    }
    return polygon.release();
}

/// One cut of one outline by one line; the names are those of the phases above.
class RingCut {
public:
    RingCut(const QnGeMLine2d& outline, const QnGeLine2d& line) : m_outline(outline), m_line(line) {
        MakeRing();
        CutRing();
    }

    ~RingCut() {
        delete m_wholeRing;
        DeleteChains(m_left);
        DeleteChains(m_right);
        DeleteChains(m_on);
    }

    RingCut(const RingCut&) = delete;
    RingCut& operator=(const RingCut&) = delete;

    bool IsCut() const { return !m_left.IsEmpty() || !m_right.IsEmpty(); }

    void AppendPieces(QnGeObjList& left, QnGeObjList& right) {
        JoinChains(m_left);
        JoinChains(m_right);
        CollectRings(m_right, right);
        CollectRings(m_left, left);
    }

private:
    void MakeRing();
    void CutRing();
    Node* CutAtPoint(Node* cursor, long i, const QnGePoint& point);
    Node* CutAtOverlap(Node* cursor, long i);
    Node* CutBefore(Node* cursor, const QnGePoint& point, NodeArray& starts);
    Node* CutBehind(Node* cursor, const QnGePoint& point, NodeArray& starts);
    NodeArray& SideOfEdge(long i);
    double LinePa(const QnGePoint& point) const;
    const QnGePoint& EdgeStart(long i) const { return m_outline.GetVertex(i); }
    const QnGePoint& EdgeEnd(long i) const { return m_outline.GetVertex((i + 1) % m_outline.GetVertexNum()); }

    static void JoinChains(NodeArray& starts);
    static void CollectRings(NodeArray& rings, QnGeObjList& out);

    const QnGeMLine2d& m_outline;
    const QnGeLine2d& m_line;
    Node* m_wholeRing = nullptr;  // owned until the first cut, from when on the starts own all nodes
    Node* m_first = nullptr;      // the node of vertex 0
    NodeArray m_left;             // starts of chains, owned
    NodeArray m_right;
    NodeArray m_on;
};

void RingCut::MakeRing() {
    const long count = m_outline.GetVertexNum();
    Node* last = nullptr;
    for (long i = 0; i < count; ++i) {
        Node* node = new Node(m_outline.GetVertex(i));
        if (last == nullptr) {
            m_first = node;
            m_wholeRing = node;
        } else {
            last->SetNext(node);
        }
        last = node;
    }
    if (last != nullptr) {
        last->SetNext(m_first);
    }
}

void RingCut::CutRing() {
    Node* cursor = m_first;
    QnGeObjList hits;
    for (long i = 0; i < m_outline.GetSegNum(); ++i) {
        const QnGeLineSeg2d edge(EdgeStart(i), EdgeEnd(i));
        hits.Reset();
        edge.IntersectWith(m_line, hits);
        if (!hits.IsEmpty()) {
            const QnGeObject& hit = *hits.GetAt(0);
            if (hit.GetClassID() == CLASS_ID_POINT2D) {
                cursor = CutAtPoint(cursor, i, static_cast<const QnGePoint2d&>(hit));
            } else {
                cursor = CutAtOverlap(cursor, i);
            }
        }
        cursor = cursor->GetNext();
    }
}

/// `cursor` is the node at the start of edge `i`; the answer is the node from which the edge goes on.
Node* RingCut::CutAtPoint(Node* cursor, long i, const QnGePoint& point) {
    if (IsSamePlace(point, EdgeStart(i))) {
        return CutBefore(cursor, point, SideOfEdge(i));
    }
    if (IsSamePlace(point, EdgeEnd(i))) {
        return cursor;
    }
    return CutBehind(cursor, point, SideOfEdge(i));
}

Node* RingCut::CutAtOverlap(Node* cursor, long i) {
    const long count = m_outline.GetVertexNum();
    const QnGePoint& before = m_outline.GetVertex((i + count - 1) % count);
    if (m_line.HitTest(before).HasBit(HIT_ON)) {
        return cursor;  // inside a run along the line
    }
    return CutBefore(cursor, EdgeStart(i), m_on);
}

/// The old chain ends at the cursor's node; a new one starts in the same place.
Node* RingCut::CutBefore(Node* cursor, const QnGePoint& point, NodeArray& starts) {
    Node* start = new Node(point);
    start->SetNext(cursor->Detach());
    start->m_linePa = LinePa(point);
    cursor->m_linePa = start->m_linePa;
    starts.Append(start);
    m_wholeRing = nullptr;
    return start;
}

/// The old chain ends at a node of its own behind the cursor's node.
Node* RingCut::CutBehind(Node* cursor, const QnGePoint& point, NodeArray& starts) {
    Node* start = CutBefore(cursor, point, starts);
    Node* tail = new Node(point);
    tail->m_linePa = start->m_linePa;
    cursor->SetNext(tail);
    return start;
}

NodeArray& RingCut::SideOfEdge(long i) {
    const QnGeVector2d edge(EdgeStart(i), EdgeEnd(i));
    return m_line.IsVectorAtLeft(edge, false) ? m_left : m_right;
}

double RingCut::LinePa(const QnGePoint& point) const {
    double pa = 0.0;
    m_line.GetPaFromPt(point, pa);
    return pa;
}

void RingCut::JoinChains(NodeArray& starts) {
    NodeArray tails;
    for (long i = 0; i < starts.GetLength(); ++i) {
        tails.Append(static_cast<Node*>(starts.GetAt(i)->FindLast()));
    }
    SortAlongLine(starts);
    SortAlongLine(tails);
    for (long i = 0; i < starts.GetLength(); ++i) {
        Node* start = starts.GetAt(i);
        Node* tail = tails.GetAt(i);
        if (IsZero(start->m_linePa - tail->m_linePa, g_fZero)) {
            tail->SetNext(start->Detach());  // one node for both
            delete start;
            starts[i] = tail;
        } else {
            tail->SetNext(start);
        }
    }
}

/// Several entries may stand for one ring: the first one makes the polygon.
void RingCut::CollectRings(NodeArray& rings, QnGeObjList& out) {
    NodeArray taken;
    for (long i = 0; i < rings.GetLength(); ++i) {
        Node* ring = rings.GetAt(i);
        if (ring->HasBit(Node::PT_RING_TAKEN)) {
            continue;
        }
        out.Append(MakePolygon(*ring));
        Node* node = ring;
        do {
            node->SetBit(Node::PT_RING_TAKEN);
            node = node->GetNext();
        } while (node != ring);
        taken.Append(ring);
    }
    rings.SetLength(0, false);
    DeleteChains(taken);
}

}  // namespace

void QnGePolygon2d::CutBy(const QnGeCurve2d& curve, QnGeObjList& left, QnGeObjList& right) const {
    if (curve.GetCI() != &QnGeLine2d::s_classInfo) {
        QnGeRegion2d::CutBy(curve, left, right);
        return;
    }
    if (m_outline.GetVertexNum() == 0) {
        return;
    }
    const auto& line = static_cast<const QnGeLine2d&>(curve);
    RingCut cut(m_outline, line);
    if (cut.IsCut()) {
        cut.AppendPieces(left, right);
        return;
    }
    QnGeObjList& side = line.HitTest(m_outline.GetVertex(0)).HasBit(HIT_IN) ? left : right;
    const QnGeMLine2d ring(m_outline.GetVertexArray(), true);
    side.Append(ring.GetVertexNum() < MIN_RING_NODES ? nullptr : new QnGePolygon2d(ring, false));
}
