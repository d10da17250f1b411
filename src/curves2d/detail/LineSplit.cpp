// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/LineSplit.h"

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGePoint.h"

namespace qn_detail {

void AppendFirstSegment(const QnGeLine2d& line, const QnDynArrayBase<double>& pas, const QnGePoint& start,
                        QnGePoint& lastCut, QnGeObjList& out) {
    lastCut = start;
    const double firstPa = pas.GetAt(0);
    if (firstPa <= g_fZero) {
        return;
    }
    line.GetPtFromPa(firstPa, lastCut);
    out.Append(new QnGeLineSeg2d(start, lastCut));
}

void AppendInnerSegments(const QnGeLine2d& line, const QnDynArrayBase<double>& pas, QnGePoint& lastCut,
                         QnGeObjList& out) {
    for (long i = 1; i < pas.GetLength(); ++i) {
        const double step = pas.GetAt(i) - pas.GetAt(i - 1);
        if (!IsGreater(step, g_fZero)) {
            continue;
        }
        QnGePoint cut;
        line.GetPtFromPa(pas.GetAt(i), cut);
        out.Append(new QnGeLineSeg2d(lastCut, cut));
        lastCut = cut;
    }
}

}  // namespace qn_detail
