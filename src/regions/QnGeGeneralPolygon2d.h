// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPDList.h"
#include "regions/QnGePolygon2d.h"

class QnGeLine2d;

/// A straight polygon with straight holes.
///
/// Hole i is boundary i + 1. Holes are stored clockwise; AppendHole sees to it when it is asked to check.
///
/// Ownership  The polygon owns its holes.
/// Valid      As QnGePolygon2d; holes valid, closed, clockwise, inside the outline and apart from each other.
/// Stream     The QnGePolygon2d record, the number of holes, then each hole's own record. Class id 302.
/// Fails      Booleans and cuts with holes involved answer with false, null or nothing; where no hole takes part they
///            are those of QnGePolygon2d.
class QUARNGEO_API QnGeGeneralPolygon2d : public QnGePolygon2d {
public:
    QN_CLASS_RECORD(QnGeGeneralPolygon2d);

    // ---- making ----------------------------------------------------------------------------------
    explicit QnGeGeneralPolygon2d(long n = 0);
    QnGeGeneralPolygon2d(const QnGeMLine2d& outline, bool normalize);

    /// The outline and the object word of `polygon`, whatever class it really has; no holes.
    explicit QnGeGeneralPolygon2d(const QnGePolygon2d& polygon);
    QnGeGeneralPolygon2d(const QnGeGeneralPolygon2d& other);
    QnGeGeneralPolygon2d& operator=(const QnGeGeneralPolygon2d& other);
    ~QnGeGeneralPolygon2d() override;

    // ---- object protocol, in slot order ----------------------------------------------------------
    bool IsValid() const override;
    QnGeObject* Clone() const override;

    /// Without holes: one QnGePolygon2d, a copy of the outline.
    ///
    /// Fails     With holes: false, nothing appended.
    /// Kept odd  The copy is not taken apart into convex pieces.
    bool Explode(QnGeObjList& parts) const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    // ---- region protocol, in slot order ----------------------------------------------------------
    void SubtractBy(const QnGeRegion2d& other, QnGeObjList& out) const override;
    QnGeMLine2d* GetBoundary(long i) const override;
    long GetBoundaryNum() const override;
    bool Inter(const QnGeRegion2d& other, QnGeObjList& out) const override;
    QnGeRegion2d* Union(const QnGeRegion2d& other) const override;
    void CutBy(const QnGeCurve2d& curve, QnGeObjList& left, QnGeObjList& right) const override;

    // ---- typed booleans --------------------------------------------------------------------------
    // A QnGePolygon2d argument is taken as an outline without holes, whatever class it really has.

    using QnGeRegion2d::SubtractBy;

    bool Inter(const QnGePolygon2d& other, QnGeObjList& out) const;
    bool Inter(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const;
    void SubtractBy(const QnGePolygon2d& other, QnGeObjList& out) const;
    void SubtractBy(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const;
    QnGeRegion2d* Union(const QnGePolygon2d& other) const;
    QnGeRegion2d* Union(const QnGeGeneralPolygon2d& other) const;

    /// The cut of QnGePolygon2d over all boundaries at once.
    ///
    /// Fails  With holes nothing is appended.
    void QuickCutBy(const QnGeLine2d& line, QnGeObjList& left, QnGeObjList& right) const;

    // ---- holes -----------------------------------------------------------------------------------
    QnGeMLine2d& Hole(long i) const;
    void DelHole(long i);

    /// Takes hole `i` off; null if there is none. The caller owns it.
    QnGeMLine2d* FetchHole(long i);
    void ClearHole();

    /// Adds a hole, as it is or, with `check`, only if it fits.
    ///
    /// Direction  With `check` a hole is stored clockwise, in whichever direction it comes.
    /// Ownership  Takes `hole` over in any case; a refused one is deleted.
    /// Fails      False for null. With `check` also for a hole that is not in the region so far, so for one that lies
    ///            in an earlier hole, and, unless boundaries may meet, for one that meets a boundary.
    bool AppendHole(QnGeMLine2d* hole, bool check);

private:
    void CopyHoles(const QnPDList<QnGeMLine2d>& holes);

    QnPDList<QnGeMLine2d> m_holes;
};
