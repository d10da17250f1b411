// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/PartsInclude.h"
#include "polylines/QnGeMLine2d.h"

bool QnGeMLine2d::IsInclude(const QnGeObject& other) const {
    return qn_detail::IsIncludedByParts(*this, other);
}
