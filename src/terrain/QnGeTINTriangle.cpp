// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINTriangle.h"

#include <cmath>

#include "terrain/QnGeTINGraph.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINOutEdge.h"
#include "values/QnGeAnalytic.h"

QnGeTINTriangle::~QnGeTINTriangle() = default;

void QnGeTINTriangle::LOP(QnGeTINGraph& graph) {
    QnGeTINTriangle* const beyond = NearTrg[1];
    if (beyond != nullptr && beyond->IsInsideCircle(*Node[0])) {
        SwapDiagonalLine();
        graph.PushLOP(beyond);
    } else {
        graph.PopLOP();
    }
}

// ---- nodes and neighbours --------------------------------------------------------------------------

long QnGeTINTriangle::GetNodeIndex(const QnGeTINNode* node) const {
    if (node == Node[0]) {
        return 0;
    }
    return node == Node[1] ? 1 : 2;
}

void QnGeTINTriangle::RotateNode(QnGeTINNode* node) {
    if (node != Node[1] && node != Node[2]) {
        return;
    }
    const long first = node == Node[1] ? 1 : 2;
    QnGeTINNode* const nodes[3] = {Node[0], Node[1], Node[2]};
    QnGeTINTriangle* const near[3] = {NearTrg[0], NearTrg[1], NearTrg[2]};
    QnGeTINOutEdge* const out[3] = {OutEdge[0], OutEdge[1], OutEdge[2]};
    for (long i = 0; i < 3; ++i) {
        const long from = (first + i) % 3;
        Node[i] = nodes[from];
        NearTrg[i] = near[from];
        OutEdge[i] = out[from];
    }
}

void QnGeTINTriangle::ReplaceNearTrg(QnGeTINTriangle* oldTrg, QnGeTINTriangle* newTrg) {
    if (NearTrg[0] == oldTrg) {
        NearTrg[0] = newTrg;
    } else if (NearTrg[1] == oldTrg) {
        NearTrg[1] = newTrg;
    } else {
        NearTrg[2] = newTrg;
    }
}

void QnGeTINTriangle::GetThirdNode(const QnGeTINNode* a, const QnGeTINNode* b, QnGeTINNode*& third, long& index) const {
    if (Node[0] != a && Node[0] != b) {
        index = 0;
    } else {
        index = Node[1] != a && Node[1] != b ? 1 : 2;
    }
    third = Node[index];
}

QnGeTINOutEdge* QnGeTINTriangle::CreateOutEdge(long i) {
    OutEdge[i] = new QnGeTINOutEdge(Node[i], this);
    return OutEdge[i];
}

// ---- shape -----------------------------------------------------------------------------------------

int QnGeTINTriangle::GetPathType() const {
    return ::GetPathType(*Node[0], *Node[1], *Node[2]);
}

/// GetDistance2d from the centre.
double QnGeTINTriangle::DistanceTo(const QnGePoint& p) const {
    const double dx = CenterX - p.x;
    const double dy = CenterY - p.y;
    return std::sqrt(dx * dx + dy * dy);
}

/// The circle through the nodes, computed relative to the first: far from the origin the squares of whole coordinates
/// would lose the tolerance. Nodes on one line give a circle of infinities, within which nothing lies.
void QnGeTINTriangle::ComputeCircle() {
    const double x2 = Node[1]->x - Node[0]->x;
    const double y2 = Node[1]->y - Node[0]->y;
    const double x3 = Node[2]->x - Node[0]->x;
    const double y3 = Node[2]->y - Node[0]->y;
    const double square2 = x2 * x2 + y2 * y2;
    const double square3 = x3 * x3 + y3 * y3;
    const double det = x3 * y2 - x2 * y3;
    CenterX = (square3 * y2 - square2 * y3) * 0.5 / det + Node[0]->x;
    CenterY = (square3 * x2 - square2 * x3) * 0.5 / -det + Node[0]->y;
    Radius = DistanceTo(*Node[0]);
}

bool QnGeTINTriangle::IsInsideCircle(const QnGePoint& p) {
    if (Radius < 0.0) {
        ComputeCircle();
    }
    if (std::fabs(p.x - CenterX) - Radius >= -g_distZero) {
        return false;
    }
    if (std::fabs(p.y - CenterY) - Radius >= -g_distZero) {
        return false;
    }
    return IsLess(DistanceTo(p) - Radius, g_distZero);
}

void QnGeTINTriangle::UpdateExtend() {
    QnGeExtent2d box(Node[0]->x, Node[0]->x, Node[0]->y, Node[0]->y);
    for (int i = 1; i < 3; ++i) {
        box += QnGeExtent2d(Node[i]->x, Node[i]->x, Node[i]->y, Node[i]->y);
    }
    QnGeExtent2d::SetRange(box.x, box.y);
}

// ---- flipping --------------------------------------------------------------------------------------

//        c                  c
//      /   \              / | \        T is a b c and becomes a b d, U is the triangle across b c and becomes a d c.
//     a  T  |  U  d  ->  a  |U  d      Outside edges keep their neighbours and hull records; two of them pass from one
//      \   /              \ T| /       triangle to the other.
//        b                  b
void QnGeTINTriangle::SwapDiagonalLine() {
    QnGeTINTriangle* const other = NearTrg[1];
    if (other == nullptr) {
        return;
    }
    QnGeTINNode* const a = Node[0];
    QnGeTINNode* const c = Node[2];
    QnGeTINNode* d = nullptr;
    long k = 0;
    other->GetThirdNode(Node[1], c, d, k);
    const long before = (k + 2) % 3;
    QnGeTINTriangle* const nearBD = other->NearTrg[before];
    QnGeTINOutEdge* const outBD = other->OutEdge[before];
    QnGeTINTriangle* const nearDC = other->NearTrg[k];
    QnGeTINOutEdge* const outDC = other->OutEdge[k];
    QnGeTINTriangle* const nearCA = NearTrg[2];
    QnGeTINOutEdge* const outCA = OutEdge[2];

    Node[2] = d;
    NearTrg[1] = nearBD;
    OutEdge[1] = outBD;
    NearTrg[2] = other;
    OutEdge[2] = nullptr;
    if (outBD != nullptr) {
        outBD->Triangle = this;
    }
    if (nearBD != nullptr) {
        nearBD->ReplaceNearTrg(other, this);
    }

    other->Node[0] = a;
    other->Node[1] = d;
    other->Node[2] = c;
    other->NearTrg[0] = this;
    other->OutEdge[0] = nullptr;
    other->NearTrg[1] = nearDC;
    other->OutEdge[1] = outDC;
    other->NearTrg[2] = nearCA;
    other->OutEdge[2] = outCA;
    if (outDC != nullptr) {
        outDC->Triangle = other;
    }
    if (outCA != nullptr) {
        outCA->Triangle = other;
    }
    if (nearCA != nullptr) {
        nearCA->ReplaceNearTrg(this, other);
    }
}

bool QnGeTINTriangle::CanSwapDiagonalLine() const {
    if (NearTrg[1] == nullptr) {
        return false;
    }
    QnGeTINNode* d = nullptr;
    long k = 0;
    NearTrg[1]->GetThirdNode(Node[1], Node[2], d, k);
    return HitTestAtCorner2d(*Node[2], *Node[0], *Node[1], *d).HasBit(HIT_IN);
}
