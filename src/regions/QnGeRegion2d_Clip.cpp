// SPDX-License-Identifier: Apache-2.0
//
// QnGeRegion2d_Clip.cpp: sorting objects against a region, and the questions that rest on it.
//
// A boundary curve can cut an object into pieces inside, outside and along itself (QnGeCurve2d::Cut). A region is its
// outline less its holes, so its clip is a chain of such cuts:
//
//     object --outline.Cut--> inside --hole 1.Cut--> outside --hole 2.Cut--> ... --> in
//                    |                      |
//                    +--> out, on           +--> out (in the hole), on
//
// Phases     1  CutByOutline  without an outline everything is inside.
//            2  Each hole     sends what lies inside it to `out`; what lies outside goes on to the next hole.
// Ownership  Every piece is new and passes from list to list; the object stays as it is.
// Why so     A region as object is not clipped by IntersectWith: its boolean operations know more about it than the cut
//            of its pieces does. IsInclude asks the difference of straight polygons, which has an answer; of other
//            regions it asks whether their boundaries stay inside and leave the holes alone.
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGePoint.h"

namespace {

bool IsRegion(const QnGeObject& object) {
    return object.IsClassOf(&QnGeRegion2d::s_classInfo);
}

/// Some operations append null where they have nothing to give; a list of nothing else counts as empty.
bool IsNothingIn(const QnGeObjList& list) {
    return list.GetDataNum() == 0;
}

/// The part of `object` inside the outline goes to `inside`, the rest where it belongs.
void CutByOutline(const QnGeCurve2d* outline, const QnGeObject& object, QnGeObjList& inside, QnGeObjList& out,
                  QnGeObjList& on) {
    if (outline != nullptr) {
        outline->Cut(object, inside, out, on);
        return;
    }
    QnGeObject* copy = object.Clone();
    if (copy != nullptr) {
        inside.Append(copy);
    }
}

/// Whether `region` less `other` is known: both are straight, the first without holes.
bool HasDifference(const QnGeRegion2d& region, const QnGeRegion2d& other) {
    const bool isStraight =
        other.GetClassID() == CLASS_ID_POLYGON2D || other.GetClassID() == CLASS_ID_GENERAL_POLYGON2D;
    return region.GetClassID() == CLASS_ID_POLYGON2D && isStraight;
}

/// Whether no piece of the boundaries of `region` is outside `frame`.
bool IsBoundaryInside(const QnGeRegion2d& region, const QnGeRegion2d& frame) {
    if (!region.IsOutlineExist() && frame.IsOutlineExist()) {
        return false;
    }
    for (long i = 0; i < region.GetBoundaryNum(); ++i) {
        const QnGeCurve2d* boundary = region.GetBoundary(i);
        QnGeObjList rest;
        QnGeObjList outside;
        if (boundary != nullptr) {
            frame.Clip(*boundary, rest, outside, rest);
        }
        if (!IsNothingIn(outside)) {
            return false;
        }
    }
    return true;
}

/// Whether `region` covers a hole of `frame`: it then reaches into what the frame leaves out.
bool IsHoleCovered(const QnGeRegion2d& frame, const QnGeRegion2d& region) {
    for (long i = 1; i < frame.GetBoundaryNum(); ++i) {
        const QnGeCurve2d* hole = frame.GetBoundary(i);
        if (hole != nullptr && region.HitTest(hole->GetSamplePoint()) == HIT_ON) {
            return true;
        }
    }
    return false;
}

}  // namespace

void QnGeRegion2d::Clip(const QnGeObject& object, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const {
    QnGeObjList inside;
    CutByOutline(GetBoundary(0), object, inside, out, on);
    for (long i = 1; i < GetBoundaryNum() && !inside.IsEmpty(); ++i) {
        const QnGeCurve2d* hole = GetBoundary(i);
        if (hole == nullptr) {
            continue;
        }
        QnGeObjList pieces;
        pieces.Conbine(inside, 0);
        pieces.CutBy(*hole, out, inside, on);
    }
    in.Conbine(inside, 0);
}

bool QnGeRegion2d::IsInclude(const QnGeObject& other) const {
    QnGeObjList outside;
    if (IsRegion(other)) {
        const auto& region = static_cast<const QnGeRegion2d&>(other);
        if (!HasDifference(region, *this)) {
            return IsBoundaryInside(region, *this) && !IsHoleCovered(*this, region);
        }
        region.SubtractBy(*this, outside);
    } else {
        QnGeObjList rest;
        Clip(other, rest, outside, rest);
    }
    return IsNothingIn(outside);
}

bool QnGeRegion2d::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    if (IsRegion(other)) {
        return Inter(static_cast<const QnGeRegion2d&>(other), result);
    }
    QnGeObjList inside;
    QnGeObjList outside;
    Clip(other, inside, outside, inside);
    if (inside.IsEmpty()) {
        return false;
    }
    result.Conbine(inside, 0);
    return true;
}

void QnGeRegion2d::SubtractBy(const QnGeObjList& regions, QnGeObjList& out) const {
    QnGeObjList remainder;  // of this region, after the regions seen so far
    bool isFirst = true;
    for (QnGeObject* const* entry = regions.GetFirst(); entry != nullptr; entry = regions.GetNext(entry)) {
        if (*entry == nullptr) {
            continue;
        }
        const auto& region = static_cast<const QnGeRegion2d&>(**entry);
        QnGeObjList next;
        if (isFirst) {
            SubtractBy(region, next);
        }
        for (QnGeObject* const* piece = remainder.GetFirst(); piece != nullptr; piece = remainder.GetNext(piece)) {
            if (*piece != nullptr) {
                static_cast<const QnGeRegion2d&>(**piece).SubtractBy(region, next);
            }
        }
        if (IsNothingIn(next)) {
            return;
        }
        isFirst = false;
        remainder.Reset();
        remainder.Conbine(next, 0);
    }
    if (isFirst) {
        remainder.Append(Clone());
    }
    out.Conbine(remainder, 0);
}
