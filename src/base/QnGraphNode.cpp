// SPDX-License-Identifier: Apache-2.0
#include "base/QnGraphNode.h"

QnGraphNode::~QnGraphNode() = default;

int QnGraphNode::CmpNode(const QnGraphNode& other) const {
    if (m_nBits == other.m_nBits) {
        return 0;
    }
    return m_nBits < other.m_nBits ? -1 : 1;
}
