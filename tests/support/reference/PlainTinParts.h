// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "frame/QnGeTolerance.h"
#include "support/reference/PlainTin.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

// What the sources of PlainTin share: turns, places on lines, links between triangles.
namespace plain_tin {

inline bool IsTogether(const QnGePoint& a, const QnGePoint& b) {
    const double d = GetDistance2d(a, b);
    return d >= -g_distZero && d <= g_distZero;
}

/// GetPathType with its division in every case, which the library's own leaves out where it can.
inline int TurnTo(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
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
inline double ParameterOn(const QnGePoint& a, const QnGePoint& b, const QnGePoint& p) {
    QnGeBaseLine2d line;
    line.SetPoint(a, b);
    double t = 0.0;
    line.GetPaFromPt(p, t);
    return t;
}

inline void TakeOver(PlainOutEdge* record, PlainTrg* trg) {
    if (record != nullptr) {
        record->Triangle = trg;
    }
}

inline void Replace(PlainTrg* neighbour, const PlainTrg* oldTrg, PlainTrg* newTrg) {
    if (neighbour != nullptr) {
        neighbour->ReplaceNearTrg(oldTrg, newTrg);
    }
}

inline void SetNodes(PlainTrg* t, PlainNode* a, PlainNode* b, PlainNode* c) {
    t->Node[0] = a;
    t->Node[1] = b;
    t->Node[2] = c;
}

inline void SetNear(PlainTrg* t, PlainTrg* a, PlainTrg* b, PlainTrg* c) {
    t->NearTrg[0] = a;
    t->NearTrg[1] = b;
    t->NearTrg[2] = c;
}

inline void SetOut(PlainTrg* t, PlainOutEdge* a, PlainOutEdge* b, PlainOutEdge* c) {
    t->OutEdge[0] = a;
    t->OutEdge[1] = b;
    t->OutEdge[2] = c;
}

}  // namespace plain_tin
