// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "spatial/detail/BoxIndex.h"

namespace qn_detail {

/// The boxes of a list one after the other, eight in a cache line, to be gone through in a few steps.
///
/// A place whose box was taken stays empty, so that the places keep the order of the list, until room is needed.
///
/// Cost  16 bytes a place.
class BoxRow final : public BoxIndex {
public:
    /// The longest list that it serves.
    static constexpr int MOST = 64;

    explicit BoxRow(const QnGeExtent2d& range) : BoxIndex(range) {}
    ~BoxRow() override;

    bool Add(BoxNode* node) override;
    BoxNode* Take(const QnGeExtent2d* box) override;
    void Find(double x, double y, BoxHits& hits) const override;
    void Find(const QnGeExtent2d& box, BoxHits& hits) const override;

private:
    struct Octet {
        GridLanes lanes;
        BoxNode* nodes[GridLanes::COUNT];  ///< null where the place is empty
    };

    int GetSpace() const { return m_octetNum * GridLanes::COUNT; }
    void MakeRoom();
    void CloseUp();
    void Put(int place, const GridBox& box, BoxNode* node);
    template <class IsHit>
    void FindAll(const GridBox& box, IsHit isHit, BoxHits& hits) const;

    Octet* m_octets = nullptr;
    short m_octetNum = 0;
    short m_end = 0;    ///< behind the last place in use
    short m_count = 0;  ///< places that are not empty
};

}  // namespace qn_detail
