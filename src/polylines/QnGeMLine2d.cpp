// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"

#include <algorithm>

#include "base/QnStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGeVector2d.h"

namespace {

// Both write as many points as there are to where a line already has the room.

void CopyPoints(const QnGePointArray& from, QnGePoint* to) {
    std::copy_n(from.GetFirst(), from.GetLength(), to);
}

void CopyPoints(const QnDynArrayBase<QnGePoint>& from, QnGePoint* to) {
    for (const QnGePoint* point = from.GetFirst(); point != nullptr; point = from.GetNext(point)) {
        *to++ = *point;
    }
}

}  // namespace

QN_DEFINE_CLASS_RECORD(QnGeMLine2d, QnGeCurve2d, CLASS_ID_MLINE2D)

// ---- making ------------------------------------------------------------------------------------------

// The arrays take exactly the space of the points: many outlines are held at once, and few of them grow.

QnGeMLine2d::QnGeMLine2d(long n, bool closed) : m_vertices(std::max(n, 0L)) {
    SetBit(OBJ_CLOSED, closed);
}

QnGeMLine2d::QnGeMLine2d(const QnGePointArray& points, bool closed) : QnGeMLine2d(points.GetLength(), closed) {
    if (!points.IsEmpty()) {
        CopyPoints(points, &(*this)[0]);
    }
}

QnGeMLine2d::QnGeMLine2d(const QnDynArrayBase<QnGePoint>& points, bool closed)
    : QnGeMLine2d(points.GetLength(), closed) {
    if (!points.IsEmpty()) {
        CopyPoints(points, &(*this)[0]);
    }
}

QnGeMLine2d::QnGeMLine2d(const QnGeMLine2d& other)
    : QnGeCurve2d(other), m_vertices(other.GetVertexNum(), other.m_vertices.GetAllocUnit()) {
    if (other.GetVertexNum() > 0) {
        CopyPoints(other.m_vertices, &(*this)[0]);
    }
}

QnGeMLine2d::~QnGeMLine2d() = default;

QnGeMLine2d& QnGeMLine2d::operator=(const QnGeMLine2d& other) {
    if (this == &other) {
        return *this;
    }
    QnGeCurve2d::operator=(other);
    return *this = other.m_vertices;
}

QnGeMLine2d& QnGeMLine2d::operator=(const QnGePointArray& points) {
    SetVertexNum(points.GetLength(), false);
    if (&points != &m_vertices && !points.IsEmpty()) {
        CopyPoints(points, &(*this)[0]);
    }
    return *this;
}

QnGeMLine2d& QnGeMLine2d::operator=(const QnDynArrayBase<QnGePoint>& points) {
    SetVertexNum(points.GetLength(), false);
    if (&points != &m_vertices && !points.IsEmpty()) {
        CopyPoints(points, &(*this)[0]);
    }
    return *this;
}

// ---- object protocol ---------------------------------------------------------------------------------

bool QnGeMLine2d::IsValid() const {
    const long count = GetVertexNum();
    if (count < 2) {
        return false;
    }
    for (long i = 1; i < count; i++) {
        if (IsZero(GetDistance3d(GetVertex(i - 1), GetVertex(i)), g_distZero)) {
            return false;
        }
    }
    return !(IsClosed() && IsZero(GetDistance3d(GetVertex(count - 1), GetVertex(0)), g_distZero));
}

QnGeObject* QnGeMLine2d::Clone() const {
    return new QnGeMLine2d(*this);
}

bool QnGeMLine2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr) {
        return false;
    }
    if (other->IsClassOf(&QnGeMLine2d::s_classInfo)) {
        QnGeMLine2d::operator=(*static_cast<const QnGeMLine2d*>(other));
        return true;
    }
    if (other->IsClassOf(&QnGeLineSeg2d::s_classInfo)) {
        const QnGeLineSeg2d& seg = *static_cast<const QnGeLineSeg2d*>(other);
        SetVertexNum(2, false);
        SetBit(OBJ_CLOSED, false);  // the segment has two ends
        SetVertex(0, seg.GetBasePoint());
        SetVertex(1, seg.GetEndPoint());
        return true;
    }
    return false;
}

void QnGeMLine2d::TransformBy(const QnGeMatrix& matrix) {
    m_vertices.TransformBy(matrix);
}

bool QnGeMLine2d::Explode(QnGeObjList& parts) const {
    const long count = GetVertexNum();
    if (count == 0) {
        return false;
    }
    for (long i = 1; i < count; i++) {
        parts.Append(new QnGeLineSeg2d(GetVertex(i - 1), GetVertex(i)));
    }
    if (IsClosed()) {
        parts.Append(new QnGeLineSeg2d(GetVertex(count - 1), GetVertex(0)));
    }
    return true;
}

bool QnGeMLine2d::GetExtent2d(QnGeExtent2d& extent) const {
    const long count = GetVertexNum();
    if (count == 0) {
        return false;
    }
    const QnGePoint& first = GetVertex(0);
    double xMin = first.x;
    double xMax = first.x;
    double yMin = first.y;
    double yMax = first.y;
    for (long i = 1; i < count; i++) {
        const QnGePoint& vertex = GetVertex(i);
        xMin = std::min(xMin, vertex.x);
        xMax = std::max(xMax, vertex.x);
        yMin = std::min(yMin, vertex.y);
        yMax = std::max(yMax, vertex.y);
    }
    extent.SetRange(xMin, xMax, yMin, yMax);
    return true;
}

QnGePoint QnGeMLine2d::GetSamplePoint() const {
    QnGePoint sample;
    const long count = GetSegNum();
    if (count == 0) {
        GetStartPoint(sample);
        return sample;
    }
    GetPtFromPa(0.5 / static_cast<double>(count), sample);
    return sample;
}

// Sized through the virtual slot, so that a polyline has its bulges ready when it reads them.
void QnGeMLine2d::StreamIn(QnStream& stream) {
    QnGeCurve2d::StreamIn(stream);
    long count = 0;
    stream >> count;
    SetVertexNum(count, false);
    for (long i = 0; i < GetVertexNum(); i++) {
        QnGePoint& vertex = (*this)[i];
        stream >> vertex.x >> vertex.y >> vertex.z;
    }
}

void QnGeMLine2d::StreamOut(QnStream& stream) const {
    QnGeCurve2d::StreamOut(stream);
    const long count = GetVertexNum();
    stream << count;
    for (long i = 0; i < count; i++) {
        const QnGePoint& vertex = GetVertex(i);
        stream << vertex.x << vertex.y << vertex.z;
    }
}

void QnGeMLine2d::SetElevation(double z) {
    const long count = GetVertexNum();
    for (long i = 0; i < count; i++) {
        (*this)[i].z = z;
    }
}

double QnGeMLine2d::GetElevation() const {
    return GetVertexNum() > 0 ? GetVertex(0).z : 0.0;
}

bool QnGeMLine2d::IsClosed() const {
    return HasBit(OBJ_CLOSED);
}

bool QnGeMLine2d::IsMLinear() const {
    return true;
}

// ---- segments ----------------------------------------------------------------------------------------

void QnGeMLine2d::GetSegment(long i, QnGeBaseLine2d& line) const {
    const long next = i >= GetVertexNum() - 1 ? 0 : i + 1;
    line.SetPoint(GetVertex(i), GetVertex(next));
}

QnGeCurve2d* QnGeMLine2d::GetCurveSeg(long i) const {
    const long next = i >= GetVertexNum() - 1 ? 0 : i + 1;
    return new QnGeLineSeg2d(GetVertex(i), GetVertex(next));
}

// ---- shape -------------------------------------------------------------------------------------------

QnGePoint QnGeMLine2d::GetCenter() const {
    QnGePoint center;
    const long count = GetVertexNum();
    if (count == 0) {
        return center;
    }
    for (long i = 0; i < count; i++) {
        const QnGePoint& vertex = GetVertex(i);
        center.x += vertex.x;
        center.y += vertex.y;
        center.z += vertex.z;
    }
    const double divisor = static_cast<double>(count);
    return QnGePoint(center.x / divisor, center.y / divisor, center.z / divisor);
}

bool QnGeMLine2d::IsPlanear() const {
    const long count = GetVertexNum();
    for (long i = 1; i < count; i++) {
        if (!IsZero(GetVertex(i).z - GetVertex(0).z, g_distZero)) {
            return false;
        }
    }
    return true;
}

bool QnGeMLine2d::IsLinear() const {
    const long count = GetVertexNum();
    if (count < 3) {
        return true;
    }
    long i = 1;
    while (i < count && !IsGreater(GetDistance2d(GetVertex(0), GetVertex(i)), g_distZero)) {
        i++;
    }
    if (i == count) {
        return true;
    }

    const QnGeVector2d reference(GetVertex(0), GetVertex(i));
    for (i++; i < count; i++) {
        const QnGeVector2d vector(GetVertex(0), GetVertex(i));
        if (!IsZero(reference * vector, g_fZero)) {
            return false;
        }
    }
    return true;
}

bool QnGeMLine2d::IsConcave() const {
    const long count = GetVertexNum();
    if (count < 4) {
        return false;
    }
    bool turnsLeft = false;
    bool turnsRight = false;
    QnGeVector2d before(GetVertex(count - 1), GetVertex(0));
    for (long i = 0; i < count; i++) {
        const QnGeVector2d edge(GetVertex(i), GetVertex((i + 1) % count));
        const double turn = before * edge;
        turnsLeft = turnsLeft || IsGreater(turn, g_fZero);
        turnsRight = turnsRight || IsLess(turn, g_fZero);
        if (turnsLeft && turnsRight) {
            return true;
        }
        before = edge;
    }
    return false;
}
