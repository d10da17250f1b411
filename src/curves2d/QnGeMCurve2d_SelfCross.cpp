// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_SelfCross.cpp: whether a chain meets itself elsewhere than at its joints.
//
// Only children whose boxes meet are intersected; the boxes are so wide that no other pair meets.

#include <cstdint>

#include "containers/detail/PodArray.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "curves2d/detail/SearchBox.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint2d.h"

using qn_detail::BoxSearch;
using qn_detail::ForEachChild;
using qn_detail::PlanBox;
using qn_detail::PodArray;

namespace {

struct IndexedChild {
    const QnGeCurve2d* curve;
    long index;
};

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

bool IsAnyPairCrossing(const QnGeMCurve2d& chain) {
    PodArray<IndexedChild> children;
    PodArray<PlanBox> boxes;
    ForEachChild(chain, [&children, &boxes](const QnGeCurve2d& child, long i) {
        children.Append({&child, i});
        boxes.Append(qn_detail::MakeSearchBox(child));
        return true;
    });
    const Joints joints{chain.GetSegNum(), chain.IsClosed()};
    const BoxSearch search(boxes.begin(), boxes.GetLength());
    PodArray<std::int32_t> near;
    for (long i = 0; i < children.GetLength(); ++i) {
        search.Find(boxes[i], i + 1, boxes.GetLength(), near);
        for (const std::int32_t j : near) {
            QnGeObjList met;
            children[i].curve->IntersectWith(*children[j].curve, met);
            if (!met.IsEmpty() && joints.IsCrossing(children[i].index, children[j].index, met)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

/// Kept odd
bool QnGeMCurve2d::IsSelfCross() const {
    if (GetSegNum() <= 1) {
        const QnGeCurve2d* const only = qn_detail::ChildAt(*this, 0);
        return only != nullptr && only->IsSelfCross();
    }
    return IsAnyBentBack(*this) || IsAnyPairCrossing(*this);
}
