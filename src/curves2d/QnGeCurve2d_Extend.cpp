// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Extend.cpp: what carries a curve past its ends, and the lengthening of one end up to other objects.
//
// Phases     1  EndMove    the extension curve, and where the curve's ends are on it.
//            2  Meet       the extension with each object.
//            3  Collect    the parameters of the points that lie beyond the end that moves; what runs along the
//                          extension is no place to move an end to.
//            4  Pick       the nearest or the farthest, counted from the end that stays.
//            5  TakeShape  CopyFrom of the new stretch of the extension; the only moment at which the curve changes.
// Kept odd   On a closed extension every point counts as beyond: an arc may become shorter than it was, and extended to
//            its own other end it becomes the whole circle.

#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/EndMove.h"
#include "frame/QnGeObjList.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector2d.h"

using qn_detail::EndMove;
using qn_detail::SortedPas;

namespace {

/// The ray that comes in from infinity along the tangent and ends where the curve starts.
std::unique_ptr<QnGeLineRay2d> MakeIncomingRay(const QnGeCurve2d& curve, const QnGePoint& start) {
    QnGeBaseLine2d tangent;
    curve.GetTangent(0.0, tangent);
    const QnGeVector2d outward(-tangent.x, -tangent.y);
    auto ray = std::make_unique<QnGeLineRay2d>(outward, start);
    ray->z = -tangent.z;  // the slope goes on
    ray->SetReverseRay(true);
    return ray;
}

/// The ray along which the curve would leave its end.
std::unique_ptr<QnGeLineRay2d> MakeOutgoingRay(const QnGeCurve2d& curve, const QnGePoint& end) {
    QnGeBaseLine2d tangent;
    curve.GetTangent(1.0, tangent);
    return std::make_unique<QnGeLineRay2d>(tangent.GetVector(), end);
}

QnGeCurve2d::ExtendTrimResult ExtendToHits(QnGeCurve2d& curve, EndMove& move, const QnGeObjList& hits, bool nearest) {
    SortedPas candidates;
    const auto isBeyond = [&move](double pa) { return move.IsBeyondMovingEnd(pa); };
    qn_detail::CollectPas(move.Extension(), hits, isBeyond, candidates);
    if (candidates.IsEmpty()) {
        return QnGeCurve2d::ETR_NO_VALID_POINT;
    }
    move.MoveTo(nearest ? move.Nearest(candidates) : move.Farthest(candidates));
    return qn_detail::TakeShape(curve, move.MakeCurve());
}

}  // namespace

QnGeCurve2d* QnGeCurve2d::GetExtendCurve() const {
    if (IsClosed() || IsInfinite()) {
        return static_cast<QnGeCurve2d*>(Clone());
    }
    auto extended = std::make_unique<QnGeMCurve2d>(*this);
    QnGePoint pt;
    if (GetStartPoint(pt)) {
        extended->List().InsertHead(MakeIncomingRay(*this, pt).release());
    }
    if (GetEndPoint(pt)) {
        extended->List().Append(MakeOutgoingRay(*this, pt).release());
    }
    return extended.release();
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Extend(const QnGeObjList& objs, bool atStart, bool nearest) {
    if (objs.IsEmpty()) {
        return ETR_NO_VALID_POINT;
    }
    EndMove move(*this, atStart);
    if (!move.HasExtension() || !move.HasMovingEnd()) {
        return ETR_FAILED;
    }
    QnGeObjList hits;
    objs.IntersectWith(move.Extension(), hits);
    if (hits.IsEmpty()) {
        return ETR_NO_INTERSECTION;
    }
    return ExtendToHits(*this, move, hits, nearest);
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Extend(const QnGeObject& obj, bool atStart, bool nearest) {
    EndMove move(*this, atStart);
    if (!move.HasExtension() || !move.HasMovingEnd()) {
        return ETR_FAILED;
    }
    QnGeObjList hits;
    if (!move.Extension().IntersectWith(obj, hits)) {
        return ETR_NO_INTERSECTION;
    }
    return ExtendToHits(*this, move, hits, nearest);
}
