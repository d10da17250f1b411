// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_Parameter.cpp: points, distances, tangents and integrals of a multi-line by its parameter.

#include <utility>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/SegmentView.h"
#include "values/QnGeBaseLine2d.h"

// Clamped before the conversion, so that no parameter leads out of the range of a whole number; NaN gives segment 0.
long QnGeMLine2d::GetSegIndexFromPa(double& pa) const {
    const long count = GetSegNum();
    if (count == 0) {
        return -1;
    }
    const double place = pa * static_cast<double>(count);
    long i = 0;
    if (place >= static_cast<double>(count - 1)) {
        i = count - 1;
    } else if (place > 0.0) {
        i = static_cast<long>(place);
    }
    pa = place - static_cast<double>(i);
    return i;
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
    pa = -1.0;
    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        const QnGeLineSeg2d& seg = view.Get(*this, i);
        if (seg.HitTest(point).HasBit(HIT_ON)) {
            double local = 0.0;
            seg.GetPaFromPt(point, local);
            pa = (static_cast<double>(i) + local) / static_cast<double>(count);
            return true;
        }
    }
    return false;
}

bool QnGeMLine2d::GetPaFromDist(double dist, double& pa) const {
    pa = -1.0;
    QnGeBaseLine2d line;
    double travelled = 0.0;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        GetSegment(i, line);
        const double length = line.Length();
        const double rest = dist - travelled;
        const bool isHere = rest >= -g_distZero && dist - (travelled + length) <= g_distZero;
        if (isHere) {
            double local = 0.0;
            line.GetPaFromDist(rest, local);
            pa = (static_cast<double>(i) + local) / static_cast<double>(count);
            return true;
        }
        travelled += length;
    }
    return false;
}

bool QnGeMLine2d::GetDistFromPa(double pa, double& dist) const {
    if (IsZero(pa, g_fZero)) {
        dist = 0.0;
        return true;
    }
    if (IsZero(pa - 1.0, g_fZero)) {
        dist = Length();
        return true;
    }
    const long last = GetSegIndexFromPa(pa);
    if (last < 0) {
        return false;
    }
    QnGeBaseLine2d line;
    GetSegment(last, line);
    line.GetDistFromPa(pa, dist);
    for (long i = 0; i < last; i++) {
        GetSegment(i, line);
        dist += line.Length();
    }
    return true;
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
