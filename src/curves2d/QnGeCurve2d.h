// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArrayBase.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "frame/QnGeObject2d.h"

class QnGeBaseLine2d;
class QnGeMLine2d;
class QnGeObjList;
class QnGePoint;
class QnGePointArray;

/// A curve in the plan: the protocol that lines, circles, arcs, polylines and chains of them all answer.
///
/// A class that defines Explode, GetPtFromPa, GetPaFromPt and GetSubCurve gets lengths, areas, splitting,
/// linearisation, cutting and hit tests from the defaults here.
///
/// Parameter  `Pa` in every name. It rises along the direction of travel; what it counts is each class's own:
///            by default 0 is the start and 1 the end, a line counts multiples of its vector, a circle radians.
/// Units      Model lengths; distances along the curve count from Pa 0.
/// Direction  HIT_IN is the left of travel or the inside, HIT_OUT the right or the outside.
/// Ownership  Every curve that a function returns is new and the caller's. What an object list is given belongs to it.
/// Fails      By false, null, an empty list or ETR_FAILED; a default that answers false leaves its output as it was.
/// Stream     Flags only. Class id 110.
class QUARNGEO_API QnGeCurve2d : public QnGeObject2d {
public:
    /// What Extend, Trim and Connect have done.
    enum ExtendTrimResult {
        ETR_FAILED = 0,           ///< no extension curve, no such end, or the new curve was refused
        ETR_NO_INTERSECTION = 1,  ///< no object met the curve
        ETR_NO_VALID_POINT = 2,   ///< nothing to meet, or no meeting point is usable
        ETR_DEGENERATE = 3,       ///< start and end would coincide; the curve stays as it was
        ETR_DONE = 4              ///< the curve was changed
    };

    QN_CLASS_RECORD(QnGeCurve2d);

    // ---- object protocol, in slot order ----------------------------------------------------------

    /// Whether `other` lies entirely on this curve; never so for a region.
    bool IsInclude(const QnGeObject& other) const override;

    /// HIT_ON on the curve; off it HIT_IN or HIT_OUT if the curve is closed, otherwise nothing.
    ///
    /// Tolerance  That of the pieces for HIT_ON; inside and outside are exact signs of loop areas.
    /// Direction  Inside does not depend on the direction of travel.
    QnBitData HitTest(const QnGePoint& pt) const override;

    /// The point at Pa 0.5.
    QnGePoint GetSamplePoint() const override;

    /// Null: no twin in space.
    QnGeObject3d* ConvertTo3d() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    /// Whether the start (`atStart`) or the end exists. True by default.
    virtual bool IsFinite(bool atStart) const;

    /// The stretch from `pa1` to `pa2`.
    ///
    /// Fails  Null by default.
    virtual QnGeCurve2d* GetSubCurve(double pa1, double pa2) const;

    /// Cuts the curve at the parameters and appends the pieces to `out`; the curve itself stays.
    ///
    /// Requires   `pas` in ascending order.
    /// Tolerance  g_fZero: nearer parameters make no piece between them.
    /// Order      Along the curve. On a closed curve the piece over the seam comes last; one parameter opens it there.
    /// Fails      No parameters: nothing. What GetSubCurve answers is appended as it is, null too.
    virtual void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const;

    /// The point at Pa 0, or at Pa 1. It is written whatever the answer; the answer is whether that end exists.
    virtual bool GetStartPoint(QnGePoint& pt) const;
    virtual bool GetEndPoint(QnGePoint& pt) const;

    /// The point at a parameter, and the parameter of a point of the curve. Both false by default.
    virtual bool GetPtFromPa(double pa, QnGePoint& pt) const;
    virtual bool GetPaFromPt(const QnGePoint& pt, double& pa) const;

    /// The parameter at a distance along the curve, and back. Both false by default.
    virtual bool GetPaFromDist(double dist, double& pa) const;
    virtual bool GetDistFromPa(double pa, double& dist) const;

    /// The same between points and distances, by way of the parameter.
    virtual bool GetPtFromDist(double dist, QnGePoint& pt) const;
    virtual bool GetDistFromPt(const QnGePoint& pt, double& dist) const;

    /// Whether start and end coincide in the plan.
    ///
    /// Tolerance  g_distZero.
    /// Kept odd   A curve without points reads as closed, both its ends being the origin.
    virtual bool IsClosed() const;

    /// Whether the curve is made of straight pieces only.
    virtual bool IsMLinear() const;

    /// How far the parameter runs until the curve repeats: 1 if closed, otherwise 0.
    virtual double GetPeriod() const;

    /// Whether the curve crosses or touches itself. False by default.
    virtual bool IsSelfCross() const;

    /// Whether a closed curve runs clockwise. Of an open curve it is the sign of its integral.
    virtual bool IsClockwise() const;

    /// The line that touches the curve at `pa`, its vector of unit length and along travel. Left as it is by default.
    virtual void GetTangent(double pa, QnGeBaseLine2d& tangent) const;

    /// The curve integral of y dx from `pa1` to `pa2`: minus the area over a whole counter-clockwise curve.
    virtual double Integration(double pa1, double pa2) const;

    /// The enclosed area, never negative; 0 of an open curve.
    virtual double Area() const;

    /// The sum over the pieces; 0 where there are none.
    virtual double Length() const;

    /// Exchanges start and end. Nothing by default.
    virtual void Reverse();

    /// The curve as chords.
    ///
    /// Units      `prec` is a step in Pa, not a chord error; below 1e-9 it is GetMLinePrec().
    /// Fails      Null unless both ends exist.
    virtual QnGeMLine2d* MLinearize(double prec) const;

    /// The curve as a polyline, exact where the class can; otherwise MLinearize.
    virtual QnGeMLine2d* PLinearize(double prec) const;

    /// The curve as chords between points `step` apart along it; `skipVertical` matters to segments only.
    ///
    /// Requires  `step` above 0, otherwise it never ends.
    /// Fails     Null unless the curve has a length, and where coordinates make that infinite.
    virtual QnGeMLine2d* MLinearizeByDist(double step, bool skipVertical) const;

    /// The step in Pa that MLinearize takes by itself.
    virtual double GetMLinePrec() const;

    /// The curve that carries the same geometry past the ends: a clone of a closed or infinite curve, else by default a
    /// chain of the curve and a ray along the tangent at each end that exists.
    ///
    /// Fails  Null where a class has no such curve.
    virtual QnGeCurve2d* GetExtendCurve() const;

    /// Cuts `obj` with this curve as the knife and sorts the pieces; neither of the two changes.
    ///
    /// Order      `in` takes what is HIT_IN or has no side, `out` what is HIT_OUT, `on` what lies on this curve.
    ///            Each is filled along `obj`, with the piece over the seam of a closed `obj` last.
    /// Ownership  The pieces are new; a piece for which there is no object is left out.
    virtual void Cut(const QnGeObject& obj, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const;

    /// Merges `other` into this curve where both lie on one carrier and overlap or touch.
    ///
    /// Direction  With `strictDirection` only curves that run the same way merge.
    /// Fails      False, and the curve stays as it was. False by default.
    virtual bool Conbine(const QnGeCurve2d& other, bool strictDirection);

    /// Merges neighbouring pieces where Conbine can. Nothing by default.
    virtual void Compress();

    /// Moves the curve to the right of travel by `dist`, to the left if negative.
    ///
    /// Fails  False by default.
    virtual bool Offset(double dist);

    // ---- derived from the protocol ---------------------------------------------------------------

    /// The middle in parameter, not in length.
    bool GetMidPoint(QnGePoint& pt) const;

    /// Whether both ends exist.
    bool IsCurveSeg() const;

    /// Whether the curve has a length: both ends exist or it is closed. A ray is neither finite nor infinite.
    bool IsFinite() const;
    bool IsInfinite() const;

    /// Whether `pa` lies between the ends that exist.
    ///
    /// Tolerance  g_fZero.
    /// Kept odd   The ends count as 0 and 1 whatever the parameter of the class is.
    bool IsIncludePa(double pa) const;

    /// GetTangent at a point of the curve; at Pa 0 if the point has no parameter.
    void GetTangentFromPt(const QnGePoint& pt, QnGeBaseLine2d& tangent) const;

    /// The stretch between two points of the curve; a point without a parameter counts as Pa 0.
    QnGeCurve2d* GetSubCurve(const QnGePoint& a, const QnGePoint& b) const;

    /// A copy moved by Offset.
    ///
    /// Fails  Null.
    QnGeCurve2d* GetOffsetCurve(double dist) const;

    /// Cuts the curve at points of it, given in any order; a point without a parameter counts as Pa 0.
    void Split(const QnGePointArray& points, QnGeObjList& out) const;

    /// The integral over the whole curve: above 0 is clockwise.
    ///
    /// Kept odd  A curve that cannot be exploded is integrated over Pa 0 to 1, so a circle over one radian.
    double TotalIntegration() const;

    /// HitTest with HIT_IN for the left of travel and HIT_OUT for the right, on every curve that has a side.
    QnBitData HitTestSide(const QnGePoint& pt) const;

    /// Whether this curve's end is the start of `next` in the plan.
    ///
    /// Tolerance  g_distZero.
    bool IsConnectWith(const QnGeCurve2d& next) const;

    /// Makes this curve's end and the start of `next` one point, by moving both to where the extensions meet.
    ///
    /// Fails     False where they are not connected afterwards.
    /// Kept odd  One of the two may have moved all the same.
    bool ConnectWith(QnGeCurve2d& next);

    // ---- moving an end: the start if `atStart`, otherwise the end. The other end stays. -----------
    // Whatever the answer but ETR_DONE, the curve is as it was. A class whose CopyFrom refuses what is left of it ends
    // in ETR_FAILED: a circle, of which an arc is left, a chain, a ray that would become a segment.

    /// Lengthens the curve up to the nearest or farthest point at which its extension meets an object.
    ///
    /// Tolerance  g_fZero in Pa of the extension: an object at the end itself does not count.
    /// Fails      ETR_FAILED where there is no extension or the end does not exist; ETR_NO_VALID_POINT where nothing is
    ///            met beyond the end but along a stretch.
    /// Kept odd   On a closed extension, such as an arc's, every point counts and near and far are told from the end
    ///            that stays: the curve may become shorter.
    ExtendTrimResult Extend(const QnGeObjList& objs, bool atStart, bool nearest);
    ExtendTrimResult Extend(const QnGeObject& obj, bool atStart, bool nearest);

    /// Cuts the end back to the first point at which the curve meets an object, the start to the last.
    ///
    /// Kept odd  The ends count as Pa 0 and 1 whatever the parameter of the class is.
    ExtendTrimResult Trim(const QnGeObjList& objs, bool atStart);
    ExtendTrimResult Trim(const QnGeObject& obj, bool atStart);

    /// Moves the end, outward or inward, to a point at which the curve's extension meets an object.
    ///
    /// `pickMode` 1 takes the point nearest to the end that stays, 0 the farthest, any other the one closest to the end
    /// that moves. Of several objects each offers only its point closest to the end that moves.
    ///
    /// Tolerance  g_fZero in Pa of the extension: a point at the end that stays does not count.
    /// Fails      ETR_FAILED where there is no extension. An end that does not exist is no failure.
    ExtendTrimResult Connect(const QnGeObjList& objs, bool atStart, int pickMode);
    ExtendTrimResult Connect(const QnGeObject& obj, bool atStart, int pickMode);
};

/// Makes the named ends of two curves one point, by moving both to where the extensions meet.
///
/// Tolerance  g_distZero in the plan; ends that near are one point already, and nothing changes.
/// Fails      False, and the curves stay as they were, where they do not meet, or where one would turn round at that
///            end or grow to more than five times its length.
QUARNGEO_API bool ConnectCurveSeg(QnGeCurve2d* a, QnGeCurve2d* b, bool atStartA, bool atStartB);
