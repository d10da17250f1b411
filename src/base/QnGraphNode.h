// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"
#include "base/QnBitData.h"

/// A node of a caller's own graph, made to be derived from. Comparisons go through the one virtual CmpNode.
class QUARNBASE_API QnGraphNode : public QnBitData {
public:
    QnGraphNode() = default;
    QnGraphNode(const QnGraphNode&) = default;
    QnGraphNode& operator=(const QnGraphNode&) = default;
    ~QnGraphNode() override;

    /// Below 0, 0 or above 0, as this one comes before, with or after `other`. Here: by the flag words, unsigned.
    virtual int CmpNode(const QnGraphNode& other) const;

    bool operator==(const QnGraphNode& other) const { return CmpNode(other) == 0; }
    bool operator!=(const QnGraphNode& other) const { return CmpNode(other) != 0; }
    bool operator<(const QnGraphNode& other) const { return CmpNode(other) < 0; }
    bool operator>(const QnGraphNode& other) const { return CmpNode(other) > 0; }
};
