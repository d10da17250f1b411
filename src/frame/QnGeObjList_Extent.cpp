// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"
#include "frame/detail/ExtentHull.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"

namespace {

template <class Extent>
bool MergeExtents(const QnGeObjList& list, bool (QnGeObject::*getExtent)(Extent&) const, Extent& extent) {
    qn_detail::ExtentHull<Extent> hull(getExtent, extent);
    for (QnGeObject* const* entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry != nullptr && !hull.Add(**entry)) {
            break;
        }
    }
    return hull.IsThere();
}

}  // namespace

bool QnGeObjList::GetExtent2d(QnGeExtent2d& extent) const {
    return MergeExtents(*this, &QnGeObject::GetExtent2d, extent);
}

bool QnGeObjList::GetExtent3d(QnGeExtent3d& extent) const {
    return MergeExtents(*this, &QnGeObject::GetExtent3d, extent);
}
