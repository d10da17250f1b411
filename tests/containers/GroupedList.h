// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPXList.h"
#include "containers/QnXList.h"

/// An indexed list with a fixed group size, so that typed tests can make one like any other list.
template <class T, long GROUP>
class GroupedList : public QnXList<T> {
public:
    explicit GroupedList(long length = 0) : QnXList<T>(length, GROUP, INDEX_UNIT) {}
    using QnXList<T>::operator=;

private:
    static constexpr long INDEX_UNIT = 10;
};

/// The same with owned objects.
template <class T, long GROUP>
class GroupedPList : public QnPXList<T> {
public:
    explicit GroupedPList(long length = 0) : QnPXList<T>(length, GROUP, INDEX_UNIT) {}

private:
    static constexpr long INDEX_UNIT = 10;
};
