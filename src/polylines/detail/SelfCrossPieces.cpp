// SPDX-License-Identifier: Apache-2.0
//
// SelfCrossPieces.cpp: a line is taken apart where it crosses itself.
//
// The rule: of all pairs of segments i < j the first one in the order of i, then of j, that crosses or overlaps splits
// the line at p into a closed loop and the rest; the rest is taken apart the same way, and then the loop.
//
//        v0 ----- p ----- v(i+1)           rest   v0 .. vi  p  v(j+1) ..
//                / \        |              loop   p  v(i+1) .. vj
//          v(j+1)   vj ---- +
//
// Phases     1  TakeApart     walks over the segments of a piece and splits it until the walk comes to its end; what
//                             remains of it is a result.
//            2  FindFrom      the first contact of segment i with a later one.
//            3  Split         puts the loop aside, the last one to be taken up first, and makes the piece the rest.
//            4  FindBefore    the first contact of the new segments with those before i; if there is one, on with 3.
// Invariant  At segment i of the walk no pair that begins before i is in contact. A split at (i, j) changes no segment
//            before i and makes at most two new ones, at i and i + 1. So only these need be tried against the earlier
//            ones before the walk goes on at i: it never starts anew, and the answer is that of starting anew.
// Why so     Pieces are stretches of one source line, so that one search serves all of them. A new segment lies on a
//            segment of the source, its home. Where rounding takes it further away than the slack of the search, or
//            where an overlap joins two segments, it has no home, and the piece becomes a source of its own.
//            New segments are tried even where a part of them is known to be free, since the point p is rounded and
//            tolerances count in lengths of segments.
// Order      The rest before the loop at every split; of an overlap its two segments before both, the later one first.
// Ownership  Loops put aside look at sources below them on the stack of sources, which go when the last loop has.
// Cost       About n log n plus the pairs that come near each other, while pieces find homes.
// See        docs/algorithms/offset.md for what it is used for.

#include "polylines/detail/SelfCrossPieces.h"

#include <algorithm>

#include "frame/QnGeTolerance.h"
#include "values/QnGePoint2d.h"

namespace qn_detail {

namespace {

constexpr long FEWEST_VERTICES = 2;  // of a piece that is worth keeping

bool AreNear(const QnGePoint& a, const QnGePoint& b) {
    return IsZero(GetDistance2d(a, b), g_distZero);
}

bool Contains(const PlanBox& outer, const PlanBox& inner) {
    return outer.xMin <= inner.xMin && inner.xMax <= outer.xMax && outer.yMin <= inner.yMin && inner.yMax <= outer.yMax;
}

}  // namespace

bool SelfCrossPieces::Explode(const QnGeMLine2d& line, QnGeObjList& parts) {
    m_sources.Append(new PieceSource(line));
    StartOn(std::make_unique<LinePiece>(*m_sources.GetAt(0), 0));
    if (!TakeApart()) {
        return false;
    }
    KeepPiece();
    while (!m_loops.IsEmpty()) {
        StartOn(std::unique_ptr<LinePiece>(m_loops.TakeOffTail()));
        TakeApart();
        KeepPiece();
    }
    parts.Conbine(m_found, 0);
    return true;
}

// ---- pieces and their sources --------------------------------------------------------------------

/// Makes `piece` the one at hand. Sources above its own have no piece left.
void SelfCrossPieces::StartOn(std::unique_ptr<LinePiece> piece) {
    m_piece = std::move(piece);
    m_isNearKept = false;
    while (m_sources.GetLength() > m_piece->GetSourceIndex() + 1) {
        std::unique_ptr<PieceSource>(m_sources.TakeOffTail()).reset();
    }
    m_piece->ClaimPlaces();
    if (!IsAtHome(0) || !IsAtHome(m_piece->GetSegNum() - 1)) {
        MoveToOwnSource();
    }
}

void SelfCrossPieces::KeepPiece() {
    if (m_piece != nullptr && m_piece->GetVertexNum() >= FEWEST_VERTICES) {
        m_found.Append(m_piece->MakeLine().release());
    }
}

void SelfCrossPieces::PushLoop(std::unique_ptr<LinePiece> loop) {
    if (loop->GetVertexNum() >= FEWEST_VERTICES) {
        m_loops.Append(loop.release());
    }
}

/// The piece at hand goes on as a source of its own. The old one goes unless a loop still looks at it.
void SelfCrossPieces::MoveToOwnSource() {
    auto source = std::make_unique<PieceSource>(m_piece->MakeLine());
    const long old = m_piece->GetSourceIndex();
    const bool isNeeded = !m_loops.IsEmpty() && m_loops.GetAt(m_loops.GetLength() - 1)->GetSourceIndex() == old;
    m_piece.reset();
    if (!isNeeded) {
        std::unique_ptr<PieceSource>(m_sources.TakeOffTail()).reset();
    }
    const long index = m_sources.Append(source.get());
    m_piece = std::make_unique<LinePiece>(*source.release(), index);
    m_isNearKept = false;
}

bool SelfCrossPieces::IsInHome(const QnGePoint& from, const QnGePoint& to, long home) const {
    const SegmentSearch& search = m_piece->GetSource().search;
    return home < search.GetCount() &&
           Contains(search.GetBox(home).Widened(search.GetSlack()), MakeSearchBox(QnGeLineSeg2d(from, to)));
}

/// Whether the search can find segment `k` of the piece; true as well if there is no such segment.
bool SelfCrossPieces::IsAtHome(long k) const {
    if (k < 0 || k >= m_piece->GetSegNum()) {
        return true;
    }
    return IsInHome(m_piece->GetVertex(k), m_piece->GetSegEnd(k), m_piece->GetHome(k));
}

// ---- the walk ------------------------------------------------------------------------------------

/// Splits the piece at hand until it is free of contacts. False if it was free already.
bool SelfCrossPieces::TakeApart() {
    bool wasSplit = false;
    for (long i = 0; m_piece != nullptr && i + 1 < m_piece->GetSegNum();) {
        Contact contact;
        bool isFound = FindFrom(i, contact);
        if (!isFound) {
            ++i;
        }
        while (isFound) {
            wasSplit = true;
            isFound = Split(contact) && FindBefore(contact.i, contact.i + 1, contact);
            i = contact.i;
        }
    }
    return wasSplit;
}

// Behind a split at (i, j) the new segment i is a part of the old one, and what stood between i and j is gone: the walk
// goes on in the same list, at j. The list is made wide enough for that.
bool SelfCrossPieces::FindFrom(long i, Contact& contact) {
    const SegmentSearch& search = m_piece->GetSource().search;
    const double slack = search.GetSlack();
    const PlanBox box = GetBox(i);
    if (!m_isNearKept || !Contains(m_nearBox, box)) {
        m_nearBox = box.Widened(slack);
        search.Find(box.Widened(3.0 * slack), m_piece->GetHome(i) + 1, search.GetCount(), m_near);
        m_nearNext = 0;
    }
    m_isNearKept = false;
    for (; m_nearNext < m_near.GetLength(); ++m_nearNext) {
        const long j = m_piece->FindByHome(m_near[m_nearNext]);
        if (j > i && Meet(i, j, contact)) {
            m_isNearKept = true;
            return true;
        }
    }
    return false;
}

/// The first contact of a segment before `first` with one from `first` to `last`.
bool SelfCrossPieces::FindBefore(long first, long last, Contact& contact) {
    const SegmentSearch& search = m_piece->GetSource().search;
    long best = first;
    for (long d = first; d <= last && d < m_piece->GetSegNum(); ++d) {
        search.Find(GetBox(d).Widened(2.0 * search.GetSlack()), 0, m_piece->GetHome(first), m_nearBefore);
        for (const long home : m_nearBefore) {
            const long a = m_piece->FindByHome(home);
            if (a >= best) {
                break;
            }
            if (a >= 0 && Meet(a, d, contact)) {
                best = a;
                break;
            }
        }
    }
    m_isNearKept = m_isNearKept && best == first;
    return best < first;
}

bool SelfCrossPieces::Meet(long i, long j, Contact& contact) const {
    if (!GetBox(i).Meets(GetBox(j))) {
        return false;
    }
    QnGeObjList met;
    if (!GetSegment(i).IntersectWith(GetSegment(j), met)) {
        return false;
    }
    const QnGeObject& first = *met.GetAt(0);
    const bool isOverlap = first.GetClassID() == CLASS_ID_LINE_SEG2D;
    if (!isOverlap && AreNeighbours(i, j)) {
        return false;
    }
    contact.i = i;
    contact.j = j;
    contact.isOverlap = isOverlap;
    if (!isOverlap) {
        contact.point = static_cast<const QnGePoint2d&>(first);
    }
    return true;
}

bool SelfCrossPieces::AreNeighbours(long i, long j) const {
    return j == i + 1 || (m_piece->IsClosed() && i == 0 && j == m_piece->GetSegNum() - 1);
}

QnGeLineSeg2d SelfCrossPieces::GetSegment(long k) const {
    return QnGeLineSeg2d(m_piece->GetVertex(k), m_piece->GetSegEnd(k));
}

PlanBox SelfCrossPieces::GetBox(long k) const {
    return m_piece->IsOfSource(k) ? m_piece->GetSource().search.GetBox(m_piece->GetHome(k))
                                  : MakeSearchBox(GetSegment(k));
}

// ---- splitting -----------------------------------------------------------------------------------

/// The piece becomes the rest; `contact.i` becomes the index of its first new segment. False if nothing is left.
bool SelfCrossPieces::Split(Contact& contact) {
    if (!contact.isOverlap) {
        SplitAtCrossing(contact);
        return true;
    }
    m_found.Append(new QnGeLineSeg2d(GetSegment(contact.j)));
    m_found.Append(new QnGeLineSeg2d(GetSegment(contact.i)));
    if (m_piece->GetSegNum() == 2) {
        m_piece.reset();
        return false;
    }
    SplitAtOverlap(contact);
    return true;
}

// A point of the crossing that is a vertex already goes into neither piece a second time.
void SelfCrossPieces::SplitAtCrossing(const Contact& contact) {
    const long i = contact.i;
    const long j = contact.j;
    const QnGePoint p = contact.point;
    const bool isAfter = j + 1 < m_piece->GetVertexNum();
    const bool atEndI = AreNear(p, m_piece->GetSegEnd(i));
    const bool atStartJ = AreNear(p, m_piece->GetVertex(j));
    const bool atEndJ = AreNear(p, m_piece->GetSegEnd(j));
    const bool isInRest = !atStartJ && !AreNear(p, m_piece->GetVertex(i)) && (!atEndJ || isAfter);

    PushLoop(m_piece->MakeLoop(atEndI ? nullptr : &p, m_piece->GetHome(i), i + 1, j));
    const long home = m_piece->GetHome(atEndJ && isAfter ? j + 1 : j);
    m_piece->Bridge(i, isInRest ? &p : nullptr, home, atEndJ ? j + 2 : j + 1);
    if (!isInRest) {
        m_piece->SetHome(i, home);
    }
    if (!IsAtHome(i) || !IsAtHome(i + 1)) {
        MoveToOwnSource();
    }
}

// Of two vertices in one place, at the end of segment j and the start of segment i, one goes.
void SelfCrossPieces::SplitAtOverlap(Contact& contact) {
    const long i = contact.i;
    const long j = contact.j;
    const bool isAfter = j + 1 < m_piece->GetVertexNum();
    const bool meetsAgain = IsZero(GetDistance3d(m_piece->GetSegEnd(j), m_piece->GetVertex(i)), g_distZero);
    const long after = meetsAgain ? j + 2 : j + 1;

    PushLoop(m_piece->MakeLoop(nullptr, 0, i + 1, j));
    const long home = ChooseHome(i, j, after);
    m_piece->Bridge(i, nullptr, 0, after);
    m_piece->SetHome(i, home);
    if (meetsAgain && !isAfter) {
        m_piece->DropFirst();
        contact.i = std::max(i - 1, 0L);
    }
    if (!IsAtHome(contact.i)) {
        MoveToOwnSource();
    }
}

/// A home for the segment that leads from vertex `i` to vertex `after` across the overlap of segments i and j.
long SelfCrossPieces::ChooseHome(long i, long j, long after) const {
    const long count = m_piece->GetVertexNum();
    const QnGePoint& from = m_piece->GetVertex(i);
    const QnGePoint& to = m_piece->GetVertex(after < count ? after : 0);
    for (const long k : {i, j, std::min(after, count) - 1}) {
        if (IsInHome(from, to, m_piece->GetHome(k))) {
            return m_piece->GetHome(k);
        }
    }
    return m_piece->GetHome(i);
}

}  // namespace qn_detail
