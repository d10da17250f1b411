// SPDX-License-Identifier: Apache-2.0
#include "terrain/detail/TriangleHit.h"

#include "values/QnGeBaseLine2d.h"
#include "values/detail/PathType.h"

namespace qn_detail {

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

bool TriangleHit::Decide(const QnGeTINNode& node, QnGeTINTriangle* candidate) {
    for (int i = 0; i < 3; ++i) {
        const int turn = PathTypeOf(node, *candidate->Node[i], *candidate->Node[i == 2 ? 0 : i + 1]);
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

}  // namespace qn_detail
