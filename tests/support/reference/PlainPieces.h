// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"

/// Curves of many pieces in their plain forms: exploded for every question, cut piece by piece from the start. The
/// library's own forms do without the copies and have to give the same objects in the same order, bit for bit.
namespace plain_pieces {

inline bool IsCompound(const QnGeObject& object) {
    return object.GetClassID() == CLASS_ID_MLINE2D || object.GetClassID() == CLASS_ID_POLYLINE2D ||
           object.GetClassID() == CLASS_ID_MCURVE2D;
}

/// IntersectWith: each part by itself; a part that is no compound hands over to one, a reversed ray as its forward
/// copy.
inline void Intersect(const QnGeObject& object, const QnGeObject& other, QnGeObjList& found) {
    if (IsCompound(object)) {
        QnGeObjList parts;
        object.Explode(parts);
        for (long i = 0; i < parts.GetLength(); ++i) {
            Intersect(*parts.GetAt(i), other, found);
        }
        return;
    }
    if (!IsCompound(other)) {
        object.IntersectWith(other, found);
        return;
    }
    if (object.GetClassID() == CLASS_ID_LINE_RAY2D) {
        QnGeLineRay2d forward(static_cast<const QnGeLineRay2d&>(object));
        forward.SetReverseRay(false);
        Intersect(other, forward, found);
        return;
    }
    const bool isShell = object.GetClassID() >= CLASS_ID_ELLIPSE2D;  // has nothing in common with anything
    if (!isShell) {
        Intersect(other, object, found);
    }
}

/// IsSelfCross of a chain: every pair.
inline bool IsSelfCross(const QnGeMCurve2d& chain) {
    const long count = chain.GetSegNum();
    if (count == 1) {
        return chain.GetAt(0)->IsSelfCross();
    }
    for (long i = 0; i < count; ++i) {
        if (chain.GetAt(i)->IsClosed() || chain.GetAt(i)->IsSelfCross()) {
            return true;
        }
    }
    for (long i = 0; i < count; ++i) {
        for (long j = i + 1; j < count; ++j) {
            QnGeObjList met;
            chain.GetAt(i)->IntersectWith(*chain.GetAt(j), met);
            for (long k = 0; k < met.GetLength(); ++k) {
                if (met.GetAt(k)->GetClassID() != CLASS_ID_POINT2D) {
                    return true;
                }
            }
            const bool isSeam = i == 0 && j == count - 1 && chain.IsClosed();
            if (met.GetLength() > 2 || (met.GetLength() == 2 && !(count == 2 && chain.IsClosed())) ||
                (met.GetLength() == 1 && j != i + 1 && !isSeam)) {
                return true;
            }
        }
    }
    return false;
}

// ---- stretches -----------------------------------------------------------------------------------------

/// A chain's GetSubCurve, child by child over the whole chain.
inline QnGeCurve2d* SubCurveOfChain(const QnGeMCurve2d& chain, double pa1, double pa2) {
    const long count = chain.GetSegNum();
    if (count == 0) {
        return nullptr;
    }
    if (count == 1) {
        return chain.GetAt(0)->GetSubCurve(pa1, pa2);
    }
    if (chain.IsClosed()) {
        pa1 = IsZero(pa1 - 1.0, g_fZero) ? 0.0 : pa1;
        pa2 = IsZero(pa2 - 1.0, g_fZero) ? 0.0 : pa2;
    }
    double l1 = pa1;
    double l2 = pa2;
    const long i = chain.GetSegIndexFromPa(l1);
    const long j = chain.GetSegIndexFromPa(l2);
    QnGeObjList pieces;
    const auto addPiece = [&](long k, double from, double to) {
        QnGeCurve2d* const piece = chain.GetAt(k)->GetSubCurve(from, to);
        if (piece != nullptr) {
            pieces.Append(piece);
        }
    };
    const auto addWhole = [&](long first, long last) {
        for (long k = 0; k < count; ++k) {
            QnGeObject* const clone = k >= first && k <= last ? chain.GetAt(k)->Clone() : nullptr;
            if (clone != nullptr) {
                pieces.Append(clone);
            }
        }
    };
    const auto addFrom = [&]() {
        if (l1 - 1.0 < -g_fZero) {
            addPiece(i, l1, 1.0);
        }
    };
    const auto addUpTo = [&](long k, double local) {
        if (local > g_fZero) {
            addPiece(k, 0.0, local);
        }
    };
    if (pa2 - pa1 > g_fZero) {
        if (i == j) {
            addPiece(i, l1, l2);
        } else {
            addFrom();
            addWhole(i + 1, j - 1);
            addUpTo(j, l2);
        }
    } else if (pa2 - pa1 < -g_fZero) {
        addFrom();
        addWhole(i + 1, count - 1);
        addWhole(0, j - 1);
        addUpTo(j, l2);
    } else {
        addFrom();
        addWhole(i + 1, count - 1);
        addWhole(0, i - 1);
        addUpTo(i, l1);
    }
    if (pieces.GetLength() == 1) {
        return static_cast<QnGeCurve2d*>(pieces.TakeOffHead());
    }
    auto stretch = std::make_unique<QnGeMCurve2d>();
    while (!pieces.IsEmpty()) {
        stretch->Append(static_cast<QnGeCurve2d*>(pieces.TakeOffHead()));
    }
    return stretch.release();
}

/// A multi-line's or polyline's GetSubCurve with the segments as curve objects. Bulges count for a polyline only.
inline QnGeCurve2d* SubCurveOfLine(const QnGeMLine2d& line, double pa1, double pa2) {
    const auto* const bulged = dynamic_cast<const QnGePolyline2d*>(&line);
    const long vertexNum = line.GetVertexNum();
    if (line.GetSegNum() == 0) {
        return nullptr;
    }
    if (line.IsClosed()) {
        pa1 = IsZero(pa1 - 1.0, g_fZero) ? 0.0 : pa1;
        pa2 = IsZero(pa2 - 1.0, g_fZero) ? 0.0 : pa2;
    }
    double l1 = pa1;
    double l2 = pa2;
    const long i = line.GetSegIndexFromPa(l1);
    const long j = line.GetSegIndexFromPa(l2);
    std::vector<QnGePoint> points;
    std::vector<double> bulges;
    const auto bulgeOf = [&](long k) { return bulged != nullptr ? bulged->GetBulge(k) : 0.0; };
    const auto add = [&](const QnGePoint& point, double bulge) {
        points.push_back(point);
        bulges.push_back(bulge);
    };
    const auto addVertices = [&](long first, long last) {
        for (long k = first; k <= last; ++k) {
            add(line.GetVertex(k), bulgeOf(k));
        }
    };
    const auto pointAt = [&](long k, double local) {
        const std::unique_ptr<QnGeCurve2d> seg(line.GetCurveSeg(k));
        QnGePoint point;
        seg->GetPtFromPa(local, point);
        return point;
    };
    if (pa2 - pa1 > g_fZero) {
        if (l1 - 1.0 < -g_fZero) {
            add(pointAt(i, l1), (i == j ? l2 - l1 : 1.0 - l1) * bulgeOf(i));
        }
        addVertices(i + 1, j - 1);
    } else if (pa2 - pa1 < -g_fZero) {
        if (l1 - 1.0 < -g_fZero) {
            add(pointAt(i, l1), (1.0 - l1) * bulgeOf(i));
        }
        addVertices(i + 1, vertexNum - 1);
        addVertices(0, j - 1);
    } else {
        const bool isSegmentEnd = l1 - 1.0 >= -g_fZero;
        const QnGePoint seam = isSegmentEnd ? line.GetVertex((i + 1) % vertexNum) : pointAt(i, l1);
        if (!isSegmentEnd) {
            add(seam, (1.0 - l1) * bulgeOf(i));
        }
        addVertices(i + 1, vertexNum - 1);
        addVertices(0, i - 1);
        if (l1 > g_fZero) {
            add(line.GetVertex(i), bulgeOf(i) * l1);
        }
        add(seam, 0.0);
    }
    if (pa2 - pa1 > g_fZero || pa2 - pa1 < -g_fZero) {
        if (!(pa2 - pa1 > g_fZero && i == j)) {
            add(line.GetVertex(j), l2 * bulgeOf(j));
        }
        if (l2 > g_fZero) {
            add(pointAt(j, l2), 0.0);
        }
    }
    const long count = static_cast<long>(points.size());
    std::unique_ptr<QnGeMLine2d> stretch;
    if (bulged != nullptr) {
        auto made = std::make_unique<QnGePolyline2d>(count, false);
        for (long k = 0; k < count; ++k) {
            made->SetBulge(k, bulges[static_cast<std::size_t>(k)]);
        }
        stretch = std::move(made);
    } else {
        stretch = std::make_unique<QnGeMLine2d>(count, false);
    }
    for (long k = 0; k < count; ++k) {
        stretch->SetVertex(k, points[static_cast<std::size_t>(k)]);
    }
    return stretch.release();
}

inline QnGeCurve2d* SubCurve(const QnGeCurve2d& curve, double pa1, double pa2) {
    if (curve.GetClassID() == CLASS_ID_MCURVE2D) {
        return SubCurveOfChain(static_cast<const QnGeMCurve2d&>(curve), pa1, pa2);
    }
    return SubCurveOfLine(static_cast<const QnGeMLine2d&>(curve), pa1, pa2);
}

/// Split: one stretch after the other.
inline void Split(const QnGeCurve2d& curve, const std::vector<double>& pas, QnGeObjList& out) {
    if (pas.empty()) {
        return;
    }
    const double first = pas.front();
    const double last = pas.back();
    const bool closed = curve.IsClosed();
    if (closed && pas.size() == 1) {
        out.Append(SubCurve(curve, first, first));
        return;
    }
    if (!closed && first > g_fZero) {
        out.Append(SubCurve(curve, 0.0, first));
    }
    for (std::size_t k = 1; k < pas.size(); ++k) {
        if (pas[k - 1] - pas[k] < -g_fZero) {
            out.Append(SubCurve(curve, pas[k - 1], pas[k]));
        }
    }
    if (!closed && last - 1.0 < -g_fZero) {
        out.Append(SubCurve(curve, last, 1.0));
    }
    if (closed && (last - 1.0 < -g_fZero || first > g_fZero)) {
        out.Append(SubCurve(curve, last, first));
    }
}

}  // namespace plain_pieces
