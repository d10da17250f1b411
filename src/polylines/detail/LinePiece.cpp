// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/LinePiece.h"

#include <algorithm>

namespace qn_detail {

void LinePiece::AppendOwn(const QnGePoint& point, long home) {
    const auto entry = static_cast<std::int32_t>(home);
    m_source->place[home] = static_cast<std::int32_t>(m_own.Append({point, entry}));
}

void LinePiece::OwnUpTo(long last) {
    while (m_own.GetLength() <= last) {
        AppendOwn(m_source->line.GetVertex(m_tail), m_tail);
        ++m_tail;
    }
}

void LinePiece::SetHome(long k, long home) {
    OwnUpTo(k);
    m_own[k].home = static_cast<std::int32_t>(home);
    m_source->place[home] = static_cast<std::int32_t>(k);
}

long LinePiece::FindByHome(long home) const {
    long k = -1;
    if (home >= m_tail) {
        k = home < m_tailEnd ? m_own.GetLength() + (home - m_tail) : -1;
    } else {
        const long place = m_source->place[home];
        k = IsOwn(place) && m_own[place].home == home ? place : -1;
    }
    return k < GetSegNum() ? k : -1;
}

void LinePiece::ClaimPlaces() {
    for (long k = 0; k < m_own.GetLength(); ++k) {
        m_source->place[m_own[k].home] = static_cast<std::int32_t>(k);
    }
}

std::unique_ptr<LinePiece> LinePiece::MakeLoop(const QnGePoint* start, long home, long first, long last) const {
    auto loop = std::make_unique<LinePiece>(*m_source, m_sourceIndex);
    loop->m_closed = true;
    if (start != nullptr) {
        loop->m_own.Append({*start, static_cast<std::int32_t>(home)});
    }
    const long ownEnd = std::min(last + 1, m_own.GetLength());
    for (long k = first; k < ownEnd; ++k) {
        loop->m_own.Append(m_own[k]);
    }
    const bool endsInTail = last >= m_own.GetLength();
    loop->m_tail = endsInTail ? GetTailVertex(std::max(first, ownEnd)) : m_tailEnd;
    loop->m_tailEnd = endsInTail ? GetTailVertex(last + 1) : m_tailEnd;
    return loop;
}

void LinePiece::Bridge(long keep, const QnGePoint* between, long home, long after) {
    OwnUpTo(keep);
    PodArray<OwnVertex> kept;  // own vertices behind the gap
    for (long k = after; k < m_own.GetLength(); ++k) {
        kept.Append(m_own[k]);
    }
    if (after > m_own.GetLength()) {
        m_tail = std::min(GetTailVertex(after), m_tailEnd);
    }
    m_own.Shorten(keep + 1);
    if (between != nullptr) {
        AppendOwn(*between, home);
    }
    for (const OwnVertex& vertex : kept) {
        AppendOwn(vertex.point, vertex.home);
    }
}

void LinePiece::DropFirst() {
    OwnUpTo(0);
    for (long k = 1; k < m_own.GetLength(); ++k) {
        m_own[k - 1] = m_own[k];
    }
    m_own.Shorten(m_own.GetLength() - 1);
    ClaimPlaces();
}

std::unique_ptr<QnGeMLine2d> LinePiece::MakeLine() const {
    auto line = std::make_unique<QnGeMLine2d>(GetVertexNum(), m_closed);
    for (long k = 0; k < GetVertexNum(); ++k) {
        line->SetVertex(k, GetVertex(k));
    }
    return line;
}

}  // namespace qn_detail
