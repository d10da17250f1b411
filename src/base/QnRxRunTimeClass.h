// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"
#include "base/QnRxClassInfo.h"

/// Root of all classes that know their own class record at run time.
class QUARNBASE_API QnRxRunTimeClass {
public:
    virtual const QnRxClassInfo* GetCI() const;
    virtual ~QnRxRunTimeClass();

    QnRxRunTimeClass() = default;
    QnRxRunTimeClass(const QnRxRunTimeClass&) = default;
    QnRxRunTimeClass& operator=(const QnRxRunTimeClass&) = default;

    static QnRxClassInfo s_classInfo;
    static QnRxClassInfo& GetStaticCI();

    long GetClassID() const { return GetCI()->GetClassID(); }

    /// True if the object's class is that of `info` or derives from it. An exact test compares GetCI() with the address
    /// of the class's record.
    ///
    /// Fails  False for null.
    bool IsClassOf(const QnRxClassInfo* info) const;
};
