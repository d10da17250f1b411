// SPDX-License-Identifier: Apache-2.0
// PieceIntersect.cpp: two curves of many pieces each intersected by the pairs of pieces that come near each other.
//
// The plain rule is one line: each part intersects with the other object. Between two compound curves it unfolds by
// itself to all pairs of their smallest pieces: a piece of the first hands the pair over to the second, whose pieces
// are asked one after the other.
//
// Phases     1  IsWorthIt    from so many pairs on an index costs less than they do.
//            2  PieceTable   the smallest pieces of the second curve in order, and their boxes.
//            3  MeetNear     for each smallest piece of the first the pieces near it, in ascending order: so every pair
//                            that can have an answer comes in the order of the plain rule, with the same receiver.
// Why so     A reversed ray stands for its forward copy as receiver, so it is the copy that is handed over.
// Cost       n log n + m log n and the pairs that are near.

#include "polylines/detail/PieceIntersect.h"

#include <cstdint>

#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/detail/CurvePieces.h"
#include "curves2d/detail/SearchBox.h"
#include "polylines/detail/SegmentView.h"

namespace qn_detail {

namespace {

/// Shows the smallest pieces in order.
template <class Visit>
void ForEachSmallest(const QnGeCurve2d& curve, Visit& visit) {
    ForEachPiece(curve, [&visit](const QnGeCurve2d& piece) {
        if (IsPlainCompound(piece)) {
            ForEachSmallest(piece, visit);
        } else {
            visit(piece);
        }
        return true;
    });
}

long CountSmallest(const QnGeCurve2d& curve) {
    if (IsPlainPolyline(curve)) {
        return GetPieceNum(static_cast<const QnGeMLine2d&>(curve));
    }
    if (!IsPlainChain(curve)) {
        return 1;
    }
    long count = 0;
    ForEachChild(static_cast<const QnGeMCurve2d&>(curve), [&count](const QnGeCurve2d& child, long) {
        count += CountSmallest(child);
        return true;
    });
    return count;
}

bool IsWorthIt(const QnGeCurve2d& first, const QnGeCurve2d& second) {
    constexpr long FEW_PIECES = 16;
    constexpr long FEW_PAIRS = 1024;
    const long secondNum = CountSmallest(second);
    return secondNum >= FEW_PIECES && CountSmallest(first) >= FEW_PAIRS / secondNum;
}

/// The smallest pieces of a curve by index. A segment of a polyline is made when it is asked for.
class PieceTable {
public:
    /// Fails  False where a piece is of a class that decides by itself what it hands over to.
    bool Fill(const QnGeCurve2d& curve);

    BoxSearch MakeSearch() const { return BoxSearch(m_boxes.begin(), m_boxes.GetLength()); }
    long GetCount() const { return m_places.GetLength(); }

    /// It lives until the next one is asked for.
    const QnGeCurve2d& Get(long k) {
        const Place& place = m_places[k];
        if (place.segment < 0) {
            return *place.curve;
        }
        if (place.curve->GetCI() == &QnGePolyline2d::s_classInfo) {
            return m_view.Get(static_cast<const QnGePolyline2d&>(*place.curve), place.segment);
        }
        return m_view.Get(static_cast<const QnGeMLine2d&>(*place.curve), place.segment);
    }

private:
    struct Place {
        const QnGeCurve2d* curve;
        std::int32_t segment;  ///< -1 for the curve itself
    };

    void Append(const QnGeCurve2d& curve, long segment) {
        m_places.Append({&curve, static_cast<std::int32_t>(segment)});
        m_boxes.Append(MakeSearchBox(Get(GetCount() - 1)));
    }

    PodArray<Place> m_places;
    PodArray<PlanBox> m_boxes;
    SegmentView m_view;
};

bool PieceTable::Fill(const QnGeCurve2d& curve) {
    if (IsPlainPrimitive(curve)) {
        Append(curve, -1);
        return true;
    }
    if (IsPlainPolyline(curve)) {
        const long count = GetPieceNum(static_cast<const QnGeMLine2d&>(curve));
        for (long i = 0; i < count; ++i) {
            Append(curve, i);
        }
        return true;
    }
    if (!IsPlainChain(curve)) {
        return false;
    }
    bool isFilled = true;
    ForEachChild(static_cast<const QnGeMCurve2d&>(curve), [this, &isFilled](const QnGeCurve2d& child, long) {
        isFilled = Fill(child);
        return isFilled;
    });
    return isFilled;
}

/// A curve of many pieces, to be met by one piece after the other.
class NearPieces {
public:
    NearPieces(PieceTable& table, QnGeObjList& found) : m_table(table), m_search(table.MakeSearch()), m_found(found) {}

    void MeetNear(const QnGeCurve2d& piece) {
        if (piece.GetClassID() == CLASS_ID_LINE_RAY2D && static_cast<const QnGeLineRay2d&>(piece).IsReverseRay()) {
            QnGeLineRay2d forward(static_cast<const QnGeLineRay2d&>(piece));
            forward.SetReverseRay(false);
            MeetNear(forward);
            return;
        }
        m_search.Find(MakeSearchBox(piece), 0, m_table.GetCount(), m_near);
        for (const std::int32_t k : m_near) {
            m_table.Get(k).IntersectWith(piece, m_found);
        }
    }

private:
    PieceTable& m_table;
    BoxSearch m_search;
    QnGeObjList& m_found;
    PodArray<std::int32_t> m_near;
};

/// Fails  False, and nothing is done, where the second curve has pieces that cannot stand in a table.
bool IntersectNear(const QnGeCurve2d& first, const QnGeCurve2d& second, QnGeObjList& found) {
    PieceTable table;
    if (!table.Fill(second)) {
        return false;
    }
    NearPieces pieces(table, found);
    auto meet = [&pieces, &second, &found](const QnGeCurve2d& piece) {
        if (IsPlainPrimitive(piece)) {
            pieces.MeetNear(piece);
        } else {
            piece.IntersectWith(second, found);
        }
    };
    ForEachSmallest(first, meet);
    return true;
}

}  // namespace

void IntersectParts(const QnGeObject& object, const QnGeObject& other, QnGeObjList& found) {
    if (IsPlainCompound(object) && IsPlainCompound(other)) {
        const auto& first = static_cast<const QnGeCurve2d&>(object);
        const auto& second = static_cast<const QnGeCurve2d&>(other);
        if (IsWorthIt(first, second) && IntersectNear(first, second, found)) {
            return;
        }
    }
    ForEachPart(object, [&other, &found](const QnGeObject& part) {
        part.IntersectWith(other, found);
        return true;
    });
}

}  // namespace qn_detail
