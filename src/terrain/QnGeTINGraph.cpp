// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINGraph.h"

#include "containers/QnDynArray.h"
#include "spatial/detail/ReadAhead.h"
#include "terrain/detail/HullIndex.h"
#include "terrain/detail/TriangleFinder.h"
#include "terrain/detail/TriangleHit.h"
#include "terrain/detail/TriangleTree.h"

namespace {

/// By how many tolerances the trees reach beyond the nodes, so that no box touches their border.
constexpr double MARGIN = 10.0;

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

QnGeTINGraph::QnGeTINGraph() : m_tree(new qn_detail::TriangleTree(TrgTree)), m_finder(new qn_detail::TriangleFinder) {}

/// The tree goes first: its pieces come back in no order, and what comes back last is the first to be used again.
QnGeTINGraph::~QnGeTINGraph() {
    TrgTree.Reset();
}

// The nodes of a tree can have one owner only, so the trees of a copy start empty, and so does the list of nodes that
// only the destructor can reach.
QnGeTINGraph::QnGeTINGraph(const QnGeTINGraph& other)
    : LOPStack(other.LOPStack),
      TrgQuene(other.TrgQuene),
      Range(other.Range),
      NodeList(other.NodeList),
      TrgList(other.TrgList),
      OutEdgeList(other.OutEdgeList),
      m_tree(new qn_detail::TriangleTree(TrgTree)),
      m_finder(new qn_detail::TriangleFinder) {
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
    m_tree = std::make_unique<qn_detail::TriangleTree>(TrgTree);
    m_finder = std::make_unique<qn_detail::TriangleFinder>();
    Range = other.Range;
    NodeList = other.NodeList;
    TrgList = other.TrgList;
    OutEdgeList = other.OutEdgeList;
    SetTreeRanges(other.TrgTree);
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
    if (!TrgList.IsEmpty() || !TrgTree.IsEmptyTree()) {
        m_tree->GoPlain();  // the cells will not lie where the way from the root leads, or are another graph's
    }
    TrgTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
    NodeTree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
}

// ---- the stack -------------------------------------------------------------------------------------

void QnGeTINGraph::TreeChanged() {
    m_tree->GoPlain();
}

void QnGeTINGraph::PushLOP(QnGeTINTriangle* triangle) {
    if (triangle->NearTrg[1] != nullptr) {
        qn_detail::ReadAhead(triangle->NearTrg[1]);  // LOP looks at it soon
    }
    triangle->Radius = -1.0;
    LOPStack.Push(triangle);
    if (triangle->HasBit(TRG_IN_TREE)) {
        m_tree->Delete(triangle);
    }
}

void QnGeTINGraph::PopLOP() {
    QnGeTINTriangle* triangle = nullptr;
    if (!LOPStack.Pop(triangle)) {
        return;
    }
    triangle->UpdateExtend();
    m_tree->Insert(triangle);
    m_finder->LearnTriangle(*triangle);
    triangle->SetBit(TRG_IN_TREE);
}

void QnGeTINGraph::LOP() {
    QnGeTINTriangle* triangle = nullptr;
    while (LOPStack.GetTopData(triangle)) {
        triangle->LOP(*this);
    }
}

// ---- locating --------------------------------------------------------------------------------------

int QnGeTINGraph::HitTest(QnGeTINNode* node, QnGeTINTriangle*& triangle) {
    qn_detail::TriangleHit hit;
    if (!LOPStack.IsEmpty() || !m_finder->Find(*node, m_tree->GetNear(*node), Range, hit)) {
        QnDynArray<QnGeExtent2d*> boxes;
        m_tree->HitTest(*node, boxes);
        hit = {};
        for (long i = 0; i < boxes.GetLength(); ++i) {
            if (hit.Decide(*node, static_cast<QnGeTINTriangle*>(boxes.GetAt(i)))) {
                break;
            }
        }
    }
    triangle = hit.triangle;
    return hit.place;
}
