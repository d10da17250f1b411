// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArray.h"
#include "spatial/QnGeQuadTree2d.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINTriangle.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

/// What the search for the place of a node has come to.
struct TinPlace {
    QnGeTINTriangle* triangle = nullptr;
    int place = 0;
};

/// Whether the search is at its end with this candidate, and then where the node lies.
inline bool EndsSearch(const QnGeTINNode& node, QnGeTINTriangle* candidate, TinPlace& found) {
    for (int i = 0; i < 3; ++i) {
        const int next = (i + 1) % 3;
        const QnGeTINNode& a = *candidate->Node[i];
        const QnGeTINNode& b = *candidate->Node[next];
        const int turn = GetPathType(node, a, b);
        if (turn == PATH_LEFT) {
            continue;
        }
        if (turn == PATH_RIGHT) {
            return false;
        }
        if (candidate->NearTrg[i] == nullptr) {
            found = {};
            return true;
        }
        if (IsZero(GetDistance2d(node, a), g_distZero)) {
            found = {candidate, -(i + 1)};
            return true;
        }
        if (IsZero(GetDistance2d(node, b), g_distZero)) {
            found = {candidate, -(next + 1)};
            return true;
        }
        QnGeBaseLine2d line;
        line.SetPoint(a, b);
        double pa = 0.0;
        line.GetPaFromPt(node, pa);
        found = {candidate, i + 1};
        return 0.0 < pa && pa < 1.0;
    }
    found = {candidate, 0};
    return true;
}

/// The place of a node in a network by the tree of its triangles alone: all candidates in its order.
inline TinPlace SearchTree(QnGeQuadTree2d& tree, const QnGeTINNode& node) {
    QnDynArray<QnGeExtent2d*> boxes;
    tree.HitTest(node.x, node.y, boxes);
    for (long i = 0; i < boxes.GetLength(); ++i) {
        TinPlace found;
        if (EndsSearch(node, static_cast<QnGeTINTriangle*>(boxes.GetAt(i)), found)) {
            return found;
        }
    }
    return {};
}
