// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_HitTest.cpp: on, inside or outside of any closed curve, and left or right of any curve.
//
// Inside and outside without a ray count. The vertical line through the point is cut by the curve; the crossing next
// below the point and the one next above it span a chord, and the chord cuts the closed curve into two loops:
//
//      inside             outside, in a bay
//      .---b---.          .-------.
//      |   |   |          |  .--b-'
//      |   p   |          |  |  p          inside:   both loops turn the same way
//      |   |   |          |  '--a-.        outside:  one turns against the other
//      '---a---'          '-------'
//
// Phases     1  HitsPiece          on the curve is settled by the pieces.
//            2  CollectHeights     heights of the crossings over the point, along the vertical line.
//            3  FindChord          the neighbours a <= 0 < b.
//            4  IsChordInside      the areas of the two loops: the integral of y dx over one stretch, and the rest.
// Why so     The chord is vertical, so it adds nothing to the integral of y dx: a loop's area is the integral of its
//            stretch alone. No parity is counted: a tangent touch gives one more crossing and changes nothing, and
//            the direction of the curve turns both signs.
// Tolerance  g_distZero for being on; the heights and the signs of the areas are exact.
// Cost       One intersection, one sub-curve and two integrals.

#include <memory>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/detail/CurvePieces.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint.h"

namespace {

bool HitsPiece(const QnGeCurve2d& curve, const QnGePoint& pt) {
    bool hit = false;
    qn_detail::ForEachPiece(curve, [&hit, &pt](const QnGeCurve2d& piece) {
        hit = piece.HitTest(pt).HasBit(HIT_ON);
        return !hit;
    });
    return hit;
}

/// The line through `pt` whose parameter is the height over it.
QnGeLine2d VerticalThrough(const QnGePoint& pt) {
    return QnGeLine2d(pt, QnGePoint(pt.x, pt.y + 1.0, 0.0));
}

/// The height of each crossing, overlaps by their sample point, ascending.
///
/// Fails  False as soon as a crossing has the point itself.
bool CollectHeights(const QnGeObjList& hits, const QnGeLine2d& vertical, const QnGePoint& pt,
                    QnDynArray<double>& heights) {
    for (auto entry = hits.GetFirst(); entry != nullptr; entry = hits.GetNext(entry)) {
        const QnGeObject* const hit = *entry;
        if (hit == nullptr) {
            continue;
        }
        if (hit->HitTest(pt).HasBit(HIT_ON)) {
            return false;
        }
        double height = 0.0;
        vertical.GetPaFromPt(hit->GetSamplePoint(), height);
        heights.Append(height);
    }
    heights.Sort(true);
    return true;
}

/// The index of the first height above 0 that has one at or below 0 before it.
///
/// Fails  0: all crossings are on one side of the point.
long FindChord(const QnDynArray<double>& heights) {
    if (heights.IsEmpty() || heights.GetAt(0) > 0.0) {
        return 0;
    }
    for (long i = 1; i < heights.GetLength(); ++i) {
        if (heights.GetAt(i) > 0.0) {
            return i;
        }
    }
    return 0;
}

bool IsChordInside(const QnGeCurve2d& curve, const QnGePoint& lower, const QnGePoint& upper) {
    double pa1 = 0.0;
    double pa2 = 0.0;
    curve.GetPaFromPt(lower, pa1);
    curve.GetPaFromPt(upper, pa2);
    const double whole = curve.TotalIntegration();
    const std::unique_ptr<QnGeCurve2d> stretch(curve.GetSubCurve(pa1, pa2));
    if (stretch == nullptr) {
        return false;
    }
    const double loop = stretch->TotalIntegration();
    const double rest = whole - loop;
    return (loop > 0.0 && rest > 0.0) || (loop < 0.0 && rest < 0.0);
}

QnBitData ExchangedSides(const QnBitData& sides) {
    QnBitData exchanged(sides);
    exchanged.SetBit(HIT_IN, sides.HasBit(HIT_OUT));
    exchanged.SetBit(HIT_OUT, sides.HasBit(HIT_IN));
    return exchanged;
}

}  // namespace

QnBitData QnGeCurve2d::HitTest(const QnGePoint& pt) const {
    const bool on = HitsPiece(*this, pt);
    if (on) {
        return HIT_ON;
    }
    if (!IsClosed()) {
        return QnBitData();
    }
    const QnGeLine2d vertical = VerticalThrough(pt);
    QnGeObjList hits;
    if (!IntersectWith(vertical, hits)) {
        return HIT_OUT;
    }
    QnDynArray<double> heights;
    if (!CollectHeights(hits, vertical, pt, heights)) {
        return HIT_ON;
    }
    const long above = FindChord(heights);
    if (above == 0) {
        return HIT_OUT;
    }
    QnGePoint lower;
    QnGePoint upper;
    vertical.GetPtFromPa(heights.GetAt(above - 1), lower);
    vertical.GetPtFromPa(heights.GetAt(above), upper);
    const bool inside = IsChordInside(*this, lower, upper);
    return inside ? HIT_IN : HIT_OUT;
}

QnBitData QnGeCurve2d::HitTestSide(const QnGePoint& pt) const {
    QnBitData sides = HitTest(pt);
    if (IsClosed()) {
        return IsClockwise() ? ExchangedSides(sides) : sides;
    }
    if (IsInfinite()) {
        return sides;
    }
    const std::unique_ptr<QnGeCurve2d> carrier(GetExtendCurve());
    if (carrier == nullptr) {
        return sides;
    }
    const QnBitData carrierSides = carrier->HitTestSide(pt);
    if (carrierSides.HasBit(HIT_IN)) {
        sides.ClearBit(HIT_OUT);
        sides.SetBit(HIT_IN);
    } else if (carrierSides.HasBit(HIT_OUT)) {
        sides.ClearBit(HIT_IN);
        sides.SetBit(HIT_OUT);
    }
    return sides;
}
