// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"

bool QnGeMLine2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_CIRCLE2D:
        case CLASS_ID_ARC2D:
            return false;
        case CLASS_ID_LINE_SEG2D: {
            // Included is what the segments, taken away one after the other, leave nothing of.
            QnGeObjList segments;
            QnGeObjList left;
            Explode(segments);
            static_cast<const QnGeLineSeg2d&>(other).SubtractBy(segments, left);
            return left.IsEmpty();
        }
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}
