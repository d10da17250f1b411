// SPDX-License-Identifier: Apache-2.0
// QnGeCurveCoordSys.cpp: positions along a curve and back.
//
// A point with an offset to the side lies where the offset curve is closest to the point on the curve. Where two
// points of it are equally close, as inside a bend that the offset curve goes round, the place is neither of them but
// on the bulge between: the vertex there that is farthest from the point on the curve.

#include "curves2d/QnGeCurveCoordSys.h"

#include <cmath>
#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePointList.h"

namespace {

constexpr long RECT_VERTEX_NUM = 4;

/// Of the vertices but the first and the last the one farthest from `from` in the plan; `place` if there is none.
QnGePoint FarthestInnerVertex(const QnGeMLine2d& line, const QnGePoint& from, const QnGePoint& place) {
    QnGePoint best = place;
    double bestDist = 0.0;
    for (long i = 1; i < line.GetVertexNum() - 1; ++i) {
        const QnGePoint vertex = line.GetVertex(i);
        const double dist = GetDistance2d(vertex, from);
        if (dist > bestDist) {
            best = vertex;
            bestDist = dist;
        }
    }
    return best;
}

/// The place between two points of `curve` that are equally close to `pt`.
QnGePoint PlaceBetween(const QnGeCurve2d& curve, const QnGePoint& first, const QnGePoint& second, const QnGePoint& pt) {
    double pa1 = 0.0;
    double pa2 = 0.0;
    curve.GetPaFromPt(first, pa1);
    curve.GetPaFromPt(second, pa2);
    if (IsZero(pa1 - pa2, g_fZero)) {
        return first;
    }
    const bool inOrder = pa1 < pa2;
    const std::unique_ptr<QnGeCurve2d> between(curve.GetSubCurve(inOrder ? pa1 : pa2, inOrder ? pa2 : pa1));
    if (between == nullptr) {
        return first;
    }
    const std::unique_ptr<QnGeMLine2d> chords(between->MLinearize(0.0));
    if (chords == nullptr) {
        return first;
    }
    return FarthestInnerVertex(*chords, pt, first);
}

/// The place on `curve` for `pt`; `pt` itself if the curve has no closest point.
QnGePoint PlaceOnCurve(const QnGeCurve2d& curve, const QnGePoint& pt) {
    QnGePointList closest;
    curve.GetClosestPoint2d(pt, closest);
    if (closest.IsEmpty()) {
        return pt;
    }
    const QnGePoint* const first = closest.GetFirst();
    const QnGePoint* const second = closest.GetNext(first);
    return second == nullptr ? *first : PlaceBetween(curve, *first, *second, pt);
}

QnGeMLine2d* MakeRect(const QnGePoint& corner, double length, double height) {
    auto* const rect = new QnGeMLine2d(RECT_VERTEX_NUM, true);
    rect->SetVertex(0, corner);
    rect->SetVertex(1, corner + QnGePoint(length, 0.0, 0.0));
    rect->SetVertex(2, corner + QnGePoint(length, height, 0.0));
    rect->SetVertex(3, corner + QnGePoint(0.0, height, 0.0));
    return rect;
}

}  // namespace

QnGeCurveCoordSys::QnGeCurveCoordSys(const QnGeCurve2d& curve) : m_pCurve(&curve) {}

QnGeCurveCoordSys::~QnGeCurveCoordSys() = default;

QnGePoint QnGeCurveCoordSys::CcsToWcs(const QnGePoint& p) const {
    QnGePoint place;
    m_pCurve->GetPtFromDist(p.x, place);  // a polyline answers false at its ends, but has written the point
    if (!IsZero(p.z, g_distZero)) {
        const std::unique_ptr<QnGeCurve2d> offset(m_pCurve->GetOffsetCurve(p.z));
        if (offset != nullptr) {
            place = PlaceOnCurve(*offset, place);
        }
    }
    return QnGePoint(place.x, place.y, m_pCurve->GetElevation() + p.y);
}

QnGePoint QnGeCurveCoordSys::WcsToCcs(const QnGePoint& p) const {
    const bool isOnCurve = m_pCurve->HitTest(p).HasBit(HIT_ON);
    const QnGePoint place = isOnCurve ? p : PlaceOnCurve(*m_pCurve, p);
    double dist = 0.0;
    if (!m_pCurve->GetDistFromPt(place, dist)) {
        dist = 0.0;
    }
    return QnGePoint(dist, p.z - m_pCurve->GetElevation(), 0.0);
}

QnGeMLine2d* QnGeCurveCoordSys::CreateElevRect(double height) const {
    return MakeRect(QnGePoint(), m_pCurve->Length(), height);
}

QnGeMLine2d* QnGeCurveCoordSys::CreateElevRect(const QnGeCurve2d& other, double height) const {
    QnGePoint start;
    other.GetStartPoint(start);
    return MakeRect(WcsToCcs(start), other.Length(), height);
}
