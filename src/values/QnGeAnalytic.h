// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector2d.h"
#include "values/QnGeVector3d.h"

// The elementary problems under all curve and region code: where lines, circles and planes meet, which way three points
// turn, circles from points, area integrals. Lines are a base point and a direction vector, and their parameters count
// in units of the vector; planes are a x + b y + c z + d = 0.

/// Answers of the intersection functions.
enum QnIntersectCode : int {
    INTERSECT_NONE = 0,
    INTERSECT_ONE = 1,           ///< one solution
    INTERSECT_TWO = 2,           ///< two solutions
    INTERSECT_LINE = 10,         ///< the lines coincide, the line lies in the plane, or two planes meet in a line
    INTERSECT_SAME_CIRCLE = 11,  ///< the circles coincide
    INTERSECT_SAME_PLANE = 12    ///< the planes coincide
};

/// Answers of GetPathType.
enum QnPathType : int {
    PATH_STRAIGHT = -1,  ///< collinear
    PATH_LEFT = 0,       ///< left turn
    PATH_RIGHT = 1       ///< right turn
};

// ---- turns and sides -----------------------------------------------------------------------------

/// How the path a, b, c turns at b: 0 to the left, 1 to the right, -1 not at all.
///
/// Tolerance  g_distZero on the signed area divided by a cheap length (|dx| + |dy|) of the first leg.
/// Laws       Mirroring in the x axis exchanges 0 and 1. Reversing the path does so too, except near the tolerance,
///            because only the first leg divides: with legs of very different length one way may be straight.
/// Fails      -1 if `a` and `b` are the same and so nothing divides.
QUARNGEO_API int GetPathType(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c);

/// On which side of the path a, b, c, with endless legs, `p` lies: HIT_IN to the left, HIT_OUT to the right, HIT_ON.
///
/// Tolerance  As GetPathType.
QUARNGEO_API QnBitData HitTestAtCorner2d(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c,
                                         const QnGePoint& p);

/// Whether a2 lies to the left of the path b2, a1, b1.
///
/// Kept odd  No crossing test of segments, whatever the name says: exchanging b1 and b2 changes the answer, and a2 may
///           lie short of the segment b.
QUARNGEO_API bool IsCrossSeg2d(const QnGePoint& a1, const QnGePoint& a2, const QnGePoint& b1, const QnGePoint& b2);

// ---- lines ---------------------------------------------------------------------------------------

/// Where two infinite lines meet in the plan: 0 nowhere, 1 in one point, 10 they are the same line.
///
/// Units      t1, t2 in multiples of v1, v2.
/// Tolerance  g_fZero on the determinant, g_distZero on the gap of parallels; the vectors are taken as unit vectors.
/// Fails      On 0 and 10 t1 and t2 stay as they were.
QUARNGEO_API int LineIntersect2d(const QnGePoint& p1, const QnGeVector2d& v1, const QnGePoint& p2,
                                 const QnGeVector2d& v2, double& t1, double& t2);
QUARNGEO_API int LineIntersect2d(const QnGePoint& p1, const QnGeVector2d& v1, const QnGePoint& p2,
                                 const QnGeVector2d& v2, double& t1);

/// Where two infinite lines meet in space: 0 nowhere, 1 in one point, 10 they are the same line.
///
/// Units      t1 in multiples of v1.
/// Tolerance  g_distZero for being skew and for the gap of parallels, both as sines of angles towards the other base
///            point; g_fZero on the determinants. The vectors are taken as unit vectors.
/// Fails      On 0 and 10 t1 stays as it was.
QUARNGEO_API int LineIntersect3d(const QnGePoint& p1, const QnGeVector3d& v1, const QnGePoint& p2,
                                 const QnGeVector3d& v2, double& t1);

// ---- circles -------------------------------------------------------------------------------------

/// Where a line meets a circle in the plan: the number of points.
///
/// Requires   `dir` is a unit vector.
/// Order      t1 < t2; at a tangent t1 alone, the foot of the perpendicular from the centre.
/// Tolerance  g_distZero for a tangent, exclusive at its lower end; g_fZero on the discriminant.
/// Fails      What is beyond the number of points stays as it was.
/// Kept odd   A line up to 3e-5 beside a tiny circle, or through one that small, answers 1 with the foot.
QUARNGEO_API int LineCirIntersect2d(const QnGePoint& center, double radius, const QnGePoint& base,
                                    const QnGeVector2d& dir, double& t1, double& t2);
/// The same in points.
///
/// Z  Along the line.
QUARNGEO_API int LineCirIntersect2d(const QnGePoint& center, double radius, const QnGePoint& base,
                                    const QnGeVector2d& dir, QnGePoint& q1, QnGePoint& q2);

/// Where two circles meet in the plan: the number of points, 11 for the same circle.
///
/// Order      q1 lies to the left of the way from the centre of the larger circle to that of the smaller one,
///            from c1 if the radii are equal.
/// Tolerance  g_distZero.
/// Z          That of c1.
/// Fails      What is beyond the number of points stays as it was.
QUARNGEO_API int CircleIntersect2d(const QnGePoint& c1, double r1, const QnGePoint& c2, double r2, QnGePoint& q1,
                                   QnGePoint& q2);

/// The circle on which p1 and p2 are the ends of an arc with the central angle `angle`.
///
/// Direction  Positive is counter-clockwise from p1 to p2: up to pi the centre lies to the left of the chord.
/// Units      Radians, -two pi to two pi.
/// Z          That of p1.
/// Tolerance  g_angleZero: about 0 and about pi the centre is the middle of the chord.
/// Fails      Not at all: the radius of angle 0 is infinite.
QUARNGEO_API void CreateCircle2d(const QnGePoint& p1, const QnGePoint& p2, double angle, QnGePoint& center,
                                 double& radius);
/// The circle through three points.
///
/// Requires  Points that are not collinear; otherwise the centre is the middle of p1 and p2.
/// Z         That of p1.
QUARNGEO_API void CreateCircle2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3, QnGePoint& center,
                                 double& radius);

// ---- planes --------------------------------------------------------------------------------------

/// Where a line meets a plane: 1 in one point, 0 nowhere, 10 the line lies in the plane.
///
/// Tolerance  g_fZero; normal and direction are taken as unit vectors.
/// Fails      On 0 and 10 the output stays as it was.
QUARNGEO_API int LinePlaneIntersect3d(double a, double b, double c, double d, const QnGePoint& p, const QnGeVector3d& v,
                                      QnGePoint& q);
QUARNGEO_API int LinePlaneIntersect3d(double a, double b, double c, double d, const QnGePoint& p, const QnGeVector3d& v,
                                      double& t);

/// Where two planes meet: 10 in the line through `q` along the unit vector `dir`, 0 nowhere, 12 the same plane.
///
/// Tolerance  g_fZero.
/// Fails      On 0 and 12 the outputs stay as they were.
/// Kept odd   Parallel planes are told apart by a and d alone, so those with a = 0 always answer 12.
QUARNGEO_API int PlaneIntersect3d(double a1, double b1, double c1, double d1, double a2, double b2, double c2,
                                  double d2, QnGePoint& q, QnGeVector3d& dir);

// ---- area integrals ------------------------------------------------------------------------------

/// The integral of y dx along a line from parameter t1 to t2.
///
/// Tolerance  g_fZero: a line that upright gives 0.
QUARNGEO_API double LineIntegration2d(const QnGePoint& p, const QnGeVector2d& v, double t1, double t2);

/// The integral of y dx along a circle from angle a1 to a2.
QUARNGEO_API double CircleIntegration2d(const QnGePoint& center, double radius, double a1, double a2);
