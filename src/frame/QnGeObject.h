// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "base/QnRxRunTimeClass.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"

class QnGeCoordSys;
class QnGeExtent2d;
class QnGeExtent3d;
class QnGeMatrix;
class QnGeObjList;
class QnGePoint;
class QnGePointList;
class QnStream;

/// Root of everything that can sit in a QnGeObjList, be cloned, streamed, hit-tested and intersected.
///
/// Every operation has a working default that falls back on Explode: a compound class that overrides Explode
/// alone takes part in hit tests, extents, inclusion, intersection and closest-point queries.
///
/// Valid     False unless a class says otherwise.
/// Stream    The flag word as a long; then the fields of each class from the root downward. No length, version or end
///           mark, and not the class id, which the container writes.
/// Kept odd  Equality compares the flag word only, whatever the shapes. Order is that of the class ids.
class QUARNGEO_API QnGeObject : public QnRxRunTimeClass, public QnBitData {
public:
    // ---- making ----------------------------------------------------------------------------------
    QnGeObject() = default;
    QnGeObject(const QnGeObject& other) = default;
    QnGeObject& operator=(const QnGeObject& other) = default;

    // ---- object protocol, in slot order ----------------------------------------------------------
    QN_CLASS_RECORD(QnGeObject);
    ~QnGeObject() override;

    virtual bool IsValid() const;

    /// A new object equal to this one. Here: through the stream record, so a field that is not streamed is lost.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where the class has no factory.
    virtual QnGeObject* Clone() const;

    /// Takes over flags and geometry of `other`.
    ///
    /// Fails  False, and nothing changes, where `other` is null or of a class that this one does not accept.
    virtual bool CopyFrom(const QnGeObject* other);

    virtual void TransformBy(const QnGeMatrix& matrix);

    /// Appends new objects that together make up this one.
    ///
    /// Ownership  The parts belong to `parts`.
    /// Fails      False, and nothing is appended, where the class has no parts.
    virtual bool Explode(QnGeObjList& parts) const;

    /// Appends what the two have in common: points where they meet, curves where they run together.
    ///
    /// Order  That of production; neither sorted nor free of repeats.
    /// Fails  False, and nothing is appended, where they have nothing in common.
    virtual bool IntersectWith(const QnGeObject& other, QnGeObjList& result) const;

    /// True if `other` lies wholly on or in this object. Here: if `other` explodes and each part is included.
    virtual bool IsInclude(const QnGeObject& other) const;

    /// HIT_ON if a part has the point, else 0: the default knows no sides.
    virtual QnBitData HitTest(const QnGePoint& point) const;

    /// As HitTest, and tells in `subIndex` where it was hit; 0 here.
    virtual QnBitData SubHitTest(const QnGePoint& point, int& subIndex) const;

    /// Fails  False where the object is unbounded or has no parts.
    virtual bool GetExtent2d(QnGeExtent2d& extent) const;
    virtual bool GetExtent3d(QnGeExtent3d& extent) const;

    virtual bool GetEcs(QnGeCoordSys& ecs) const;
    virtual QnGePoint GetSamplePoint() const;

    /// Appends all points of the object that are nearest to `point`, in plan and in space, each once.
    ///
    /// Tolerance  Distances within g_distZero of the first best count as equal.
    /// Kept odd   Repeats are recognised in space also by the plan form: two points above each other both stay.
    /// Fails      False, and nothing is appended, where there is none.
    virtual bool GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const;
    virtual bool GetClosestPoint(const QnGePoint& point, QnGePointList& result) const;

    /// Reads the record that StreamOut wrote. Nothing is checked.
    virtual void StreamIn(QnStream& stream);
    virtual void StreamOut(QnStream& stream) const;

    /// A new simpler object of the same shape, or null where there is nothing simpler.
    ///
    /// Ownership  The caller's.
    virtual QnGeObject* Symplify() const;

    // ---- on top of the protocol ------------------------------------------------------------------
    /// A new object of the same class id, filled from this one's stream record.
    ///
    /// Ownership  The caller's.
    /// Fails      Null where DynCreateGeObject has no entry for the id.
    QnGeObject* CloneNew() const;

    /// Appends the smallest parts: Explode down to what does not explode. An object without parts gives one clone.
    void FullExplode(QnGeObjList& parts) const;

    /// Applies this object's own coordinate system to `target`, from it and to it. Without one nothing happens.
    void TransToWcs(QnGeObject* target) const;
    void TransToEcs(QnGeObject* target) const;

    /// The first nearest point of the list form.
    ///
    /// Fails  False, and `result` stays, where there is none.
    bool GetClosestPoint(const QnGePoint& point, QnGePoint& result) const;
    bool GetClosestPoint2d(const QnGePoint& point, QnGePoint& result) const;

    /// True if the object's extent meets `extent`. An object without extent cannot be excluded: true.
    bool IsExtentInter(const QnGeExtent2d& extent) const;
    bool IsExtentInter(const QnGeExtent3d& extent) const;

    /// Order by class id, the only order on objects.
    bool operator<(const QnGeObject& other) const { return GetClassID() < other.GetClassID(); }
    bool operator>(const QnGeObject& other) const { return GetClassID() > other.GetClassID(); }
};
