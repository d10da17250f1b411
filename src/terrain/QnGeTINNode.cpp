// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINNode.h"

QnGeTINNode::~QnGeTINNode() = default;

void QnGeTINNode::AppendValue(double value) {
    const double values = static_cast<double>(count);
    z = (values * z + value) / (values + 1.0);
    ++count;
}
