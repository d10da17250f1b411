// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGePolyline2d.h"

bool QnGePolyline2d::Offset(double) {
    return false;
}

bool QnGePolyline2d::OffsetSeg(long, double) {
    return false;
}
