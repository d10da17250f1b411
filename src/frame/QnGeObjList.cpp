// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"

#include "base/QnStream.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/DynCreateGeObject.h"
#include "frame/detail/EntryRecords.h"
#include "objects3d/QnGeCurve3d.h"
#include "objects3d/QnGeFace3d.h"
#include "objects3d/QnGeSolid3d.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeMatrix.h"

QnGeObjList::QnGeObjList(const QnGeObject& object) {
    Append(object.Clone());
}

QnGeObjList::QnGeObjList(const QnGeObjList& other) : QnPDList<QnGeObject>() {
    AppendClones(other);
}

QnGeObjList& QnGeObjList::operator=(const QnGeObjList& other) {
    if (this != &other) {
        Reset();
        AppendClones(other);
    }
    return *this;
}

void QnGeObjList::AppendClones(const QnGeObjList& other) {
    for (QnGeObject* const* entry = other.GetFirst(); entry != nullptr; entry = other.GetNext(entry)) {
        Append(*entry != nullptr ? (*entry)->Clone() : nullptr);
    }
}

QnGeCurve2d& QnGeObjList::GetCurCurve2D() {
    return static_cast<QnGeCurve2d&>(*GetCurData());
}

QnGeCurve2d& QnGeObjList::GetCurCurveSeg2D() {
    return static_cast<QnGeCurve2d&>(*GetCurData());
}

QnGeCurve3d& QnGeObjList::GetCurCurve3D() {
    return static_cast<QnGeCurve3d&>(*GetCurData());
}

QnGeObject2d& QnGeObjList::GetCurObject2D() {
    return static_cast<QnGeObject2d&>(*GetCurData());
}

QnGeObject3d& QnGeObjList::GetCurObject3D() {
    return static_cast<QnGeObject3d&>(*GetCurData());
}

QnGeRegion2d& QnGeObjList::GetCurRegion2D() {
    return static_cast<QnGeRegion2d&>(*GetCurData());
}

QnGeFace3d& QnGeObjList::GetCurFace3D() {
    return static_cast<QnGeFace3d&>(*GetCurData());
}

QnGeSolid3d& QnGeObjList::GetCurSolid() {
    return static_cast<QnGeSolid3d&>(*GetCurData());
}

void QnGeObjList::ReverseCurve2D() {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (!IsCurEmpty()) {
            GetCurCurve2D().Reverse();
        }
    }
}

void QnGeObjList::TransformBy(const QnGeMatrix& matrix) {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (!IsCurEmpty()) {
            GetCurPData()->TransformBy(matrix);
        }
    }
}

void QnGeObjList::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    for (QnGeObject* const* entry = GetFirst(); entry != nullptr; entry = GetNext(entry)) {
        if (*entry != nullptr) {
            other.IntersectWith(**entry, result);
        }
    }
}

void QnGeObjList::StreamOut(QnStream& stream) const {
    qn_detail::StreamOutEntries(*this, stream);
}

void QnGeObjList::StreamIn(QnStream& stream) {
    ReadEntries(stream, false);
}

void QnGeObjList::StreamInWithGaps(QnStream& stream) {
    ReadEntries(stream, true);
}

// A truncated stream reads as zeros: it ends in entries without a class, not in an error.
void QnGeObjList::ReadEntries(QnStream& stream, bool keepGaps) {
    Reset();
    long count = 0;
    stream >> count;
    for (long i = 0; i < count; ++i) {
        long classId = qn_detail::NO_CLASS_ID;
        stream >> classId;
        QnGeObject* object = DynCreateGeObject(static_cast<int>(classId));
        if (object != nullptr) {
            object->StreamIn(stream);
            Append(object);
        } else if (keepGaps) {
            Append(nullptr);
        }
    }
}
