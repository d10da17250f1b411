// SPDX-License-Identifier: Apache-2.0
#include "support/reference/PlainTin.h"

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

namespace {

bool IsTogether(const QnGePoint& a, const QnGePoint& b) {
    const double d = GetDistance2d(a, b);
    return d >= -g_distZero && d <= g_distZero;
}

/// GetPathType with its division in every case, which the library's own leaves out where it can.
int TurnTo(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    const double area = ((c.x - a.x) * (b.y - c.y) - (c.y - a.y) * (b.x - c.x)) / 2.0;
    const double v = area / (std::fabs(a.x - b.x) + std::fabs(a.y - b.y));
    if (v < -g_distZero) {
        return PATH_LEFT;
    }
    if (v > g_distZero) {
        return PATH_RIGHT;
    }
    return PATH_STRAIGHT;
}

/// Where p is on the line from a (0) to b (1).
double ParameterOn(const QnGePoint& a, const QnGePoint& b, const QnGePoint& p) {
    QnGeBaseLine2d line;
    line.SetPoint(a, b);
    double t = 0.0;
    line.GetPaFromPt(p, t);
    return t;
}

void TakeOver(PlainOutEdge* record, PlainTrg* trg) {
    if (record != nullptr) {
        record->Triangle = trg;
    }
}

void Replace(PlainTrg* neighbour, const PlainTrg* oldTrg, PlainTrg* newTrg) {
    if (neighbour != nullptr) {
        neighbour->ReplaceNearTrg(oldTrg, newTrg);
    }
}

void SetNodes(PlainTrg* t, PlainNode* a, PlainNode* b, PlainNode* c) {
    t->Node[0] = a;
    t->Node[1] = b;
    t->Node[2] = c;
}

void SetNear(PlainTrg* t, PlainTrg* a, PlainTrg* b, PlainTrg* c) {
    t->NearTrg[0] = a;
    t->NearTrg[1] = b;
    t->NearTrg[2] = c;
}

void SetOut(PlainTrg* t, PlainOutEdge* a, PlainOutEdge* b, PlainOutEdge* c) {
    t->OutEdge[0] = a;
    t->OutEdge[1] = b;
    t->OutEdge[2] = c;
}

}  // namespace

bool PlainNode::IsAt(const PlainNode& other) const {
    return IsTogether(*this, other);
}

// ---- triangles -------------------------------------------------------------------------------------

long PlainTrg::GetNodeIndex(const PlainNode* node) const {
    return node == Node[0] ? 0 : (node == Node[1] ? 1 : 2);
}

void PlainTrg::ReplaceNearTrg(const PlainTrg* oldTrg, PlainTrg* newTrg) {
    NearTrg[oldTrg == NearTrg[0] ? 0 : (oldTrg == NearTrg[1] ? 1 : 2)] = newTrg;
}

bool PlainTrg::IsInsideCircle(const QnGePoint& p) {
    if (Radius < 0.0) {
        const double x1 = 0.0;
        const double y1 = 0.0;
        const double x2 = Node[1]->x - Node[0]->x;
        const double y2 = Node[1]->y - Node[0]->y;
        const double x3 = Node[2]->x - Node[0]->x;
        const double y3 = Node[2]->y - Node[0]->y;
        const double d = (x3 - x1) * (y2 - y1) - (x2 - x1) * (y3 - y1);
        const double fromX = ((y3 * y3 - y1 * y1 + x3 * x3 - x1 * x1) * (y2 - y1) -
                              (y2 * y2 - y1 * y1 + x2 * x2 - x1 * x1) * (y3 - y1)) *
                             0.5 / d;
        const double fromY = ((x3 * x3 - x1 * x1 + y3 * y3 - y1 * y1) * (x2 - x1) -
                              (x2 * x2 - x1 * x1 + y2 * y2 - y1 * y1) * (x3 - x1)) *
                             0.5 / -d;
        CenterX = fromX + Node[0]->x;
        CenterY = fromY + Node[0]->y;
        Radius = GetDistance2d(*Node[0], QnGePoint(CenterX, CenterY));
    }
    if (std::fabs(p.x - CenterX) - Radius >= -g_distZero) {
        return false;
    }
    if (std::fabs(p.y - CenterY) - Radius >= -g_distZero) {
        return false;
    }
    return GetDistance2d(p, QnGePoint(CenterX, CenterY)) - Radius < -g_distZero;
}

void PlainTrg::GetThirdNode(const PlainNode* a, const PlainNode* b, PlainNode*& third, long& index) const {
    index = 2;
    for (long i = 0; i < 2; ++i) {
        if (Node[i] != a && Node[i] != b) {
            index = i;
            break;
        }
    }
    third = Node[index];
}

void PlainTrg::SwapDiagonalLine() {
    PlainTrg* const u = NearTrg[1];
    if (u == nullptr) {
        return;
    }
    PlainNode* const a = Node[0];
    PlainNode* const b = Node[1];
    PlainNode* const c = Node[2];
    PlainNode* d = nullptr;
    long k = 0;
    u->GetThirdNode(b, c, d, k);
    const long before = (k + 2) % 3;
    PlainTrg* const nearBD = u->NearTrg[before];
    PlainOutEdge* const outBD = u->OutEdge[before];
    PlainTrg* const nearDC = u->NearTrg[k];
    PlainOutEdge* const outDC = u->OutEdge[k];
    PlainTrg* const nearCA = NearTrg[2];
    PlainOutEdge* const outCA = OutEdge[2];

    SetNodes(this, a, b, d);
    SetNear(this, NearTrg[0], nearBD, u);
    SetOut(this, OutEdge[0], outBD, nullptr);
    TakeOver(outBD, this);
    Replace(nearBD, u, this);

    SetNodes(u, a, d, c);
    SetNear(u, this, nearDC, nearCA);
    SetOut(u, nullptr, outDC, outCA);
    TakeOver(outDC, u);
    TakeOver(outCA, u);
    Replace(nearCA, this, u);
}

void PlainTrg::UpdateExtend() {
    const auto range = [](double a, double b, double c) {
        return QnGeExtent(std::min({a, b, c}), std::max({a, b, c}));
    };
    SetRange(range(Node[0]->x, Node[1]->x, Node[2]->x), range(Node[0]->y, Node[1]->y, Node[2]->y));
}

void PlainTrg::LOP(PlainTin& graph) {
    PlainTrg* const u = NearTrg[1];
    if (u != nullptr && u->IsInsideCircle(*Node[0])) {
        SwapDiagonalLine();
        graph.PushLOP(u);
    } else {
        graph.PopLOP();
    }
}

// ---- the network -----------------------------------------------------------------------------------

void PlainTin::SetRange(double xMin, double xMax, double yMin, double yMax) {
    const double margin = 10.0 * g_distZero;
    TrgTree.SetRange(xMin - margin, xMax + margin, yMin - margin, yMax + margin);
    NodeTree.SetRange(xMin - margin, xMax + margin, yMin - margin, yMax + margin);
}

void PlainTin::PushLOP(PlainTrg* trg) {
    trg->Radius = -1.0;
    LOPStack.push_back(trg);
    if (trg->InTree) {
        TrgTree.Delete(trg);
    }
}

void PlainTin::PopLOP() {
    PlainTrg* const trg = LOPStack.back();
    LOPStack.pop_back();
    trg->UpdateExtend();
    TrgTree.Insert(trg);
    trg->InTree = true;
}

void PlainTin::LOP() {
    while (!LOPStack.empty()) {
        LOPStack.back()->LOP(*this);
    }
}

PlainTrg* PlainTin::NewTriangle() {
    TrgList.push_back(std::make_unique<PlainTrg>());
    return TrgList.back().get();
}

PlainNode* PlainTin::AppendNode(NodePtr& node) {
    NodeList.push_back(std::move(node));
    return NodeList.back().get();
}

PlainOutEdge* PlainTin::InsertOutEdge(Index at, PlainTrg* trg, int slot) {
    auto record = std::make_unique<PlainOutEdge>(PlainOutEdge{trg->Node[slot], trg});
    PlainOutEdge* const made = record.get();
    trg->OutEdge[slot] = made;
    OutEdgeList.insert(OutEdgeList.begin() + static_cast<std::ptrdiff_t>(at), std::move(record));
    return made;
}

int PlainTin::HitTest(const PlainNode& p, PlainTrg*& trg) const {
    trg = nullptr;
    std::vector<QnGeExtent2d*> found;
    TrgTree.HitTest(p.x, p.y, found);
    for (QnGeExtent2d* box : found) {
        PlainTrg* const c = static_cast<PlainTrg*>(box);
        bool next = false;
        for (int i = 0; i < 3 && !next; ++i) {
            const PlainNode& a = *c->Node[i];
            const PlainNode& b = *c->Node[(i + 1) % 3];
            const int t = TurnTo(p, a, b);
            if (t == PATH_LEFT) {
                continue;
            }
            next = true;
            if (t == PATH_RIGHT) {
                continue;
            }
            if (c->NearTrg[i] == nullptr) {
                return 0;
            }
            if (IsTogether(p, a)) {
                trg = c;
                return -(i + 1);
            }
            if (IsTogether(p, b)) {
                trg = c;
                return -((i + 1) % 3 + 1);
            }
            const double pa = ParameterOn(a, b, p);
            if (0.0 < pa && pa < 1.0) {
                trg = c;
                return i + 1;
            }
        }
        if (!next) {
            trg = c;
            return 0;
        }
    }
    return 0;
}

void PlainTin::SplitInThree(PlainNode* p, PlainTrg* t) {
    PlainNode* const a = t->Node[0];
    PlainNode* const b = t->Node[1];
    PlainNode* const c = t->Node[2];
    PlainTrg* const q0 = t->NearTrg[0];
    PlainTrg* const q1 = t->NearTrg[1];
    PlainTrg* const q2 = t->NearTrg[2];
    PlainOutEdge* const o0 = t->OutEdge[0];
    PlainOutEdge* const o1 = t->OutEdge[1];
    PlainOutEdge* const o2 = t->OutEdge[2];
    PlainTrg* const t1 = NewTriangle();
    PlainTrg* const t2 = NewTriangle();
    SetNodes(t, p, a, b);
    SetNear(t, t2, q0, t1);
    SetOut(t, nullptr, o0, nullptr);
    SetNodes(t1, p, b, c);
    SetNear(t1, t, q1, t2);
    SetOut(t1, nullptr, o1, nullptr);
    SetNodes(t2, p, c, a);
    SetNear(t2, t1, q2, t);
    SetOut(t2, nullptr, o2, nullptr);
    Replace(q1, t, t1);
    Replace(q2, t, t2);
    TakeOver(o1, t1);
    TakeOver(o2, t2);
    PushLOP(t);
    PushLOP(t1);
    PushLOP(t2);
}

void PlainTin::SplitInFour(PlainNode* p, PlainTrg* t, int e) {
    const int e1 = (e + 1) % 3;
    const int e2 = (e + 2) % 3;
    PlainNode* const c = t->Node[e];
    PlainNode* const a = t->Node[e1];
    PlainNode* const b = t->Node[e2];
    PlainTrg* const u = t->NearTrg[e];
    PlainNode* d = nullptr;
    long k = 0;
    u->GetThirdNode(a, c, d, k);
    const long before = (k + 2) % 3;
    PlainTrg* const nearAB = t->NearTrg[e1];
    PlainOutEdge* const outAB = t->OutEdge[e1];
    PlainTrg* const nearBC = t->NearTrg[e2];
    PlainOutEdge* const outBC = t->OutEdge[e2];
    PlainTrg* const nearCD = u->NearTrg[before];
    PlainOutEdge* const outCD = u->OutEdge[before];
    PlainTrg* const nearDA = u->NearTrg[k];
    PlainOutEdge* const outDA = u->OutEdge[k];
    PlainTrg* const t3 = NewTriangle();
    PlainTrg* const t5 = NewTriangle();
    SetNodes(t, p, a, b);
    SetNear(t, t5, nearAB, t3);
    SetOut(t, nullptr, outAB, nullptr);
    SetNodes(t3, p, b, c);
    SetNear(t3, t, nearBC, u);
    SetOut(t3, nullptr, outBC, nullptr);
    SetNodes(u, p, c, d);
    SetNear(u, t3, nearCD, t5);
    SetOut(u, nullptr, outCD, nullptr);
    SetNodes(t5, p, d, a);
    SetNear(t5, u, nearDA, t);
    SetOut(t5, nullptr, outDA, nullptr);
    Replace(nearBC, t, t3);
    Replace(nearDA, u, t5);
    TakeOver(outBC, t3);
    TakeOver(outDA, t5);
    PushLOP(t);
    PushLOP(t3);
    PushLOP(u);
    PushLOP(t5);
}

bool PlainTin::InsertInside(NodePtr& node) {
    PlainTrg* t = nullptr;
    const int r = HitTest(*node, t);
    if (t == nullptr) {
        return false;
    }
    if (r < 0) {
        t->Node[-r - 1]->AppendValue(node->z);
        node.reset();
        return true;
    }
    PlainNode* const p = AppendNode(node);
    if (r == 0) {
        SplitInThree(p, t);
    } else {
        SplitInFour(p, t, r - 1);
    }
    return true;
}

long PlainTin::FindAndRotateEdge(const PlainNode& p, Index& i) {
    const Index length = OutEdgeList.size();
    if (i + 1 >= length) {
        return 1;
    }
    long count = 1;
    for (Index j = i + 1; j < length && TurnTo(*StartOf(j), *EndOf(j), p) == PATH_RIGHT; ++j) {
        ++count;
    }
    if (i != 0) {
        return count;
    }
    Index first = length;  // of the run that ends at the end of the list
    while (first > 0 && TurnTo(*StartOf(first - 1), *EndOf(first - 1), p) == PATH_RIGHT) {
        --first;
        ++count;
    }
    if (first < length) {
        std::rotate(OutEdgeList.begin(), OutEdgeList.begin() + static_cast<std::ptrdiff_t>(first), OutEdgeList.end());
        i = 0;
    }
    return count;
}

bool PlainTin::InsertBefore(Index i, NodePtr& node) {
    PlainNode* const p = node.get();
    const long count = FindAndRotateEdge(*p, i);
    PlainTrg* firstNew = nullptr;
    PlainTrg* lastNew = nullptr;
    for (long n = 0; n < count; ++n) {
        PlainNode* const a = OutEdgeList[i]->Node;
        PlainNode* const b = OutEdgeList[i + 1 < OutEdgeList.size() ? i + 1 : 0]->Node;
        PlainTrg* const tri = OutEdgeList[i]->Triangle;
        PlainTrg* const made = NewTriangle();
        SetNodes(made, p, b, a);
        made->NearTrg[1] = tri;
        const long k = tri->GetNodeIndex(a);
        tri->NearTrg[k] = made;
        tri->OutEdge[k] = nullptr;
        if (lastNew != nullptr) {
            lastNew->NearTrg[0] = made;
            made->NearTrg[2] = lastNew;
        } else {
            firstNew = made;
        }
        lastNew = made;
        PushLOP(made);
        OutEdgeList.erase(OutEdgeList.begin() + static_cast<std::ptrdiff_t>(i));
    }
    AppendNode(node);
    InsertOutEdge(i, lastNew, 0);
    InsertOutEdge(i, firstNew, 2);
    return true;
}

bool PlainTin::InsertOnEdge(Index i, NodePtr& node) {
    const PlainNode* const a = StartOf(i);
    const PlainNode* const b = EndOf(i);
    PlainTrg* const tri = OutEdgeList[i]->Triangle;
    OutEdgeList.erase(OutEdgeList.begin() + static_cast<std::ptrdiff_t>(i));
    const long ia = tri->GetNodeIndex(a);
    const long ib = tri->GetNodeIndex(b);
    const long ic = 3 - ia - ib;
    PlainNode* const nodeA = tri->Node[ia];
    PlainNode* const nodeB = tri->Node[ib];
    PlainNode* const nodeC = tri->Node[ic];
    PlainTrg* const nearB = tri->NearTrg[ib];
    PlainOutEdge* const outB = tri->OutEdge[ib];
    PlainTrg* const nearC = tri->NearTrg[ic];
    PlainOutEdge* const outC = tri->OutEdge[ic];
    PlainNode* const p = node.get();
    PlainTrg* const made = NewTriangle();
    SetNodes(tri, p, nodeB, nodeC);
    SetNear(tri, nullptr, nearB, made);
    SetOut(tri, nullptr, outB, nullptr);
    SetNodes(made, p, nodeC, nodeA);
    SetNear(made, tri, nearC, nullptr);
    SetOut(made, nullptr, outC, nullptr);
    Replace(nearC, tri, made);
    TakeOver(outC, made);
    InsertOutEdge(i, tri, 0);
    InsertOutEdge(i, made, 2);
    AppendNode(node);
    PushLOP(made);
    PushLOP(tri);
    return true;
}

bool PlainTin::InsertOutside(NodePtr& node) {
    const PlainNode& p = *node;
    for (Index i = 0; i < OutEdgeList.size(); ++i) {
        PlainNode* const a = OutEdgeList[i]->Node;
        PlainNode* const b = OutEdgeList[i + 1 < OutEdgeList.size() ? i + 1 : 0]->Node;
        const int t = TurnTo(*a, *b, p);
        if (t == PATH_RIGHT) {
            return InsertBefore(i, node);
        }
        if (t == PATH_LEFT) {
            continue;
        }
        for (PlainNode* const end : {a, b}) {
            if (IsTogether(p, *end)) {
                end->AppendValue(p.z);
                node.reset();
                return true;
            }
        }
        const double pa = ParameterOn(*a, *b, p);
        if (0.0 < pa && pa < 1.0) {
            return InsertOnEdge(i, node);
        }
    }
    return false;
}

bool PlainTin::InsertThird(NodePtr& node) {
    PlainNode* const p0 = NodeList[0].get();
    PlainNode* const p1 = NodeList[1].get();
    const int t = TurnTo(*p0, *p1, *node);
    if (t == PATH_STRAIGHT) {
        for (PlainNode* const held : {p0, p1}) {
            if (IsTogether(*node, *held)) {
                held->AppendValue(node->z);
                node.reset();
                return true;
            }
        }
        return false;
    }
    PlainNode* const p = AppendNode(node);
    PlainTrg* const trg = NewTriangle();
    SetNodes(trg, p, t == PATH_LEFT ? p0 : p1, t == PATH_LEFT ? p1 : p0);
    for (int i = 0; i < 3; ++i) {
        InsertOutEdge(OutEdgeList.size(), trg, i);
    }
    PushLOP(trg);
    LOP();
    Range = *trg;
    return true;
}

bool PlainTin::Insert(NodePtr& node) {
    if (NodeList.empty()) {
        AppendNode(node);
        return true;
    }
    if (NodeList.size() == 1) {
        if (node->IsAt(*NodeList[0])) {
            NodeList[0]->AppendValue(node->z);
            node.reset();
        } else {
            AppendNode(node);
        }
        return true;
    }
    if (NodeList.size() == 2) {
        return InsertThird(node);
    }
    const QnGeExtent2d box(node->x, node->x, node->y, node->y);
    bool placed = false;
    if (Range.IsInclude(box)) {
        placed = InsertInside(node) || InsertOutside(node);
    } else {
        placed = InsertOutside(node);
        Range += box;
    }
    if (!placed) {
        Dropped.push_back(std::move(node));
    }
    LOP();
    return true;
}

void PlainTin::MakeTIN() {
    if (NodeList.empty()) {
        return;
    }
    QnGeExtent2d all(NodeList[0]->x, NodeList[0]->x, NodeList[0]->y, NodeList[0]->y);
    for (const NodePtr& node : NodeList) {
        all += QnGeExtent2d(node->x, node->x, node->y, node->y);
    }
    if (all.GetLength() <= g_distZero || all.GetHeight() <= g_distZero) {
        return;
    }
    SetRange(all.x.min, all.x.max, all.y.min, all.y.max);
    std::vector<NodePtr> held;
    held.swap(NodeList);
    for (const NodePtr& node : held) {
        NodeTree.Insert(node.get());
    }
    std::vector<QnGePoint*> points;
    NodeTree.GetAllPoint(points, 1);
    NodeTree.Reset();
    std::deque<NodePtr> order;
    for (QnGePoint* point : points) {
        order.emplace_back(static_cast<PlainNode*>(point));
    }
    for (NodePtr& node : held) {
        static_cast<void>(node.release());
    }
    while (!order.empty()) {
        NodePtr node = std::move(order.front());
        order.pop_front();
        if (!Insert(node)) {
            order.push_back(std::move(node));
            ++Retries;
        }
    }
}
