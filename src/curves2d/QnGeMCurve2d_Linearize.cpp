// SPDX-License-Identifier: Apache-2.0
//
// QnGeMCurve2d_Linearize.cpp: a chain as one line.
//
// Why so  Each child's line comes with both its ends, and the last point of one is the first of the next, so as many
//         vertices are taken as the line has segments. That also fits a closed line, whose last segment leads back.

#include <memory>

#include "containers/QnDynPArray.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/detail/ChainChildren.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePointList.h"

using qn_detail::ForEachChild;

namespace {

constexpr long PART_ALLOC_UNIT = 10;

/// The children's polylines, and what is to be known of them before they become one.
struct LinearParts {
    QnDynPArray<QnGeMLine2d> lines{0, PART_ALLOC_UNIT};
    long segNum = 0;
    bool isBulged = false;
};

/// Fails  False where a child has no linearisation.
bool CollectParts(const QnGeMCurve2d& chain, double prec, LinearParts& parts) {
    bool isComplete = true;
    ForEachChild(chain, [prec, &parts, &isComplete](const QnGeCurve2d& child, long) {
        QnGeMLine2d* const line = child.PLinearize(prec);
        isComplete = line != nullptr;
        if (isComplete) {
            parts.lines.Append(line);
            parts.segNum += line->GetSegNum();
            parts.isBulged = parts.isBulged || line->IsClassOf(&QnGePolyline2d::s_classInfo);
        }
        return isComplete;
    });
    return isComplete;
}

void CopyVertices(const LinearParts& parts, QnGeMLine2d& line) {
    long next = 0;
    for (long k = 0; k < parts.lines.GetLength(); ++k) {
        const QnGeMLine2d& part = *parts.lines.GetAt(k);
        for (long i = 0; i < part.GetSegNum(); ++i) {
            line.SetVertex(next++, part.GetVertex(i));
        }
    }
}

void CopyBulges(const LinearParts& parts, QnGePolyline2d& line) {
    long next = 0;
    for (long k = 0; k < parts.lines.GetLength(); ++k) {
        const QnGeMLine2d& part = *parts.lines.GetAt(k);
        const bool isBulged = part.IsClassOf(&QnGePolyline2d::s_classInfo);
        for (long i = 0; i < part.GetSegNum(); ++i) {
            line.SetBulge(next++, isBulged ? static_cast<const QnGePolyline2d&>(part).GetBulge(i) : 0.0);
        }
    }
}

/// As many vertices of `line` as it has segments.
void AppendStarts(const QnGeMLine2d& line, QnGePointList& points) {
    for (long i = 0; i < line.GetSegNum(); ++i) {
        points.Append(line.GetVertex(i));
    }
}

void AppendAllButLast(const QnGeMLine2d& line, QnGePointList& points) {
    for (long i = 0; i < line.GetVertexNum() - 1; ++i) {
        points.Append(line.GetVertex(i));
    }
}

/// The line through the points, and through the chain's end if it is open.
QnGeMLine2d* MakeLine(const QnGeMCurve2d& chain, QnGePointList& points) {
    const bool closed = chain.IsClosed();
    if (!closed) {
        QnGePoint end;
        chain.GetEndPoint(end);
        points.Append(end);
    }
    return new QnGeMLine2d(points, closed);
}

}  // namespace

QnGeMLine2d* QnGeMCurve2d::MLinearize(double prec) const {
    if (!IsFinite()) {
        return nullptr;
    }
    QnGePointList points;
    ForEachChild(*this, [prec, &points](const QnGeCurve2d& child, long) {
        const std::unique_ptr<QnGeMLine2d> line(child.MLinearize(prec));
        if (line != nullptr) {
            AppendStarts(*line, points);
        }
        return true;
    });
    return MakeLine(*this, points);
}

QnGeMLine2d* QnGeMCurve2d::PLinearize(double prec) const {
    LinearParts parts;
    if (!IsFinite() || !CollectParts(*this, prec, parts)) {
        return nullptr;
    }
    const bool closed = IsClosed();
    const long vertexNum = closed ? parts.segNum : parts.segNum + 1;

    std::unique_ptr<QnGeMLine2d> line;
    if (parts.isBulged) {
        auto bulged = std::make_unique<QnGePolyline2d>(vertexNum, closed);
        CopyBulges(parts, *bulged);
        line = std::move(bulged);
    } else {
        line = std::make_unique<QnGeMLine2d>(vertexNum, closed);
    }
    CopyVertices(parts, *line);
    if (!closed) {
        QnGePoint end;
        GetEndPoint(end);
        line->SetVertex(parts.segNum, end);
    }
    return line.release();
}

/// Kept odd
QnGeMLine2d* QnGeMCurve2d::MLinearizeByDist(double step, bool skipVertical) const {
    if (IsEmpty()) {
        return nullptr;
    }
    QnGePointList points;
    ForEachChild(*this, [step, skipVertical, &points](const QnGeCurve2d& child, long) {
        const std::unique_ptr<QnGeMLine2d> line(child.MLinearizeByDist(step, skipVertical));
        if (line != nullptr) {
            AppendAllButLast(*line, points);
        }
        return true;
    });
    return MakeLine(*this, points);
}
