// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"

// An output list may be this list itself: the entries to cut are counted before the first piece arrives.
void QnGeObjList::CutBy(const QnGeCurve2d& curve, QnGeObjList& in, QnGeObjList& out, QnGeObjList& on) const {
    long left = GetLength();
    for (QnGeObject* const* entry = GetFirst(); entry != nullptr && left > 0; entry = GetNext(entry), --left) {
        if (*entry != nullptr) {
            curve.Cut(**entry, in, out, on);
        }
    }
}
