// SPDX-License-Identifier: Apache-2.0
#include "support/reference/PlainTin.h"

#include <algorithm>
#include <cmath>

#include "support/reference/PlainTinParts.h"

using namespace plain_tin;

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
