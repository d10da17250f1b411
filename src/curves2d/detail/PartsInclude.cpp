// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/PartsInclude.h"

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"

namespace qn_detail {

bool IsIncludedByParts(const QnGeCurve2d& curve, const QnGeObject& other) {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_CIRCLE2D:
        case CLASS_ID_ARC2D:
            return false;
        case CLASS_ID_LINE_SEG2D: {
            // Included is what the parts, taken away one after the other, leave nothing of.
            QnGeObjList parts;
            QnGeObjList left;
            curve.FullExplode(parts);
            static_cast<const QnGeLineSeg2d&>(other).SubtractBy(parts, left);
            return left.IsEmpty();
        }
        default:
            return curve.QnGeCurve2d::IsInclude(other);
    }
}

}  // namespace qn_detail
