// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"

QnGeObject* QnGeMLine2d::Symplify() const {
    return nullptr;
}

void QnGeMLine2d::Compress() {}
