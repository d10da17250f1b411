// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePointArray.h"

#include "values/QnGeMatrix.h"

QnGePointArray::QnGePointArray(long length, long allocUnit) : QnDynArray<QnGePoint>(length, allocUnit) {}

QnGePointArray::QnGePointArray(const QnGePointArray& other) : QnDynArray<QnGePoint>(other) {}

QnGePointArray::QnGePointArray(const QnDynArrayBase<QnGePoint>& other) {
    DeepCopy(other);
}

QnGePointArray& QnGePointArray::operator=(const QnGePointArray& other) {
    QnDynArray<QnGePoint>::operator=(other);
    return *this;
}

QnGePointArray::~QnGePointArray() = default;

void QnGePointArray::TransformBy(const QnGeMatrix& matrix) {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        matrix.Transform(GetCurData());
    }
}
