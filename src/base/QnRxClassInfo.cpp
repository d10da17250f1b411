// SPDX-License-Identifier: Apache-2.0
#include "base/QnRxClassInfo.h"

QnRxClassInfo::QnRxClassInfo(const char* name, long classId, QnRxDynCreateClass* (*)(), QnRxClassInfo* parent1,
                             QnRxClassInfo* parent2, QnRxClassInfo* parent3, QnRxClassInfo* parent4,
                             QnRxClassInfo* parent5)
    : m_name(name), m_classId(classId), m_parents{parent1, parent2, parent3, parent4, parent5} {}

QnRxClassInfo::~QnRxClassInfo() = default;

const QnRxClassInfo* QnRxClassInfo::GetParent(int i) const {
    return i >= 0 && i < PARENT_COUNT ? m_parents[i] : nullptr;
}
