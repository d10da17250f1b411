// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArrayBase.h"

class QnGeLine2d;
class QnGeObjList;
class QnGePoint;

namespace qn_detail {

/// The steps that line, ray and segment have in common when they are split at ascending parameters.
///
/// Tolerance  g_fZero between neighbouring parameters: one that is no further than that makes no piece.
/// Ownership  `out` owns the pieces.

/// The piece from `start`, where the curve begins, to the first cut, which becomes `lastCut`. A first cut at or before
/// Pa 0 makes no piece, and `start` is the last cut.
void AppendFirstSegment(const QnGeLine2d& line, const QnDynArrayBase<double>& pas, const QnGePoint& start,
                        QnGePoint& lastCut, QnGeObjList& out);

/// The pieces between the cuts; `lastCut` moves along.
void AppendInnerSegments(const QnGeLine2d& line, const QnDynArrayBase<double>& pas, QnGePoint& lastCut,
                         QnGeObjList& out);

}  // namespace qn_detail
