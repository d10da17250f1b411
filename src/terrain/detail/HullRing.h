// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPDList.h"
#include "terrain/QnGeTINOutEdge.h"

namespace qn_detail {

using HullRing = QnPDList<QnGeTINOutEdge>;
using HullEntry = QnGeTINOutEdge* const*;  ///< an element of the ring, where it stands in the list

inline HullEntry NextInRing(const HullRing& ring, HullEntry entry) {
    const HullEntry next = ring.GetNext(entry);
    return next != nullptr ? next : ring.GetFirst();
}
inline HullEntry PreInRing(const HullRing& ring, HullEntry entry) {
    const HullEntry before = ring.GetPre(entry);
    return before != nullptr ? before : ring.GetLast();
}

}  // namespace qn_detail
