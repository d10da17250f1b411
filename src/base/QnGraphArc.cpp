// SPDX-License-Identifier: Apache-2.0
#include "base/QnGraphArc.h"

QnGraphArc::~QnGraphArc() = default;

int QnGraphArc::CmpArc(const QnGraphArc& other) const {
    if (m_nBits == other.m_nBits) {
        return 0;
    }
    return m_nBits < other.m_nBits ? -1 : 1;
}
