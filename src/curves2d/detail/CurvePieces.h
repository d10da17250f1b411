// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "frame/QnGeObjList.h"

namespace qn_detail {

using PieceVisit = bool (*)(const QnGeCurve2d& piece, void* context);

/// Whether the curve is exactly a multi-line or a polyline, whose pieces ForEachSegment shows.
bool IsPlainPolyline(const QnGeObject& object);

/// Whether the curve is exactly a chain, whose pieces are its children.
bool IsPlainChain(const QnGeObject& object);

/// One of the two.
inline bool IsPlainCompound(const QnGeObject& object) {
    return IsPlainPolyline(object) || IsPlainChain(object);
}

/// Whether the curve is exactly a line, ray, segment, circle or arc, which are known not to explode. A class that
/// a caller derives from one of them is asked.
bool IsPlainPrimitive(const QnGeObject& object);

/// ForEachPiece of a multi-line or polyline: the same pieces, without an object made for each.
///
/// Requires  IsPlainPolyline.
bool ForEachSegment(const QnGeCurve2d& curve, PieceVisit visit, void* context);

/// ForEachPiece of a chain: its children as they are. Of a class that may have no clone the clone is shown, and nothing
/// where there is none, since Explode leaves such a child out.
template <class Visit>
void ForEachChainPiece(const QnGeMCurve2d& chain, Visit& visit) {
    ForEachChild(chain, [&visit](const QnGeCurve2d& child, long) {
        if (IsPlainPrimitive(child) || IsPlainCompound(child)) {
            return visit(child);
        }
        const std::unique_ptr<QnGeObject> clone(child.Clone());
        return clone == nullptr || visit(static_cast<const QnGeCurve2d&>(*clone));
    });
}

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
    if (IsPlainChain(curve)) {
        ForEachChainPiece(static_cast<const QnGeMCurve2d&>(curve), visit);
        return true;
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

/// ForEachPiece for objects of any kind, whose parts are objects of any kind.
template <class Visit>
bool ForEachPart(const QnGeObject& object, Visit visit) {
    if (IsPlainCompound(object)) {
        return ForEachPiece(static_cast<const QnGeCurve2d&>(object), visit);
    }
    QnGeObjList parts;
    const bool exploded = object.Explode(parts);
    for (auto entry = parts.GetFirst(); entry != nullptr; entry = parts.GetNext(entry)) {
        if (*entry != nullptr && !visit(static_cast<const QnGeObject&>(**entry))) {
            break;
        }
    }
    return exploded;
}

}  // namespace qn_detail
