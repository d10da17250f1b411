// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"

/// The entries of a list of pieces, which are all planar curves.
inline std::vector<const QnGeCurve2d*> CurvesOf(const QnGeObjList& list) {
    std::vector<const QnGeCurve2d*> curves;
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        curves.push_back(static_cast<const QnGeCurve2d*>(*entry));
    }
    return curves;
}

inline double LengthOf(const QnGeObjList& list) {
    double length = 0.0;
    for (const QnGeCurve2d* curve : CurvesOf(list)) {
        length += curve->Length();
    }
    return length;
}
