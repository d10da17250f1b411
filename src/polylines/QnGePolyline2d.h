// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnArray.h"
#include "containers/QnDynArray.h"
#include "polylines/QnGeMLine2d.h"

class QnGeArc2d;
class QnGeCircle2d;

/// A multi-line whose segments may be circular arcs: one bulge per vertex, for the segment that starts there.
///
///            .-''-.          The bulge is the signed central angle of the arc: its size is the sweep, positive runs
///          .'      '.        counter-clockwise from vertex i to vertex i + 1, negative clockwise. pi is a half circle.
///     v0 -+ v1    v2 +- v3   Within g_angleZero of 0 the segment is its chord in every operation.
///
/// Parameter  As QnGeMLine2d; on an arc the local parameter runs with the angle.
/// Units      Bulges in radians.
/// Valid      A valid multi-line, and every bulge within a full turn.
/// Stream     The multi-line's record, then one bulge per vertex, that of the last vertex too. Class id 117.
/// Kept odd   GetPtFromPa sets the point at 0 and at 1 and answers false there.
///            A scale that differs in x and y leaves the bulges as they are: arcs stay circular.
class QUARNGEO_API QnGePolyline2d : public QnGeMLine2d {
public:
    QN_CLASS_RECORD(QnGePolyline2d);

    // ---- making ----------------------------------------------------------------------------------

    /// `n` vertices at the origin, all bulges 0.
    explicit QnGePolyline2d(long n = 0, bool closed = false);
    /// The multi-line's flags and points; its bulges if it is a polyline at run time, else all 0.
    QnGePolyline2d(const QnGeMLine2d& line);
    /// Two vertices, open; bulge 0 is the sweep, negated for a clockwise arc.
    QnGePolyline2d(const QnGeArc2d& arc);
    /// Two vertices, closed; two half circles from the circle's points at 0 and at pi.
    QnGePolyline2d(const QnGeCircle2d& circle);
    QnGePolyline2d(const QnGePointArray& points, bool closed);
    QnGePolyline2d(const QnDynArrayBase<QnGePoint>& points, bool closed);
    /// Bulges that are missing count as 0, surplus ones are left out.
    QnGePolyline2d(const QnGePointArray& points, const QnArray<double>& bulges, bool closed);
    QnGePolyline2d(const QnDynArrayBase<QnGePoint>& points, const QnDynArrayBase<double>& bulges, bool closed);
    QnGePolyline2d(const QnGePolyline2d& other);
    ~QnGePolyline2d() override;

    using QnGeMLine2d::operator=;
    QnGePolyline2d& operator=(const QnGePolyline2d& other);
    /// As the constructor from a multi-line.
    QnGePolyline2d& operator=(const QnGeMLine2d& other);

    // ---- object protocol, in slot order ----------------------------------------------------------

    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// Takes over any curve that it can be made of: a polyline, multi-line or segment directly, others by PLinearize.
    ///
    /// Fails  False if the object is no curve, is null, or cannot be made a polyline.
    bool CopyFrom(const QnGeObject* other) override;

    /// Moves the vertices; a matrix that mirrors negates the bulges.
    void TransformBy(const QnGeMatrix& matrix) override;

    /// Appends the segments in order, arcs and line segments. True always.
    bool Explode(QnGeObjList& parts) const override;

    /// Whether `other` lies on the line. Kept odd  Circles and arcs are never included.
    bool IsInclude(const QnGeObject& other) const override;

    /// As the multi-line's, with crossings of arcs by their points.
    ///
    /// Tolerance  g_distZero for lying on a segment and for crossings at the ends of arcs, g_fZero for those of chords.
    /// See        docs/algorithms/hit-test.md
    QnBitData HitTest(const QnGePoint& point) const override;
    QnBitData SubHitTest(const QnGePoint& point, int& sub) const override;

    /// The box of the segments, arcs with their bows. False without a segment.
    bool GetExtent2d(QnGeExtent2d& extent) const override;

    using QnGeMLine2d::GetClosestPoint;
    /// False: a polyline does not answer for the closest point in space, only GetClosestPoint2d does, in plan.
    bool GetClosestPoint(const QnGePoint& point, QnGePointList& result) const override;

    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    using QnGeMLine2d::GetSubCurve;
    /// As the multi-line's; an arc that is cut keeps the share of its bulge.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;

    /// The point at `pa`, z interpolated between the segment's vertices on arcs too.
    ///
    /// Kept odd  At 0 and at 1, within g_fZero, the point is set and the answer is false.
    bool GetPtFromPa(double pa, QnGePoint& point) const override;
    bool GetPaFromPt(const QnGePoint& point, double& pa) const override;
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;
    /// Whether no segment is an arc.
    bool IsMLinear() const override;
    bool IsSelfCross() const override;
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    double Integration(double pa1, double pa2) const override;
    /// Turns the travel; the bulges go with their segments and change sign.
    void Reverse() override;

    /// Chords for the arcs, `prec` radians each; below 1e-9 the library's step for circles.
    ///
    /// Ownership  The caller's.
    QnGeMLine2d* MLinearize(double prec) const override;
    /// A copy, a polyline; `prec` plays no part.
    QnGeMLine2d* PLinearize(double prec) const override;
    /// As the multi-line's; an arc keeps its centre and its sense of rotation, its radius and sweep follow.
    ///
    /// Where the carriers of two segments meet twice, the corner is the meeting point nearer to where the segment
    /// behind it starts.
    ///
    /// Fails  False if an arc would lose its radius or neighbouring carriers do not meet; false without a segment.
    bool Offset(double dist) override;

    // ---- multi-line protocol, in slot order ------------------------------------------------------

    /// Segment `i` as a curve object of the caller's: a QnGeArc2d if IsArcSeg(i), else a QnGeLineSeg2d.
    QnGeCurve2d* GetCurveSeg(long i) const override;
    /// New bulges are 0; with `keep` false all are.
    void SetVertexNum(long n, bool keep) override;
    void DelVertex(long i) override;
    void AppendVertex(const QnGePoint& point, double bulge = 0.0) override;
    void InsertVertex(long i, const QnGePoint& point, double bulge = 0.0) override;
    /// As the multi-line's; an arc is divided into two that lie on it.
    long InsertNode(const QnGePoint& point, bool onCurve) override;
    /// Sets the allocation unit of both arrays.
    void SetAllocUnit(long n) override;
    /// As the multi-line's; the bulge of a segment whose end is dropped goes with it.
    bool RemoveDupPoint() override;
    /// As Offset for segment `i` alone. Where carriers meet twice, the corner nearer to the old one is taken.
    bool OffsetSeg(long i, double dist) override;

    // ---- bulges and segments ---------------------------------------------------------------------

    double GetBulge(long i) const { return m_bulges.GetAt(i); }
    void SetBulge(long i, double bulge) { (*this)(i) = bulge; }
    double& operator()(long i) { return const_cast<double&>(m_bulges.GetAt(i)); }
    double operator()(long i) const { return m_bulges.GetAt(i); }

    /// Whether bulge `i` lies strictly outside g_angleZero.
    bool IsArcSeg(long i) const;
    bool IsArcExist() const;

    /// On a change only: closing gives the last vertex `closingBulge`, opening gives it 0.
    ///
    /// Kept odd  Through a QnGeMLine2d reference the flag alone changes; the last bulge is read while closed only.
    void SetClosed(bool closed, double closingBulge = 0.0);

    /// Segment `i` as GetCurveSeg gives it.
    QnGeCurve2d* GetSegment(long i) const;
    /// The arc of segment `i`, whether or not it counts as one: a tiny bulge gives a huge radius.
    void GetSegment(long i, QnGeArc2d& arc) const;
    /// The chord of segment `i`.
    void GetSegment(long i, QnGeBaseLine2d& line) const;

protected:
    QnDynArray<double> m_bulges;
};
