// SPDX-License-Identifier: Apache-2.0
#include "base/QnRxRunTimeClass.h"

QnRxClassInfo QnRxRunTimeClass::s_classInfo("QnRxRunTimeClass", 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr);

QnRxClassInfo& QnRxRunTimeClass::GetStaticCI() { return s_classInfo; }

const QnRxClassInfo* QnRxRunTimeClass::GetCI() const { return &s_classInfo; }

QnRxRunTimeClass::~QnRxRunTimeClass() = default;

bool QnRxRunTimeClass::IsClassOf(const QnRxClassInfo* info) const {
    if (info == nullptr) {
        return false;
    }
    for (const QnRxClassInfo* own = GetCI(); own != nullptr; own = own->GetParent()) {
        if (own == info) {
            return true;
        }
    }
    return false;
}
