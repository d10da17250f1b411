// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "containers/detail/PodArray.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/SegmentSearch.h"

namespace qn_detail {

/// A line that is being taken apart, with the search over its segments. It stays as it is while pieces are cut from it.
struct PieceSource {
    explicit PieceSource(const QnGeMLine2d& given) : line(given), search(given), place(given.GetVertexNum()) {
        ClearPlaces();
    }
    explicit PieceSource(std::unique_ptr<QnGeMLine2d> own)
        : owned(std::move(own)), line(*owned), search(line), place(line.GetVertexNum()) {
        ClearPlaces();
    }

    std::unique_ptr<QnGeMLine2d> owned;
    const QnGeMLine2d& line;
    SegmentSearch search;
    PodArray<std::int32_t> place;  ///< of each segment, where the piece at hand may have it among its own vertices

private:
    void ClearPlaces() {
        for (std::int32_t& entry : place) {
            entry = 0;
        }
    }
};

/// A piece of a source line: some vertices of its own, then a stretch of the source's.
///
///     o----o----o----o----o----o----o
///     |__ own __|    |____ tail ____|       own: vertices with their homes; tail: vertices of the source
///
/// The home of a vertex is the segment of the source on which the segment that leaves it lies, within the slack of
/// the search. Homes ascend along the piece, so that what the search lists by home comes in the order of the piece, and
/// one search over the source serves all its pieces.
class LinePiece {
public:
    /// The whole source, numbered `sourceIndex` by the caller.
    LinePiece(PieceSource& source, long sourceIndex)
        : m_source(&source),
          m_sourceIndex(sourceIndex),
          m_tail(0),
          m_tailEnd(source.line.GetVertexNum()),
          m_closed(source.line.IsClosed()) {}

    PieceSource& GetSource() const { return *m_source; }
    long GetSourceIndex() const { return m_sourceIndex; }
    bool IsClosed() const { return m_closed; }
    long GetVertexNum() const { return m_own.GetLength() + (m_tailEnd - m_tail); }
    long GetSegNum() const {
        const long count = GetVertexNum();
        if (count < 2) {
            return 0;
        }
        return m_closed ? count : count - 1;
    }
    const QnGePoint& GetVertex(long k) const {
        return IsOwn(k) ? m_own[k].point : m_source->line.GetVertex(GetTailVertex(k));
    }
    const QnGePoint& GetSegEnd(long k) const { return GetVertex(k + 1 < GetVertexNum() ? k + 1 : 0); }

    /// Whether segment `k` is its home as a whole, unchanged.
    bool IsOfSource(long k) const { return !IsOwn(k) && k + 1 < GetVertexNum(); }

    long GetHome(long k) const { return IsOwn(k) ? m_own[k].home : GetTailVertex(k); }
    void SetHome(long k, long home);

    /// The segment of this piece that lies on the source's segment `home`; -1 if another piece has it.
    ///
    /// Requires  ClaimPlaces since the piece became the one at hand.
    long FindByHome(long home) const;
    void ClaimPlaces();

    /// Vertices `first` to `last` as a closed piece of their own, with `start` and its home before them if given.
    std::unique_ptr<LinePiece> MakeLoop(const QnGePoint* start, long home, long first, long last) const;

    /// Replaces the vertices behind `keep` up to before `after` by `between` with its home, or by nothing.
    void Bridge(long keep, const QnGePoint* between, long home, long after);

    /// Takes vertex 0 out.
    void DropFirst();

    std::unique_ptr<QnGeMLine2d> MakeLine() const;

private:
    struct OwnVertex {
        QnGePoint point;
        std::int32_t home;
    };

    bool IsOwn(long k) const { return k < m_own.GetLength(); }
    long GetTailVertex(long k) const { return m_tail + (k - m_own.GetLength()); }
    void AppendOwn(const QnGePoint& point, long home);
    void OwnUpTo(long last);

    PieceSource* m_source;
    long m_sourceIndex;
    PodArray<OwnVertex> m_own;
    long m_tail;
    long m_tailEnd;
    bool m_closed;
};

}  // namespace qn_detail
