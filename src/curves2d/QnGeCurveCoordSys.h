// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"

class QnGeCurve2d;
class QnGeMLine2d;
class QnGePoint;

/// A coordinate system along a curve in the plan, as for positions along a road or a wall.
///
///     y  +---------------------.     x  distance along the curve from its start
///     |  |  elevation view    |     y  height above the curve's elevation
///     +--|=====================|--x  z  offset to the side: to the right of travel if positive
///      start                  end
///
/// Ownership  The curve is the caller's and must outlive the system and its copies.
class QUARNGEO_API QnGeCurveCoordSys {
public:
    explicit QnGeCurveCoordSys(const QnGeCurve2d& curve);
    QnGeCurveCoordSys(const QnGeCurveCoordSys& other) = default;
    QnGeCurveCoordSys& operator=(const QnGeCurveCoordSys& other) = default;
    virtual ~QnGeCurveCoordSys();

    const QnGeCurve2d& GetCurve() const { return *m_pCurve; }

    /// The place in the world of a point of this system.
    ///
    /// Fails  Off the ends it is the point that the curve gives for that distance. Where the curve cannot be offset,
    ///        the place on the curve itself.
    QnGePoint CcsToWcs(const QnGePoint& p) const;

    /// The point in this system of a place in the world, by way of the curve's closest point.
    ///
    /// Fails     x is 0 where the curve has no distance for that point.
    /// Kept odd  z is always 0: the offset to the side is not measured.
    QnGePoint WcsToCcs(const QnGePoint& p) const;

    /// A closed line round the elevation view of the whole curve, `height` high, in coordinates of this system.
    ///
    /// Ownership  The caller's.
    QnGeMLine2d* CreateElevRect(double height) const;

    /// The same of another curve, from where that one starts.
    QnGeMLine2d* CreateElevRect(const QnGeCurve2d& other, double height) const;

private:
    const QnGeCurve2d* m_pCurve;
};
