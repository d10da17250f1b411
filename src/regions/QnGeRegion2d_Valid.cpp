// SPDX-License-Identifier: Apache-2.0
//
// QnGeRegion2d_Valid.cpp: what makes a region valid.
//
// Phases     1  Outline     valid, not crossing itself, and infinite or closed and counter-clockwise.
//            2  Each hole   the same, but clockwise, and inside the outline.
//            3  Hole pairs  no two holes have area in common.
//            4  Boundaries  meet nowhere, where the region is flagged so.
// Why so     Holes are compared as regions, each one turned to run counter-clockwise; so two holes that touch are
//            valid, and whether they may is the business of the flag.
#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "regions/QnGePolygon2d.h"
#include "regions/QnGeRegion2d.h"

namespace {

/// The part of the rule that is the same for outlines and holes, but for the direction.
bool IsValidBoundary(const QnGeCurve2d& boundary, bool clockwise) {
    if (!boundary.IsValid() || boundary.IsSelfCross()) {
        return false;
    }
    return boundary.IsInfinite() || (boundary.IsClosed() && boundary.IsClockwise() == clockwise);
}

/// A new region with `outline` as its only boundary, a polygon for a straight line; null for null.
std::unique_ptr<QnGeRegion2d> WrapAsRegion(std::unique_ptr<QnGeCurve2d> outline) {
    if (!outline) {
        return nullptr;
    }
    if (outline->GetCI() == &QnGeMLine2d::s_classInfo) {
        return std::make_unique<QnGePolygon2d>(static_cast<const QnGeMLine2d&>(*outline), false);
    }
    return std::make_unique<QnGeGeneralRegion2d>(outline.release(), false);
}

std::unique_ptr<QnGeCurve2d> CloneCurve(const QnGeCurve2d& curve) {
    return std::unique_ptr<QnGeCurve2d>(static_cast<QnGeCurve2d*>(curve.Clone()));
}

/// The area that a hole takes away, as a region of its own; null if the curve has no clone.
std::unique_ptr<QnGeRegion2d> MakeHoleRegion(const QnGeCurve2d& hole) {
    std::unique_ptr<QnGeCurve2d> outline = CloneCurve(hole);
    if (outline) {
        outline->Reverse();
    }
    return WrapAsRegion(std::move(outline));
}

bool AreApart(const QnGeObjList& holeRegions) {
    QnGeObjList common;
    for (QnGeObject* const* a = holeRegions.GetFirst(); a != nullptr; a = holeRegions.GetNext(a)) {
        for (QnGeObject* const* b = holeRegions.GetNext(a); b != nullptr; b = holeRegions.GetNext(b)) {
            const auto& first = static_cast<const QnGeRegion2d&>(**a);
            const auto& second = static_cast<const QnGeRegion2d&>(**b);
            if (first.Inter(second, common)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

bool QnGeRegion2d::IsValid() const {
    if (GetBoundaryNum() < 1) {
        return false;
    }
    if (IsOutlineExist() && !IsValidBoundary(Outline(), false)) {
        return false;
    }
    if (!IsHoleExist()) {
        return true;
    }

    std::unique_ptr<QnGeRegion2d> outlineRegion;
    if (IsOutlineExist()) {
        outlineRegion = WrapAsRegion(CloneCurve(Outline()));
        if (!outlineRegion) {
            return false;
        }
    }
    QnGeObjList holeRegions;
    for (long i = 1; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* hole = GetBoundary(i);
        if (hole == nullptr || !IsValidBoundary(*hole, true)) {
            return false;
        }
        std::unique_ptr<QnGeRegion2d> holeRegion = MakeHoleRegion(*hole);
        if (!holeRegion || (outlineRegion && !outlineRegion->IsInclude(*holeRegion))) {
            return false;
        }
        holeRegions.Append(holeRegion.release());
    }
    if (!AreApart(holeRegions)) {
        return false;
    }
    return IsAllowBoundaryInter() || !IsBoundaryInter();
}

bool QnGeRegion2d::IsBoundaryInter() const {
    const long count = GetBoundaryNum();
    for (long i = 0; i < count; ++i) {
        const QnGeCurve2d* first = GetBoundary(i);
        if (first == nullptr) {
            continue;
        }
        for (long j = i + 1; j < count; ++j) {
            const QnGeCurve2d* second = GetBoundary(j);
            QnGeObjList common;
            if (second != nullptr && first->IntersectWith(*second, common)) {
                return true;
            }
        }
    }
    return false;
}

bool QnGeRegion2d::IsMeetingBoundary(const QnGeCurve2d& hole) const {
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* boundary = GetBoundary(i);
        QnGeObjList common;
        if (boundary != nullptr && hole.IntersectWith(*boundary, common)) {
            return true;
        }
    }
    return false;
}
