// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"

/// A circular arc in the plan: a carrying circle, a start angle and a sweep along the travel.
///
///                  . Pa 1           The sweep is positive whichever way the arc runs; the circle's
///               .'                  OBJ_CLOCKWISE bit says which way that is. The arc's own flag
///      centre +-------. Pa 0        word says nothing about direction.
///
/// Parameter  Pa runs 0..1 over the sweep. GetPtFromPa clamps to the arc; GetPaFromPt may answer more than 1, for a
///            point of the circle that is off the arc.
/// Units      Radians and model lengths. The start angle counts in the circle's parameter, so on a clockwise circle
///            it is two pi minus the geometric angle.
/// Z          That of the centre, for all points.
/// Valid      radius > g_distZero and g_angleZero < sweep <= two pi + g_angleZero.
/// Stream     flags, the circle's record, start angle, sweep. Class id 115.
/// Kept odd   Area() is the whole circle's. Sector and segment areas come from Integration().
class QUARNGEO_API QnGeArc2d : public QnGeCurve2d {
public:
    // ---- making ----------------------------------------------------------------------------------

    /// All zero, counter-clockwise.
    QnGeArc2d();

    /// The two angles are taken as they are.
    QnGeArc2d(const QnGePoint& centre, double radius, double start, double central, bool ccw = true);
    QnGeArc2d(const QnGePoint& p1, const QnGePoint& p2, double angle);
    QnGeArc2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3);

    /// An arc on `circle` whose two angles are still to be set.
    explicit QnGeArc2d(const QnGeCircle2d& circle);
    QnGeArc2d(const QnGeArc2d&) = default;
    QnGeArc2d& operator=(const QnGeArc2d&) = default;
    ~QnGeArc2d() override;

    /// The arc from p1 to p2 with the signed central angle `angle`; a negative one runs clockwise.
    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle);

    /// The arc from p1 over p2 to p3.
    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3);

    /// The arc round `centre` from `startPt` to the ray towards `endPt`.
    ///
    /// Kept odd  `ccw` false makes the arc clockwise, true leaves the direction as it was.
    void CreateFromCTP(const QnGePoint& centre, const QnGePoint& startPt, const QnGePoint& endPt, bool ccw);

    // ---- fields ----------------------------------------------------------------------------------

    const QnGeCircle2d& GetCircle() const { return m_circle; }
    void SetCircle(const QnGeCircle2d& circle);
    QnGePoint GetCenter() const { return m_circle.center; }
    double GetRadius() const { return m_circle.radius; }
    double GetStartAngle() const { return m_startAngle; }

    /// The angle is brought into [0, two pi) first.
    void SetStartAngle(double angle);
    double GetCentralAngle() const { return m_centralAngle; }
    void SetCentralAngle(double angle) { m_centralAngle = angle; }

    /// Start angle plus sweep, not wrapped.
    double GetEndAngle() const { return m_startAngle + m_centralAngle; }

    QnGePoint GetStartPoint() const;
    QnGePoint GetEndPoint() const;
    QnGePoint GetMidPoint() const;

    // ---- names that would be hidden --------------------------------------------------------------

    using QnGeCurve2d::GetMidPoint;
    using QnGeCurve2d::GetSubCurve;
    using QnGeObject::GetClosestPoint2d;

    // ---- object protocol, in slot order ----------------------------------------------------------

    QN_CLASS_RECORD(QnGeArc2d);
    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// Fails  Only an arc is copied from.
    bool CopyFrom(const QnGeObject* other) override;

    /// The arc through the transformed start, middle and end point: it stays a circular arc, and a mirror turns its
    /// direction of travel. A closed arc has no three different points and goes with its circle instead.
    void TransformBy(const QnGeMatrix& matrix) override;

    /// Crossings, touches and overlaps with `other`, appended to `result`.
    ///
    /// Tolerance  g_distZero along the arc at its ends.
    /// Ownership  `result` owns what it gets.
    /// Fails      False and nothing appended where the two share no point.
    bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const override;

    /// Is `other` wholly on this arc? Of curves only circles and arcs can be.
    ///
    /// Tolerance  g_distZero on the circles, g_angleZero on the sum of the slack at both ends.
    /// Kept odd   A closed arc does not include an arc that runs over its seam.
    bool IsInclude(const QnGeObject& other) const override;

    /// HIT_ON on the arc, HIT_IN inside its circle, HIT_OUT outside; nothing on the circle beside the arc.
    ///
    /// Tolerance  g_distZero, at the ends too.
    QnBitData HitTest(const QnGePoint& point) const override;

    /// The box of the two ends and of those extreme points of the circle that the arc passes.
    ///
    /// Tolerance  g_angleZero at the ends.
    bool GetExtent2d(QnGeExtent2d& extent) const override;

    /// The point of the arc nearest to `point`, appended to `result`; equally near ends give the end.
    ///
    /// Fails  False and nothing appended for the centre.
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    /// A point at the start when radius or sweep is zero, otherwise null.
    ///
    /// Tolerance  g_distZero on the radius, g_angleZero on the sweep.
    /// Ownership  The caller's.
    QnGeObject* Symplify() const override;
    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    /// The piece from pa1 in the direction of travel to pa2; a closed arc answers as its circle does.
    ///
    /// Ownership  The caller's.
    /// Kept odd   On an open arc equal parameters give a sweep of 0, which is no valid arc, and exchanged ones the rest
    ///            of the circle, the long way round.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;
    bool GetStartPoint(QnGePoint& pt) const override;
    bool GetEndPoint(QnGePoint& pt) const override;

    /// Always true: a parameter below 0 gives the start, one above 1 the end.
    bool GetPtFromPa(double pa, QnGePoint& pt) const override;

    /// Fails  False and `pa` untouched at the centre.
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override;

    /// Kept odd  Wraps: a negative distance gives a parameter above 1, a full turn gives 0.
    bool GetPaFromDist(double dist, double& pa) const override;

    /// Kept odd  Wraps: a full turn gives 0, so the end of a closed arc is at distance 0.
    bool GetDistFromPa(double pa, double& dist) const override;

    /// Tolerance  g_angleZero between the sweep and a full turn, to either side.
    bool IsClosed() const override;
    bool IsClockwise() const override;
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    double Integration(double pa1, double pa2) const override;

    /// Kept odd  The area of the whole circle, whatever the sweep.
    double Area() const override;
    double Length() const override;
    void Reverse() override;

    /// The same arc as a polyline of bulged segments: exact, `prec` is ignored.
    ///
    /// Ownership  The caller's.
    QnGeMLine2d* PLinearize(double prec) const override;

    /// The step of QnGeCircle2d::s_dMLinePreci radians, in the arc's own parameter.
    double GetMLinePrec() const override;

    /// The whole circle, running as the arc does.
    ///
    /// Ownership  The caller's.
    QnGeCurve2d* GetExtendCurve() const override;

    /// Joins a neighbouring or overlapping arc of the same circle onto this one.
    ///
    /// Direction  This arc's stays. `strictDirection` refuses an arc that runs the other way.
    /// Tolerance  g_distZero on the circles, g_fZero on the parameters.
    /// Fails      False and no change where the two do not meet or together would close the circle. An arc that is
    ///            closed already answers true for every arc of its circle.
    bool Conbine(const QnGeCurve2d& other, bool strictDirection) override;

    /// Moves the arc to the right of its travel by its radius; the angles stay.
    ///
    /// Fails  False and no change where the new radius would not be above g_fZero.
    bool Offset(double dist) override;

protected:
    QnGeCircle2d m_circle;
    double m_startAngle = 0.0;
    double m_centralAngle = 0.0;
};
