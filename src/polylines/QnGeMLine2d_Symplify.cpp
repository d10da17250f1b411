// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_Symplify.cpp: fewer vertices for the same shape, by way of a chain of the segments.
//
// Kept odd  The chain knows of its ends only where they lie, so an open line whose ends coincide comes out closed.

#include <memory>

#include "curves2d/QnGeMCurve2d.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint2d.h"

namespace {

/// The segments that have a length.
void CollectSegments(const QnGeMLine2d& line, QnGeMCurve2d& chain) {
    for (long i = 0; i < line.GetSegNum(); i++) {
        std::unique_ptr<QnGeCurve2d> seg(line.GetCurveSeg(i));
        if (seg != nullptr && seg->IsValid()) {
            chain.Append(seg.release());
        }
    }
}

}  // namespace

QnGeObject* QnGeMLine2d::Symplify() const {
    if (GetVertexNum() == 0) {
        return nullptr;
    }
    QnGeMCurve2d chain;
    CollectSegments(*this, chain);
    if (chain.IsEmpty()) {
        return new QnGePoint2d(GetVertex(0));
    }
    if (chain.GetSegNum() == 1) {
        return chain.TakeOffHead();
    }
    chain.Compress();
    return chain.GetSegNum() < GetSegNum() ? chain.PLinearize(0.0) : nullptr;
}

void QnGeMLine2d::Compress() {
    QnGeMCurve2d chain;
    CollectSegments(*this, chain);
    chain.Compress();
    const std::unique_ptr<QnGeMLine2d> compressed(chain.PLinearize(0.0));
    if (compressed != nullptr) {
        CopyFrom(compressed.get());
    }
}
