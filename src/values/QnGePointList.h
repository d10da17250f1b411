// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"
#include "values/QnGePoint.h"

class QnGeMatrix;

/// A list of points.
class QUARNGEO_API QnGePointList : public QnDList<QnGePoint> {
public:
    explicit QnGePointList(long length = 0);
    QnGePointList(const QnGePointList& other);
    /// Copies the points of any array or list.
    QnGePointList(const QnDynArrayBase<QnGePoint>& other);
    QnGePointList& operator=(const QnGePointList& other);
    ~QnGePointList() override;

    /// Every point in cursor order; the cursor is out afterwards.
    void TransformBy(const QnGeMatrix& matrix);
};
