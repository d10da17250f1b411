// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "spatial/detail/BoxIndex.h"

namespace qn_detail {

/// The boxes of a node's long list by their place along the node's centre lines.
///
/// See  BoxOrder.cpp for how it works
class BoxOrder final : public BoxIndex {
public:
    explicit BoxOrder(const QnGeExtent2d& range);
    ~BoxOrder() override;

    bool Add(BoxNode* node) override;
    BoxNode* Take(const QnGeExtent2d* box) override;
    void Find(double x, double y, BoxHits& hits) const override;
    void Find(const QnGeExtent2d& box, BoxHits& hits) const override;

    struct Block;
    using Key = std::uint64_t;
    static constexpr int ARRIVAL_BITS = 31;
    static constexpr Key MOST_ARRIVALS = (Key{1} << ARRIVAL_BITS) - 1;

private:
    Block* m_root;
    Key m_arrivals = 0;
};

}  // namespace qn_detail
