// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Extend.cpp: what carries a curve past its ends, and what moves or joins the ends.

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGePoint.h"

QnGeCurve2d* QnGeCurve2d::GetExtendCurve() const {
    if (!IsClosed() && !IsInfinite()) {
        return nullptr;
    }
    return static_cast<QnGeCurve2d*>(Clone());
}

bool QnGeCurve2d::IsConnectWith(const QnGeCurve2d& next) const {
    if (!IsFinite(false) || !next.IsFinite(true)) {
        return false;
    }
    QnGePoint end;
    QnGePoint nextStart;
    GetEndPoint(end);
    next.GetStartPoint(nextStart);
    return IsZero(GetDistance2d(end, nextStart), g_distZero);
}

bool QnGeCurve2d::ConnectWith(QnGeCurve2d& /*next*/) {
    return false;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Extend(const QnGeObjList& /*objs*/, bool /*atStart*/, bool /*nearest*/) {
    return ETR_FAILED;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Extend(const QnGeObject& /*obj*/, bool /*atStart*/, bool /*nearest*/) {
    return ETR_FAILED;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Trim(const QnGeObjList& /*objs*/, bool /*atStart*/) {
    return ETR_FAILED;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Trim(const QnGeObject& /*obj*/, bool /*atStart*/) {
    return ETR_FAILED;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Connect(const QnGeObjList& /*objs*/, bool /*atStart*/, int /*pickMode*/) {
    return ETR_FAILED;
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Connect(const QnGeObject& /*obj*/, bool /*atStart*/, int /*pickMode*/) {
    return ETR_FAILED;
}

bool ConnectCurveSeg(QnGeCurve2d* /*a*/, QnGeCurve2d* /*b*/, bool /*atStartA*/, bool /*atStartB*/) {
    return false;
}
