// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"
#include "base/QnBitData.h"

/// An arc of a caller's own graph, made to be derived from. Comparisons go through the one virtual CmpArc.
class QUARNBASE_API QnGraphArc : public QnBitData {
public:
    QnGraphArc() = default;
    QnGraphArc(const QnGraphArc&) = default;
    QnGraphArc& operator=(const QnGraphArc&) = default;
    ~QnGraphArc() override;

    /// Below 0, 0 or above 0, as this one comes before, with or after `other`. Here: by the flag words, unsigned.
    virtual int CmpArc(const QnGraphArc& other) const;

    bool operator==(const QnGraphArc& other) const { return CmpArc(other) == 0; }
    bool operator!=(const QnGraphArc& other) const { return CmpArc(other) != 0; }
    bool operator<(const QnGraphArc& other) const { return CmpArc(other) < 0; }
    bool operator>(const QnGraphArc& other) const { return CmpArc(other) > 0; }
};
