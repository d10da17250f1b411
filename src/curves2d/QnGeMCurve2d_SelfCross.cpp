// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_SelfCross.cpp: whether a chain meets itself elsewhere than at its joints.

#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint2d.h"

using qn_detail::ForEachChild;

namespace {

bool IsAnyBentBack(const QnGeMCurve2d& chain) {
    bool isAny = false;
    ForEachChild(chain, [&isAny](const QnGeCurve2d& child, long) {
        isAny = child.IsClosed() || child.IsSelfCross();
        return !isAny;
    });
    return isAny;
}

bool HasOnlyPoints(const QnGeObjList& met) {
    for (auto entry = met.GetFirst(); entry != nullptr; entry = met.GetNext(entry)) {
        if (*entry == nullptr || (*entry)->GetCI() != &QnGePoint2d::s_classInfo) {
            return false;
        }
    }
    return true;
}

/// The pairs that may meet: neighbours in a single point, and two halves of a ring in two.
struct Joints {
    long count;
    bool isClosed;

    bool IsCrossing(long i, long j, const QnGeObjList& met) const {
        if (!HasOnlyPoints(met) || met.GetLength() > 2) {
            return true;
        }
        if (met.GetLength() == 2) {
            return !(count == 2 && isClosed);
        }
        const bool isSeam = isClosed && i == 0 && j == count - 1;
        return j != i + 1 && !isSeam;
    }
};

}  // namespace

/// Kept odd
bool QnGeMCurve2d::IsSelfCross() const {
    const long count = GetSegNum();
    if (count <= 1) {
        const QnGeCurve2d* const only = qn_detail::ChildAt(*this, 0);
        return only != nullptr && only->IsSelfCross();
    }
    if (IsAnyBentBack(*this)) {
        return true;
    }
    const Joints joints{count, IsClosed()};
    bool isCrossing = false;
    ForEachChild(*this, [this, count, &joints, &isCrossing](const QnGeCurve2d& first, long i) {
        ForEachChild(*this, i + 1, count, [&](const QnGeCurve2d& second, long j) {
            QnGeObjList met;
            isCrossing = first.IntersectWith(second, met) && joints.IsCrossing(i, j, met);
            return !isCrossing;
        });
        return !isCrossing;
    });
    return isCrossing;
}
