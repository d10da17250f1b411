// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_SubCurve.cpp: the part of a chain between two parameters.
//
//     child i         i + 1     ...     child j
//     +------X=====+==========+=   ===+=====X-----+
//           fa                             fb
//
// Phases     1  place both parameters: child i at local value fa, child j at fb
//            2  what child i has from fa on, unless that is nothing
//            3  whole children: from i + 1 on, forward to j, or over the end and on from 0
//            4  what child j has up to fb, unless that is nothing
//            5  a single piece is handed out bare
// Tolerance  g_fZero for the parameters, the local ones too.
// Cost       The pieces copied; one child after the other is found in constant time, so cutting a chain of n children
//            into k pieces costs n + k.

#include <memory>

#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "frame/QnGeTolerance.h"

using qn_detail::AppendCloneTo;
using qn_detail::ChildAt;
using qn_detail::ForEachChild;

namespace {

/// A place on a chain: the child and the parameter on it.
struct Place {
    Place(const QnGeMCurve2d& chain, double pa) : local(pa), child(chain.GetSegIndexFromPa(local)) {}

    double local;
    long child;
};

void AppendPiece(const QnGeMCurve2d& chain, long i, double pa1, double pa2, QnGeMCurve2d& stretch) {
    const QnGeCurve2d* const child = ChildAt(chain, i);
    QnGeCurve2d* const piece = child != nullptr ? child->GetSubCurve(pa1, pa2) : nullptr;
    if (piece != nullptr) {
        stretch.Append(piece);
    }
}

void AppendWholeChildren(const QnGeMCurve2d& chain, long first, long end, QnGeMCurve2d& stretch) {
    ForEachChild(chain, first, end, [&stretch](const QnGeCurve2d& child, long) {
        AppendCloneTo(stretch, child);
        return true;
    });
}

/// From one place to another on a later child, or `overEnd` to one on any child.
void AppendAcross(const QnGeMCurve2d& chain, const Place& from, const Place& to, bool overEnd, QnGeMCurve2d& stretch) {
    if (IsLess(from.local - 1.0, g_fZero)) {
        AppendPiece(chain, from.child, from.local, 1.0, stretch);
    }
    if (overEnd) {
        AppendWholeChildren(chain, from.child + 1, chain.GetSegNum(), stretch);
        AppendWholeChildren(chain, 0, to.child, stretch);
    } else {
        AppendWholeChildren(chain, from.child + 1, to.child, stretch);
    }
    if (IsGreater(to.local, g_fZero)) {
        AppendPiece(chain, to.child, 0.0, to.local, stretch);
    }
}

}  // namespace

QnGeCurve2d* QnGeMCurve2d::GetSubCurve(double pa1, double pa2) const {
    if (GetSegNum() <= 1) {
        const QnGeCurve2d* const only = ChildAt(*this, 0);
        return only != nullptr ? only->GetSubCurve(pa1, pa2) : nullptr;
    }
    if (IsClosed()) {
        pa1 = IsZero(pa1 - 1.0, g_fZero) ? 0.0 : pa1;
        pa2 = IsZero(pa2 - 1.0, g_fZero) ? 0.0 : pa2;
    }
    const double way = pa2 - pa1;
    const bool isForward = IsGreater(way, g_fZero);
    const bool isOverEnd = IsLess(way, g_fZero);
    const Place from(*this, pa1);
    const Place to = isForward || isOverEnd ? Place(*this, pa2) : from;  // from a place to itself it is a whole turn

    auto stretch = std::make_unique<QnGeMCurve2d>();
    if (isForward && from.child == to.child) {
        AppendPiece(*this, from.child, from.local, to.local, *stretch);
    } else {
        AppendAcross(*this, from, to, !isForward, *stretch);
    }
    return stretch->GetSegNum() == 1 ? stretch->TakeOffHead() : stretch.release();
}
