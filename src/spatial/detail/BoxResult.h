// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <typeinfo>

#include "containers/QnDynArray.h"

namespace qn_detail {

/// What a search appends to: an array of this very class, so that appending is no virtual call.
template <class Box>
using BoxResult = QnDynArray<Box*>;

template <class Box>
void AppendTo(BoxResult<Box>& result, Box* box) {
    result.QnDynArray<Box*>::Append(box);
}

/// Lets `search` append to the caller's sequence, by way of an array if it is of another class.
template <class Box, class Search>
void SearchInto(QnDynArrayBase<Box*>& result, Search search) {
    if (typeid(result) == typeid(BoxResult<Box>)) {
        search(static_cast<BoxResult<Box>&>(result));
        return;
    }
    BoxResult<Box> found;
    search(found);
    for (Box* const* box = found.GetFirst(); box != nullptr; box = found.GetNext(box)) {
        result.Append(*box);
    }
}

}  // namespace qn_detail
