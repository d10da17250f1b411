// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/BoxRow.h"

#include <cstring>

#include "values/detail/BoxLanes.h"

namespace qn_detail {

BoxRow::~BoxRow() {
    GivePiece(m_octets, static_cast<std::size_t>(m_octetNum) * sizeof(Octet));
}

void BoxRow::Put(int place, const GridBox& box, BoxNode* node) {
    Octet& octet = m_octets[place / GridLanes::COUNT];
    octet.lanes.SetBox(place % GridLanes::COUNT, box);
    octet.nodes[place % GridLanes::COUNT] = node;
}

bool BoxRow::Add(BoxNode* node) {
    if (m_count == MOST) {
        return false;
    }
    if (m_end == GetSpace()) {
        MakeRoom();
    }
    Put(m_end, m_grid.BoxOf(*node->data), node);
    ++m_end;
    ++m_count;
    return true;
}

/// Closes up if that frees a quarter of the places, else takes eight more.
void BoxRow::MakeRoom() {
    if (4 * m_count <= 3 * m_end && m_end > 0) {
        CloseUp();
        return;
    }
    const auto former = static_cast<std::size_t>(m_octetNum) * sizeof(Octet);
    auto* const octets = static_cast<Octet*>(TakePiece(former + sizeof(Octet)));
    if (former > 0) {
        std::memcpy(static_cast<void*>(octets), m_octets, former);
    }
    GivePiece(m_octets, former);
    m_octets = octets;
    m_octets[m_octetNum].lanes.Clear();
    ++m_octetNum;
}

void BoxRow::CloseUp() {
    int end = 0;
    for (int place = 0; place < m_end; ++place) {
        const Octet& octet = m_octets[place / GridLanes::COUNT];
        const int lane = place % GridLanes::COUNT;
        if (octet.nodes[lane] != nullptr) {
            Put(end, octet.lanes.GetBox(lane), octet.nodes[lane]);
            ++end;
        }
    }
    for (int place = end; place < m_end; ++place) {
        Put(place, GridBox::Empty(), nullptr);
    }
    m_end = static_cast<short>(end);
}

BoxNode* BoxRow::Take(const QnGeExtent2d* box) {
    const GridBox gridBox = m_grid.BoxOf(*box);
    for (int place = 0; place < m_end; place += GridLanes::COUNT) {
        unsigned equal = m_octets[place / GridLanes::COUNT].lanes.GetEqual(gridBox);
        while (equal != 0) {
            const int lane = TakeLowestLane(equal);
            BoxNode* const node = place + lane < m_end ? m_octets[place / GridLanes::COUNT].nodes[lane] : nullptr;
            if (node != nullptr && node->data == box) {
                Put(place + lane, GridBox::Empty(), nullptr);
                --m_count;
                return node;
            }
        }
    }
    return nullptr;
}

template <class IsHit>
void BoxRow::FindAll(const GridBox& box, IsHit isHit, BoxHits& hits) const {
    for (int place = 0; place < m_end; place += GridLanes::COUNT) {
        const Octet& octet = m_octets[place / GridLanes::COUNT];
        unsigned meeting = octet.lanes.GetMeeting(box);
        while (meeting != 0) {
            const int lane = TakeLowestLane(meeting);
            QnGeExtent2d* const met = octet.nodes[lane]->data;
            if (isHit(*met)) {
                hits.Add(static_cast<std::uint64_t>(place + lane), met);
            }
        }
    }
}

void BoxRow::Find(double x, double y, BoxHits& hits) const {
    FindAll(m_grid.SearchBoxOf(QnGeExtent2d(x, x, y, y)), HoldsPoint{x, y}, hits);
}

void BoxRow::Find(const QnGeExtent2d& box, BoxHits& hits) const {
    FindAll(m_grid.SearchBoxOf(box), MeetsBox{box}, hits);
}

}  // namespace qn_detail
