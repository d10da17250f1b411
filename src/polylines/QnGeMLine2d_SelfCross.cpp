// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/SelfCross.h"
#include "polylines/detail/SelfCrossPieces.h"

bool QnGeMLine2d::IsSelfCross() const {
    return qn_detail::IsLineSelfCross(*this);
}

bool QnGeMLine2d::ExplodeSelfcross(QnGeObjList& parts) const {
    qn_detail::SelfCrossPieces pieces;
    return pieces.Explode(*this, parts);
}
