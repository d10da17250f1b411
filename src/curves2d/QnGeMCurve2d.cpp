// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeMCurve2d.h"

QN_DEFINE_CLASS_RECORD(QnGeMCurve2d, QnGeCurve2d, CLASS_ID_MCURVE2D)

QnGeMCurve2d::QnGeMCurve2d() = default;

QnGeMCurve2d::QnGeMCurve2d(const QnGeCurve2d& curve) {
    AppendClone(curve);
}

QnGeMCurve2d::QnGeMCurve2d(const QnGeMCurve2d& other) : QnGeCurve2d(other), QnPDList<QnGeCurve2d>() {
    AppendClones(other);
}

QnGeMCurve2d& QnGeMCurve2d::operator=(const QnGeMCurve2d& other) {
    if (this == &other) {
        return *this;
    }
    QnGeCurve2d::operator=(other);
    QnPDList<QnGeCurve2d>::Reset();
    AppendClones(other);
    return *this;
}

QnGeObject* QnGeMCurve2d::Clone() const {
    return new QnGeMCurve2d(*this);
}

void QnGeMCurve2d::AppendClone(const QnGeCurve2d& curve) {
    QnGeObject* const clone = curve.Clone();
    if (clone != nullptr) {  // some classes cannot be cloned
        QnPDList<QnGeCurve2d>::Append(static_cast<QnGeCurve2d*>(clone));
    }
}

void QnGeMCurve2d::AppendClones(const QnGeMCurve2d& other) {
    for (auto entry = other.GetFirst(); entry != nullptr; entry = other.GetNext(entry)) {
        if (*entry != nullptr) {
            AppendClone(**entry);
        }
    }
}
