// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePointList.h"

#include "values/QnGeMatrix.h"

QnGePointList::QnGePointList(long length) : QnDList<QnGePoint>(length) {}

QnGePointList::QnGePointList(const QnGePointList& other) : QnDList<QnGePoint>(other) {}

QnGePointList::QnGePointList(const QnDynArrayBase<QnGePoint>& other) : QnDList<QnGePoint>(other) {}

QnGePointList& QnGePointList::operator=(const QnGePointList& other) {
    QnDList<QnGePoint>::operator=(other);
    return *this;
}

QnGePointList::~QnGePointList() = default;

void QnGePointList::TransformBy(const QnGeMatrix& matrix) {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        matrix.Transform(GetCurData());
    }
}
