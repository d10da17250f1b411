// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeInterval.h"

bool QnGeInterval::IsIntersectWith(const QnGeInterval& o) const {
    return !(*this & o).IsValid();
}

bool QnGeInterval::Conbine(const QnGeInterval& o) {
    if ((*this & o).IsReverse()) {
        return false;
    }
    *this += o;
    return true;
}

void QnGeInterval::SubtractBy(const QnGeInterval& o, QnGeInterval& left, QnGeInterval& right) const {
    // either output may be this interval or `o`
    const QnGeInterval before(min, o.min);
    const QnGeInterval after(o.max, max);
    left = before;
    right = after;
}

void QnGeInterval::Split(double pa, QnGeInterval& left, QnGeInterval& right) const {
    const QnGeInterval before(min, pa);
    const QnGeInterval after(pa, max);
    left = before;
    right = after;
}

void QnGeInterval::Validate(double period, QnGeInterval& first, QnGeInterval& second) const {
    QnGeInterval fromSeam(0.0, max);
    QnGeInterval toSeam(min, period);
    if (fromSeam.IsReverse()) {
        fromSeam.max = 0.0;
    }
    if (toSeam.IsReverse()) {
        toSeam.min = 0.0;
    }
    first = fromSeam;
    second = toSeam;
}
