// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_Parameter.cpp: points, distances, tangents and integrals of a chain by its parameter.
//
// Why so  Once a child is chosen its answer counts as one: some classes answer false at their ends although they fill
//         the point.

#include <utility>

#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "curves2d/detail/EvenShares.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint.h"

using qn_detail::ChildAt;
using qn_detail::ForEachChild;
using qn_detail::PaOfPart;

namespace {

/// The integral from `pa1` on up to `pa2`, which is not before it.
double IntegrateForward(const QnGeMCurve2d& chain, double pa1, double pa2) {
    const long i = chain.GetSegIndexFromPa(pa1);
    const long j = chain.GetSegIndexFromPa(pa2);
    const QnGeCurve2d* const first = ChildAt(chain, i);
    const QnGeCurve2d* const last = ChildAt(chain, j);
    if (first == nullptr || last == nullptr) {
        return 0.0;
    }
    if (i == j) {
        return first->Integration(pa1, pa2);
    }
    double sum = first->Integration(pa1, 1.0);
    sum += last->Integration(0.0, pa2);
    ForEachChild(chain, i + 1, j, [&sum](const QnGeCurve2d& child, long) {
        sum += child.TotalIntegration();
        return true;
    });
    return sum;
}

}  // namespace

long QnGeMCurve2d::GetSegIndexFromPa(double& pa) const {
    return qn_detail::PartIndexFromPa(GetSegNum(), pa);
}

bool QnGeMCurve2d::GetPtFromPa(double pa, QnGePoint& pt) const {
    const bool isStart = IsZero(pa, g_fZero);
    const bool isEnd = !isStart && IsZero(pa - 1.0, g_fZero);
    if ((isEnd && GetEndPoint(pt)) || (isStart && GetStartPoint(pt))) {
        return true;
    }
    const QnGeCurve2d* const child = ChildAt(*this, GetSegIndexFromPa(pa));
    if (child == nullptr) {
        return false;
    }
    child->GetPtFromPa(pa, pt);
    return true;
}

bool QnGeMCurve2d::GetPaFromPt(const QnGePoint& pt, double& pa) const {
    pa = -1.0;
    bool found = false;
    ForEachChild(*this, [this, &pt, &pa, &found](const QnGeCurve2d& child, long i) {
        if (!child.HitTest(pt).HasBit(HIT_ON)) {
            return true;
        }
        double local = 0.0;
        child.GetPaFromPt(pt, local);
        pa = PaOfPart(i, local, GetSegNum());
        found = true;
        return false;
    });
    return found;
}

bool QnGeMCurve2d::GetPaFromDist(double dist, double& pa) const {
    pa = -1.0;
    bool found = false;
    double travelled = 0.0;
    ForEachChild(*this, [this, dist, &pa, &found, &travelled](const QnGeCurve2d& child, long i) {
        const double length = child.Length();
        const double rest = dist - travelled;
        const bool isHere = rest >= -g_distZero && dist - (travelled + length) <= g_distZero;
        if (!isHere) {
            travelled += length;
            return true;
        }
        double local = 0.0;
        child.GetPaFromDist(rest, local);
        pa = PaOfPart(i, local, GetSegNum());
        found = true;
        return false;
    });
    return found;
}

bool QnGeMCurve2d::GetDistFromPa(double pa, double& dist) const {
    if (IsEmpty()) {
        return false;
    }
    if (IsZero(pa, g_fZero)) {
        dist = 0.0;
        return true;
    }
    if (IsZero(pa - 1.0, g_fZero)) {
        dist = Length();
        return true;
    }
    const long i = GetSegIndexFromPa(pa);
    const QnGeCurve2d* const here = ChildAt(*this, i);
    if (here == nullptr) {
        return false;
    }
    double sum = 0.0;
    here->GetDistFromPa(pa, sum);
    ForEachChild(*this, 0, i, [&sum](const QnGeCurve2d& child, long) {
        sum += child.Length();
        return true;
    });
    dist = sum;
    return true;
}

void QnGeMCurve2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    const QnGeCurve2d* const child = ChildAt(*this, GetSegIndexFromPa(pa));
    if (child != nullptr) {
        child->GetTangent(pa, tangent);
    }
}

double QnGeMCurve2d::Integration(double pa1, double pa2) const {
    const double difference = pa1 - pa2;
    if (IsZero(difference, g_fZero)) {
        return 0.0;
    }
    const bool isBackward = difference > 0.0;
    return isBackward ? -IntegrateForward(*this, pa2, pa1) : IntegrateForward(*this, pa1, pa2);
}
