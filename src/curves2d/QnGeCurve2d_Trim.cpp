// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Trim.cpp: cuts an end back to where the curve itself meets other objects.
//
// Phases     1  Meet       the curve with each object.
//            2  Collect    the parameters of the points where they meet; what runs along the curve is no place to cut.
//            3  TrimBack   the end goes to the first of them, the start to the last.
//            4  TakeShape  CopyFrom of the stretch that is left; the only moment at which the curve changes.
// Why so     It is the curve that is cut and not its extension, so whatever is met lies between the ends already.
// Kept odd   The ends count as 0 and 1 whatever the parameter of the class is.

#include <memory>
#include <utility>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/detail/EndMove.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"

namespace {

using qn_detail::SortedPas;
using Result = QnGeCurve2d::ExtendTrimResult;

constexpr double START_PA = 0.0;
constexpr double END_PA = 1.0;

/// The end goes back to `pa`. Where the curve has no start, what is left has none either.
Result TrimEnd(QnGeCurve2d& curve, double pa) {
    if (!curve.IsFinite(true)) {
        std::unique_ptr<QnGeCurve2d> rest = qn_detail::MakePiece(curve, pa, true);
        return rest == nullptr ? QnGeCurve2d::ETR_NO_VALID_POINT : qn_detail::TakeShape(curve, std::move(rest));
    }
    if (IsZero(START_PA - pa, g_fZero)) {
        return QnGeCurve2d::ETR_DEGENERATE;
    }
    return qn_detail::TakeShape(curve, std::unique_ptr<QnGeCurve2d>(curve.GetSubCurve(START_PA, pa)));
}

Result TrimStart(QnGeCurve2d& curve, double pa) {
    if (!curve.IsFinite(false)) {
        std::unique_ptr<QnGeCurve2d> rest = qn_detail::MakePiece(curve, pa, false);
        return rest == nullptr ? QnGeCurve2d::ETR_NO_VALID_POINT : qn_detail::TakeShape(curve, std::move(rest));
    }
    if (IsZero(pa - END_PA, g_fZero)) {
        return QnGeCurve2d::ETR_DEGENERATE;
    }
    return qn_detail::TakeShape(curve, std::unique_ptr<QnGeCurve2d>(curve.GetSubCurve(pa, END_PA)));
}

Result TrimBack(QnGeCurve2d& curve, const QnGeObjList& hits, bool atStart) {
    SortedPas candidates;
    qn_detail::CollectPas(
        curve, hits, [](double /*pa*/) { return true; }, candidates);
    if (candidates.IsEmpty()) {
        return QnGeCurve2d::ETR_NO_VALID_POINT;
    }
    const double first = candidates.GetAt(0);
    const double last = candidates.GetAt(candidates.GetMaxIndex());
    return atStart ? TrimStart(curve, last) : TrimEnd(curve, first);
}

}  // namespace

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Trim(const QnGeObjList& objs, bool atStart) {
    if (objs.IsEmpty()) {
        return ETR_NO_VALID_POINT;
    }
    QnGeObjList hits;
    objs.IntersectWith(*this, hits);
    if (hits.IsEmpty()) {
        return ETR_NO_INTERSECTION;
    }
    return TrimBack(*this, hits, atStart);
}

QnGeCurve2d::ExtendTrimResult QnGeCurve2d::Trim(const QnGeObject& obj, bool atStart) {
    QnGeObjList hits;
    if (!IntersectWith(obj, hits)) {
        return ETR_NO_INTERSECTION;
    }
    return TrimBack(*this, hits, atStart);
}
