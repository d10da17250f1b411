// SPDX-License-Identifier: Apache-2.0
#include "support/CrossingCount.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr double SMOOTH_CROSSINGS = 20.0;
constexpr double COUNT_SLACK = 0.1;

struct Edge {
    QnGePoint start;
    QnGePoint end;
    double left;
    double right;
};

std::vector<Edge> MakeEdges(const std::vector<QnGePoint>& outline) {
    std::vector<Edge> edges;
    edges.reserve(outline.size());
    for (std::size_t i = 0; i < outline.size(); i++) {
        const QnGePoint& start = outline[i];
        const QnGePoint& end = outline[i + 1 == outline.size() ? 0 : i + 1];
        edges.push_back({start, end, std::min(start.x, end.x), std::max(start.x, end.x)});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.left < b.left; });
    return edges;
}

bool IsLeftOf(const QnGePoint& point, const Edge& edge) {
    const QnGePoint along = edge.end - edge.start;
    const QnGePoint toPoint = point - edge.start;
    return along.x * toPoint.y - along.y * toPoint.x > 0.0;
}

bool IsCrossing(const Edge& a, const Edge& b) {
    return IsLeftOf(a.start, b) != IsLeftOf(a.end, b) && IsLeftOf(b.start, a) != IsLeftOf(b.end, a);
}

}  // namespace

long CountCrossings(const OutlinePair& pair) {
    const std::vector<Edge> firstEdges = MakeEdges(pair.first);
    const std::vector<Edge> secondEdges = MakeEdges(pair.second);
    double widest = 0.0;
    for (const Edge& edge : secondEdges) {
        widest = std::max(widest, edge.right - edge.left);
    }
    long count = 0;
    std::size_t from = 0;  // edges of the second outline before this one end left of the sweep
    for (const Edge& edge : firstEdges) {
        while (from < secondEdges.size() && secondEdges[from].left < edge.left - widest) {
            from++;
        }
        for (std::size_t i = from; i < secondEdges.size() && secondEdges[i].left <= edge.right; i++) {
            count += IsCrossing(edge, secondEdges[i]) ? 1 : 0;
        }
    }
    return count;
}

bool IsExpectedCount(OutlineKind kind, long n, long crossings) {
    const double expected = kind == OutlineKind::SMOOTH ? SMOOTH_CROSSINGS : static_cast<double>(n);
    return std::fabs(static_cast<double>(crossings) - expected) <= COUNT_SLACK * expected;
}
