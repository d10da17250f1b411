// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPDList.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeObject.h"

class QnGeCurve2d;
class QnGeCurve3d;
class QnGeFace3d;
class QnGeObject2d;
class QnGeObject3d;
class QnGeRegion2d;
class QnGeSolid3d;

/// The list in which results travel: an operation appends new objects to the caller's list, and the list owns them.
///
/// Ownership  Of all entries. Conbine hands entries from list to list without copying; TakeOff... hands them out.
/// Fails      An entry may be null where an operation had no object to give; the whole-list operations pass over it.
/// Stream     A long with the number of entries; then per entry a long with the class id and the object's record.
///            A null entry is written as the id 0 without a record.
class QUARNGEO_API QnGeObjList : public QnPDList<QnGeObject> {
public:
    // ---- making ----------------------------------------------------------------------------------
    QnGeObjList() = default;

    /// A list of one clone. Explicit, so that no object is cloned by being passed where a list is expected.
    explicit QnGeObjList(const QnGeObject& object);

    /// Copies share nothing: every entry is a clone. A null entry stays null in its place.
    QnGeObjList(const QnGeObjList& other);
    QnGeObjList& operator=(const QnGeObjList& other);

    // ---- the entry at the cursor, cast without any test ------------------------------------------
    QnGeCurve2d& GetCurCurve2D();
    QnGeCurve2d& GetCurCurveSeg2D();
    QnGeCurve3d& GetCurCurve3D();
    QnGeObject2d& GetCurObject2D();
    QnGeObject3d& GetCurObject3D();
    QnGeRegion2d& GetCurRegion2D();
    QnGeFace3d& GetCurFace3D();
    QnGeSolid3d& GetCurSolid();

    // ---- whole-list operations -------------------------------------------------------------------
    /// Keeps the list free of objects that another one covers: refuses `object` where an entry includes it, else drops
    /// the entries that it includes and appends it.
    ///
    /// Ownership  Taken only with the answer true.
    /// Fails      False for null and for a covered object. Entries dropped before the covering one was met stay
    ///            dropped.
    bool CheckIn(QnGeObject* object);

    /// Checks in each entry of `objects`, which keeps those that were refused. A list is not checked into itself.
    void CheckIn(QnGeObjList& objects);

    /// Deletes every entry that another one covers; of equal ones the first stays.
    void RemoveSubObj();

    /// Kept odd  Does nothing at all.
    void RemoveDup();

    /// Replaces each entry that explodes by its smallest parts. They go behind the entries that are whole already.
    void FullExplode();

    /// Replaces each planar entry by its form in space.
    ///
    /// Kept odd  Without one the place stays, with null in it; the plan form below drops the place.
    void ConvertTo3d();
    void ConvertTo2d();

    /// Requires  All entries are planar curves.
    void ReverseCurve2D();

    void TransformBy(const QnGeMatrix& matrix);

    /// The hull of the entries' extents.
    ///
    /// Fails  False for a list without objects, and as soon as one has no extent; `extent` then holds what was merged
    ///        before it.
    bool GetExtent2d(QnGeExtent2d& extent) const;
    bool GetExtent3d(QnGeExtent3d& extent) const;

    /// Intersects `other` with each entry, `other` being the receiver, and piles up the results.
    void IntersectWith(const QnGeObject& other, QnGeObjList& result) const;

    /// Cuts each entry with `curve` as the knife.
    ///
    /// Ownership  The pieces belong to the three lists, which may be one and the same.
    /// See        QnGeCurve2d::Cut
    void CutBy(const QnGeCurve2d& curve, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const;

    /// Appends the planar curves of this list to `out`, each cut wherever it meets another, so that the pieces meet
    /// only at their ends. A curve that meets none is cloned; so is what is no planar curve, and it cuts nothing.
    ///
    /// Tolerance  That of IntersectWith for meeting; boxes that are no further than g_distZero apart are looked at;
    ///            cuts nearer than g_fZero in a curve's parameter are one.
    /// Order      That of this list; the pieces of one curve as its Split gives them.
    /// Ownership  The pieces are new and belong to `out`; the members of this list stay as they are.
    /// Cost       n log n, and by the pairs whose boxes meet.
    /// Kept odd   Where curves overlap, the common stretch comes once for each. A curve is not cut where it meets
    ///            itself, and not at a point of which it knows no parameter.
    void InterBreakCurve2d(QnGeObjList& out) const;

    /// The same with common stretches kept once: the last of the curves that overlap keeps them.
    ///
    /// See  QnGeCurve2d::Cut, by which each curve cuts the pieces of all others.
    void InterBreakCurveEx2d(QnGeObjList& out) const;

    void StreamOut(QnStream& stream) const;

    /// Empties the list and reads what StreamOut wrote. Class ids without a factory are skipped.
    ///
    /// Kept odd  The record of a skipped object is not: what follows it in the stream is then read at the wrong place.
    void StreamIn(QnStream& stream);

    /// As StreamIn, but an entry that could not be made becomes null and so keeps the places of the others.
    void StreamInWithGaps(QnStream& stream);

private:
    void AppendClones(const QnGeObjList& other);
    void ReadEntries(QnStream& stream, bool keepGaps);
};
