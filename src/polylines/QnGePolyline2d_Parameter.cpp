// SPDX-License-Identifier: Apache-2.0
//
// QnGePolyline2d_Parameter.cpp: points, distances, tangents and integrals of a polyline by its parameter.

#include <utility>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/LineParameter.h"
#include "polylines/detail/SegmentView.h"
#include "values/QnGeBaseLine2d.h"

/// Kept odd
bool QnGePolyline2d::GetPtFromPa(double pa, QnGePoint& point) const {
    if (IsZero(pa, g_fZero)) {
        GetStartPoint(point);
        return false;
    }
    if (IsZero(pa - 1.0, g_fZero)) {
        GetEndPoint(point);
        return false;
    }
    const long i = GetSegIndexFromPa(pa);
    if (i < 0) {
        return false;
    }
    qn_detail::SegmentView view;
    view.Get(*this, i).GetPtFromPa(pa, point);
    const double z0 = GetVertex(i).z;
    const double z1 = GetVertex((i + 1) % GetVertexNum()).z;
    point.z = z0 + pa * (z1 - z0);
    return true;
}

bool QnGePolyline2d::GetPaFromPt(const QnGePoint& point, double& pa) const {
    return qn_detail::GetLinePaFromPt(*this, point, pa);
}

bool QnGePolyline2d::GetPaFromDist(double dist, double& pa) const {
    return qn_detail::GetLinePaFromDist(*this, dist, pa);
}

bool QnGePolyline2d::GetDistFromPa(double pa, double& dist) const {
    return qn_detail::GetLineDistFromPa(*this, pa, dist);
}

void QnGePolyline2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    const long i = GetSegIndexFromPa(pa);
    if (i < 0) {
        return;
    }
    if (IsArcSeg(i)) {
        qn_detail::SegmentView view;
        view.GetArc(*this, i).GetTangent(pa, tangent);
        return;
    }
    GetSegment(i, tangent);
    tangent.Normalize();
}

double QnGePolyline2d::Integration(double pa1, double pa2) const {
    const double difference = pa1 - pa2;
    if (GetSegNum() == 0 || IsZero(difference, g_fZero)) {
        return 0.0;
    }
    const bool isBackward = difference > 0.0;
    if (isBackward) {
        std::swap(pa1, pa2);
    }
    const long first = GetSegIndexFromPa(pa1);
    const long last = GetSegIndexFromPa(pa2);

    qn_detail::SegmentView view;
    double sum = 0.0;
    if (first == last) {
        sum = view.Get(*this, first).Integration(pa1, pa2);
    } else {
        sum = view.Get(*this, first).Integration(pa1, 1.0);
        sum += view.Get(*this, last).Integration(0.0, pa2);
        for (long i = first + 1; i < last; i++) {
            sum += view.Get(*this, i).TotalIntegration();
        }
    }
    return isBackward ? -sum : sum;
}
