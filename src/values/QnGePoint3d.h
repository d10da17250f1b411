// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeClassRecord.h"
#include "frame/QnGeObject3d.h"
#include "values/QnGePoint.h"

/// A point as an object of space, so that it can stand in an object list.
///
/// Tolerance  g_distZero on distances in space.
/// Valid      Always.
/// Stream     flags, x, y, z. Class id 1002.
class QUARNGEO_API QnGePoint3d : public QnGeObject3d, public QnGePoint {
public:
    QN_CLASS_RECORD(QnGePoint3d);

    // ---- making ----------------------------------------------------------------------------------

    QnGePoint3d() = default;
    QnGePoint3d(double px, double py, double pz = 0.0) : QnGePoint(px, py, pz) {}
    /// Reads three values.
    QnGePoint3d(const double* values) : QnGePoint(values) {}
    QnGePoint3d(const float* values) : QnGePoint(values) {}
    QnGePoint3d(const QnGePoint& p) : QnGePoint(p) {}
    QnGePoint3d(const QnGePoint3d& other) = default;
    ~QnGePoint3d() override;
    QnGePoint3d& operator=(const QnGePoint3d& other) = default;
    /// Coordinates only; the flags stay.
    QnGePoint3d& operator=(const QnGePoint& p);

    // ---- object protocol, in slot order ----------------------------------------------------------

    bool IsValid() const override;
    QnGeObject* Clone() const override;
    bool CopyFrom(const QnGeObject* other) override;
    void TransformBy(const QnGeMatrix& matrix) override;
    /// Another point meets this one if the two are equal; any other object if this point hits it. What is appended is a
    /// copy of this point.
    ///
    /// Ownership  `result` owns the copy.
    bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const override;
    /// Equal points. A curve in space or a region is never included; other objects by their parts.
    bool IsInclude(const QnGeObject& other) const override;
    /// HIT_ON or nothing: a point has no sides.
    QnBitData HitTest(const QnGePoint& point) const override;
    bool GetExtent2d(QnGeExtent2d& extent) const override;
    bool GetExtent3d(QnGeExtent3d& extent) const override;
    QnGePoint GetSamplePoint() const override;
    using QnGeObject::GetClosestPoint2d;
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    using QnGeObject::GetClosestPoint;
    bool GetClosestPoint(const QnGePoint& point, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;
    /// A QnGePoint2d with the same coordinates, z as its elevation, and no flags.
    ///
    /// Ownership  The caller's.
    QnGeObject2d* ConvertTo2d() const override;

    // ---- comparison in space; these stand before the flag word comparison of the objects ------------

    bool operator==(const QnGePoint& p) const;
    bool operator!=(const QnGePoint& p) const;
    /// By x, then y, then z, coordinates no more than g_distZero apart being equal.
    bool operator<(const QnGePoint& p) const;
    bool operator>(const QnGePoint& p) const;
    /// Distance in space.
    double Distance(const QnGePoint& p) const;
};
