// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGePolyline2d.h"
#include "values/QnGePointList.h"

bool QnGePolyline2d::GetClosestPoint(const QnGePoint&, QnGePointList&) const {
    return false;
}
