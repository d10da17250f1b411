// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "polylines/QnGeMLine2d.h"

namespace qn_detail {

/// Whether two points lie within g_distZero of each other in plan.
bool IsSamePlace(const QnGePoint& a, const QnGePoint& b);

/// The first vertex in the same place as `point`, -1 if there is none.
long FindVertex(const QnGeMLine2d& line, const QnGePoint& point);

/// InsertNode of multi-lines and polylines for a point that need not lie on the line: see QnGeMLine2d::InsertNode.
long InsertNodeOffCurve(QnGeMLine2d& line, const QnGePoint& point);

}  // namespace qn_detail
