// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeVector2d.h"

namespace qn_detail {

/// How a straight edge lies to a point and to the ray from it towards +x.
enum class ChordHit {
    MISS,       ///< nothing, or a crossing that the edge before answers for
    ON_EDGE,    ///< the point lies on the edge
    CROSS,      ///< the ray crosses between the vertices
    CROSS_END,  ///< the ray crosses at the end vertex: the edges after it decide
};

/// Direction of the ray that tells inside from outside.
inline QnGeVector2d GetHitTestRay() {
    return QnGeVector2d(1.0, 0.0);
}

/// Tolerance  g_distZero for the point on the edge, g_fZero for the parameters of the crossing.
/// Kept odd   The windows at the two ends of neighbouring edges are of different height where the edges are of
///            different length, since they are windows in the parameter: a ray between g_fZero times the one and
///            g_fZero times the other rise beside the vertex is answered for twice or not at all.
inline ChordHit TestChord(const QnGeLineSeg2d& edge, const QnGePoint& point) {
    if (edge.HitTest(point).HasBit(HIT_ON)) {
        return ChordHit::ON_EDGE;
    }

    const QnGeBaseLine2d ray(GetHitTestRay(), point);
    double onRay = 0.0;
    double onEdge = 0.0;
    const int code = ray.IntersectWith(edge.GetBaseLine(), onRay, onEdge, false);
    constexpr int ONE_POINT = 1;
    constexpr int SAME_LINE = 10;
    if (code == SAME_LINE) {
        double pa = 0.0;
        edge.GetBaseLine().GetPaFromPt(point, pa);
        const bool isWithin = pa >= -g_fZero && pa - 1.0 <= g_fZero;
        return isWithin ? ChordHit::ON_EDGE : ChordHit::MISS;
    }

    const bool isMet = code == ONE_POINT && onRay >= -g_fZero && onEdge >= -g_fZero && onEdge - 1.0 <= g_fZero;
    if (!isMet) {
        return ChordHit::MISS;
    }
    if (onRay <= g_fZero) {
        return ChordHit::ON_EDGE;
    }
    if (onEdge <= g_fZero) {
        return ChordHit::MISS;
    }
    return IsZero(onEdge - 1.0, g_fZero) ? ChordHit::CROSS_END : ChordHit::CROSS;
}

}  // namespace qn_detail
