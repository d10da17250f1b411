// SPDX-License-Identifier: Apache-2.0
#include "base/QnRxRunTimeClass.h"

namespace {

// The library's records have one parent; a caller's may have more, in any of the places.
bool IsOrDerivesFrom(const QnRxClassInfo* own, const QnRxClassInfo* info) {
    if (own == info) {
        return true;
    }
    for (int i = 0; i < QnRxClassInfo::PARENT_COUNT; ++i) {
        const QnRxClassInfo* parent = own->GetParent(i);
        if (parent != nullptr && IsOrDerivesFrom(parent, info)) {
            return true;
        }
    }
    return false;
}

}  // namespace

QnRxClassInfo QnRxRunTimeClass::s_classInfo("QnRxRunTimeClass", 0, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr);

QnRxClassInfo& QnRxRunTimeClass::GetStaticCI() {
    return s_classInfo;
}

const QnRxClassInfo* QnRxRunTimeClass::GetCI() const {
    return &s_classInfo;
}

QnRxRunTimeClass::~QnRxRunTimeClass() = default;

bool QnRxRunTimeClass::IsClassOf(const QnRxClassInfo* info) const {
    return info != nullptr && IsOrDerivesFrom(GetCI(), info);
}
