// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/SearchBox.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/CurvePieces.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

namespace {

constexpr double ENDLESS = std::numeric_limits<double>::infinity();
constexpr PlanBox PLANE = {-ENDLESS, ENDLESS, -ENDLESS, ENDLESS};

/// What the tolerances on angles add where a curve has a radius, and the tangents of tiny circles.
double GetRoundSlack(const QnGeCurve2d& curve) {
    switch (curve.GetClassID()) {
        case CLASS_ID_CIRCLE2D:
            return g_angleZero * static_cast<const QnGeCircle2d&>(curve).radius + std::sqrt(g_fZero);
        case CLASS_ID_ARC2D:
            return g_angleZero * static_cast<const QnGeArc2d&>(curve).GetRadius() + std::sqrt(g_fZero);
        default:
            return 0.0;
    }
}

/// A segment without a direction has no parameters on its line either, and may meet anything.
bool IsNullSegment(const QnGeCurve2d& curve) {
    return curve.GetClassID() == CLASS_ID_LINE_SEG2D &&
           !IsGreater(static_cast<const QnGeLineSeg2d&>(curve).GetVector().Length(), g_fZero);
}

PlanBox MakePrimitiveBox(const QnGeCurve2d& curve) {
    QnGeExtent2d extent;
    if (!(g_fZero > 0.0) || IsNullSegment(curve) || !curve.GetExtent2d(extent)) {
        return PLANE;
    }
    constexpr double GAP_SHARE = 5.0;  // each of a pair brings half of the gap
    constexpr double ROUNDING = 1e-15;
    const PlanBox box = {extent.x.min, extent.x.max, extent.y.min, extent.y.max};
    const double size = (box.xMax - box.xMin) + (box.yMax - box.yMin);
    const double gap =
        GAP_SHARE * std::max(g_distZero, 0.0) + 4.0 * (g_fZero + ROUNDING / g_fZero) * size + GetRoundSlack(curve);
    const PlanBox grown = box.Widened(gap);
    return grown.IsBounded() ? grown : PLANE;
}

PlanBox Hull(const PlanBox& a, const PlanBox& b) {
    return {std::min(a.xMin, b.xMin), std::max(a.xMax, b.xMax), std::min(a.yMin, b.yMin), std::max(a.yMax, b.yMax)};
}

}  // namespace

PlanBox MakeSearchBox(const QnGeCurve2d& curve) {
    if (IsPlainPrimitive(curve)) {
        return MakePrimitiveBox(curve);
    }
    if (!IsPlainCompound(curve)) {
        return PLANE;
    }
    PlanBox hull = {ENDLESS, -ENDLESS, ENDLESS, -ENDLESS};
    ForEachPiece(curve, [&hull](const QnGeCurve2d& piece) {
        hull = Hull(hull, MakeSearchBox(piece));
        return hull.IsBounded();
    });
    return hull.IsBounded() ? hull : PLANE;
}

}  // namespace qn_detail
