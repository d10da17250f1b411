// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"

namespace qn_detail {

/// Shows each piece of an exploded curve to `visit` until that answers false; the answer is whether the curve explodes.
///
/// The defaults of QnGeCurve2d that ask the pieces and gather stand on it, so that how the pieces come about is told
/// here alone.
///
/// Order      That of Explode, so that sums add up from the left.
/// Ownership  A piece lives for the length of its visit.
template <class Visit>
bool ForEachPiece(const QnGeCurve2d& curve, Visit visit) {
    QnGeObjList pieces;
    if (!curve.Explode(pieces)) {
        return false;
    }
    for (auto entry = pieces.GetFirst(); entry != nullptr; entry = pieces.GetNext(entry)) {
        if (*entry != nullptr && !visit(static_cast<const QnGeCurve2d&>(**entry))) {
            break;
        }
    }
    return true;
}

}  // namespace qn_detail
