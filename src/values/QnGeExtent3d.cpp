// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeExtent3d.h"

bool QnGeExtent3d::IsSameWith(const QnGeExtent3d* other) const {
    return this == other;
}
