// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObject.h"

#include <cstdint>
#include <memory>

#include "base/QnDynArrayStream.h"
#include "curves2d/detail/CurvePieces.h"
#include "frame/DynCreateGeObject.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "frame/detail/ExtentHull.h"
#include "polylines/detail/PieceIntersect.h"
#include "values/QnGeCoordSys.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeObject, QnRxRunTimeClass, CLASS_ID_OBJECT)

namespace {

constexpr long CLONE_STREAM_BYTES = 1024;

// Keeps of `all` the points nearest to `point`, each once, and moves them to the end of `result`.
//
// A tie leaves the best distance as it is, so that a chain of slightly growing distances does not drift.
bool KeepNearest(const QnGePointList& all, const QnGePoint& point,
                 double (*distance)(const QnGePoint&, const QnGePoint&), QnGePointList& result) {
    QnGePointList best;
    double bestDist = -1.0;  // none yet
    for (const QnGePoint* q = all.GetFirst(); q != nullptr; q = all.GetNext(q)) {
        const double dist = distance(point, *q);
        const double delta = dist - bestDist;
        if (IsLess(bestDist, g_distZero)) {
            bestDist = dist;
            best.Append(*q);
        } else if (IsLess(delta, g_distZero)) {
            bestDist = dist;
            best.Reset();
            best.Append(*q);
        } else if (!IsGreater(delta, g_distZero)) {
            best.FindOrAppend(*q);
        }
    }
    if (best.IsEmpty()) {
        return false;
    }
    result.Conbine(best, 0);
    return true;
}

template <class Extent>
bool MergePartExtents(const QnGeObject& object, bool (QnGeObject::*getExtent)(Extent&) const, Extent& extent) {
    qn_detail::ExtentHull<Extent> hull(getExtent, extent);
    const bool exploded = qn_detail::ForEachPart(object, [&hull](const QnGeObject& part) { return hull.Add(part); });
    return exploded && hull.IsThere();
}

}  // namespace

QnGeObject::~QnGeObject() = default;

bool QnGeObject::IsValid() const {
    return false;
}

QnGeObject* QnGeObject::Clone() const {
    return CloneNew();
}

bool QnGeObject::CopyFrom(const QnGeObject*) {
    return false;
}

void QnGeObject::TransformBy(const QnGeMatrix&) {}

bool QnGeObject::Explode(QnGeObjList&) const {
    return false;
}

bool QnGeObject::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    QnGeObjList found;
    qn_detail::IntersectParts(*this, other, found);
    if (found.IsEmpty()) {
        return false;
    }
    result.Conbine(found, 0);
    return true;
}

bool QnGeObject::IsInclude(const QnGeObject& other) const {
    bool isAll = true;
    const bool exploded = qn_detail::ForEachPart(other, [this, &isAll](const QnGeObject& part) {
        isAll = IsInclude(part);
        return isAll;
    });
    return exploded && isAll;
}

QnBitData QnGeObject::HitTest(const QnGePoint& point) const {
    bool isHit = false;
    qn_detail::ForEachPart(*this, [&point, &isHit](const QnGeObject& part) {
        isHit = part.HitTest(point).HasBit(HIT_ON);
        return !isHit;
    });
    return QnBitData(isHit ? static_cast<std::uint32_t>(HIT_ON) : 0U);
}

QnBitData QnGeObject::SubHitTest(const QnGePoint& point, int& subIndex) const {
    subIndex = 0;
    return HitTest(point);
}

bool QnGeObject::GetExtent2d(QnGeExtent2d& extent) const {
    return MergePartExtents(*this, &QnGeObject::GetExtent2d, extent);
}

bool QnGeObject::GetExtent3d(QnGeExtent3d& extent) const {
    return MergePartExtents(*this, &QnGeObject::GetExtent3d, extent);
}

bool QnGeObject::GetEcs(QnGeCoordSys&) const {
    return false;
}

QnGePoint QnGeObject::GetSamplePoint() const {
    return QnGePoint();
}

bool QnGeObject::GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const {
    QnGePointList all;
    qn_detail::ForEachPart(*this, [&point, &all](const QnGeObject& part) {
        part.GetClosestPoint2d(point, all);
        return true;
    });
    return KeepNearest(all, point, GetDistance2d, result);
}

bool QnGeObject::GetClosestPoint(const QnGePoint& point, QnGePointList& result) const {
    QnGePointList all;
    qn_detail::ForEachPart(*this, [&point, &all](const QnGeObject& part) {
        part.GetClosestPoint(point, all);
        return true;
    });
    return KeepNearest(all, point, GetDistance3d, result);
}

void QnGeObject::StreamIn(QnStream& stream) {
    long bits = 0;
    stream >> bits;
    m_nBits = static_cast<std::uint32_t>(bits);
}

// By way of the signed 32-bit value, so that the highest flag survives where a long is wider.
void QnGeObject::StreamOut(QnStream& stream) const {
    stream << static_cast<long>(static_cast<std::int32_t>(m_nBits));
}

QnGeObject* QnGeObject::Symplify() const {
    return nullptr;
}

QnGeObject* QnGeObject::CloneNew() const {
    std::unique_ptr<QnGeObject> copy(DynCreateGeObject(static_cast<int>(GetClassID())));
    if (!copy) {
        return nullptr;
    }
    QnDynArrayStream stream(CLONE_STREAM_BYTES, CLONE_STREAM_BYTES);
    StreamOut(stream);
    stream.MoveToFirst();
    copy->StreamIn(stream);
    return copy.release();
}

void QnGeObject::FullExplode(QnGeObjList& parts) const {
    QnGeObjList own;
    if (Explode(own)) {
        own.FullExplode();
        parts.Conbine(own, 0);
        return;
    }
    QnGeObject* copy = Clone();
    if (copy != nullptr) {
        parts.Append(copy);
    }
}

void QnGeObject::TransToWcs(QnGeObject* target) const {
    QnGeCoordSys ecs;
    if (GetEcs(ecs)) {
        QnGeMatrix matrix;
        ecs.GetMatrixFrom(matrix);
        target->TransformBy(matrix);
    }
}

void QnGeObject::TransToEcs(QnGeObject* target) const {
    QnGeCoordSys ecs;
    if (GetEcs(ecs)) {
        QnGeMatrix matrix;
        ecs.GetMatrixTo(matrix);
        target->TransformBy(matrix);
    }
}

bool QnGeObject::GetClosestPoint(const QnGePoint& point, QnGePoint& result) const {
    QnGePointList found;
    if (!GetClosestPoint(point, found) || found.IsEmpty()) {
        return false;
    }
    result = found.GetAt(0);
    return true;
}

bool QnGeObject::GetClosestPoint2d(const QnGePoint& point, QnGePoint& result) const {
    QnGePointList found;
    if (!GetClosestPoint2d(point, found) || found.IsEmpty()) {
        return false;
    }
    result = found.GetAt(0);
    return true;
}

bool QnGeObject::IsExtentInter(const QnGeExtent2d& extent) const {
    QnGeExtent2d own;
    return !GetExtent2d(own) || extent.IsInsersectWith(own);
}

bool QnGeObject::IsExtentInter(const QnGeExtent3d& extent) const {
    QnGeExtent3d own;
    return !GetExtent3d(own) || extent.IsInsersectWith(own);
}
