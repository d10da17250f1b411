// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "containers/QnDynPArray.h"
#include "containers/detail/PodArray.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/detail/LinePiece.h"

namespace qn_detail {

/// Takes a line apart into pieces that do not cross themselves.
///
/// See  SelfCrossPieces.cpp
class SelfCrossPieces {
public:
    /// Appends the pieces of `line` to `parts`.
    ///
    /// Ownership  `parts` owns them.
    /// Fails      False if the line does not cross itself; nothing is appended then.
    bool Explode(const QnGeMLine2d& line, QnGeObjList& parts);

private:
    /// Two segments of the piece at hand where it comes apart.
    struct Contact {
        long i = 0;
        long j = 0;
        QnGePoint point;
        bool isOverlap = false;
    };

    bool TakeApart();
    bool FindFrom(long i, Contact& contact);
    bool FindBefore(long first, long last, Contact& contact);
    bool Meet(long i, long j, Contact& contact) const;
    bool AreNeighbours(long i, long j) const;
    QnGeLineSeg2d GetSegment(long k) const;
    PlanBox GetBox(long k) const;

    bool Split(Contact& contact);
    void SplitAtCrossing(const Contact& contact);
    void SplitAtOverlap(Contact& contact);
    long ChooseHome(long i, long j, long after) const;

    void StartOn(std::unique_ptr<LinePiece> piece);
    void KeepPiece();
    void PushLoop(std::unique_ptr<LinePiece> loop);
    void MoveToOwnSource();
    bool IsInHome(const QnGePoint& from, const QnGePoint& to, long home) const;
    bool IsAtHome(long k) const;

    std::unique_ptr<LinePiece> m_piece;  ///< the piece at hand
    QnDynPArray<LinePiece> m_loops;      ///< those still to be taken apart, the last first
    QnDynPArray<PieceSource> m_sources;
    QnGeObjList m_found;

    PodArray<std::int32_t> m_near;  ///< what the search listed for the segment that FindFrom was last asked for
    long m_nearNext = 0;            ///< place in m_near to go on from
    PlanBox m_nearBox = {};
    bool m_isNearKept = false;
    PodArray<std::int32_t> m_nearBefore;
};

}  // namespace qn_detail
