// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"

bool QnGeMLine2d::Offset(double) {
    return false;
}

bool QnGeMLine2d::OffsetSeg(long, double) {
    return false;
}
