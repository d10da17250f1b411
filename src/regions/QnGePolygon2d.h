// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "polylines/QnGeMLine2d.h"
#include "regions/QnGeRegion2d.h"

class QnGeGeneralPolygon2d;

/// A straight polygon without holes: one closed multi-line, held by value.
///
/// The booleans work on the outlines as they are: both should run counter-clockwise, a clockwise one acts as its
/// complement. Results are appended in the order in which their rings are found on the second polygon, then on the
/// first, then at their crossings.
///
/// Valid     The outline is valid, closed, counter-clockwise and does not cross itself.
/// Stream    flags, then the outline's own record, so that two flag words stand in the stream. Class id 301.
/// Kept odd  GetBoundary answers the outline for any index.
/// See       docs/algorithms/polygon-booleans.md
class QUARNGEO_API QnGePolygon2d : public QnGeRegion2d {
public:
    QN_CLASS_RECORD(QnGePolygon2d);

    // ---- making ----------------------------------------------------------------------------------

    /// A closed outline of `n` vertices, all at the origin.
    explicit QnGePolygon2d(long n = 0);

    /// Copies the outline as it is; with `normalize` a clockwise one is reversed. Arcs of a polyline become chords.
    QnGePolygon2d(const QnGeMLine2d& outline, bool normalize);

    QnGePolygon2d(const QnGePolygon2d& other);
    QnGePolygon2d& operator=(const QnGePolygon2d& other);
    ~QnGePolygon2d() override;

    // ---- object protocol, in slot order ----------------------------------------------------------
    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// The convex pieces of the polygon.
    ///
    /// Fails  Always: a polygon has no convex decomposition, false and nothing appended.
    bool Explode(QnGeObjList& parts) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    // ---- region protocol, in slot order ----------------------------------------------------------
    void SubtractBy(const QnGeRegion2d& other, QnGeObjList& out) const override;
    QnGeMLine2d* GetBoundary(long i) const override;
    bool Inter(const QnGeRegion2d& other, QnGeObjList& out) const override;
    QnGeRegion2d* Union(const QnGeRegion2d& other) const override;

    /// Splits the polygon along an infinite line.
    ///
    /// Direction  `left` and `right` of the line's travel.
    /// Order      When both arguments are one list, the right pieces come first.
    /// Fails      A curve that is not exactly a QnGeLine2d appends nothing. A piece of fewer than 3 vertices
    ///            becomes a null entry.
    /// Kept odd   A crossing within g_distZero of an edge's end that the next edge does not reach is dropped.
    void CutBy(const QnGeCurve2d& curve, QnGeObjList& left, QnGeObjList& right) const override;

    // ---- typed booleans --------------------------------------------------------------------------
    // These look at the outlines only, whatever class the operands really have: the static type decides. Holes of a
    // general polygon that is reached through a reference to its base are not seen. Where the classes are not known,
    // call the forms on QnGeRegion2d.

    using QnGeRegion2d::Inter;
    using QnGeRegion2d::SubtractBy;
    using QnGeRegion2d::Union;

    /// The common outline, with holes where the two enclose some: a QnGePolygon2d or a QnGeGeneralPolygon2d.
    ///
    /// Ownership  The caller owns the result.
    /// Fails      Null if the polygons are disjoint or the rings found make no region.
    QnGeRegion2d* Union(const QnGePolygon2d& other) const;

    /// One new polygon for each piece that both have in common; false if there is none.
    ///
    /// Fails     A ring of fewer than 3 vertices becomes a null entry.
    /// Kept odd  If all vertices of one polygon lie on the outline of the other and the outlines do not part, a copy
    ///           of it is the answer, also where it fills a bay of the other from outside.
    bool Inter(const QnGePolygon2d& other, QnGeObjList& out) const;

    /// What remains of this polygon: any number of polygons, or one general polygon where `other` is a hole in it.
    ///
    /// Fails  Nothing is appended if nothing remains. A ring of fewer than 3 vertices becomes a null entry.
    void SubtractBy(const QnGePolygon2d& other, QnGeObjList& out) const;

    /// As above; what lies in the holes of `other` remains too, as pieces of their own.
    void SubtractBy(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const;

    // ---- questions -------------------------------------------------------------------------------
    QnGeMLine2d& Outline() { return m_outline; }
    const QnGeMLine2d& Outline() const { return m_outline; }
    bool IsConcave() const;

    /// The mean of the vertices on all three coordinates. Requires at least one vertex.
    QnGePoint Center() const;

protected:
    QnGeMLine2d m_outline;
};
