// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint2d.h"

/// The plain forms of asking a line for crossings with itself and of taking it apart there: two loops over the segments
/// at every level, and recursion on the two pieces of the first crossing. The library's pieces must be equal bit for
/// bit, in this order.
namespace plain_self_cross {

/// Every segment with every later one. Neighbours may meet in one point, the two segments of a closed pair in two.
inline bool IsSelfCross(const QnGeMLine2d& line) {
    const long n = line.GetSegNum();
    std::vector<std::unique_ptr<QnGeCurve2d>> segments;
    for (long i = 0; i < n; ++i) {
        segments.emplace_back(line.GetCurveSeg(i));
    }
    for (long i = 0; i + 1 < n; ++i) {
        for (long j = i + 1; j < n; ++j) {
            QnGeObjList met;
            segments[static_cast<std::size_t>(i)]->IntersectWith(*segments[static_cast<std::size_t>(j)], met);
            if (met.IsEmpty()) {
                continue;
            }
            const bool isPoint = met.GetAt(0)->GetClassID() == CLASS_ID_POINT2D;
            const bool isTwofold = met.GetLength() > 1 && !(n == 2 && line.IsClosed());
            const bool areNeighbours = j == i + 1 || (i == 0 && j == n - 1 && line.IsClosed());
            if (!isPoint || isTwofold || !areNeighbours) {
                return true;
            }
        }
    }
    return false;
}

inline QnGeLineSeg2d SegmentOf(const QnGeMLine2d& line, long i) {
    QnGeBaseLine2d base;
    line.GetSegment(i, base);
    return QnGeLineSeg2d(base);
}

inline bool AreNear(const QnGePoint& a, const QnGePoint& b) {
    return GetDistance2d(a, b) <= g_distZero;
}

inline bool AreNeighbours(const QnGeMLine2d& line, long i, long j) {
    return j == i + 1 || (line.IsClosed() && i == 0 && j == line.GetSegNum() - 1);
}

using LinePtr = std::unique_ptr<QnGeMLine2d>;

/// The line splits at `p` on its segments i and j: the loop between them, and the rest.
inline void SplitAtCrossing(const QnGeMLine2d& line, long i, long j, const QnGePoint& p, LinePtr& rest, LinePtr& loop) {
    const long count = line.GetVertexNum();
    const bool atEndI = AreNear(p, line.GetVertex((i + 1) % count));
    const bool atStartJ = AreNear(p, line.GetVertex(j));
    const bool atEndJ = AreNear(p, line.GetVertex((j + 1) % count));
    const bool noneAfter = j + 1 >= count;
    rest = std::make_unique<QnGeMLine2d>(0, line.IsClosed());
    loop = std::make_unique<QnGeMLine2d>(0, true);
    for (long k = 0; k <= i; ++k) {
        rest->AppendVertex(line.GetVertex(k));
    }
    if (!atStartJ && !AreNear(p, line.GetVertex(i)) && !(atEndJ && noneAfter)) {
        rest->AppendVertex(p);
    }
    for (long k = j + (atEndJ ? 2 : 1); k < count; ++k) {
        rest->AppendVertex(line.GetVertex(k));
    }
    if (!atEndI) {
        loop->AppendVertex(p);
    }
    for (long k = i + 1; k <= j; ++k) {
        loop->AppendVertex(line.GetVertex(k));
    }
}

/// Segments i and j lie on each other.
inline void SplitAtOverlap(const QnGeMLine2d& line, long i, long j, LinePtr& rest, LinePtr& loop) {
    const long count = line.GetVertexNum();
    rest = std::make_unique<QnGeMLine2d>(0, line.IsClosed());
    loop = std::make_unique<QnGeMLine2d>(0, true);
    const bool drop = GetDistance3d(line.GetVertex((j + 1) % count), line.GetVertex(i)) <= g_distZero;
    const bool noneAfter = j + 1 >= count;
    for (long k = drop && noneAfter ? 1 : 0; k <= i; ++k) {
        rest->AppendVertex(line.GetVertex(k));
    }
    for (long k = j + (drop ? 2 : 1); k < count; ++k) {
        rest->AppendVertex(line.GetVertex(k));
    }
    for (long k = i + 1; k <= j; ++k) {
        loop->AppendVertex(line.GetVertex(k));
    }
}

inline bool Explode(const QnGeMLine2d& line, QnGeObjList& list);

inline void HandlePiece(LinePtr piece, QnGeObjList& list) {
    if (piece->GetVertexNum() >= 2 && !Explode(*piece, list)) {
        list.Append(piece.release());
    }
}

inline bool Explode(const QnGeMLine2d& line, QnGeObjList& list) {
    const long n = line.GetSegNum();
    for (long i = 0; i + 1 < n; ++i) {
        const QnGeLineSeg2d first = SegmentOf(line, i);
        for (long j = i + 1; j < n; ++j) {
            const QnGeLineSeg2d second = SegmentOf(line, j);
            QnGeObjList met;
            if (!first.IntersectWith(second, met)) {
                continue;
            }
            const bool isOverlap = met.GetAt(0)->GetClassID() == CLASS_ID_LINE_SEG2D;
            if (!isOverlap && AreNeighbours(line, i, j)) {
                continue;
            }
            LinePtr rest;
            LinePtr loop;
            if (isOverlap) {
                list.Append(new QnGeLineSeg2d(second));
                list.Append(new QnGeLineSeg2d(first));
                if (n == 2) {
                    return true;
                }
                SplitAtOverlap(line, i, j, rest, loop);
            } else {
                const QnGePoint p = static_cast<const QnGePoint2d&>(*met.GetAt(0));
                SplitAtCrossing(line, i, j, p, rest, loop);
            }
            HandlePiece(std::move(rest), list);
            HandlePiece(std::move(loop), list);
            return true;
        }
    }
    return false;
}

}  // namespace plain_self_cross
