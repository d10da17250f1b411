// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeGeneralRegion2d.h"

#include <memory>

#include "base/QnStream.h"
#include "curves2d/QnGeCurve2d.h"

QN_DEFINE_CLASS_RECORD(QnGeGeneralRegion2d, QnGeRegion2d, CLASS_ID_GENERAL_REGION2D)

// ---- making --------------------------------------------------------------------------------------

QnGeGeneralRegion2d::QnGeGeneralRegion2d() {
    m_boundaries.Append(nullptr);
}

QnGeGeneralRegion2d::QnGeGeneralRegion2d(QnGeCurve2d* outline, bool normalize) {
    m_boundaries.Append(outline);
    if (normalize) {
        Normalize();
    }
}

QnGeGeneralRegion2d::QnGeGeneralRegion2d(const QnGeCurve2d& outline, bool normalize) {
    m_boundaries.Append(outline.Clone());
    if (normalize) {
        Normalize();
    }
}

QnGeGeneralRegion2d::QnGeGeneralRegion2d(QnGeObjList& boundaries, bool normalize) {
    m_boundaries.Conbine(boundaries, 0);
    EnsureOutlineEntry();
    if (normalize) {
        Normalize();
    }
}

QnGeGeneralRegion2d::QnGeGeneralRegion2d(const QnGeRegion2d& other) : QnGeRegion2d(other) {
    for (long i = 0; i < other.GetBoundaryNum(); ++i) {
        const QnGeCurve2d* boundary = other.GetBoundary(i);
        m_boundaries.Append(boundary != nullptr ? boundary->Clone() : nullptr);
    }
    EnsureOutlineEntry();
}

QnGeGeneralRegion2d::QnGeGeneralRegion2d(const QnGeGeneralRegion2d& other) = default;

QnGeGeneralRegion2d& QnGeGeneralRegion2d::operator=(const QnGeGeneralRegion2d& other) = default;

QnGeGeneralRegion2d::~QnGeGeneralRegion2d() = default;

void QnGeGeneralRegion2d::EnsureOutlineEntry() {
    if (m_boundaries.IsEmpty()) {
        m_boundaries.Append(nullptr);
    }
}

// ---- object protocol -----------------------------------------------------------------------------

QnGeObject* QnGeGeneralRegion2d::Clone() const {
    return new QnGeGeneralRegion2d(*this);
}

// A missing outline keeps its place, and so does whatever the stream holds that is no curve.
void QnGeGeneralRegion2d::StreamIn(QnStream& stream) {
    QnGeRegion2d::StreamIn(stream);
    m_boundaries.StreamInWithGaps(stream);
    for (m_boundaries.MoveToFirst(); !m_boundaries.IsOut(); m_boundaries.MoveToNext()) {
        if (!m_boundaries.IsCurEmpty() && !m_boundaries.GetCurData()->IsClassOf(&QnGeCurve2d::s_classInfo)) {
            m_boundaries.ReleaseCur();
        }
    }
    EnsureOutlineEntry();
}

void QnGeGeneralRegion2d::StreamOut(QnStream& stream) const {
    QnGeRegion2d::StreamOut(stream);
    m_boundaries.StreamOut(stream);
}

// ---- boundaries ----------------------------------------------------------------------------------

QnGeCurve2d* QnGeGeneralRegion2d::GetBoundary(long i) const {
    return m_boundaries.IsValidIndex(i) ? static_cast<QnGeCurve2d*>(m_boundaries.GetAt(i)) : nullptr;
}

long QnGeGeneralRegion2d::GetBoundaryNum() const {
    return m_boundaries.GetLength();
}

void QnGeGeneralRegion2d::SetOutline(QnGeCurve2d* outline, bool normalize) {
    if (normalize && outline != nullptr && outline->IsClosed() && outline->IsClockwise()) {
        outline->Reverse();
    }
    m_boundaries.MoveToFirst();
    if (m_boundaries.GetCurData() != outline) {
        m_boundaries.ReleaseCur();
        m_boundaries.SetCurData(outline);
    }
}

bool QnGeGeneralRegion2d::AppendHole(QnGeCurve2d* hole, bool check) {
    std::unique_ptr<QnGeCurve2d> owned(hole);
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
        if (!IsInclude(QnGeGeneralRegion2d(*owned, false))) {
            return false;
        }
        owned->Reverse();
    } else if (!owned->IsClosed()) {
        owned->Reverse();
    }
    m_boundaries.Append(owned.release());
    return true;
}

void QnGeGeneralRegion2d::DelHole(long i) {
    if (i >= 0 && m_boundaries.IsValidIndex(i + 1)) {
        m_boundaries.Del(i + 1);
    }
}

QnGeCurve2d* QnGeGeneralRegion2d::FetchHole(long i) {
    if (i < 0 || !m_boundaries.IsValidIndex(i + 1)) {
        return nullptr;
    }
    return static_cast<QnGeCurve2d*>(m_boundaries.TakeOff(i + 1));
}

void QnGeGeneralRegion2d::ClearHole() {
    while (m_boundaries.GetLength() > 1) {
        m_boundaries.DelTail();
    }
}

void QnGeGeneralRegion2d::Reset() {
    m_boundaries.Reset();
    EnsureOutlineEntry();
}
