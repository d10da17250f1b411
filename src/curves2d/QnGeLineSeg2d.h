// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeLine2d.h"

/// A line segment in the plan: a base line whose vector runs from the start to the end.
///
/// Parameter  Pa 0 at the start, 1 at the end; nothing clips it to that range.
/// Z          Linear from start to end.
/// Valid      As a line: the ends are apart in the plan.
/// Stream     flags, base point x y z, vector x y z, as the line's. Class id 113.
class QUARNGEO_API QnGeLineSeg2d : public QnGeLine2d {
public:
    QN_CLASS_RECORD(QnGeLineSeg2d);

    using QnBitData::operator==;
    using QnBitData::operator!=;
    using QnGeObject::operator<;
    using QnGeObject::operator>;
    using QnGeBaseLine2d::HitTest;
    using QnGeBaseLine2d::IntersectWith;
    using QnGeCurve2d::GetMidPoint;
    using QnGeCurve2d::IsFinite;
    using QnGeCurve2d::Split;
    using QnGeObject::GetClosestPoint2d;

    // ---- making ----------------------------------------------------------------------------------
    QnGeLineSeg2d();
    QnGeLineSeg2d(const QnGeVector2d& vector, const QnGePoint& base);
    /// Two points, not a vector and a point: the static types decide.
    QnGeLineSeg2d(const QnGePoint& from, const QnGePoint& to);
    explicit QnGeLineSeg2d(const QnGeBaseLine2d& line);

    /// Kept odd  Moves the base point only: the vector stays, so the end moves along.
    void SetStartPoint(const QnGePoint& pt);
    /// Moves the end; the start stays.
    void SetEndPoint(const QnGePoint& pt);

    QnGePoint GetEndPoint() const;
    QnGePoint GetMidPoint() const;

    /// Whether both have the same ends in the plan; with `sameDirection` also the same start.
    ///
    /// Tolerance  g_distZero.
    bool IsSameSeg(const QnGeLineSeg2d& other, bool sameDirection) const;

    /// Appends what remains of this segment without `other`: up to two segments, none if it is wholly covered.
    ///
    /// Order  Along this segment.
    /// Fails  False, and `out` stays, where the two share no stretch.
    bool SubtractBy(const QnGeLineSeg2d& other, QnGeObjList& out) const;

    /// Appends what remains of this segment without any segment of `cutters`; other classes there are skipped.
    ///
    /// Order  In which the pieces were made: whole ones keep their place, what a cutter leaves goes to the tail.
    void SubtractBy(const QnGeObjList& cutters, QnGeObjList& out) const;

    // ---- object protocol, in slot order ----------------------------------------------------------
    QnGeObject* Clone() const override;
    /// Takes base line and flags of a segment.
    ///
    /// Fails  False for null and every other class.
    bool CopyFrom(const QnGeObject* other) override;
    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override;
    bool IsInclude(const QnGeObject& other) const override;
    /// HIT_ON on the segment, nothing on the line beyond its ends, HIT_IN left of the line, HIT_OUT right of it.
    ///
    /// Tolerance  g_distZero.
    QnBitData HitTest(const QnGePoint& pt) const override;
    /// The box of the two ends; z is left.
    bool GetExtent2d(QnGeExtent2d& extent) const override;
    /// The foot of the perpendicular if it lies on the segment, otherwise the nearer end, on a tie the end.
    bool GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const override;
    /// A point at the start if the ends coincide.
    ///
    /// Tolerance  g_distZero.
    /// Fails      Null: nothing simpler exists.
    QnGeObject* Symplify() const override;
    /// Null: there is no segment in space.
    QnGeObject3d* ConvertTo3d() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------
    bool IsFinite(bool atStart) const override;
    /// Segments between neighbouring cuts and the ends.
    ///
    /// Kept odd  A parameter above 1 makes a piece past the end.
    void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const override;
    bool GetStartPoint(QnGePoint& pt) const override;
    bool GetEndPoint(QnGePoint& pt) const override;
    /// The plan length.
    double Length() const override;
    /// Exchanges the ends in the plan.
    ///
    /// Kept odd  The vector is turned round in x and y only: its rise stays, so a sloping segment climbs on.
    void Reverse() override;
    /// The two ends as an open line; `prec` plays no part.
    QnGeMLine2d* MLinearize(double prec) const override;
    /// With `skipVertical` a segment along the y axis gets its two ends only.
    QnGeMLine2d* MLinearizeByDist(double step, bool skipVertical) const override;
    /// The line that carries the segment, with the same parameter.
    QnGeCurve2d* GetExtendCurve() const override;
    /// Grows over `other` if it is a segment of the same line that overlaps or touches; the direction stays.
    bool Conbine(const QnGeCurve2d& other, bool strictDirection) override;
};
