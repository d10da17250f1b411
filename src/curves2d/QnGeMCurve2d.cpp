// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeMCurve2d.h"

#include "curves2d/detail/ChainChildren.h"
#include "curves2d/detail/PartsInclude.h"
#include "frame/QnGeObjList.h"
#include "frame/detail/EntryRecords.h"
#include "values/QnGePoint.h"

using qn_detail::AppendCloneTo;
using qn_detail::ChildAt;
using qn_detail::ForEachChild;

QN_DEFINE_CLASS_RECORD(QnGeMCurve2d, QnGeCurve2d, CLASS_ID_MCURVE2D)

// ---- making ------------------------------------------------------------------------------------------

QnGeMCurve2d::QnGeMCurve2d() = default;

QnGeMCurve2d::QnGeMCurve2d(const QnGeCurve2d& curve) {
    AppendCloneTo(*this, curve);
}

QnGeMCurve2d::QnGeMCurve2d(const QnGeMCurve2d& other) : QnGeCurve2d(other), QnPDList<QnGeCurve2d>() {
    AppendClones(other);
}

QnGeMCurve2d::~QnGeMCurve2d() = default;

// The clones are made before anything goes, since `other` may be a child of a child of this chain.
QnGeMCurve2d& QnGeMCurve2d::operator=(const QnGeMCurve2d& other) {
    if (this == &other) {
        return *this;
    }
    QnGeMCurve2d copy(other);
    QnGeCurve2d::operator=(other);
    QnPDList<QnGeCurve2d>::Reset();
    QnPDList<QnGeCurve2d>::Conbine(copy, 0);
    return *this;
}

void QnGeMCurve2d::AppendClones(const QnGeMCurve2d& other) {
    ForEachChild(other, [this](const QnGeCurve2d& child, long) {
        AppendCloneTo(*this, child);
        return true;
    });
}

// ---- object protocol ---------------------------------------------------------------------------------

bool QnGeMCurve2d::IsValid() const {
    const QnGeCurve2d* before = nullptr;
    for (auto entry = GetFirst(); entry != nullptr; entry = GetNext(entry)) {
        const QnGeCurve2d* const child = *entry;
        if (child == nullptr || !child->IsValid() || (before != nullptr && !before->IsConnectWith(*child))) {
            return false;
        }
        before = child;
    }
    return before != nullptr;
}

QnGeObject* QnGeMCurve2d::Clone() const {
    return new QnGeMCurve2d(*this);
}

void QnGeMCurve2d::TransformBy(const QnGeMatrix& matrix) {
    ForEachChild(*this, [&matrix](QnGeCurve2d& child, long) {
        child.TransformBy(matrix);
        return true;
    });
}

bool QnGeMCurve2d::Explode(QnGeObjList& parts) const {
    ForEachChild(*this, [&parts](const QnGeCurve2d& child, long) {
        QnGeObject* const clone = child.Clone();
        if (clone != nullptr) {
            parts.Append(clone);
        }
        return true;
    });
    return true;
}

bool QnGeMCurve2d::IsInclude(const QnGeObject& other) const {
    return qn_detail::IsIncludedByParts(*this, other);
}

QnGePoint QnGeMCurve2d::GetSamplePoint() const {
    const QnGeCurve2d* const first = ChildAt(*this, 0);
    return first != nullptr ? first->GetSamplePoint() : QnGePoint();
}

void QnGeMCurve2d::StreamIn(QnStream& stream) {
    QnGeCurve2d::StreamIn(stream);
    QnGeObjList read;
    read.StreamIn(stream);
    QnPDList<QnGeCurve2d>::Reset();
    while (!read.IsEmpty()) {
        QnGeObject* const object = read.TakeOffHead();
        if (object->IsClassOf(&QnGeCurve2d::s_classInfo)) {
            Append(static_cast<QnGeCurve2d*>(object));
        } else {
            delete object;
        }
    }
}

void QnGeMCurve2d::StreamOut(QnStream& stream) const {
    QnGeCurve2d::StreamOut(stream);
    qn_detail::StreamOutEntries(List(), stream);
}

void QnGeMCurve2d::SetElevation(double z) {
    ForEachChild(*this, [z](QnGeCurve2d& child, long) {
        child.SetElevation(z);
        return true;
    });
}

double QnGeMCurve2d::GetElevation() const {
    const QnGeCurve2d* const first = ChildAt(*this, 0);
    return first != nullptr ? first->GetElevation() : 0.0;
}

// ---- ends and direction ------------------------------------------------------------------------------

bool QnGeMCurve2d::IsFinite(bool atStart) const {
    const QnGeCurve2d* const outermost = ChildAt(*this, atStart ? 0 : GetSegNum() - 1);
    return outermost != nullptr && outermost->IsFinite(atStart);
}

bool QnGeMCurve2d::GetStartPoint(QnGePoint& pt) const {
    const QnGeCurve2d* const first = ChildAt(*this, 0);
    return first != nullptr && first->GetStartPoint(pt);
}

bool QnGeMCurve2d::GetEndPoint(QnGePoint& pt) const {
    const QnGeCurve2d* const last = ChildAt(*this, GetSegNum() - 1);
    return last != nullptr && last->GetEndPoint(pt);
}

bool QnGeMCurve2d::IsClosed() const {
    if (IsCurveSeg()) {
        return QnGeCurve2d::IsClosed();
    }
    const QnGeCurve2d* const only = GetSegNum() == 1 ? ChildAt(*this, 0) : nullptr;
    return only != nullptr && only->IsClosed();
}

void QnGeMCurve2d::Reverse() {
    ForEachChild(*this, [](QnGeCurve2d& child, long) {
        child.Reverse();
        return true;
    });
    ReverseList();
    MoveToFirst();
}
