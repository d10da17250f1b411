// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Split.cpp: stretches between parameters and between points, on top of GetSubCurve.
//
// Order      An open curve gives   0 .. pas[0],  pas[0] .. pas[1],  ...,  pas[last] .. 1.
//            A closed one gives    pas[0] .. pas[1],  ...,  pas[last] .. pas[0] over the seam.
// Tolerance  g_fZero: parameters that near are one, and no piece lies between them.
// Kept odd   What GetSubCurve answers is appended as it is, so that a null stands where a piece is missing.

#include "containers/QnDynArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGePoint.h"
#include "values/QnGePointArray.h"

namespace {

constexpr long PA_ALLOC_UNIT = 10;

/// The pieces between neighbouring parameters.
void AppendInnerPieces(const QnGeCurve2d& curve, const QnDynArrayBase<double>& pas, QnGeObjList& out) {
    for (long i = 1; i < pas.GetLength(); ++i) {
        const double from = pas.GetAt(i - 1);
        const double to = pas.GetAt(i);
        if (IsLess(from - to, g_fZero)) {
            out.Append(curve.GetSubCurve(from, to));
        }
    }
}

void SplitOpen(const QnGeCurve2d& curve, const QnDynArrayBase<double>& pas, QnGeObjList& out) {
    const double first = pas.GetAt(0);
    const double last = pas.GetAt(pas.GetMaxIndex());
    if (IsGreater(first, g_fZero)) {
        out.Append(curve.GetSubCurve(0.0, first));
    }
    AppendInnerPieces(curve, pas, out);
    if (IsLess(last - 1.0, g_fZero)) {
        out.Append(curve.GetSubCurve(last, 1.0));
    }
}

void SplitClosed(const QnGeCurve2d& curve, const QnDynArrayBase<double>& pas, QnGeObjList& out) {
    const double first = pas.GetAt(0);
    const double last = pas.GetAt(pas.GetMaxIndex());
    if (pas.GetLength() == 1) {
        out.Append(curve.GetSubCurve(first, first));  // the whole curve, opened there
        return;
    }
    AppendInnerPieces(curve, pas, out);
    const bool seamLeft = IsLess(last - 1.0, g_fZero) || IsGreater(first, g_fZero);
    if (seamLeft) {
        out.Append(curve.GetSubCurve(last, first));
    }
}

}  // namespace

void QnGeCurve2d::Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const {
    if (pas.IsEmpty()) {
        return;
    }
    if (IsClosed()) {
        SplitClosed(*this, pas, out);
    } else {
        SplitOpen(*this, pas, out);
    }
}

void QnGeCurve2d::Split(const QnGePointArray& points, QnGeObjList& out) const {
    QnDynArray<double> pas(0, PA_ALLOC_UNIT);
    for (long i = 0; i < points.GetLength(); ++i) {
        double pa = 0.0;
        GetPaFromPt(points.GetAt(i), pa);
        pas.Append(pa);
    }
    pas.Sort(true);
    Split(pas, out);
}

QnGeCurve2d* QnGeCurve2d::GetSubCurve(const QnGePoint& a, const QnGePoint& b) const {
    double pa1 = 0.0;
    double pa2 = 0.0;
    GetPaFromPt(a, pa1);
    GetPaFromPt(b, pa2);
    return GetSubCurve(pa1, pa2);
}
