// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"

namespace qn_detail {

using PieceVisit = bool (*)(const QnGeCurve2d& piece, void* context);

/// Whether the curve is exactly a multi-line or a polyline, whose pieces ForEachSegment shows.
bool IsPlainPolyline(const QnGeCurve2d& curve);

/// Whether the curve is exactly a line, ray, segment, circle or arc, which are known not to explode. A class that
/// a caller derives from one of them is asked.
bool IsPlainPrimitive(const QnGeCurve2d& curve);

/// ForEachPiece of a multi-line or polyline: the same pieces, without an object made for each.
///
/// Requires  IsPlainPolyline.
bool ForEachSegment(const QnGeCurve2d& curve, PieceVisit visit, void* context);

/// Shows each piece of an exploded curve to `visit` until that answers false; the answer is whether the curve explodes.
///
/// The defaults of QnGeCurve2d that ask the pieces and gather stand on it, so that how the pieces come about is told
/// here alone.
///
/// Order      That of Explode, so that sums add up from the left.
/// Ownership  A piece lives for the length of its visit.
template <class Visit>
bool ForEachPiece(const QnGeCurve2d& curve, Visit visit) {
    if (IsPlainPolyline(curve)) {
        const PieceVisit visitPiece = [](const QnGeCurve2d& piece, void* context) {
            return (*static_cast<Visit*>(context))(piece);
        };
        return ForEachSegment(curve, visitPiece, &visit);
    }
    if (IsPlainPrimitive(curve)) {
        return false;
    }
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
