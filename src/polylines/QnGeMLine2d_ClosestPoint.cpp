// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePointList.h"

bool QnGeMLine2d::GetClosestPoint(const QnGePoint&, QnGePointList&) const {
    return false;
}
