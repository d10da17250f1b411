// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeClassRecord.h"
#include "frame/QnGeObject2d.h"
#include "values/QnGePoint.h"

/// A point as an object of the plan, so that it can stand in an object list.
///
/// Tolerance  g_distZero on plan distances.
/// Z          Elevation; no part of comparisons and distances.
/// Valid      Always.
/// Stream     flags, x, y, z. Class id 102.
class QUARNGEO_API QnGePoint2d : public QnGeObject2d, public QnGePoint {
public:
    QN_CLASS_RECORD(QnGePoint2d);

    // ---- making ----------------------------------------------------------------------------------

    QnGePoint2d() = default;
    QnGePoint2d(double px, double py, double pz = 0.0) : QnGePoint(px, py, pz) {}
    /// Reads three values.
    QnGePoint2d(const double* values) : QnGePoint(values) {}
    QnGePoint2d(const float* values) : QnGePoint(values) {}
    QnGePoint2d(const QnGePoint& p) : QnGePoint(p) {}
    QnGePoint2d(const QnGePoint2d& other) = default;
    ~QnGePoint2d() override;
    QnGePoint2d& operator=(const QnGePoint2d& other) = default;
    /// Coordinates only; the flags stay.
    QnGePoint2d& operator=(const QnGePoint& p);

    // ---- object protocol, in slot order ----------------------------------------------------------

    bool IsValid() const override;
    QnGeObject* Clone() const override;
    bool CopyFrom(const QnGeObject* other) override;
    void TransformBy(const QnGeMatrix& matrix) override;
    /// Another point meets this one if the two are equal in the plan; any other object if this point hits it. What is
    /// appended is a copy of this point.
    ///
    /// Ownership  `result` owns the copy.
    bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const override;
    /// Equal points. A curve or region is never included; other objects by their parts.
    bool IsInclude(const QnGeObject& other) const override;
    /// HIT_ON or nothing: a point has no sides.
    QnBitData HitTest(const QnGePoint& point) const override;
    bool GetExtent2d(QnGeExtent2d& extent) const override;
    bool GetExtent3d(QnGeExtent3d& extent) const override;
    QnGePoint GetSamplePoint() const override;
    using QnGeObject::GetClosestPoint2d;
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;
    void SetElevation(double elevation) override;
    double GetElevation() const override;
    /// A QnGePoint3d with the same coordinates and no flags.
    ///
    /// Ownership  The caller's.
    QnGeObject3d* ConvertTo3d() const override;

    // ---- comparison in the plan; these stand before the flag word comparison of the objects ---------

    bool operator==(const QnGePoint& p) const;
    bool operator!=(const QnGePoint& p) const;
    /// By x, then y, coordinates no more than g_distZero apart being equal.
    bool operator<(const QnGePoint& p) const;
    bool operator>(const QnGePoint& p) const;
    /// Distance in the plan.
    double Distance(const QnGePoint& p) const;
};
