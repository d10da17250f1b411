// SPDX-License-Identifier: Apache-2.0
// PlainTin_Insert.cpp: a node inside the hull and a node outside it.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "support/reference/PlainTin.h"
#include "support/reference/PlainTinParts.h"

using namespace plain_tin;

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
    while (first > 0 && count < static_cast<long>(length) &&
           TurnTo(*StartOf(first - 1), *EndOf(first - 1), p) == PATH_RIGHT) {
        --first;
        ++count;
    }
    if (first < length) {
        std::rotate(OutEdgeList.begin(), OutEdgeList.begin() + static_cast<std::ptrdiff_t>(first), OutEdgeList.end());
        i = 0;
    }
    return count;
}

/// Triangles of a network that has come apart may still show it.
void PlainTin::DropOutEdge(Index i) {
    m_gone.push_back(std::move(OutEdgeList[i]));
    OutEdgeList.erase(OutEdgeList.begin() + static_cast<std::ptrdiff_t>(i));
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
        DropOutEdge(i);
    }
    AppendNode(node);
    InsertOutEdge(i, lastNew, 0);
    InsertOutEdge(i, firstNew, 2);
    return true;
}

bool PlainTin::InsertOnEdge(Index i, NodePtr& node) {
    PlainNode* const a = OutEdgeList[i]->Node;
    PlainNode* const b = OutEdgeList[i + 1 < OutEdgeList.size() ? i + 1 : 0]->Node;
    PlainTrg* const tri = OutEdgeList[i]->Triangle;
    DropOutEdge(i);
    const long ia = tri->GetNodeIndex(a);
    const long ib = tri->GetNodeIndex(b);
    const long ic = 3 - ia - ib;
    PlainNode* const c = tri->Node[ic];
    PlainTrg* const nearB = tri->NearTrg[ib];
    PlainOutEdge* const outB = tri->OutEdge[ib];
    PlainTrg* const nearC = tri->NearTrg[ic];
    PlainOutEdge* const outC = tri->OutEdge[ic];
    PlainNode* const p = node.get();
    PlainTrg* const made = NewTriangle();
    SetNodes(tri, p, b, c);
    SetNear(tri, nullptr, nearB, made);
    SetOut(tri, nullptr, outB, nullptr);
    SetNodes(made, p, c, a);
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
        const PlainTrg& tri = *OutEdgeList[i]->Triangle;  // in a network that has come apart perhaps not on the edge
        if (0.0 < pa && pa < 1.0 && tri.GetNodeIndex(a) != tri.GetNodeIndex(b)) {
            return InsertOnEdge(i, node);
        }
    }
    return false;
}
