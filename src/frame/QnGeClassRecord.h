// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnRxClassInfo.h"
#include "frame/QnGeClassId.h"

/// Declares a class's record in its public part: the record, its accessor and the override that answers with it.
#define QN_CLASS_RECORD(ClassName)       \
    static QnRxClassInfo s_classInfo;    \
    static QnRxClassInfo& GetStaticCI(); \
    const QnRxClassInfo* GetCI() const override

/// Defines the record in the class's source. Records may be built in any order when the library loads: the parent is
/// reached by address and not read.
#define QN_DEFINE_CLASS_RECORD(ClassName, ParentName, id)                                                         \
    QnRxClassInfo ClassName::s_classInfo(#ClassName, (id), nullptr, &ParentName::GetStaticCI(), nullptr, nullptr, \
                                         nullptr, nullptr);                                                       \
    QnRxClassInfo& ClassName::GetStaticCI() {                                                                     \
        return s_classInfo;                                                                                       \
    }                                                                                                             \
    const QnRxClassInfo* ClassName::GetCI() const {                                                               \
        return &s_classInfo;                                                                                      \
    }
