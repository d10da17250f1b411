// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector2d.h"

/// The hit test of closed multi-lines and polylines in its plain form: every segment in order, nothing left out. The
/// library's own is faster and has to give the same answer on every input.
namespace plain_hit_test {

/// What one segment does to the answer.
enum class Effect { NOTHING, FLIP, ON };

/// Whether the boundary passes through the level of `p` at the end vertex of straight segment `i`.
///
/// Walks over a run of vertices on that level; a line that never leaves it does not pass.
inline bool PassesLevelAtEnd(const QnGeMLine2d& line, long i, const QnGePoint& p) {
    const long n = line.GetVertexNum();
    const double from = line.GetVertex(i).y;
    long k = (i + 1) % n;
    for (long step = 0; step < n; ++step) {
        k = (k + 1) % n;
        const double to = line.GetVertex(k).y;
        if (!IsZero(to - p.y, g_distZero)) {
            return (from < p.y && p.y < to) || (to < p.y && p.y < from);
        }
    }
    return false;
}

/// The cases that multi-lines and chords of polylines share; `passesAtEnd` decides at the end vertex.
template <class PassesAtEnd>
Effect StraightEffect(const QnGeBaseLine2d& segment, const QnGePoint& p, const PassesAtEnd& passesAtEnd) {
    if (QnGeLineSeg2d(segment).HitTest(p).HasBit(HIT_ON)) {
        return Effect::ON;
    }
    const QnGeBaseLine2d ray(QnGeVector2d(1.0, 0.0), p);
    double t = 0.0;
    double s = 0.0;
    const int code = ray.IntersectWith(segment, t, s, false);
    if (code == 10) {
        double pa = 0.0;
        segment.GetPaFromPt(p, pa);
        return pa >= -g_fZero && pa - 1.0 <= g_fZero ? Effect::ON : Effect::NOTHING;
    }
    if (code != 1 || !(t >= -g_fZero && s >= -g_fZero && s - 1.0 <= g_fZero)) {
        return Effect::NOTHING;
    }
    if (t <= g_fZero) {
        return Effect::ON;
    }
    if (s <= g_fZero) {
        return Effect::NOTHING;  // the segment that ends there has decided
    }
    if (IsZero(s - 1.0, g_fZero)) {
        return passesAtEnd() ? Effect::FLIP : Effect::NOTHING;
    }
    return Effect::FLIP;
}

inline QnBitData HitTestMLine(const QnGeMLine2d& line, const QnGePoint& p) {
    bool outside = true;
    for (long i = 0; i < line.GetSegNum(); ++i) {
        QnGeBaseLine2d segment;
        line.GetSegment(i, segment);
        const Effect effect = StraightEffect(segment, p, [&] { return PassesLevelAtEnd(line, i, p); });
        if (effect == Effect::ON) {
            return HIT_ON;
        }
        if (effect == Effect::FLIP) {
            outside = !outside;
        }
    }
    return outside ? HIT_OUT : HIT_IN;
}

// ---- polylines -------------------------------------------------------------------------------------

/// Whether the boundary rises behind segment `i`. False is left in `known` where no segment says so.
inline bool RisesBehind(const QnGePolyline2d& line, long i, const QnGePoint& p, bool& known) {
    const long n = line.GetSegNum();
    known = true;
    long k = i;
    for (long step = 0; step < n; ++step) {
        k = (k + 1) % n;
        QnGeBaseLine2d direction;
        if (line.IsArcSeg(k)) {
            QnGeArc2d arc;
            line.GetSegment(k, arc);
            arc.GetTangent(0.0, direction);
            return IsZero(direction.dy, g_fZero) ? p.y < arc.GetCenter().y : direction.dy > g_fZero;
        }
        line.GetSegment(k, direction);
        direction.Normalize();
        if (!IsZero(direction.dy, g_fZero)) {
            return direction.dy > g_fZero;
        }
    }
    known = false;
    return false;
}

inline bool PassesAtJoint(const QnGePolyline2d& line, long i, const QnGePoint& p, bool above) {
    bool known = false;
    const bool rising = RisesBehind(line, i, p, known);
    return known && above != rising;
}

inline Effect ArcEffect(const QnGePolyline2d& line, long i, const QnGePoint& p) {
    QnGeArc2d arc;
    line.GetSegment(i, arc);
    if (arc.HitTest(p).HasBit(HIT_ON)) {
        return Effect::ON;
    }
    const QnGeLineRay2d ray(QnGeVector2d(1.0, 0.0), p);
    QnGeObjList points;
    ray.IntersectWith(arc, points);
    const QnGePoint start = line.GetVertex(i);
    const QnGePoint end = line.GetVertex((i + 1) % line.GetVertexNum());
    const QnGePoint centre = arc.GetCenter();
    Effect effect = Effect::NOTHING;
    const auto flip = [&effect] { effect = effect == Effect::FLIP ? Effect::NOTHING : Effect::FLIP; };
    for (points.MoveToFirst(); !points.IsOut(); points.MoveToNext()) {
        const QnGePoint q = points.GetCurData()->GetSamplePoint();
        if (IsZero(GetDistance2d(q, p), g_distZero)) {
            return Effect::ON;
        }
        if (IsZero(GetDistance2d(q, start), g_distZero)) {
            continue;
        }
        if (IsZero(GetDistance2d(q, end), g_distZero)) {
            QnGeBaseLine2d tangent;
            arc.GetTangent(1.0, tangent);
            const bool above = IsZero(tangent.dy, g_fZero) ? p.y < centre.y : tangent.dy < -g_fZero;
            if (PassesAtJoint(line, i, p, above)) {
                flip();
            }
            continue;
        }
        const QnGeVector2d tangent(-(q.y - centre.y), q.x - centre.x);
        if (!tangent.IsParallelWith(QnGeVector2d(1.0, 0.0), false)) {
            flip();
        }
    }
    return effect;
}

inline QnBitData HitTestPolyline(const QnGePolyline2d& line, const QnGePoint& p) {
    bool outside = true;
    for (long i = 0; i < line.GetSegNum(); ++i) {
        Effect effect = Effect::NOTHING;
        if (line.IsArcSeg(i)) {
            effect = ArcEffect(line, i, p);
        } else {
            QnGeBaseLine2d chord;
            line.GetSegment(i, chord);
            const bool above = p.y < line.GetVertex(i).y;
            effect = StraightEffect(chord, p, [&] { return PassesAtJoint(line, i, p, above); });
        }
        if (effect == Effect::ON) {
            return HIT_ON;
        }
        if (effect == Effect::FLIP) {
            outside = !outside;
        }
    }
    return outside ? HIT_OUT : HIT_IN;
}

}  // namespace plain_hit_test
