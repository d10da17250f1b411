// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Cut.cpp: a curve as the knife on a curve, a region or a point.
//
// Phases     1  CollectCuts    parameters on the victim: of each crossing, and of the ends of each overlap.
//            2  Split          the victim's own Split at these, in ascending order.
//            3  SortPiece      each piece by the knife's HitTest of its sample point.
// Order      Each list along the victim; over the seam of a closed one last.
// Kept odd   What has no side goes to `in`: that is all that is not on an open knife whose HitTest knows no sides.

#include <memory>
#include <utility>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePoint2d.h"

namespace {

constexpr long PA_ALLOC_UNIT = 10;

/// The three lists by the name of what goes there.
struct Sorted {
    QnGeObjList& in;
    QnGeObjList& out;
    QnGeObjList& on;
};

/// The list for what `sides` tells of.
QnGeObjList& ListFor(const QnBitData& sides, const Sorted& sorted) {
    if (sides.HasBit(HIT_ON)) {
        return sorted.on;
    }
    return sides.HasBit(HIT_OUT) ? sorted.out : sorted.in;
}

void AppendClone(const QnGeObject& object, QnGeObjList& list) {
    QnGeObject* const clone = object.Clone();
    if (clone != nullptr) {
        list.Append(clone);
    }
}

void AppendPa(const QnGeCurve2d& victim, const QnGePoint& pt, QnDynArray<double>& pas) {
    double pa = 0.0;
    victim.GetPaFromPt(pt, pa);
    pas.Append(pa);
}

void AppendOverlapEnds(const QnGeCurve2d& victim, const QnGeCurve2d& overlap, QnDynArray<double>& pas) {
    QnGePoint pt;
    if (overlap.IsFinite(true)) {
        overlap.GetStartPoint(pt);
        AppendPa(victim, pt, pas);
    }
    if (overlap.IsFinite(false)) {
        overlap.GetEndPoint(pt);
        AppendPa(victim, pt, pas);
    }
}

void CollectCuts(const QnGeCurve2d& victim, const QnGeObjList& hits, QnDynArray<double>& pas) {
    for (auto entry = hits.GetFirst(); entry != nullptr; entry = hits.GetNext(entry)) {
        const QnGeObject* const hit = *entry;
        if (hit == nullptr) {
            continue;
        }
        if (hit->IsClassOf(&QnGePoint2d::s_classInfo)) {
            AppendPa(victim, static_cast<const QnGePoint2d&>(*hit), pas);
        } else if (hit->IsClassOf(&QnGeCurve2d::s_classInfo)) {
            AppendOverlapEnds(victim, static_cast<const QnGeCurve2d&>(*hit), pas);
        }
    }
    pas.Sort(true);
}

void SortPiece(const QnGeCurve2d& knife, std::unique_ptr<QnGeObject> piece, const Sorted& sorted) {
    QnGeObjList& list = ListFor(knife.HitTest(piece->GetSamplePoint()), sorted);
    list.Append(piece.release());
}

void CutCurve(const QnGeCurve2d& knife, const QnGeCurve2d& victim, const Sorted& sorted) {
    QnGeObjList hits;
    if (!knife.IntersectWith(victim, hits)) {
        const bool outside = knife.HitTest(victim.GetSamplePoint()).HasBit(HIT_OUT);
        AppendClone(victim, outside ? sorted.out : sorted.in);
        return;
    }
    QnDynArray<double> pas(0, PA_ALLOC_UNIT);
    CollectCuts(victim, hits, pas);
    if (pas.IsEmpty()) {
        AppendClone(victim, sorted.on);  // overlaps without ends: the knife carries the whole victim
        return;
    }
    QnGeObjList pieces;
    victim.Split(pas, pieces);
    while (!pieces.IsEmpty()) {
        std::unique_ptr<QnGeObject> piece(pieces.TakeOffHead());
        if (piece != nullptr) {
            SortPiece(knife, std::move(piece), sorted);
        }
    }
}

void CutPoint(const QnGeCurve2d& knife, const QnGePoint2d& point, const Sorted& sorted) {
    ListFor(knife.HitTest(point), sorted).Append(new QnGePoint2d(point));
}

}  // namespace

void QnGeCurve2d::Cut(const QnGeObject& obj, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const {
    const Sorted sorted{in, out, on};
    if (obj.IsClassOf(&QnGeCurve2d::s_classInfo)) {
        CutCurve(*this, static_cast<const QnGeCurve2d&>(obj), sorted);
    } else if (obj.IsClassOf(&QnGeRegion2d::s_classInfo)) {
        static_cast<const QnGeRegion2d&>(obj).CutBy(*this, in, out);
    } else if (obj.IsClassOf(&QnGePoint2d::s_classInfo)) {
        CutPoint(*this, static_cast<const QnGePoint2d&>(obj), sorted);
    }
}
