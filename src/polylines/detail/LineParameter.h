// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/detail/EvenShares.h"
#include "frame/QnGeTolerance.h"
#include "polylines/detail/SegmentView.h"

namespace qn_detail {

// What multi-lines and polylines have in common between points, distances and parameters. `Line` is one of the two.

template <class Line>
bool GetLinePaFromPt(const Line& line, const QnGePoint& point, double& pa) {
    pa = -1.0;
    SegmentView view;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        const auto& seg = view.Get(line, i);
        if (seg.HitTest(point).HasBit(HIT_ON)) {
            double local = 0.0;
            seg.GetPaFromPt(point, local);
            pa = PaOfPart(i, local, count);
            return true;
        }
    }
    return false;
}

template <class Line>
bool GetLinePaFromDist(const Line& line, double dist, double& pa) {
    pa = -1.0;
    SegmentView view;
    double travelled = 0.0;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        const auto& seg = view.Get(line, i);
        const double length = seg.Length();
        const double rest = dist - travelled;
        const bool isHere = rest >= -g_distZero && dist - (travelled + length) <= g_distZero;
        if (isHere) {
            double local = 0.0;
            seg.GetPaFromDist(rest, local);
            pa = PaOfPart(i, local, count);
            return true;
        }
        travelled += length;
    }
    return false;
}

template <class Line>
bool GetLineDistFromPa(const Line& line, double pa, double& dist) {
    if (IsZero(pa, g_fZero)) {
        dist = 0.0;
        return true;
    }
    if (IsZero(pa - 1.0, g_fZero)) {
        dist = line.Length();
        return true;
    }
    const long last = line.GetSegIndexFromPa(pa);
    if (last < 0) {
        return false;
    }
    SegmentView view;
    view.Get(line, last).GetDistFromPa(pa, dist);
    for (long i = 0; i < last; i++) {
        dist += view.Get(line, i).Length();
    }
    return true;
}

}  // namespace qn_detail
