// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeObject.h"

class QnGeObject3d;

/// Root of the planar objects. x and y count; z is carried along as elevation.
class QUARNGEO_API QnGeObject2d : public QnGeObject {
public:
    // ---- object protocol, in slot order ----------------------------------------------------------
    QN_CLASS_RECORD(QnGeObject2d);

    /// A point is included if HitTest of it has HIT_ON; anything else as in QnGeObject.
    bool IsInclude(const QnGeObject& other) const override;

    /// The plan extent with the elevation as both ends in z.
    bool GetExtent3d(QnGeExtent3d& extent) const override;

    /// For a planar object the closest is the closest in plan.
    bool GetClosestPoint(const QnGePoint& point, QnGePointList& result) const override;
    using QnGeObject::GetClosestPoint;
    using QnGeObject::GetClosestPoint2d;

    virtual void SetElevation(double z);
    virtual double GetElevation() const;

    /// The same object in space.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where the class has no form in space.
    virtual QnGeObject3d* ConvertTo3d() const;

    // ---- moving ----------------------------------------------------------------------------------
    void Move(double dx, double dy);
    void Scale(double sx, double sy);
    void Scale(double sx, double sy, const QnGePoint& base);

    /// Turns counter-clockwise about the origin or about `base`, in radians.
    void Rotate(double angle);
    void Rotate(double angle, const QnGePoint& base);

    /// Plan distance from `point` to the object.
    ///
    /// Kept odd  An object without a closest point measures to its sample point.
    double GetDistance(const QnGePoint& point) const;
};
