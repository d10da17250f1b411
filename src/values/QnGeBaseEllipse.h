// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"

/// An ellipse in the plan.
///
/// Parameter  The eccentric angle before rotation, in radians.
/// Z          That of the centre, for all points.
/// Valid      Both radii > g_distZero.
/// Kept odd   GetPtFromPa adds the rotation to the parameter and leaves the radii on the axes of the plan, which is no
///            rigid turn; HitTest does turn the ellipse.
class QUARNGEO_API QnGeBaseEllipse {
public:
    QnGePoint center;
    double majorRadius = 0.0;  ///< along the ellipse's own x axis
    double minorRadius = 0.0;
    double rotation = 0.0;  ///< radians

    QnGeBaseEllipse() = default;
    QnGeBaseEllipse(const QnGePoint& centerPoint, double major, double minor, double angle)
        : center(centerPoint), majorRadius(major), minorRadius(minor), rotation(angle) {}

    void SetCenter(const QnGePoint& p) { center = p; }
    void SetMajorRadius(double r) { majorRadius = r; }
    void SetMinorRadius(double r) { minorRadius = r; }
    void SetRotation(double angle) { rotation = angle; }
    const QnGePoint& GetCenter() const { return center; }
    double GetMajorRadius() const { return majorRadius; }
    double GetMinorRadius() const { return minorRadius; }
    double GetRotation() const { return rotation; }

    bool IsValid() const { return IsGreater(majorRadius, g_distZero) && IsGreater(minorRadius, g_distZero); }
    /// Tolerance  g_distZero.
    bool IsCircle() const { return IsZero(majorRadius - minorRadius, g_distZero); }
    /// Tolerance  g_distZero on centre, in the plan, and radii, g_angleZero on the rotation.
    bool operator==(const QnGeBaseEllipse& o) const;
    bool operator!=(const QnGeBaseEllipse& o) const { return !(*this == o); }

    /// Always true.
    bool GetPtFromPa(double a, QnGePoint& p) const;
    /// The direction in which `p` lies, less the rotation.
    ///
    /// Fails  False, `a` as it was, at the centre.
    bool GetPaFromPt(const QnGePoint& p, double& a) const;

    /// HIT_ON on the ellipse, HIT_IN within, HIT_OUT beyond.
    ///
    /// Tolerance  g_fZero, on the ratio of the ellipse's equation, which is no length.
    QnBitData HitTest(const QnGePoint& p) const;
};
