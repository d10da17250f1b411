// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeGeneralPolygon2d.h"

#include <memory>

#include "base/QnStream.h"
#include "curves2d/QnGeLine2d.h"
#include "frame/QnGeObjList.h"

QN_DEFINE_CLASS_RECORD(QnGeGeneralPolygon2d, QnGePolygon2d, CLASS_ID_GENERAL_POLYGON2D)

// ---- making --------------------------------------------------------------------------------------

QnGeGeneralPolygon2d::QnGeGeneralPolygon2d(long n) : QnGePolygon2d(n) {}

QnGeGeneralPolygon2d::QnGeGeneralPolygon2d(const QnGeMLine2d& outline, bool normalize)
    : QnGePolygon2d(outline, normalize) {}

QnGeGeneralPolygon2d::QnGeGeneralPolygon2d(const QnGePolygon2d& polygon) : QnGePolygon2d(polygon) {}

QnGeGeneralPolygon2d::QnGeGeneralPolygon2d(const QnGeGeneralPolygon2d& other) : QnGePolygon2d(other) {
    CopyHoles(other.m_holes);
}

QnGeGeneralPolygon2d& QnGeGeneralPolygon2d::operator=(const QnGeGeneralPolygon2d& other) {
    if (this != &other) {
        QnGePolygon2d::operator=(other);
        CopyHoles(other.m_holes);
    }
    return *this;
}

QnGeGeneralPolygon2d::~QnGeGeneralPolygon2d() = default;

void QnGeGeneralPolygon2d::CopyHoles(const QnPDList<QnGeMLine2d>& holes) {
    m_holes.Reset();
    for (QnGeMLine2d* const* hole = holes.GetFirst(); hole != nullptr; hole = holes.GetNext(hole)) {
        m_holes.Append(static_cast<QnGeMLine2d*>((*hole)->Clone()));
    }
}

// ---- object protocol -----------------------------------------------------------------------------

// The rule of regions: of a multi-line, which always ends, it asks what QnGePolygon2d asks of the outline.
bool QnGeGeneralPolygon2d::IsValid() const {
    return QnGeRegion2d::IsValid();
}

QnGeObject* QnGeGeneralPolygon2d::Clone() const {
    return new QnGeGeneralPolygon2d(*this);
}

bool QnGeGeneralPolygon2d::Explode(QnGeObjList& parts) const {
    if (IsHoleExist()) {
        return false;
    }
    parts.Append(new QnGePolygon2d(*this));
    return true;
}

void QnGeGeneralPolygon2d::StreamIn(QnStream& stream) {
    QnGePolygon2d::StreamIn(stream);
    m_holes.Reset();
    long count = 0;
    stream >> count;
    for (long i = 0; i < count; ++i) {
        auto hole = std::make_unique<QnGeMLine2d>();
        hole->StreamIn(stream);
        m_holes.Append(hole.release());
    }
}

void QnGeGeneralPolygon2d::StreamOut(QnStream& stream) const {
    QnGePolygon2d::StreamOut(stream);
    stream << m_holes.GetLength();
    for (QnGeMLine2d* const* hole = m_holes.GetFirst(); hole != nullptr; hole = m_holes.GetNext(hole)) {
        (*hole)->StreamOut(stream);
    }
}

// ---- boundaries ----------------------------------------------------------------------------------

QnGeMLine2d* QnGeGeneralPolygon2d::GetBoundary(long i) const {
    if (i == 0) {
        return QnGePolygon2d::GetBoundary(0);
    }
    return m_holes.IsValidIndex(i - 1) ? m_holes.GetAt(i - 1) : nullptr;
}

long QnGeGeneralPolygon2d::GetBoundaryNum() const {
    return m_holes.GetLength() + 1;
}

QnGeMLine2d& QnGeGeneralPolygon2d::Hole(long i) const {
    return *m_holes.GetAt(i);
}

void QnGeGeneralPolygon2d::DelHole(long i) {
    if (m_holes.IsValidIndex(i)) {
        m_holes.Del(i);
    }
}

QnGeMLine2d* QnGeGeneralPolygon2d::FetchHole(long i) {
    return m_holes.IsValidIndex(i) ? m_holes.TakeOff(i) : nullptr;
}

void QnGeGeneralPolygon2d::ClearHole() {
    m_holes.Reset();
}

bool QnGeGeneralPolygon2d::AppendHole(QnGeMLine2d* hole, bool check) {
    std::unique_ptr<QnGeMLine2d> owned(hole);
    if (!owned) {
        return false;
    }
    if (check) {
        if (!IsAllowBoundaryInter() && IsMeetingBoundary(*owned)) {
            return false;
        }
        if (owned->IsClosed() && owned->IsClockwise()) {
            owned->Reverse();
        }
        if (!IsInclude(QnGePolygon2d(*owned, false))) {
            return false;
        }
        owned->Reverse();
    }
    m_holes.Append(owned.release());
    return true;
}

// ---- booleans ------------------------------------------------------------------------------------
// Without a hole on either side these are the forms of QnGePolygon2d, otherwise there is no answer.

QnGeRegion2d* QnGeGeneralPolygon2d::Union(const QnGeRegion2d& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_POLYGON2D:
            return Union(static_cast<const QnGePolygon2d&>(other));
        case CLASS_ID_GENERAL_POLYGON2D:
            return Union(static_cast<const QnGeGeneralPolygon2d&>(other));
        default:
            return QnGeRegion2d::Union(other);
    }
}

bool QnGeGeneralPolygon2d::Inter(const QnGeRegion2d& other, QnGeObjList& out) const {
    switch (other.GetClassID()) {
        case CLASS_ID_POLYGON2D:
            return Inter(static_cast<const QnGePolygon2d&>(other), out);
        case CLASS_ID_GENERAL_POLYGON2D:
            return Inter(static_cast<const QnGeGeneralPolygon2d&>(other), out);
        default:
            return QnGeRegion2d::Inter(other, out);
    }
}

void QnGeGeneralPolygon2d::SubtractBy(const QnGeRegion2d& other, QnGeObjList& out) const {
    switch (other.GetClassID()) {
        case CLASS_ID_POLYGON2D:
            SubtractBy(static_cast<const QnGePolygon2d&>(other), out);
            break;
        case CLASS_ID_GENERAL_POLYGON2D:
            SubtractBy(static_cast<const QnGeGeneralPolygon2d&>(other), out);
            break;
        default:
            QnGeRegion2d::SubtractBy(other, out);
            break;
    }
}

/// Null where this polygon has holes.
QnGeRegion2d* QnGeGeneralPolygon2d::Union(const QnGePolygon2d& other) const {
    return IsHoleExist() ? nullptr : QnGePolygon2d::Union(other);
}

/// False, nothing appended, where this polygon has holes.
bool QnGeGeneralPolygon2d::Inter(const QnGePolygon2d& other, QnGeObjList& out) const {
    return !IsHoleExist() && QnGePolygon2d::Inter(other, out);
}

/// Appends nothing where this polygon has holes.
void QnGeGeneralPolygon2d::SubtractBy(const QnGePolygon2d& other, QnGeObjList& out) const {
    if (!IsHoleExist()) {
        QnGePolygon2d::SubtractBy(other, out);
    }
}

/// Null where one of the two has holes.
QnGeRegion2d* QnGeGeneralPolygon2d::Union(const QnGeGeneralPolygon2d& other) const {
    if (!IsHoleExist()) {
        return other.Union(static_cast<const QnGePolygon2d&>(*this));
    }
    if (!other.IsHoleExist()) {
        return Union(static_cast<const QnGePolygon2d&>(other));
    }
    return nullptr;
}

/// False, nothing appended, where one of the two has holes.
bool QnGeGeneralPolygon2d::Inter(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const {
    if (!IsHoleExist()) {
        return other.Inter(static_cast<const QnGePolygon2d&>(*this), out);
    }
    return false;
}

/// Appends nothing where this polygon has holes; those of `other` are taken into account.
void QnGeGeneralPolygon2d::SubtractBy(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const {
    if (!IsHoleExist()) {
        QnGePolygon2d::SubtractBy(other, out);
    }
}

// ---- cuts ----------------------------------------------------------------------------------------

/// Appends nothing where the polygon has holes.
void QnGeGeneralPolygon2d::CutBy(const QnGeCurve2d& curve, QnGeObjList& left, QnGeObjList& right) const {
    if (curve.GetCI() != &QnGeLine2d::s_classInfo) {
        QnGeRegion2d::CutBy(curve, left, right);
    } else if (!IsMayBoundaryInter()) {
        QuickCutBy(static_cast<const QnGeLine2d&>(curve), left, right);
    }
}

/// Appends nothing where the polygon has holes.
void QnGeGeneralPolygon2d::QuickCutBy(const QnGeLine2d& line, QnGeObjList& left, QnGeObjList& right) const {
    if (!IsHoleExist()) {
        QnGePolygon2d::CutBy(line, left, right);
    }
}
