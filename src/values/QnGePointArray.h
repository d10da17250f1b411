// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArray.h"
#include "values/QnGePoint.h"

class QnGeMatrix;

/// An array of points.
class QUARNGEO_API QnGePointArray : public QnDynArray<QnGePoint> {
public:
    explicit QnGePointArray(long length = 0, long allocUnit = 10);
    QnGePointArray(const QnGePointArray& other);
    /// Copies the points of any array or list.
    QnGePointArray(const QnDynArrayBase<QnGePoint>& other);
    QnGePointArray& operator=(const QnGePointArray& other);
    ~QnGePointArray() override;

    /// Every point in cursor order; the cursor is out afterwards.
    void TransformBy(const QnGeMatrix& matrix);
};
