// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeObject.h"

namespace qn_detail {

/// The last row of every dispatch of plane primitives: the pair goes to the argument, with `self` as its argument.
///
/// Why so     A plane primitive and a primitive in space both hand over what they do not know, so the two would
///            pass the pair to and fro for ever; they meet nowhere instead. Points and compounds of the other
///            dimension answer.
/// Ownership  `out` owns what is appended.
inline bool HandOver(const QnGeObject& self, const QnGeObject& other, QnGeObjList& out) {
    const long id = other.GetClassID();
    const bool isSpatialPrimitive = id >= CLASS_ID_LINE3D && id <= CLASS_ID_PLANE3D;
    return !isSpatialPrimitive && other.IntersectWith(self, out);
}

}  // namespace qn_detail
