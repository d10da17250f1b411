// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeExtent2d.h"

bool QnGeExtent2d::IsSameWith(const QnGeExtent2d* other) const {
    return this == other;
}
