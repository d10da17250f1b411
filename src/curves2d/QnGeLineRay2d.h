// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeLine2d.h"

/// A half line in the plan. The point set is base + t * vector with t >= 0, whichever way it is travelled.
///
///     forward    base o------------>      Pa 0 at the base, rising along the vector
///     reversed   base o<------------      Pa 1 at the base, falling along the vector: Pa = 1 - t
///
/// Parameter  Forward [0, infinity), reversed (-infinity, 1]; nothing clips it.
/// Z          base.z + t * vector.z.
/// Valid      As a line.
/// Stream     flags, base point x y z, vector x y z, reverse flag. Class id 112.
/// Kept odd   As the argument of a segment or circle a reversed ray is asked for its own parameters, so the answers
///            are mirrored; as the receiver it stands for its forward copy.
class QUARNGEO_API QnGeLineRay2d : public QnGeLine2d {
public:
    QN_CLASS_RECORD(QnGeLineRay2d);

    using QnBitData::operator==;
    using QnBitData::operator!=;
    using QnGeObject::operator<;
    using QnGeObject::operator>;
    using QnGeBaseLine2d::HitTest;
    using QnGeBaseLine2d::IntersectWith;
    using QnGeCurve2d::IsFinite;
    using QnGeCurve2d::Length;
    using QnGeCurve2d::Split;
    using QnGeObject::GetClosestPoint2d;

    // ---- making: all rays begin forward ----------------------------------------------------------
    QnGeLineRay2d();
    QnGeLineRay2d(const QnGeVector2d& vector, const QnGePoint& base);
    /// Two points, not a vector and a point: the static types decide.
    QnGeLineRay2d(const QnGePoint& from, const QnGePoint& to);
    explicit QnGeLineRay2d(const QnGeBaseLine2d& line);

    bool IsReverseRay() const { return m_reverse; }
    void SetReverseRay(bool reverse) { m_reverse = reverse; }

    /// Whether both are one point set; the reverse flags are not compared.
    ///
    /// Tolerance  g_distZero on the base points, g_fZero on the directions.
    bool IsSameRay(const QnGeLineRay2d& other) const;

    // ---- object protocol, in slot order ----------------------------------------------------------
    QnGeObject* Clone() const override;
    /// Takes base line, flags and reverse flag of a ray.
    ///
    /// Fails  False for null and every other class.
    bool CopyFrom(const QnGeObject* other) override;
    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override;
    bool IsInclude(const QnGeObject& other) const override;
    /// HIT_ON on the ray, nothing on the line behind its base, HIT_IN left of travel, HIT_OUT right of it.
    ///
    /// Tolerance  g_distZero.
    QnBitData HitTest(const QnGePoint& pt) const override;
    /// The foot of the perpendicular if it lies on the ray, otherwise the base; always one point.
    bool GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;
    /// Null: there is no ray in space.
    QnGeObject3d* ConvertTo3d() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------
    bool IsFinite(bool atStart) const override;
    /// A ray at the open end and segments between.
    ///
    /// Order     Along travel: the forward ray's last piece is a ray, the reversed one's first.
    /// Kept odd  Parameters beyond the base make segments that are not on the ray.
    void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const override;
    /// The base, at the end that exists; the other answers false and leaves `pt`.
    bool GetStartPoint(QnGePoint& pt) const override;
    bool GetEndPoint(QnGePoint& pt) const override;
    bool GetPtFromPa(double pa, QnGePoint& pt) const override;
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override;
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    /// Kept odd  Reversed, the limits are exchanged against the direction of travel.
    double Integration(double pa1, double pa2) const override;
    /// Flips the reverse flag.
    void Reverse() override;
    /// Null, always: a ray is not extended or connected.
    QnGeCurve2d* GetExtendCurve() const override;
    bool Offset(double dist) override;

private:
    /// The same point set, travelled away from the base.
    QnGeLineRay2d ForwardCopy() const;

    bool m_reverse = false;
};
