// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPDList.h"
#include "curves2d/QnGeCurve2d.h"

/// A chain of curves of any class that behaves as one curve, and itself the list that owns them.
///
///      child 0       child 1    child 2        The children are run through in list order. That each begins where
///     +------------+----.     .--------+       the one before it ends is not enforced; IsValid tells.
///     0           1/3    `---' 2/3     1
///
/// Parameter  Every child takes the same share of 0..1, whatever its length: (index + the child's own Pa) / count. At
///            the first and the last child the child's Pa may leave 0..1, so that rays there reach out to infinity. A
///            whole circle fits in only as the single child.
/// Z          That of the children.
/// Valid      At least one child; every child is there and valid, and is connected with the next.
/// Ownership  The children are destroyed with the chain and cloned with it; a child that has no clone is left out.
/// Stream     flags, then the children as a QnGeObjList writes them. Class id 118.
/// Fails      A chain without children answers false, null, 0 or nothing.
/// Kept odd   CopyFrom refuses everything, so Extend, Trim and Connect of a chain end in ETR_FAILED.
/// See        List() for the list's forms of the names that both bases offer.
class QUARNGEO_API QnGeMCurve2d : public QnGeCurve2d, public QnPDList<QnGeCurve2d> {
public:
    QN_CLASS_RECORD(QnGeMCurve2d);

    // A name of both bases means the geometry. Where the list has a virtual operation of that name it stays visible,
    // and the types of the arguments choose.
    using QnGeCurve2d::Conbine;
    using QnPDList<QnGeCurve2d>::Conbine;
    using QnGeObject2d::Move;
    using QnPDList<QnGeCurve2d>::Move;
    using QnGeObject2d::Rotate;
    using QnPDList<QnGeCurve2d>::Rotate;
    using QnGeObject::operator==;
    using QnGeObject::operator!=;
    using QnGeObject::operator<;
    using QnGeObject::operator>;

    // ---- making ----------------------------------------------------------------------------------
    QnGeMCurve2d();
    /// A chain of one clone.
    explicit QnGeMCurve2d(const QnGeCurve2d& curve);
    QnGeMCurve2d(const QnGeMCurve2d& other);
    ~QnGeMCurve2d() override;
    /// Clones of the other's children; the own ones are deleted.
    QnGeMCurve2d& operator=(const QnGeMCurve2d& other);

    QnPDList<QnGeCurve2d>& List() { return *this; }
    const QnPDList<QnGeCurve2d>& List() const { return *this; }

    /// Moves the chain. Numbers of any kind mean this; two `long` are the list's Move.
    template <class X, class Y>
    void Move(X dx, Y dy) {
        QnGeObject2d::Move(static_cast<double>(dx), static_cast<double>(dy));
    }

    /// The number of children.
    long GetSegNum() const { return GetLength(); }

    /// The child at `pa`; `pa` becomes the parameter on that child.
    ///
    /// Fails  -1 without children, `pa` stays. A `pa` beyond 0..1 gives the first or last child and a local value
    ///        beyond 0..1; NaN counts as 0.
    long GetSegIndexFromPa(double& pa) const;

    // ---- object protocol, in slot order ----------------------------------------------------------

    bool IsValid() const override;
    QnGeObject* Clone() const override;
    void TransformBy(const QnGeMatrix& matrix) override;

    /// Appends a clone of each child. Always true.
    bool Explode(QnGeObjList& parts) const override;

    /// Whether `other` lies on the chain: a segment also across several children.
    ///
    /// Fails  A line, ray, circle or arc is never included.
    bool IsInclude(const QnGeObject& other) const override;

    /// That of the first child.
    QnGePoint GetSamplePoint() const override;

    /// Deletes the children and reads those of the stream. What is no planar curve is left out.
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    /// A simpler object of the same shape: the only child that is left, the polyline that segments, arcs and
    /// multi-lines together make, a chain of fewer children, or a QnGePoint2d where all children shrink to points.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where nothing changes, and of an empty chain.
    /// Kept odd   A chain of one child gives that child, and one of polyline pieces the polyline, even if nothing got
    ///            simpler.
    QnGeObject* Symplify() const override;

    /// Sets that of every child; GetElevation answers that of the first.
    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    using QnGeCurve2d::IsFinite;
    /// Asks the first child for the start, the last for the end.
    bool IsFinite(bool atStart) const override;

    using QnGeCurve2d::GetSubCurve;
    /// The stretch from `pa1` to `pa2` along the travel; equal values give the whole chain opened there, `pa1` > `pa2`
    /// runs over the end and on from child 0, on an open chain too, which then jumps there.
    ///
    /// Tolerance  g_fZero for the parameters; on a closed chain 1 counts as 0.
    /// Ownership  The caller's. Within one child it is a bare curve, otherwise a chain. A single child is asked with
    ///            the parameters as they are.
    /// Fails      Null of an empty chain. A stretch of nothing, from 1 to 0 of an open chain, is a chain without
    ///            children.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override;

    bool GetStartPoint(QnGePoint& pt) const override;
    bool GetEndPoint(QnGePoint& pt) const override;

    /// The point at `pa`; at 0 and 1 the ends, as far as they exist.
    ///
    /// Tolerance  g_fZero for 0 and 1.
    bool GetPtFromPa(double pa, QnGePoint& pt) const override;

    /// The parameter of the first child that the point lies on, so that a joint is the end of the earlier child.
    ///
    /// Fails  False and `pa` = -1 off the chain.
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override;

    /// The parameter at a distance along the chain, and back. False and `pa` = -1 past the end.
    bool GetPaFromDist(double dist, double& pa) const override;
    bool GetDistFromPa(double pa, double& dist) const override;

    /// Whether both ends exist and coincide; a single child without ends is asked itself.
    bool IsClosed() const override;

    /// Whether a child crosses itself or is closed, or two children meet elsewhere than at their joint.
    ///
    /// Kept odd  Neighbours, and the first and last child of a closed chain, are those with following indexes: where
    ///           such a pair meets in one point, that point is not asked to be the joint.
    bool IsSelfCross() const override;

    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override;
    /// The curve integral of y dx from `pa1` to `pa2`, negated if `pa1` > `pa2`.
    double Integration(double pa1, double pa2) const override;
    void Reverse() override;

    /// The children's chords in one line.
    ///
    /// Units     `prec` is a step in each child's own Pa.
    /// Fails     Null unless the chain has a length. A child without a linearisation is left out.
    QnGeMLine2d* MLinearize(double prec) const override;

    /// A QnGePolyline2d where a child becomes one, otherwise a QnGeMLine2d.
    ///
    /// Fails  Null unless the chain has a length and every child a linearisation.
    QnGeMLine2d* PLinearize(double prec) const override;

    /// The linearisations of the children by distance, joined.
    ///
    /// Kept odd  Of a single closed child the last vertex is lost.
    QnGeMLine2d* MLinearizeByDist(double step, bool skipVertical) const override;

    /// Compresses each child and merges neighbours that run the same way.
    void Compress() override;

    /// Moves every child and joins the moved ones again.
    ///
    /// Fails  False, and the chain stays as it was, where two children cannot be joined.
    bool Offset(double dist) override;

    // ---- joints ----------------------------------------------------------------------------------

    /// Makes each child's end and the next one's start one point, of the last and first child too if `closed`.
    ///
    /// `insertSeg` puts a segment between two that cannot be joined.
    ///
    /// Fails     False at the first joint that cannot be made without a segment.
    /// Kept odd  Children that were moved before a failure stay moved.
    bool ConnectSeg(bool closed, bool insertSeg);

    /// Moves child `i` to the right of travel by `dist` and joins it with its neighbours again.
    ///
    /// Fails     False for an index out of range, and where a joint cannot be made.
    /// Kept odd  Children that were moved before a failure stay moved.
    bool OffsetSeg(long i, double dist);

private:
    void AppendClones(const QnGeMCurve2d& other);
};
