// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Connect.cpp: moves an end to where the curve, lengthened or shortened, meets other objects, and makes
// two curves share an end.
//
// Phases     1  EndMove    the extension curve, and where the curve's ends are on it.
//            2  Collect    the parameters of the points where the extension meets an object, unless the end that stays
//                          would be passed. Of several objects each offers the point closest to the moving end only.
//            3  Pick       as the caller wants: near or far from the end that stays, or closest to the one that moves.
//            4  TakeShape  CopyFrom of the new stretch; the only moment at which the curve changes.
// Why so     Two curves that are to share an end are each connected with the extension of the other, not with the other
//            itself, so that neither needs to reach the other.
// Kept odd   Start and end on a closed extension are compared without its period: they may be a whole turn apart and
//            still give a curve.

#include <memory>
#include <utility>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/detail/EndMove.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint.h"

using qn_detail::EndMove;
using qn_detail::SortedPas;

namespace {

using Result = QnGeCurve2d::ExtendTrimResult;

/// The values of `pickMode`; every other one is PICK_CLOSEST.
constexpr int PICK_FARTHEST = 0;
constexpr int PICK_NEAREST = 1;
constexpr int PICK_CLOSEST = 2;

/// No joint may make a curve longer than this many times its length.
constexpr double MOST_STRETCH = 5.0;

double Pick(const EndMove& move, const SortedPas& candidates, int pickMode) {
    if (pickMode == PICK_NEAREST) {
        return move.Nearest(candidates);
    }
    const bool isNothingToBeCloseTo = !move.Extension().IsClosed() && !move.HasMovingEnd();
    if (pickMode == PICK_FARTHEST || isNothingToBeCloseTo) {
        return move.Farthest(candidates);
    }
    return move.ClosestToMovingEnd(candidates);
}

void CollectPlaces(const EndMove& move, const QnGeObjList& hits, SortedPas& candidates) {
    const auto isClear = [&move](double pa) { return move.IsClearOfStayingEnd(pa); };
    qn_detail::CollectPas(move.Extension(), hits, isClear, candidates);
}

Result ConnectToPlaces(QnGeCurve2d& curve, EndMove& move, const SortedPas& candidates, int pickMode) {
    if (candidates.IsEmpty()) {
        return QnGeCurve2d::ETR_NO_VALID_POINT;
    }
    move.MoveTo(Pick(move, candidates, pickMode));
    if (move.HasStayingEnd() && move.IsEmpty()) {
        return QnGeCurve2d::ETR_DEGENERATE;
    }
    return qn_detail::TakeShape(curve, move.MakeCurve());
}

/// Adds the one place that `obj` offers; the answer is whether the extension meets it at all.
bool CollectPlaceOf(const EndMove& move, const QnGeObject& obj, SortedPas& candidates) {
    QnGeObjList hits;
    if (!move.Extension().IntersectWith(obj, hits)) {
        return false;
    }
    SortedPas own;
    CollectPlaces(move, hits, own);
    if (!own.IsEmpty()) {
        candidates.SortInto(move.ClosestToMovingEnd(own), false);
    }
    return true;
}

}  // namespace

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Connect(const QnGeObjList& objs, bool atStart, int pickMode) {
    if (objs.IsEmpty()) {
        return ETR_NO_VALID_POINT;
    }
    EndMove move(*this, atStart);
    if (!move.HasExtension()) {
        return ETR_FAILED;
    }
    SortedPas candidates;
    bool isAnythingMet = false;
    for (auto entry = objs.GetFirst(); entry != nullptr; entry = objs.GetNext(entry)) {
        if (*entry != nullptr && CollectPlaceOf(move, **entry, candidates)) {
            isAnythingMet = true;
        }
    }
    if (!isAnythingMet) {
        return ETR_NO_INTERSECTION;
    }
    return ConnectToPlaces(*this, move, candidates, pickMode);
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Connect(const QnGeObject& obj, bool atStart, int pickMode) {
    EndMove move(*this, atStart);
    if (!move.HasExtension()) {
        return ETR_FAILED;
    }
    QnGeObjList hits;
    if (!move.Extension().IntersectWith(obj, hits)) {
        return ETR_NO_INTERSECTION;
    }
    SortedPas candidates;
    CollectPlaces(move, hits, candidates);
    return ConnectToPlaces(*this, move, candidates, pickMode);
}

// ---- two curves --------------------------------------------------------------------------------------

namespace {

/// One end of a curve; the origin if the class writes no point.
QnGePoint EndOf(const QnGeCurve2d& curve, bool atStart) {
    QnGePoint pt;
    if (atStart) {
        curve.GetStartPoint(pt);
    } else {
        curve.GetEndPoint(pt);
    }
    return pt;
}

bool ShareEnd(const QnGeCurve2d& a, bool atStartA, const QnGeCurve2d& b, bool atStartB) {
    return IsZero(GetDistance2d(EndOf(b, atStartB), EndOf(a, atStartA)), g_distZero);
}

/// Whether the curve still runs the same way at that end.
bool KeepsDirection(const QnGeCurve2d& before, const QnGeCurve2d& after, bool atStart) {
    const double endPa = atStart ? 0.0 : 1.0;
    QnGeBaseLine2d old;
    QnGeBaseLine2d present;
    before.GetTangent(endPa, old);
    after.GetTangent(endPa, present);
    return old.IsSameDirection(present.GetVector(), false);
}

bool IsStretchedTooFar(const QnGeCurve2d& before, const QnGeCurve2d& after) {
    return after.Length() > MOST_STRETCH * before.Length();
}

}  // namespace

bool QnGeCurve2d::IsConnectWith(const QnGeCurve2d& next) const {
    if (!IsFinite(false) || !next.IsFinite(true)) {
        return false;
    }
    return ShareEnd(*this, false, next, true);
}

bool QnGeCurve2d::ConnectWith(QnGeCurve2d& next) {
    if (IsConnectWith(next)) {
        return true;
    }
    const std::unique_ptr<QnGeCurve2d> ownExtension(GetExtendCurve());
    const std::unique_ptr<QnGeCurve2d> nextExtension(next.GetExtendCurve());
    if (ownExtension == nullptr || nextExtension == nullptr) {
        return false;
    }
    Connect(*nextExtension, false, PICK_CLOSEST);
    next.Connect(*ownExtension, true, PICK_CLOSEST);
    return IsConnectWith(next);
}

bool ConnectCurveSeg(QnGeCurve2d* a, QnGeCurve2d* b, bool atStartA, bool atStartB) {
    if (ShareEnd(*a, atStartA, *b, atStartB)) {
        return true;
    }
    const std::unique_ptr<QnGeCurve2d> extensionA(a->GetExtendCurve());
    const std::unique_ptr<QnGeCurve2d> extensionB(b->GetExtendCurve());
    const std::unique_ptr<QnGeCurve2d> newA(static_cast<QnGeCurve2d*>(a->Clone()));
    const std::unique_ptr<QnGeCurve2d> newB(static_cast<QnGeCurve2d*>(b->Clone()));
    if (extensionA == nullptr || extensionB == nullptr || newA == nullptr || newB == nullptr) {
        return false;
    }
    newA->Connect(*extensionB, atStartA, PICK_CLOSEST);
    newB->Connect(*extensionA, atStartB, PICK_CLOSEST);
    if (!ShareEnd(*newA, atStartA, *newB, atStartB)) {
        return false;
    }
    if (!KeepsDirection(*a, *newA, atStartA) || !KeepsDirection(*b, *newB, atStartB)) {
        return false;
    }
    if (IsStretchedTooFar(*a, *newA) || IsStretchedTooFar(*b, *newB)) {
        return false;
    }
    a->CopyFrom(newA.get());
    b->CopyFrom(newB.get());
    return true;
}
