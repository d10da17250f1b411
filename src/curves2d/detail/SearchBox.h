// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/detail/BoxSearch.h"

class QnGeCurve2d;

namespace qn_detail {

/// A box beyond which a curve meets nothing: two curves whose boxes are apart have no intersection, so that leaving out
/// such a pair never changes an answer.
///
/// Tolerance  Grown by more than all tolerances of intersecting together; by so much of each curve's own size that the
///            rounding of nearly parallel pairs is covered.
/// Fails      The whole plane for a curve without an extent, of a class that is not known here, without direction,
///            radius or sweep, or with coordinates or tolerances that allow no bound.
PlanBox MakeSearchBox(const QnGeCurve2d& curve);

}  // namespace qn_detail
