// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeTolerance.h"

namespace qn_detail {

/// Whether a parameter of the carrying line lies on the segment.
inline bool IsOnSegment(double t) {
    return t >= -g_fZero && t - 1.0 <= g_fZero;
}

enum class SegmentMeeting {
    NONE,
    POINT,
    ON_ONE_LINE,  ///< whether they touch, overlap or lie apart there is for the segments themselves to tell
};

/// A segment in the plan with what its meetings ask of it again and again: where each of many is met with many, no
/// object is made and no vector normalised for a pair.
///
/// The operations, and their order, are those of QnGeLineSeg2d::IntersectWith and GetPaFromPt, so that the very same
/// numbers come out.
class SegmentOnLine {
public:
    /// A place to be filled by assignment; no segment yet.
    SegmentOnLine() = default;
    explicit SegmentOnLine(const QnGeLineSeg2d& segment)
        : m_baseX(segment.basePoint.x), m_baseY(segment.basePoint.y), m_x(segment.x), m_y(segment.y) {
        QnGeVector2d unit(segment.GetVector());
        unit.Normalize();
        m_unitX = unit.x;
        m_unitY = unit.y;
        m_length = segment.GetVector().Length();
    }

    /// Where this meets `other`: the point is the one at the parameter of this segment.
    ///
    /// Fails  `x` and `y` stay but for POINT.
    SegmentMeeting Meet(const SegmentOnLine& other, double& x, double& y) const {
        const double det = m_unitX * other.m_unitY - m_unitY * other.m_unitX;
        const double gapX = m_baseX - other.m_baseX;
        const double gapY = m_baseY - other.m_baseY;
        const double n1 = other.m_unitX * gapY - other.m_unitY * gapX;
        const double n2 = m_unitX * gapY - m_unitY * gapX;
        if (IsZero(det, g_fZero)) {
            const bool apart = !IsZero((std::fabs(n1) + std::fabs(n2)) / 2.0, g_distZero);
            return apart ? SegmentMeeting::NONE : SegmentMeeting::ON_ONE_LINE;
        }
        const double t = n1 / det / m_length;
        if (!IsOnSegment(t) || !IsOnSegment(n2 / det / other.m_length)) {
            return SegmentMeeting::NONE;
        }
        x = m_baseX + t * m_x;
        y = m_baseY + t * m_y;
        return SegmentMeeting::POINT;
    }

    /// The parameter of a point, not projected first.
    double GetPa(double x, double y) const {
        const bool alongX = std::fabs(m_x) > std::fabs(m_y);
        return alongX ? (x - m_baseX) / m_x : (y - m_baseY) / m_y;
    }

private:
    double m_baseX;
    double m_baseY;
    double m_x;
    double m_y;
    double m_unitX;
    double m_unitY;
    double m_length;
};

}  // namespace qn_detail
