// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/SelfCross.h"

bool QnGePolyline2d::IsSelfCross() const {
    return qn_detail::IsLineSelfCross(*this);
}
