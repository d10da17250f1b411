// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "containers/QnFreeList.h"
#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"

/// A point in a chain of points. A chain that comes back to its first node is a ring.
///
/// Ownership  Deleting a node deletes the whole chain behind it, up to its end or back to the node itself. So any node
///            owns its ring; take a single node out by clearing its next link before.
class QUARNGEO_API QnGePtFreeList : public QnFreeList<QnGePoint> {
public:
    QnGePtFreeList() = default;
    explicit QnGePtFreeList(const QnGePoint& point) : QnFreeList<QnGePoint>(point) {}

    QnGePtFreeList* GetNext() const { return static_cast<QnGePtFreeList*>(next); }

    /// How many nodes the chain has from here to its end, or the ring all round.
    long CountNodes() const {
        long count = 1;
        for (const QnGePtFreeList* node = GetNext(); node != nullptr && node != this; node = node->GetNext()) {
            ++count;
        }
        return count;
    }

    /// The last node before the chain ends or comes back to this node.
    QnGePtFreeList* FindLast() {
        QnGePtFreeList* last = this;
        while (last->GetNext() != nullptr && last->GetNext() != this) {
            last = last->GetNext();
        }
        return last;
    }
};

/// A ring point with a flag word of its own.
class QUARNGEO_API QnGePtFreeList1 : public QnGePtFreeList, public QnBitData {
public:
    enum PtFlag : std::uint32_t {
        PT_RING_TAKEN = 0x1  ///< the node's ring has been turned into a polygon
    };

    QnGePtFreeList1() = default;
    explicit QnGePtFreeList1(const QnGePoint& point) : QnGePtFreeList(point) {}

    QnGePtFreeList1* GetNext() const { return static_cast<QnGePtFreeList1*>(next); }
};

/// A ring point with its place along the line that cuts the ring.
class QUARNGEO_API QnGePtFreeList2 : public QnGePtFreeList1 {
public:
    double m_linePa = 0.0;  ///< parameter on the cutting line, for nodes where a chain starts or ends

    QnGePtFreeList2() = default;
    explicit QnGePtFreeList2(const QnGePoint& point) : QnGePtFreeList1(point) {}

    QnGePtFreeList2* GetNext() const { return static_cast<QnGePtFreeList2*>(next); }
};
