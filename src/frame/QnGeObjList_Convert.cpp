// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "frame/QnGeObjList.h"
#include "frame/QnGeObject2d.h"
#include "frame/QnGeObject3d.h"

void QnGeObjList::FullExplode() {
    QnGeObjList done;
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (IsCurEmpty()) {
            continue;
        }
        QnGeObjList parts;
        if (GetCurPData()->Explode(parts)) {
            DelCur();
            parts.FullExplode();
            done.Conbine(parts, 0);
        }
    }
    Conbine(done, 0);
}

void QnGeObjList::ConvertTo3d() {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (IsCurEmpty() || !GetCurPData()->IsClassOf(&QnGeObject2d::s_classInfo)) {
            continue;
        }
        const std::unique_ptr<QnGeObject2d> old(&GetCurObject2D());
        SetCurData(old->ConvertTo3d());
    }
}

void QnGeObjList::ConvertTo2d() {
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (IsCurEmpty() || !GetCurPData()->IsClassOf(&QnGeObject3d::s_classInfo)) {
            continue;
        }
        QnGeObject2d* flat = GetCurObject3D().ConvertTo2d();
        if (flat == nullptr) {
            DelCur();
        } else {
            const std::unique_ptr<QnGeObject> old(GetCurPData());
            SetCurData(flat);
        }
    }
}
