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

/// What counts of a curve beside its extent.
struct Shape {
    double radius;  ///< 0 of what is straight
    bool isUsual;   ///< a degenerate curve is not: it may meet anything
};

bool IsUsualCircle(double radius) {
    return radius > 0.0;
}

/// An arc without sweep runs, by its angles, over all that shares its circle; with angles of many turns it is not where
/// these say to the last digits.
bool IsUsualArc(const QnGeArc2d& arc) {
    constexpr double SMALLEST_SWEEP = 1e-9;
    constexpr double LARGEST_ANGLE = 2.0 * QN_TWO_PI;
    return IsUsualCircle(arc.GetRadius()) && arc.GetCentralAngle() > SMALLEST_SWEEP &&
           arc.GetCentralAngle() <= LARGEST_ANGLE && std::fabs(arc.GetStartAngle()) <= LARGEST_ANGLE;
}

/// A segment without a direction has no parameters on its line either.
bool IsUsualSegment(const QnGeLineSeg2d& segment) {
    return IsGreater(segment.GetVector().Length(), g_fZero);
}

Shape GetShape(const QnGeCurve2d& curve) {
    switch (curve.GetClassID()) {
        case CLASS_ID_LINE_SEG2D:
            return {0.0, IsUsualSegment(static_cast<const QnGeLineSeg2d&>(curve))};
        case CLASS_ID_CIRCLE2D: {
            const double radius = static_cast<const QnGeCircle2d&>(curve).radius;
            return {radius, IsUsualCircle(radius)};
        }
        case CLASS_ID_ARC2D: {
            const auto& arc = static_cast<const QnGeArc2d&>(curve);
            return {arc.GetRadius(), IsUsualArc(arc)};
        }
        default:
            return {0.0, true};
    }
}

/// What the tolerances on angles add where a curve has a radius, and the tangents of tiny circles. The root of a
/// rounding error is an angle by which a point may be off on a large circle.
double GetRoundSlack(double radius) {
    constexpr double ANGLE_ROUNDING = 1e-7;
    return radius > 0.0 ? std::max(g_angleZero, ANGLE_ROUNDING) * radius + std::sqrt(g_fZero) : 0.0;
}

/// By how much of their common size nearly parallel curves may be apart where they meet.
double GetParallelShare() {
    constexpr double ROUNDING = 1e-15;
    constexpr double SAFETY = 4.0;
    return SAFETY * (g_fZero + ROUNDING / g_fZero);
}

/// What the coordinates and the radius leave open by their magnitude alone.
double GetRoundingGap(const PlanBox& box, double radius) {
    constexpr double ROUNDING = 4e-15;
    const double xFar = std::max(std::fabs(box.xMin), std::fabs(box.xMax));
    const double yFar = std::max(std::fabs(box.yMin), std::fabs(box.yMax));
    return ROUNDING * (xFar + yFar + radius);
}

/// Beyond it lengths, and distances to what is near the origin, may be out of range: tests then say anything.
bool IsWithinReach(const PlanBox& box) {
    return box.xMin > -QN_FAR_LIMIT && box.xMax < QN_FAR_LIMIT && box.yMin > -QN_FAR_LIMIT && box.yMax < QN_FAR_LIMIT;
}

// Boxes count as apart by more than the share of the hull of both. Of a hull whose boxes are apart the gaps, in x and
// in y, are a part: so the share of the sizes alone is share / (1 - 2 share), and from half on nothing is ever apart.
PlanBox MakePrimitiveBox(const QnGeCurve2d& curve) {
    constexpr double GAP_SHARE = 5.0;  // each of a pair brings half of the gap
    constexpr double LARGEST_SHARE = 0.4;
    const bool areTolerancesUsual = g_fZero > 0.0 && g_distZero >= 0.0 && g_angleZero >= 0.0;
    const double share = GetParallelShare();
    const Shape shape = GetShape(curve);
    QnGeExtent2d extent;
    if (!areTolerancesUsual || !(share < LARGEST_SHARE) || !shape.isUsual || !curve.GetExtent2d(extent)) {
        return PLANE;
    }
    const PlanBox box = {extent.x.min, extent.x.max, extent.y.min, extent.y.max};
    const double size = (box.xMax - box.xMin) + (box.yMax - box.yMin);
    const double gap = GAP_SHARE * g_distZero + share / (1.0 - 2.0 * share) * size + GetRoundSlack(shape.radius) +
                       GetRoundingGap(box, shape.radius);
    const PlanBox grown = box.Widened(gap);
    return IsWithinReach(grown) ? grown : PLANE;
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
