// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeClassId.h"
#include "polylines/QnGePolyline2d.h"

/// Kept odd
bool QnGePolyline2d::IsInclude(const QnGeObject& other) const {
    const long id = other.GetClassID();
    if (id == CLASS_ID_CIRCLE2D || id == CLASS_ID_ARC2D) {
        return false;
    }
    return QnGeMLine2d::IsInclude(other);
}
