// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINGraph.h"

#include "containers/QnDynArray.h"
#include "spatial/detail/TreeFinger.h"
#include "terrain/detail/HullIndex.h"
#include "values/QnGeBaseLine2d.h"
#include "values/detail/PathType.h"

namespace {

constexpr std::size_t CACHE_LINE = 64;

/// Asks for the memory of a triangle that is to be looked at soon, if there is one.
void FetchAhead(const QnGeTINTriangle* triangle) {
    if (triangle == nullptr) {
        return;
    }
    const char* const first = reinterpret_cast<const char*>(triangle);
    for (std::size_t at = 0; at < sizeof(QnGeTINTriangle); at += CACHE_LINE) {
        __builtin_prefetch(first + at);
    }
}

/// By how many tolerances the trees reach beyond the nodes, so that no box touches their border.
constexpr double MARGIN = 10.0;

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

QnGeTINGraph::QnGeTINGraph() : m_finger(new qn_detail::TreeFinger(TrgTree)) {}

QnGeTINGraph::~QnGeTINGraph() = default;

// The nodes of a tree can have one owner only, so the trees of a copy start empty, and so does the list of nodes that
// only the destructor can reach.
QnGeTINGraph::QnGeTINGraph(const QnGeTINGraph& other)
    : LOPStack(other.LOPStack),
      TrgQuene(other.TrgQuene),
      Range(other.Range),
      NodeList(other.NodeList),
      TrgList(other.TrgList),
      OutEdgeList(other.OutEdgeList),
      m_finger(new qn_detail::TreeFinger(TrgTree)) {
    SetTreeRanges(other.TrgTree);
}

QnGeTINGraph& QnGeTINGraph::operator=(const QnGeTINGraph& other) {
    if (&other == this) {
        return *this;
    }
    LOPStack = other.LOPStack;
    TrgQuene = other.TrgQuene;
    TrgTree.Reset();
    NodeTree.Reset();
    m_finger = std::make_unique<qn_detail::TreeFinger>(TrgTree);
    SetTreeRanges(other.TrgTree);
    Range = other.Range;
    NodeList = other.NodeList;
    TrgList = other.TrgList;
    OutEdgeList = other.OutEdgeList;
    m_hull.reset();
    return *this;
}

QnGeTINTriangle* QnGeTINGraph::NewTriangle() const {
    return new QnGeTINTriangle;
}

void QnGeTINGraph::SetRange(double xMin, double xMax, double yMin, double yMax) {
    const double margin = MARGIN * g_distZero;
    SetTreeRanges(QnGeExtent2d(xMin - margin, xMax + margin, yMin - margin, yMax + margin));
}

void QnGeTINGraph::SetTreeRanges(const QnGeExtent2d& range) {
    if (!TrgTree.IsEmptyTree()) {
        m_finger.reset();  // its nodes will not lie where the way from the root leads
    }
    TrgTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
    NodeTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
}

// ---- the stack -------------------------------------------------------------------------------------

void QnGeTINGraph::TreeChanged() {
    if (m_finger != nullptr) {
        m_finger->Forget();
    }
}

void QnGeTINGraph::PushLOP(QnGeTINTriangle* triangle) {
    FetchAhead(triangle->NearTrg[1]);
    triangle->Radius = -1.0;
    LOPStack.Push(triangle);
    if (triangle->HasBit(TRG_IN_TREE)) {
        if (m_finger != nullptr) {
            m_finger->Delete(triangle);
        } else {
            TrgTree.Delete(triangle, false);
        }
    }
}

void QnGeTINGraph::PopLOP() {
    QnGeTINTriangle* triangle = nullptr;
    if (!LOPStack.Pop(triangle)) {
        return;
    }
    triangle->UpdateExtend();
    if (m_finger != nullptr) {
        m_finger->Insert(triangle);
    } else {
        TrgTree.Insert(triangle);
    }
    triangle->SetBit(TRG_IN_TREE);
}

void QnGeTINGraph::LOP() {
    QnGeTINTriangle* triangle = nullptr;
    while (LOPStack.GetTopData(triangle)) {
        triangle->LOP(*this);
    }
}

// ---- locating --------------------------------------------------------------------------------------

namespace {

/// Where a node lies that is on the line of edge `i` of the triangle: at an end, on the edge, or 0 for beyond it.
int HitTestAtEdge(const QnGeTINNode& node, const QnGeTINTriangle& triangle, int i) {
    const int next = (i + 1) % 3;
    const QnGeTINNode& from = *triangle.Node[i];
    const QnGeTINNode& to = *triangle.Node[next];
    if (node == from) {
        return -(i + 1);
    }
    if (node == to) {
        return -(next + 1);
    }
    double pa = 0.0;
    QnGeBaseLine2d(from, to).GetPaFromPt(node, pa);
    return pa > 0.0 && pa < 1.0 ? i + 1 : 0;
}

/// What a search for a node has come to.
struct TriangleHit {
    QnGeTINTriangle* triangle = nullptr;
    int place = 0;

    bool Decide(const QnGeTINNode& node, QnGeTINTriangle* candidate);
};

/// Whether this candidate ends the search: it holds the node, or the node is on the line of its hull edge, which leaves
/// no triangle.
bool TriangleHit::Decide(const QnGeTINNode& node, QnGeTINTriangle* candidate) {
    for (int i = 0; i < 3; ++i) {
        const int turn = qn_detail::PathTypeOf(node, *candidate->Node[i], *candidate->Node[i == 2 ? 0 : i + 1]);
        if (turn == PATH_RIGHT) {
            return false;
        }
        if (turn == PATH_STRAIGHT) {
            if (candidate->NearTrg[i] == nullptr) {
                return true;
            }
            place = HitTestAtEdge(node, *candidate, i);
            triangle = place != 0 ? candidate : nullptr;
            return place != 0;
        }
    }
    triangle = candidate;
    return true;
}

}  // namespace

int QnGeTINGraph::HitTest(QnGeTINNode* node, QnGeTINTriangle*& triangle) {
    TriangleHit hit;
    const auto decide = [&hit, node](QnGeExtent2d* box) {
        return hit.Decide(*node, static_cast<QnGeTINTriangle*>(box));
    };
    if (m_finger != nullptr) {
        m_finger->VisitHits(node->x, node->y, decide);
    } else {
        QnDynArray<QnGeExtent2d*> boxes;
        TrgTree.HitTest(node->x, node->y, boxes);
        for (long i = 0; i < boxes.GetLength() && !decide(boxes.GetAt(i)); ++i) {}
    }
    triangle = hit.triangle;
    return hit.place;
}
