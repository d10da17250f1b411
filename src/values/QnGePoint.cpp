// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint.h"

double GetDistance2d(const QnGePoint& a, const QnGePoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    return std::sqrt(dx * dx + dy * dy);
}

double GetDistance3d(const QnGePoint& a, const QnGePoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double dz = b.z - a.z;
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}
