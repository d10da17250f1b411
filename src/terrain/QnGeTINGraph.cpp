// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINGraph.h"

#include "containers/QnDynArray.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

namespace {

/// By how many tolerances the trees reach beyond the nodes, so that no box touches their border.
constexpr double MARGIN = 10.0;

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

QnGeTINGraph::QnGeTINGraph() = default;

QnGeTINGraph::~QnGeTINGraph() = default;

// The nodes of a tree can have one owner only, so the trees of a copy start empty, and so does the list of nodes that
// only the destructor can reach.
QnGeTINGraph::QnGeTINGraph(const QnGeTINGraph& other)
    : LOPStack(other.LOPStack),
      TrgQuene(other.TrgQuene),
      Range(other.Range),
      NodeList(other.NodeList),
      TrgList(other.TrgList),
      OutEdgeList(other.OutEdgeList) {
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
    SetTreeRanges(other.TrgTree);
    Range = other.Range;
    NodeList = other.NodeList;
    TrgList = other.TrgList;
    OutEdgeList = other.OutEdgeList;
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
    TrgTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
    NodeTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
}

// ---- the stack -------------------------------------------------------------------------------------

void QnGeTINGraph::PushLOP(QnGeTINTriangle* triangle) {
    triangle->Radius = -1.0;
    LOPStack.Push(triangle);
    if (triangle->HasBit(TRG_IN_TREE)) {
        TrgTree.Delete(triangle, false);
    }
}

void QnGeTINGraph::PopLOP() {
    QnGeTINTriangle* triangle = nullptr;
    if (!LOPStack.Pop(triangle)) {
        return;
    }
    triangle->UpdateExtend();
    TrgTree.Insert(triangle);
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

}  // namespace

int QnGeTINGraph::HitTest(QnGeTINNode* node, QnGeTINTriangle*& triangle) {
    triangle = nullptr;
    QnDynArray<QnGeExtent2d*> candidates;
    TrgTree.HitTest(node->x, node->y, candidates);
    for (long n = 0; n < candidates.GetLength(); ++n) {
        QnGeTINTriangle* const candidate = static_cast<QnGeTINTriangle*>(candidates.GetAt(n));
        int i = 0;
        int turn = PATH_LEFT;
        for (; i < 3; ++i) {
            turn = GetPathType(*node, *candidate->Node[i], *candidate->Node[(i + 1) % 3]);
            if (turn != PATH_LEFT) {
                break;
            }
        }
        if (turn == PATH_RIGHT) {
            continue;
        }
        if (turn == PATH_LEFT) {
            triangle = candidate;
            return 0;
        }
        if (candidate->NearTrg[i] == nullptr) {
            return 0;  // on the line of a hull edge, which is for InsertOutside
        }
        const int hit = HitTestAtEdge(*node, *candidate, i);
        if (hit != 0) {
            triangle = candidate;
            return hit;
        }
    }
    return 0;
}
