// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeObjList.h"
#include "regions/QnGeRegion2d.h"

/// A region with any curves as boundaries, and the only one whose outline may be missing.
///
/// There is always a boundary 0; it is null in a region without outer limit. Hole i is boundary i + 1.
///
/// Ownership  The region owns its boundaries.
/// Stream     flags, then the boundaries as an object list; a missing outline is an entry of class id 0 without record.
///            Class id 303.
class QUARNGEO_API QnGeGeneralRegion2d : public QnGeRegion2d {
public:
    QN_CLASS_RECORD(QnGeGeneralRegion2d);

    // ---- making ----------------------------------------------------------------------------------
    // `normalize` turns the outline counter-clockwise and the holes clockwise, once all of them are there.

    QnGeGeneralRegion2d();                                            ///< the whole plane
    QnGeGeneralRegion2d(QnGeCurve2d* outline, bool normalize);        ///< takes `outline` over
    QnGeGeneralRegion2d(const QnGeCurve2d& outline, bool normalize);  ///< clones `outline`

    /// Moves all curves in, the first one as outline, which may be null, and leaves `boundaries` empty.
    QnGeGeneralRegion2d(QnGeObjList& boundaries, bool normalize);

    /// Clones all boundaries of a region of any class.
    explicit QnGeGeneralRegion2d(const QnGeRegion2d& other);
    QnGeGeneralRegion2d(const QnGeGeneralRegion2d& other);
    QnGeGeneralRegion2d& operator=(const QnGeGeneralRegion2d& other);
    ~QnGeGeneralRegion2d() override;

    // ---- object protocol, in slot order ----------------------------------------------------------
    QnGeObject* Clone() const override;
    void StreamIn(QnStream& stream) override;
    void StreamOut(QnStream& stream) const override;

    // ---- region protocol, in slot order ----------------------------------------------------------
    QnGeCurve2d* GetBoundary(long i) const override;
    long GetBoundaryNum() const override;

    // ---- boundaries ------------------------------------------------------------------------------

    /// Puts `outline`, which may be null, in the place of the one before. Takes it over.
    void SetOutline(QnGeCurve2d* outline, bool normalize);

    /// Adds a hole, as it is or, with `check`, only if it fits.
    ///
    /// Direction  With `check` a hole is stored clockwise, in whichever direction it comes.
    /// Ownership  Takes `hole` over in any case; a refused one is deleted.
    /// Fails      False for null. With `check` also for a hole that is not in the region so far and, unless boundaries
    ///            may meet, for one that meets a boundary.
    /// Kept odd   Without `check` an open curve is reversed once.
    bool AppendHole(QnGeCurve2d* hole, bool check);
    void DelHole(long i);

    /// Takes hole `i` off; null if there is none. The caller owns it.
    QnGeCurve2d* FetchHole(long i);
    void ClearHole();

    /// Back to the whole plane.
    void Reset();

private:
    void EnsureOutlineEntry();

    QnGeObjList m_boundaries;
};
