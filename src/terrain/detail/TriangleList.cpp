// SPDX-License-Identifier: Apache-2.0
#include "terrain/detail/TriangleList.h"

#include "terrain/detail/TreePlace.h"

namespace qn_detail {

namespace {

constexpr long SHORT_LIST = 128;
constexpr std::uint32_t FEW = 8;  ///< times through the list

std::size_t BytesOf(TriangleList::Place space) {
    return space * sizeof(QnGeTINTriangle*);
}

/// With some to spare, and of few different sizes, so that rows can be used again.
TriangleList::Place SpaceFor(TriangleList::Place length) {
    TriangleList::Place step = 2;
    while (step * 4 < length) {
        step *= 2;
    }
    return (length + length / 2 + 2 + step - 1) / step * step;
}

}  // namespace

TriangleList::~TriangleList() {
    FreeRow();
}

void TriangleList::FreeRow() {
    if (m_row != m_first) {
        GivePiece(m_row, BytesOf(m_space));
    }
    m_row = m_first;
    m_space = IN_OBJECT;
    m_end = 0;
}

void TriangleList::Add(QnGeTINTriangle* triangle, const QnGeExtent2d& range) {
    if (m_hasNodes) {
        TreePlace::SetPlace(*triangle, 0);
        Append(triangle);
        return;
    }
    if (m_end == m_space) {
        Tidy();
    }
    TreePlace::SetPlace(*triangle, m_end);
    m_row[m_end++] = triangle;
    m_nCur = m_nLength++;
    if (m_index != nullptr) {
        if (CountChange()) {
            m_index.reset();
        } else {
            m_index->boxes.Add(triangle, range);
        }
    }
}

void TriangleList::Remove(QnGeTINTriangle* triangle) {
    if (m_hasNodes) {
        MoveToFirst();
        while (!IsOut() && GetCurData() != triangle) {
            MoveToNext();
        }
        DelCur();  // nothing, if somebody has taken it off
        GoOut();
        return;
    }
    m_row[TreePlace::PlaceOf(*triangle)] = nullptr;
    while (m_end > 0 && m_row[m_end - 1] == nullptr) {
        --m_end;
    }
    --m_nLength;
    m_nCur = -1;
    if (m_index != nullptr && (CountChange() || m_index->boxes.Take(triangle) == nullptr)) {
        m_index.reset();
    }
}

/// Closes up the row, and makes it longer or shorter if that leaves too little or too much to spare.
void TriangleList::Tidy() {
    const auto length = static_cast<Place>(m_nLength);
    const bool isFitting = length + 1 + length / 4 <= m_space && (m_space <= 3 * length || m_row == m_first);
    const Place space = isFitting ? m_space : SpaceFor(length + 1);
    auto** const row = isFitting ? m_row : static_cast<QnGeTINTriangle**>(TakePiece(BytesOf(space)));
    Place end = 0;
    for (Place i = 0; i < m_end; ++i) {
        QnGeTINTriangle* const triangle = m_row[i];
        if (triangle != nullptr) {
            TreePlace::SetPlace(*triangle, end);
            row[end++] = triangle;
        }
    }
    if (row != m_row) {
        FreeRow();
    }
    m_row = row;
    m_space = space;
    m_end = end;
}

// ---- searching -------------------------------------------------------------------------------------

QnGeTINTriangle* TriangleList::GetLastTriangle() const {
    if (m_hasNodes) {
        return IsEmpty() ? nullptr : static_cast<QnGeTINTriangle*>(*GetLast());
    }
    return m_end > 0 ? m_row[m_end - 1] : nullptr;
}

void TriangleList::Find(const QnGePoint& point, const QnGeExtent2d& range, QnDynArray<QnGeExtent2d*>& result) {
    if (m_index == nullptr && m_nLength > SHORT_LIST && !m_hasNodes && ++m_searches > FEW) {
        MakeIndex(range);
    }
    if (m_index != nullptr) {
        m_index->changes = 0;
        m_index->boxes.Find(point.x, point.y, result);
        return;
    }
    const auto appendIfHit = [&point, &result](QnGeExtent2d* box) {
        if (box->IsInclude(point.x, point.y)) {
            AppendTo(result, box);
        }
    };
    if (m_hasNodes) {
        for (QnGeExtent2d* const* entry = GetFirst(); entry != nullptr; entry = GetNext(entry)) {
            appendIfHit(*entry);
        }
        return;
    }
    for (Place i = 0; i < m_end; ++i) {
        if (m_row[i] != nullptr) {
            appendIfHit(m_row[i]);
        }
    }
}

/// Whether it is one change too many for the index.
bool TriangleList::CountChange() {
    return ++m_index->changes > FEW * m_nLength;
}

void TriangleList::MakeIndex(const QnGeExtent2d& range) {
    m_searches = 0;
    m_index = std::make_unique<Index>();
    for (Place i = 0; i < m_end; ++i) {
        if (m_row[i] != nullptr) {
            m_index->boxes.Add(m_row[i], range);
        }
    }
}

void TriangleList::MakeNodes() {
    if (m_hasNodes) {
        return;
    }
    m_hasNodes = true;
    m_index.reset();
    for (Place i = 0; i < m_end; ++i) {
        if (m_row[i] != nullptr) {
            LinkAtEnd(m_row[i]);
        }
    }
    FreeRow();
    FinishNodes();
}

}  // namespace qn_detail
