// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnArray.h"

/// A rectangular array, one QnArray per row: `a[row][column]`, unchecked. GetLength() is the number of rows.
template <class T>
class QUARN_TEMPLATE_API Qn2dArray : public QnArray<QnArray<T>> {
    using Rows = QnArray<QnArray<T>>;

public:
    explicit Qn2dArray(long rows = 0, long columns = 0) : Rows(rows) { ReAllocate(rows, columns, true); }

    /// Gives the array this shape, row by row; `keep` as in QnArray::ReAllocate.
    void ReAllocate(long rows, long columns, bool keep);
    void SetAll(const T& value);
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
void Qn2dArray<T>::ReAllocate(long rows, long columns, bool keep) {
    Rows::ReAllocate(rows, keep);
    for (long row = 0; row < this->GetLength(); ++row) {
        (*this)[row].ReAllocate(columns, keep);
    }
}

template <class T>
void Qn2dArray<T>::SetAll(const T& value) {
    const T filling = value;  // `value` may be an element of this array
    for (long row = 0; row < this->GetLength(); ++row) {
        (*this)[row].SetAll(filling);
    }
}
