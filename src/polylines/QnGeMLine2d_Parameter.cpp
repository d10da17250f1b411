// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_Parameter.cpp: points, distances, tangents and integrals of a multi-line by its parameter.

#include <utility>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/LineParameter.h"
#include "values/QnGeBaseLine2d.h"

long QnGeMLine2d::GetSegIndexFromPa(double& pa) const {
    return qn_detail::PartIndexFromPa(GetSegNum(), pa);
}

bool QnGeMLine2d::GetStartPoint(QnGePoint& point) const {
    if (GetVertexNum() == 0) {
        return false;
    }
    point = GetVertex(0);
    return true;
}

bool QnGeMLine2d::GetEndPoint(QnGePoint& point) const {
    if (IsClosed()) {
        return GetStartPoint(point);
    }
    if (GetVertexNum() == 0) {
        return false;
    }
    point = GetVertex(GetVertexNum() - 1);
    return true;
}

bool QnGeMLine2d::GetPtFromPa(double pa, QnGePoint& point) const {
    if (IsZero(pa, g_fZero)) {
        GetStartPoint(point);
        return true;
    }
    if (IsZero(pa - 1.0, g_fZero)) {
        GetEndPoint(point);
        return true;
    }
    const long i = GetSegIndexFromPa(pa);
    if (i < 0) {
        return false;
    }
    QnGeBaseLine2d line;
    GetSegment(i, line);
    line.GetPtFromPa(pa, point);
    const double z0 = GetVertex(i).z;
    const double z1 = GetVertex((i + 1) % GetVertexNum()).z;
    point.z = z0 + pa * (z1 - z0);
    return true;
}

bool QnGeMLine2d::GetPaFromPt(const QnGePoint& point, double& pa) const {
    return qn_detail::GetLinePaFromPt(*this, point, pa);
}

bool QnGeMLine2d::GetPaFromDist(double dist, double& pa) const {
    return qn_detail::GetLinePaFromDist(*this, dist, pa);
}

bool QnGeMLine2d::GetDistFromPa(double pa, double& dist) const {
    return qn_detail::GetLineDistFromPa(*this, pa, dist);
}

void QnGeMLine2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    const long i = GetSegIndexFromPa(pa);
    if (i < 0) {
        return;
    }
    GetSegment(i, tangent);
    tangent.Normalize();
}

double QnGeMLine2d::Integration(double pa1, double pa2) const {
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

    QnGeBaseLine2d line;
    GetSegment(first, line);
    double sum = 0.0;
    if (first == last) {
        sum = line.Integration(pa1, pa2);
    } else {
        sum = line.Integration(pa1, 1.0);
        GetSegment(last, line);
        sum += line.Integration(0.0, pa2);
        for (long i = first + 1; i < last; i++) {
            GetSegment(i, line);
            sum += line.Integration(0.0, 1.0);
        }
    }
    return isBackward ? -sum : sum;
}
