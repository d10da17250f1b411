// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"

bool QnGeObjList::CheckIn(QnGeObject* object) {
    if (object == nullptr) {
        return false;
    }
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (IsCurEmpty()) {
            continue;
        }
        const QnGeObject& entry = *GetCurPData();
        if (entry.IsInclude(*object)) {
            return false;
        }
        if (object->IsInclude(entry)) {
            DelCur();
        }
    }
    Append(object);
    return true;
}

void QnGeObjList::CheckIn(QnGeObjList& objects) {
    if (&objects == this) {
        return;
    }
    for (objects.MoveToFirst(); !objects.IsOut(); objects.MoveToNext()) {
        if (CheckIn(objects.GetCurPData())) {
            objects.TakeOffCur();
        }
    }
}

void QnGeObjList::RemoveSubObj() {
    QnGeObjList all;
    all.Conbine(*this, 0);
    CheckIn(all);
}

void QnGeObjList::RemoveDup() {}
