// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "frame/QnGeObject2d.h"

class QnGeCurve2d;
class QnGePolygon2d;

/// A part of the plane: one outline and any number of holes, numbered as boundaries.
///
///      +------------------+        Boundary 0 is the outline, boundaries 1 and up are the holes. The area
///      |   +----+         |        lies to the left of every boundary: a correct outline runs counter-clockwise,
///      |   |hole|   area  |        correct holes run clockwise. A null outline means that the region has no outer
///      |   +----+         |        limit; without holes it then is the whole plane.
///      +------------------+
///
/// This class is the protocol and has no field. Derived classes say where the boundaries are (GetBoundary,
/// GetBoundaryNum); everything else here works on what these two answer.
///
/// Z          Each boundary has its own; the region's elevation is that of its first boundary.
/// Valid      Outline counter-clockwise, holes clockwise, none crosses itself, holes inside the outline and apart.
/// Ownership  The objects that an operation appends to a list belong to that list; a returned region belongs to
///            the caller.
class QUARNGEO_API QnGeRegion2d : public QnGeObject2d {
public:
    QN_CLASS_RECORD(QnGeRegion2d);

    // ---- object protocol, in slot order ----------------------------------------------------------
    bool IsValid() const override;
    void TransformBy(const QnGeMatrix& matrix) override;  ///< a mirror leaves the orientations reversed

    /// The straight form of the region (`MLinearize(0)`), appended to `parts`; false if there is none.
    bool Explode(QnGeObjList& parts) const override;

    /// What of `other` lies in the closed region: pieces of a curve or point, or the common area of a region.
    bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const override;

    /// Whether nothing of `other` lies outside.
    bool IsInclude(const QnGeObject& other) const override;

    /// Where `point` lies, in the codes of regions (not in those of curves):
    ///
    ///     0   outside                                  HIT_ON here means: belongs to the closed region.
    ///     1   inside: HIT_ON
    ///     9   on the outline: HIT_ON | HIT_BOUNDARY
    ///     16  in a hole: HIT_HOLE
    ///     25  on the edge of a hole: HIT_ON | HIT_BOUNDARY | HIT_HOLE
    QnBitData HitTest(const QnGePoint& point) const override;

    bool GetExtent2d(QnGeExtent2d& extent) const override;  ///< the outline's; false without outline

    /// `point` itself, if it belongs to the region.
    ///
    /// Fails     For a point outside that is on no boundary; nothing is appended.
    /// Kept odd  The nearest boundary point of a point outside is not found. Ask the boundaries for it.
    bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const override;
    using QnGeObject::GetClosestPoint2d;

    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- region protocol, in slot order ----------------------------------------------------------

    /// This region less `other`; appends nothing where nothing remains.
    ///
    /// Fails  Regions that are not straight polygons append nothing.
    virtual void SubtractBy(const QnGeRegion2d& other, QnGeObjList& out) const;

    /// Boundary `i`, or null. The curve is borrowed; the caller may change it.
    virtual QnGeCurve2d* GetBoundary(long i) const;
    virtual long GetBoundaryNum() const;

    /// Appends what this region and `other` have in common; false if they have nothing.
    ///
    /// Fails  Regions that are not straight polygons answer false.
    virtual bool Inter(const QnGeRegion2d& other, QnGeObjList& out) const;

    /// This region and `other` together as one new region.
    ///
    /// Ownership  The caller owns the result.
    /// Fails      Null if the regions are disjoint, and for regions that are not straight polygons.
    virtual QnGeRegion2d* Union(const QnGeRegion2d& other) const;

    /// Splits the region along `curve` into pieces at its left and at its right.
    ///
    /// Fails  Only polygons split, and only by a line; otherwise nothing is appended.
    virtual void CutBy(const QnGeCurve2d& curve, QnGeObjList& left, QnGeObjList& right) const;

    // ---- questions -------------------------------------------------------------------------------
    bool IsOutlineExist() const;
    QnGeCurve2d& Outline() const;  ///< Requires IsOutlineExist()
    long GetHoleNum() const;
    bool IsHoleExist() const;
    QnGeCurve2d& Hole(long i) const;  ///< boundary i + 1
    bool IsClosed() const;            ///< the outline exists and is closed
    bool IsEntirePlane() const;       ///< neither outline nor hole

    /// Whether boundaries may touch or cross each other in a valid region; stored in the object word.
    bool IsAllowBoundaryInter() const;
    void SetAllowBoundaryInter(bool allow);

    /// Whether an operation has to reckon with boundaries that meet.
    bool IsMayBoundaryInter() const;

    /// Whether two of the boundaries meet. Quadratic in their number.
    bool IsBoundaryInter() const;

    /// The outline's area less the holes'; 0 unless closed.
    double Area() const;

    // ---- changes ---------------------------------------------------------------------------------

    /// Turns a closed outline counter-clockwise and closed holes clockwise.
    void Normalize();

    /// Moves every boundary by `d` to the right of its travel: a correct region grows.
    ///
    /// Fails  False at the first boundary that cannot be moved; those before it have been.
    bool Offset(double d);

    // ---- derived regions -------------------------------------------------------------------------

    /// A polygon with the linearised boundaries: QnGePolygon2d without holes, QnGeGeneralPolygon2d with holes.
    ///
    /// Units      `prec` as in QnGeCurve2d::MLinearize.
    /// Ownership  The caller owns the result.
    /// Fails      Null unless closed. A hole without a linear form is left out.
    QnGePolygon2d* MLinearize(double prec) const;

    /// Sorts the pieces of `object` into what is inside, outside and along the boundaries.
    ///
    /// Ownership  The lists own the pieces; `object` stays as it is. The lists may be one and the same.
    void Clip(const QnGeObject& object, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const;

    /// This region less all regions of the list, one after the other. Null entries are passed over.
    ///
    /// Requires  All entries are regions.
    /// Fails     A list without entries appends a clone of this region.
    void SubtractBy(const QnGeObjList& regions, QnGeObjList& out) const;

protected:
    /// Whether `hole`, which is no boundary yet, meets one of the boundaries.
    bool IsMeetingBoundary(const QnGeCurve2d& hole) const;
};
