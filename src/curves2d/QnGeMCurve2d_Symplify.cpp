// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_Symplify.cpp: fewer children for the same shape.
//
// Phases     1  SimplifyChildren  each child by itself; those that are but points go.
//            2  what is left: none is a point, one is handed out bare
//            3  pieces of polylines only: the polyline that they make, simplified in turn
//            4  anything else: neighbours are merged

#include <memory>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint2d.h"

using qn_detail::ChildAt;
using qn_detail::ForEachChild;

namespace {

/// Replaces each child by its simpler form. The last of those that shrank to a point leaves it in `lastPoint`.
void SimplifyChildren(QnGeMCurve2d& chain, QnGePoint& lastPoint) {
    for (chain.MoveToFirst(); !chain.IsOut(); chain.MoveToNext()) {
        std::unique_ptr<QnGeObject> simpler(chain.GetCurData()->Symplify());
        if (simpler == nullptr) {
            continue;
        }
        if (simpler->IsClassOf(&QnGeCurve2d::s_classInfo)) {
            chain.ReleaseCur();
            chain.SetCurData(static_cast<QnGeCurve2d*>(simpler.release()));
        } else {
            lastPoint = simpler->GetSamplePoint();
            chain.DelCur();
        }
    }
}

bool IsPieceOfPolyline(const QnGeCurve2d& curve) {
    return curve.IsClassOf(&QnGeLineSeg2d::s_classInfo) || curve.IsClassOf(&QnGeArc2d::s_classInfo) ||
           curve.IsClassOf(&QnGeMLine2d::s_classInfo);
}

bool IsAllOfPolylinePieces(const QnGeMCurve2d& chain) {
    bool isAll = true;
    ForEachChild(chain, [&isAll](const QnGeCurve2d& child, long) {
        isAll = IsPieceOfPolyline(child);
        return isAll;
    });
    return isAll;
}

/// The polyline of the chain in its simplest form.
///
/// Fails  Null where the chain has no linearisation.
QnGeObject* MakeSimplePolyline(const QnGeMCurve2d& chain) {
    std::unique_ptr<QnGeMLine2d> line(chain.PLinearize(0.0));
    if (line == nullptr) {
        return nullptr;
    }
    QnGeObject* const simpler = line->Symplify();
    return simpler != nullptr ? simpler : line.release();
}

bool TakesOver(QnGeCurve2d* child, const QnGeCurve2d* next) {
    return child != nullptr && next != nullptr && child->Conbine(*next, true);
}

}  // namespace

QnGeObject* QnGeMCurve2d::Symplify() const {
    auto copy = std::make_unique<QnGeMCurve2d>(*this);
    if (copy->IsEmpty()) {
        return nullptr;
    }
    QnGePoint lastPoint;
    SimplifyChildren(*copy, lastPoint);
    if (copy->IsEmpty()) {
        return new QnGePoint2d(lastPoint);
    }
    if (copy->GetSegNum() == 1) {
        return copy->TakeOffHead();
    }
    if (IsAllOfPolylinePieces(*copy)) {
        return MakeSimplePolyline(*copy);
    }
    copy->Compress();
    return copy->GetSegNum() < GetSegNum() ? copy.release() : nullptr;
}

// A child stays in its turn as long as it takes over the next one. In a closed chain the last child may take over the
// first, whereupon it has no further turn.
void QnGeMCurve2d::Compress() {
    ForEachChild(*this, [](QnGeCurve2d& child, long) {
        child.Compress();
        return true;
    });
    const bool closed = IsClosed();
    const auto hasTurn = [this, closed](long i) { return closed ? i < GetSegNum() : i < GetSegNum() - 1; };
    for (long i = 0; GetSegNum() >= 2 && hasTurn(i);) {
        const long next = (i + 1) % GetSegNum();
        if (TakesOver(ChildAt(*this, i), ChildAt(*this, next))) {
            MoveTo(next);
            DelCur();
        } else {
            ++i;
        }
    }
}
