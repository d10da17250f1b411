// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"

/// Breaking the curves of a list where they meet, in its plain form: every pair of members by their own IntersectWith,
/// every piece by every knife. The library's own is faster and has to give the same pieces in the same order, bit for
/// bit.
namespace plain_inter_break {

inline const QnGeCurve2d* AsCurve(const QnGeObject& object) {
    return object.IsClassOf(&QnGeCurve2d::s_classInfo) ? static_cast<const QnGeCurve2d*>(&object) : nullptr;
}

inline std::vector<const QnGeObject*> MembersOf(const QnGeObjList& list) {
    std::vector<const QnGeObject*> members;
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry != nullptr) {
            members.push_back(*entry);
        }
    }
    return members;
}

inline void AppendUnlessNull(QnGeObject* object, QnGeObjList& out) {
    if (object != nullptr) {
        out.Append(object);
    }
}

inline void AppendAllFilled(QnGeObjList& pieces, QnGeObjList& out) {
    while (!pieces.IsEmpty()) {
        AppendUnlessNull(pieces.TakeOffHead(), out);
    }
}

// ---- all crossings ---------------------------------------------------------------------------------

inline void EnterPa(const QnGeCurve2d& curve, const QnGePoint& pt, QnDynArray<double>& pas) {
    double pa = 0.0;
    if (curve.GetPaFromPt(pt, pa)) {
        pas.SortInto(pa, false);
    }
}

inline void EnterHits(const QnGeCurve2d& a, const QnGeCurve2d& b, QnDynArray<double>& pasA, QnDynArray<double>& pasB) {
    QnGeObjList hits;
    a.IntersectWith(b, hits);
    const auto enter = [&](const QnGePoint& pt) {
        EnterPa(a, pt, pasA);
        EnterPa(b, pt, pasB);
    };
    for (const QnGeObject* hit : MembersOf(hits)) {
        if (hit->IsClassOf(&QnGePoint2d::s_classInfo)) {
            enter(static_cast<const QnGePoint2d&>(*hit));
        } else if (const QnGeCurve2d* const overlap = AsCurve(*hit)) {
            QnGePoint pt;
            if (overlap->GetStartPoint(pt)) {
                enter(pt);
            }
            if (overlap->GetEndPoint(pt)) {
                enter(pt);
            }
        }
    }
}

inline void Break(const QnGeObjList& list, QnGeObjList& out) {
    const std::vector<const QnGeObject*> members = MembersOf(list);
    std::vector<QnDynArray<double>> pas(members.size());
    for (std::size_t i = members.size(); i-- > 0;) {
        const QnGeCurve2d* const a = AsCurve(*members[i]);
        QnGeExtent2d extent;
        const bool hasExtent = a != nullptr && a->GetExtent2d(extent);
        for (std::size_t j = 0; a != nullptr && j < i; ++j) {
            const QnGeCurve2d* const b = AsCurve(*members[j]);
            if (b != nullptr && (!hasExtent || b->IsExtentInter(extent))) {
                EnterHits(*a, *b, pas[i], pas[j]);
            }
        }
    }
    QnGeObjList broken;
    for (std::size_t i = 0; i < members.size(); ++i) {
        if (pas[i].IsEmpty()) {
            AppendUnlessNull(members[i]->Clone(), broken);
            continue;
        }
        QnGeObjList pieces;
        AsCurve(*members[i])->Split(pas[i], pieces);
        AppendAllFilled(pieces, broken);
    }
    out.Conbine(broken, 0);
}

// ---- overlaps kept once ----------------------------------------------------------------------------

using Piece = std::pair<std::unique_ptr<QnGeObject>, std::size_t>;  // and of which member

inline void CutPiece(const QnGeCurve2d& knife, std::size_t knifeIndex, const Piece& piece, std::vector<Piece>& to) {
    QnGeObjList work;
    QnGeObjList scratch;
    knife.Cut(*piece.first, work, work, piece.second < knifeIndex ? scratch : work);
    while (!work.IsEmpty()) {
        std::unique_ptr<QnGeObject> part(work.TakeOffHead());
        if (part != nullptr) {
            to.emplace_back(std::move(part), piece.second);
        }
    }
}

inline void BreakEx(const QnGeObjList& list, QnGeObjList& out) {
    const std::vector<const QnGeObject*> members = MembersOf(list);
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i < members.size(); ++i) {
        std::unique_ptr<QnGeObject> clone(members[i]->Clone());
        if (clone != nullptr) {
            pieces.emplace_back(std::move(clone), i);
        }
    }
    for (std::size_t m = 0; m < members.size(); ++m) {
        const QnGeCurve2d* const knife = AsCurve(*members[m]);
        if (knife == nullptr) {
            continue;
        }
        QnGeExtent2d extent;
        const bool hasExtent = knife->GetExtent2d(extent);
        std::vector<Piece> next;
        for (Piece& piece : pieces) {
            const bool isCut = piece.second != m && AsCurve(*piece.first) != nullptr &&
                               (!hasExtent || piece.first->IsExtentInter(extent));
            if (isCut) {
                CutPiece(*knife, m, piece, next);
            } else {
                next.push_back(std::move(piece));
            }
        }
        pieces = std::move(next);
    }
    for (Piece& piece : pieces) {
        out.Append(piece.first.release());
    }
}

}  // namespace plain_inter_break
