// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGePolygon2d.h"

#include "base/QnStream.h"
#include "frame/QnGeObjList.h"

QN_DEFINE_CLASS_RECORD(QnGePolygon2d, QnGeRegion2d, CLASS_ID_POLYGON2D)

QnGePolygon2d::QnGePolygon2d(long n) : m_outline(n, true) {}

QnGePolygon2d::QnGePolygon2d(const QnGeMLine2d& outline, bool normalize) : m_outline(outline) {
    if (normalize && m_outline.IsClockwise()) {
        m_outline.Reverse();
    }
}

QnGePolygon2d::QnGePolygon2d(const QnGePolygon2d& other) = default;

QnGePolygon2d& QnGePolygon2d::operator=(const QnGePolygon2d& other) = default;

QnGePolygon2d::~QnGePolygon2d() = default;

bool QnGePolygon2d::IsValid() const {
    return m_outline.IsValid() && m_outline.IsClosed() && !m_outline.IsClockwise() && !m_outline.IsSelfCross();
}

QnGeObject* QnGePolygon2d::Clone() const {
    return new QnGePolygon2d(*this);
}

bool QnGePolygon2d::Explode(QnGeObjList&) const {
    return false;
}

void QnGePolygon2d::StreamIn(QnStream& stream) {
    QnGeRegion2d::StreamIn(stream);
    m_outline.StreamIn(stream);
}

void QnGePolygon2d::StreamOut(QnStream& stream) const {
    QnGeRegion2d::StreamOut(stream);
    m_outline.StreamOut(stream);
}

// A boundary is borrowed from a const region and may be changed through it: that is the protocol of regions. The
// outline is a member here, hence the one cast.
QnGeMLine2d* QnGePolygon2d::GetBoundary(long) const {
    return const_cast<QnGeMLine2d*>(&m_outline);
}

bool QnGePolygon2d::IsConcave() const {
    return m_outline.IsConcave();
}

QnGePoint QnGePolygon2d::Center() const {
    QnGePoint sum;
    const long count = m_outline.GetVertexNum();
    for (long i = 0; i < count; ++i) {
        sum += m_outline.GetVertex(i);
    }
    return sum / static_cast<double>(count);
}
