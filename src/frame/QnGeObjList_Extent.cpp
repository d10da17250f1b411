// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"

namespace {

// One object without an extent spoils the whole: `extent` then keeps what was merged before it.
template <class Extent>
bool MergeExtents(const QnGeObjList& list, bool (QnGeObject::*getExtent)(Extent&) const, Extent& extent) {
    bool any = false;
    for (QnGeObject* const* entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry == nullptr) {
            continue;
        }
        if (!any) {
            if (!((*entry)->*getExtent)(extent)) {
                return false;
            }
            any = true;
            continue;
        }
        Extent own;
        if (!((*entry)->*getExtent)(own)) {
            return false;
        }
        extent += own;
    }
    return any;
}

}  // namespace

bool QnGeObjList::GetExtent2d(QnGeExtent2d& extent) const {
    return MergeExtents(*this, &QnGeObject::GetExtent2d, extent);
}

bool QnGeObjList::GetExtent3d(QnGeExtent3d& extent) const {
    return MergeExtents(*this, &QnGeObject::GetExtent3d, extent);
}
