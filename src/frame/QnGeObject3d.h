// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeObject.h"

class QnGeBaseLine3d;
class QnGeBasePlane;
class QnGeObject2d;

/// Root of the objects in space.
class QUARNGEO_API QnGeObject3d : public QnGeObject {
public:
    // ---- object protocol, in slot order ----------------------------------------------------------
    QN_CLASS_RECORD(QnGeObject3d);

    /// A point is included if HitTest of it has HIT_ON; anything else as in QnGeObject.
    bool IsInclude(const QnGeObject& other) const override;

    /// There is no query in plan of its own: the closest in space.
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    using QnGeObject::GetClosestPoint;
    using QnGeObject::GetClosestPoint2d;

    /// The same object in plan.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where the class has no form in plan.
    virtual QnGeObject2d* ConvertTo2d() const;

    /// The plane in which the object lies.
    ///
    /// Fails  False where there is none; `plane` stays.
    virtual bool GetPlane(QnGeBasePlane& plane) const;

    // ---- moving ----------------------------------------------------------------------------------
    void Move(double dx, double dy, double dz);
    void Scale(double sx, double sy, double sz);
    void Scale(double sx, double sy, double sz, const QnGePoint& base);

    /// Turns by the right-hand rule about an axis of the frame or about `axis`, in radians.
    void RotateX(double angle);
    void RotateY(double angle);
    void RotateZ(double angle);
    void Rotate(double angle, const QnGeBaseLine3d& axis);

    /// Distance from `point` to the object, in space.
    ///
    /// Kept odd  An object without a closest point measures to its sample point.
    double GetDistance(const QnGePoint& point) const;
};
