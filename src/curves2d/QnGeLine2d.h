// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "values/QnGeBaseLine2d.h"

/// An infinite line in the plan, and the base of ray and segment: a base point and a vector.
///
/// Parameter  Pa counts multiples of the stored vector from the base point, over all reals. The vector is never
///            normalised: its length is the scale of the parameter.
/// Z          base.z + Pa * vector.z. The elevation is the base point's z.
/// Valid      The vector is not null under g_distZero. A null vector is not refused: parameters divide by zero.
/// Stream     flags, base point x y z, vector x y z. Class id 111.
/// Kept odd   Length and Area are 0, and there is no extent.
/// See        QnGeLineRay2d, QnGeLineSeg2d; Intersect_LineFamily.cpp for IntersectWith and IsInclude.
class QUARNGEO_API QnGeLine2d : public QnGeCurve2d, public QnGeBaseLine2d {
public:
    QN_CLASS_RECORD(QnGeLine2d);

    // What both bases offer means the object, but for the forms that only the base line has.
    using QnBitData::operator==;
    using QnBitData::operator!=;
    using QnGeObject::operator<;
    using QnGeObject::operator>;
    using QnGeBaseLine2d::HitTest;
    using QnGeBaseLine2d::IntersectWith;
    using QnGeCurve2d::GetSubCurve;
    using QnGeCurve2d::IsFinite;
    using QnGeCurve2d::Length;
    using QnGeCurve2d::Split;
    using QnGeObject::GetClosestPoint2d;

    // ---- making ----------------------------------------------------------------------------------

    /// Base and vector all zero: not valid until set.
    QnGeLine2d();
    QnGeLine2d(const QnGeVector2d& vector, const QnGePoint& base);
    /// Two points, not a vector and a point: the static types decide.
    QnGeLine2d(const QnGePoint& from, const QnGePoint& to);
    explicit QnGeLine2d(const QnGeBaseLine2d& line);

    const QnGeBaseLine2d& GetBaseLine() const { return *this; }

    // ---- object protocol, in slot order ----------------------------------------------------------
    bool IsValid() const override;
    QnGeObject* Clone() const override;
    /// Takes base line and flags of a line, ray or segment.
    ///
    /// Fails  False for null and every other class.
    bool CopyFrom(const QnGeObject* other) override;
    void TransformBy(const QnGeMatrix& matrix) override;
    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override;
    bool IsInclude(const QnGeObject& other) const override;
    /// HIT_ON on the line, HIT_IN left of its vector, HIT_OUT right of it.
    ///
    /// Tolerance  g_distZero.
    QnBitData HitTest(const QnGePoint& pt) const override;
    /// The foot of the perpendicular; always one point.
    bool GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;
    /// Lays the line flat at `z`.
    void SetElevation(double z) override;
    double GetElevation() const override;
    /// Null: there is no line in space.
    QnGeObject3d* ConvertTo3d() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------
    bool IsFinite(bool atStart) const override;
    /// The segment from one point to the other; swapped parameters turn it round, equal ones give it a null vector.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;
    /// A ray to each side and segments between.
    ///
    /// Order  The ray that leaves the first cut against the line's vector, the segments, the ray along the vector.
    void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const override;
    bool GetPtFromPa(double pa, QnGePoint& pt) const override;
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override;
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;
    bool IsClosed() const override;
    bool IsMLinear() const override;
    /// The line itself with a unit vector, whatever `pa` is.
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    double Integration(double pa1, double pa2) const override;
    /// Turns the vector round in x and y.
    void Reverse() override;
    bool Offset(double dist) override;
};
