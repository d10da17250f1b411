// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePointArray.h"

/// A line of straight segments through its vertices, open or closed.
///
///        v1 ------ v2        Open: the segments v0 v1, v1 v2, v2 v3. Closed: one more, implied,
///       /            \       from the last vertex back to v0; v0 is not stored twice.
///     v0              v3     Below 2 vertices there is no segment.
///
/// Parameter  Pa runs 0..1 over the whole line and every segment takes the same share of it, 1 / GetSegNum(),
///            whatever its length. Pa is not tested for range: beyond 0..1 the first and last segment are
///            prolonged.
/// Z          Each vertex has its own. It is carried, interpolated and streamed; plan tests ignore it.
/// Valid      At least 2 vertices, neighbours further than g_distZero apart in space, the closing pair too.
/// Stream     flags (they hold the closed bit), count, then x, y, z of each vertex. Class id 116.
/// Ownership  A segment handed out by pointer is a new object of the caller's.
/// Fails      With false, -1 or null and the line unchanged. Indexes are the caller's duty.
class QUARNGEO_API QnGeMLine2d : public QnGeCurve2d {
public:
    QN_CLASS_RECORD(QnGeMLine2d);

    // ---- making ----------------------------------------------------------------------------------

    /// `n` vertices at the origin.
    explicit QnGeMLine2d(long n = 0, bool closed = false);
    QnGeMLine2d(const QnGePointArray& points, bool closed);
    QnGeMLine2d(const QnDynArrayBase<QnGePoint>& points, bool closed);
    QnGeMLine2d(const QnGeMLine2d& other);
    ~QnGeMLine2d() override;

    /// The other's flags and points. A polyline that is assigned to as a multi-line gets straight segments only.
    QnGeMLine2d& operator=(const QnGeMLine2d& other);
    /// The points; the flags stay. They go in through SetVertexNum, so the bulges of a polyline become 0.
    QnGeMLine2d& operator=(const QnGePointArray& points);
    QnGeMLine2d& operator=(const QnDynArrayBase<QnGePoint>& points);

    // ---- object protocol, in slot order ----------------------------------------------------------

    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// Takes over a multi-line (a polyline without its bulges) or the two ends of a segment.
    ///
    /// Fails  False for every other class and for null.
    bool CopyFrom(const QnGeObject* other) override;

    void TransformBy(const QnGeMatrix& matrix) override;

    /// Appends one QnGeLineSeg2d for each pair of neighbours and one for the closing pair.
    ///
    /// Ownership  `parts` owns them.
    /// Fails      False without vertices. One vertex gives true and no piece, or the null closing segment.
    bool Explode(QnGeObjList& parts) const override;

    /// Whether `other` lies on the line.
    ///
    /// Fails  A line, ray, circle or arc is never included.
    bool IsInclude(const QnGeObject& other) const override;

    /// Where a point lies: HIT_ON, HIT_IN or HIT_OUT of a closed line, HIT_ON or 0 of an open one.
    ///
    /// The inside of a closed line is found by the parity of crossings with a ray towards +x, so the direction of
    /// the line and its crossings with itself do not matter.
    ///
    /// Tolerance  g_distZero for lying on a segment, g_fZero for crossings at vertices.
    /// See        docs/algorithms/hit-test.md
    QnBitData HitTest(const QnGePoint& point) const override;

    /// The HitTest value; `sub` tells where: index + 1 of the vertex that is hit, -(index + 1) of the segment, else 0.
    QnBitData SubHitTest(const QnGePoint& point, int& sub) const override;

    /// The box of the vertices in x and y.
    ///
    /// Fails  False without vertices.
    bool GetExtent2d(QnGeExtent2d& extent) const override;

    /// The middle of the first segment. Without a segment vertex 0, without a vertex the origin.
    QnGePoint GetSamplePoint() const override;

    using QnGeObject::GetClosestPoint;
    /// False: a multi-line does not answer for the closest point in space, only GetClosestPoint2d does, in plan.
    bool GetClosestPoint(const QnGePoint& point, QnGePointList& result) const override;

    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    /// A simpler object of the same shape: the only segment that has a length, the line with neighbours that run on
    /// merged, or a QnGePoint2d at vertex 0 where no segment has a length.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where nothing merges, and of an empty line.
    /// Kept odd   A line whose ends coincide comes out closed. The result is a QnGePolyline2d only where an arc is
    ///            left.
    QnGeObject* Symplify() const override;

    /// Sets z of every vertex; GetElevation answers that of vertex 0, 0 when empty.
    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    using QnGeCurve2d::GetSubCurve;
    /// A new open line from `pa1` to `pa2` along the travel; equal values give the whole turn, `pa1` > `pa2` runs over
    /// the end and on from vertex 0, on an open line too, which then jumps there.
    ///
    /// Tolerance  g_fZero for the parameters; on a closed line 1 counts as 0.
    /// Ownership  The caller's.
    /// Fails      Null without a segment.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;

    /// False when empty.
    bool GetStartPoint(QnGePoint& point) const override;
    /// The last vertex, on a closed line vertex 0. False when empty.
    bool GetEndPoint(QnGePoint& point) const override;

    /// The point at `pa`, z interpolated between the segment's vertices.
    ///
    /// Fails  False without a segment, unless `pa` is 0 or 1 within g_fZero: then true always, and the point is set if
    ///        there is a vertex.
    bool GetPtFromPa(double pa, QnGePoint& point) const override;

    /// The parameter of the first segment that the point lies on.
    ///
    /// Fails     False and `pa` = -1 off the line.
    /// Kept odd  Just before the seam of a closed line it may be slightly negative, since segment 0 is asked first.
    bool GetPaFromPt(const QnGePoint& point, double& pa) const override;

    /// The parameter at a distance along the line, measured in plan. False and `pa` = -1 beyond the ends.
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;

    bool IsClosed() const override;
    /// True.
    bool IsMLinear() const override;
    /// Whether two segments meet elsewhere than neighbours do at their common vertex.
    bool IsSelfCross() const override;
    /// The segment at `pa`, its direction normalised. Without a segment `tangent` stays as it is.
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    /// The curve integral of y dx from `pa1` to `pa2`, negated if `pa1` > `pa2`.
    double Integration(double pa1, double pa2) const override;
    /// Turns the travel. Vertex 0 of a closed line stays the start.
    void Reverse() override;
    /// A plain copy; `prec` plays no part.
    QnGeMLine2d* MLinearize(double prec) const override;
    /// The linearisations of the segments by distance, joined. Both flags of the segments' own operation are passed on.
    QnGeMLine2d* MLinearizeByDist(double step, bool skipVertical) const override;
    /// Merges neighbours that run on and drops segments without a length; a line without any other stays as it is.
    ///
    /// Kept odd  As Symplify.
    void Compress() override;
    /// Moves every segment to the right of travel by `dist`, to the left if negative; the corners are intersected.
    ///
    /// Nothing is rounded or trimmed: where a segment is too short for the offset it comes out running backwards, and
    /// the answer is true all the same. IsSelfCross and ExplodeSelfcross find and clean that.
    ///
    /// Fails  False if neighbouring segments would be parallel and apart, as at a U-turn; false without a segment.
    /// See    docs/algorithms/offset.md
    bool Offset(double dist) override;

    // ---- multi-line protocol, in slot order ------------------------------------------------------

    /// Segment `i` as a curve object of the caller's, a QnGeLineSeg2d.
    virtual QnGeCurve2d* GetCurveSeg(long i) const;

    /// Sets the number of vertices to exactly `n`, which also sets the memory held. What remains keeps its points;
    /// those of new vertices are for the caller to set. `keep` speaks of the bulges of a polyline only: false clears
    /// them.
    virtual void SetVertexNum(long n, bool keep);

    /// Vertex `i` goes. On a polyline the segment that ended there goes on to the next vertex with its own bulge.
    virtual void DelVertex(long i);

    /// `bulge` is that of the segment that starts at the new vertex; a multi-line ignores it.
    virtual void AppendVertex(const QnGePoint& point, double bulge = 0.0);
    virtual void InsertVertex(long i, const QnGePoint& point, double bulge = 0.0);

    /// Makes a vertex of `point`; the answer is its index.
    ///
    /// With `onCurve` the point must lie on the line and not on a vertex. Without it the line is opened at its closest
    /// point and pulled to `point`.
    ///
    /// Tolerance  g_distZero in plan.
    /// Fails      -1.
    /// Kept odd   Where the closest point is a vertex, `point` is inserted before it (appended behind the last vertex
    ///            of an open line) and the answer is -1 all the same.
    virtual long InsertNode(const QnGePoint& point, bool onCurve);

    /// Kept odd  Writes the point (n, 0, 0) over every vertex; only the polyline's form sets the allocation unit.
    virtual void SetAllocUnit(long n);

    /// Drops vertices that lie within g_distZero in space of the last one kept, and a last one on vertex 0 if closed.
    ///
    /// Fails  False and nothing changed if fewer than 2 vertices are there or would remain.
    virtual bool RemoveDupPoint();

    /// The segment at `pa`; `pa` becomes the parameter on that segment.
    ///
    /// Fails  -1 without a segment, `pa` stays. A `pa` beyond 0..1 gives the first or last segment and a local value
    ///        beyond 0..1.
    virtual long GetSegIndexFromPa(double& pa) const;

    /// As Offset for segment `i` alone: its two vertices move along the neighbours.
    ///
    /// Fails  False also if a neighbour runs on in its line, for then the two are parallel and apart; false if there is
    ///        no segment `i`.
    virtual bool OffsetSeg(long i, double dist);

    // ---- vertices and segments -------------------------------------------------------------------

    long GetVertexNum() const { return m_vertices.GetLength(); }
    long GetSegNum() const {
        const long count = m_vertices.GetLength();
        if (count < 2) {
            return 0;
        }
        return HasBit(OBJ_CLOSED) ? count : count - 1;
    }
    void SetClosed(bool closed) { SetBit(OBJ_CLOSED, closed); }

    /// Vertices stand in one block: &line[0] is a plain array of GetVertexNum() points until the number changes.
    const QnGePoint& GetVertex(long i) const { return m_vertices.GetAt(i); }
    void SetVertex(long i, const QnGePoint& point) { (*this)[i] = point; }
    QnGePoint& operator[](long i) { return const_cast<QnGePoint&>(m_vertices.GetAt(i)); }
    const QnGePoint& operator[](long i) const { return m_vertices.GetAt(i); }
    const QnGePointArray& GetVertexArray() const { return m_vertices; }

    /// Segment `i` with its full vector; from the last vertex on it leads to vertex 0.
    void GetSegment(long i, QnGeBaseLine2d& line) const;

    // ---- shape -----------------------------------------------------------------------------------

    /// The mean of the vertices, the origin for an empty line.
    QnGePoint GetCenter() const;
    /// Whether no vertex leaves the height of vertex 0 by more than g_distZero.
    bool IsPlanear() const;
    /// Whether all vertices lie on one line in plan. Tolerance  g_fZero on cross products of full vectors.
    bool IsLinear() const;
    /// Whether the closed walk over the vertices turns both left and right. Tolerance  as IsLinear.
    bool IsConcave() const;
    /// Deletes the first vertex within g_distZero of `point` in plan and answers its index, -1 if there is none.
    long DelNode(const QnGePoint& point);

    /// Takes the line apart at its crossings with itself into pieces that do not cross themselves.
    ///
    /// The first crossing splits the line into a closed loop and the rest, which is closed if the line is; both are
    /// taken apart in turn. Where two segments lie on each other, both come as QnGeLineSeg2d, and rest and loop are
    /// joined up without them. A polyline gives its chords.
    ///
    /// Tolerance  g_distZero in plan: a crossing at a vertex does not double it.
    /// Order      At every split the two overlapping segments, the later one first; then the rest, then the loop.
    /// Ownership  `parts` owns the pieces, QnGeMLine2d and QnGeLineSeg2d.
    /// Fails      False and nothing appended if the line does not cross itself.
    /// Laws       Without overlaps the lengths add up, in plan, to that of the line.
    bool ExplodeSelfcross(QnGeObjList& parts) const;

protected:
    QnGePointArray m_vertices;
};
