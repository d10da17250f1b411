// SPDX-License-Identifier: Apache-2.0
//
// A user's first program: two squares of side 2 that share a quarter, united.
#include <QuarnGeo.h>

#include <cstdio>
#include <memory>

namespace {

QnGePolygon2d MakeSquare(double x, double y, double side) {
    QnGePointArray corners(4);
    corners[0] = QnGePoint(x, y);
    corners[1] = QnGePoint(x + side, y);
    corners[2] = QnGePoint(x + side, y + side);
    corners[3] = QnGePoint(x, y + side);
    return QnGePolygon2d(QnGeMLine2d(corners, true), true);
}

}  // namespace

int main() {
    const QnGePolygon2d a = MakeSquare(0.0, 0.0, 2.0);
    const QnGePolygon2d b = MakeSquare(1.0, 1.0, 2.0);
    const std::unique_ptr<QnGeRegion2d> both(a.Union(b));
    if (!both) {
        return 1;
    }
    std::printf("area %.9g\n", both->Area());
    return 0;
}
