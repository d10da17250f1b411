// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnStream.h"
#include "frame/QnGeObject.h"

namespace qn_detail {

/// No class has this id: it stands in a stream for an entry without an object.
constexpr long NO_CLASS_ID = 0;

/// Writes the record of a QnGeObjList with the objects of any list of pointers. The list's cursor stays.
template <class List>
void StreamOutEntries(const List& list, QnStream& stream) {
    stream << list.GetLength();
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry == nullptr) {
            stream << NO_CLASS_ID;
            continue;
        }
        stream << (*entry)->GetClassID();
        (*entry)->StreamOut(stream);
    }
}

}  // namespace qn_detail
