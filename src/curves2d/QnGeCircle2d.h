// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "values/QnGeBaseCircle.h"

/// A full circle in the plan with a direction of travel.
///
/// Parameter  Radians from the +x direction: the plain angle on a counter-clockwise circle, two pi minus the angle on
///            a clockwise one. Rising Pa is always the direction of travel. Nothing wraps a parameter.
/// Direction  Bit OBJ_CLOCKWISE of the flag word; it is no field of its own.
/// Z          That of the centre, for all points.
/// Valid      radius > g_distZero.
/// Stream     flags, centre x, y, z, radius. Class id 114.
/// Kept odd   GetStartPoint() and GetEndPoint() answer false and write the points at 0 and at 1 radian.
/// See        QnGeBaseCircle for the circle without direction; its operator== is reached qualified.
class QUARNGEO_API QnGeCircle2d : public QnGeCurve2d, public QnGeBaseCircle {
public:
    // ---- making ----------------------------------------------------------------------------------

    /// A circle of radius 0 at the origin.
    explicit QnGeCircle2d(bool ccw = true);
    QnGeCircle2d(const QnGePoint& centre, double radius, bool ccw = true);
    QnGeCircle2d(const QnGeBaseCircle& circle, bool ccw = true);
    QnGeCircle2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3);
    QnGeCircle2d(const QnGePoint& p1, const QnGePoint& p2, double angle);
    QnGeCircle2d(const QnGeCircle2d&) = default;
    QnGeCircle2d& operator=(const QnGeCircle2d&) = default;
    ~QnGeCircle2d() override;

    /// The circle through three points, running from p1 over p2 to p3.
    ///
    /// Requires   The points are not in one line; otherwise the centre is the middle of p1 and p2.
    /// Direction  Clockwise when p3 - p2 turns right of p2 - p1, otherwise counter-clockwise.
    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3);

    /// The circle through p1 and p2 on which the travel from p1 to p2 covers `angle`.
    ///
    /// Units      `angle` in radians, signed: negative makes the circle clockwise.
    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle);

    // ---- names that both bases have --------------------------------------------------------------

    using QnBitData::operator==;  // objects compare their flag words
    using QnBitData::operator!=;
    using QnGeBaseCircle::IntersectWith;
    using QnGeCurve2d::GetSubCurve;
    using QnGeCurve2d::IsFinite;
    using QnGeCurve2d::Split;
    using QnGeObject::GetClosestPoint2d;
    using QnGeObject::operator<;
    using QnGeObject::operator>;

    // ---- object protocol, in slot order ----------------------------------------------------------

    QN_CLASS_RECORD(QnGeCircle2d);
    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// Fails  Only a circle is copied from.
    bool CopyFrom(const QnGeObject* other) override;

    /// Kept odd  The radius becomes the length of the transformed vector (radius, 0, 0): a scale that differs in x and
    ///           y takes the x scale, and the circle stays a circle. A mirror turns the direction of travel.
    void TransformBy(const QnGeMatrix& matrix) override;

    /// Crossings, touches and overlaps with `other`, appended to `result`.
    ///
    /// Ownership  `result` owns what it gets.
    /// Fails      False and nothing appended where the two share no point.
    /// Kept odd   A reversed ray as argument gets its point at 1 - t, mirrored about the middle of its first vector.
    bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const override;

    /// Is `other` wholly on this circle? Of curves only circles and arcs can be.
    ///
    /// Tolerance  g_distZero on centre and radius. The direction does not matter.
    bool IsInclude(const QnGeObject& other) const override;

    /// HIT_ON, HIT_IN inside or HIT_OUT outside, whatever the direction of travel.
    ///
    /// Tolerance  g_distZero on the distance to the circle.
    QnBitData HitTest(const QnGePoint& point) const override;
    bool GetExtent2d(QnGeExtent2d& extent) const override;

    /// The point of the circle nearest to `point`, appended to `result`.
    ///
    /// Fails  False and nothing appended for the centre itself.
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    /// A point at the centre when the radius is zero under g_distZero, otherwise null.
    ///
    /// Ownership  The caller's.
    QnGeObject* Symplify() const override;
    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    /// False: a circle has no ends.
    bool IsFinite(bool atStart) const override;

    /// The arc from pa1 in the direction of travel to pa2; for equal parameters the whole circle, opened there.
    ///
    /// Tolerance  A sweep that is not above g_angleZero counts as the full turn.
    /// Ownership  The caller's.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;

    /// The arcs between the parameters, appended to `out`; one parameter opens the circle there.
    ///
    /// Requires   `pas` ascending.
    /// Tolerance  g_angleZero between two parameters.
    /// Order      As the parameters; the piece that runs over the +x direction comes last.
    /// Ownership  `out` owns the pieces.
    void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const override;
    bool GetPtFromPa(double pa, QnGePoint& pt) const override;

    /// Fails     False and `pa` untouched where pt - centre is null.
    /// Kept odd  No wrap: at the +x point a clockwise circle answers 6.2831853071796 rather than 0.
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override;
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;
    bool IsClosed() const override;
    double GetPeriod() const override;
    bool IsClockwise() const override;

    /// `tangent` gets the point at `pa` and the unit vector along the travel.
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    double Integration(double pa1, double pa2) const override;
    double Area() const override;
    double Length() const override;
    void Reverse() override;

    /// A closed line of chords, the first vertex at Pa 0, the others in the direction of travel.
    ///
    /// Units      `prec` is the step in radians, no chord height; below 1e-9 GetMLinePrec() is used.
    /// Ownership  The caller's.
    /// Fails      Null where the step gives fewer than two vertices.
    QnGeMLine2d* MLinearize(double prec) const override;

    /// The same circle as a closed polyline of bulged segments: exact, `prec` is ignored.
    ///
    /// Ownership  The caller's.
    QnGeMLine2d* PLinearize(double prec) const override;
    double GetMLinePrec() const override;
    QnGeCurve2d* GetExtendCurve() const override;

    /// Moves the circle to the right of its travel: outwards when counter-clockwise, inwards when clockwise.
    ///
    /// Tolerance  The new radius must be above g_fZero.
    /// Fails      False and no change where it would not.
    bool Offset(double dist) override;

    // ---- of circles only -------------------------------------------------------------------------

    /// Do centre and radius agree, and the direction of travel too if `sameDirection`?
    ///
    /// Tolerance  g_distZero on each.
    bool IsSameCircle(const QnGeCircle2d& other, bool sameDirection) const;

    /// Sets the angular step, in radians, that circles and arcs are linearised with where the caller names none.
    static void SetMLinePreci(double preci);
    static double s_dMLinePreci;  ///< 0.1 until set; shared by all circles and arcs
};
