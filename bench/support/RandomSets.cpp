// SPDX-License-Identifier: Apache-2.0
#include "support/RandomSets.h"

#include <cmath>
#include <cstddef>
#include <random>

#include "frame/QnGeTolerance.h"

namespace {

constexpr unsigned SEGMENT_SEED = 20240612U;
constexpr unsigned POINT_SEED = 20240613U;
constexpr unsigned BOX_SEED = 20240614U;
constexpr unsigned WINDOW_SEED = 20240615U;
constexpr double WORLD = 10000.0;

/// Half-length of a segment in units of the mean distance of segments: two random segments of length l in a unit square
/// cross with the chance 2 l^2 / pi, so that l = 1.25 gives each segment one crossing.
constexpr double HALF_SEGMENT = 0.625;
constexpr long CLUSTERS = 100;
constexpr double CLUSTER_SIZE = 0.01 * WORLD;
constexpr double ROW_DISTANCE = 0.01 * WORLD;
constexpr double MEAN_BOX = 0.67;
constexpr double WINDOW_HITS = 100.0;

double GetSpacing(double side, long count) {
    return side / std::sqrt(static_cast<double>(count));
}

std::vector<QnGePoint> MakeGrid(long count) {
    const long side = static_cast<long>(std::sqrt(static_cast<double>(count)));
    const double step = WORLD / static_cast<double>(side);
    std::vector<QnGePoint> points;
    points.reserve(static_cast<std::size_t>(side * side));
    for (long i = 0; i < side; i++) {
        for (long j = 0; j < side; j++) {
            points.emplace_back(step * static_cast<double>(j), step * static_cast<double>(i));
        }
    }
    return points;
}

std::vector<QnGePoint> MakeCircle(long count) {
    std::vector<QnGePoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double angle = QN_TWO_PI * static_cast<double>(i) / static_cast<double>(count);
        points.emplace_back(WORLD * std::cos(angle), WORLD * std::sin(angle));
    }
    return points;
}

QnGePoint MakeClusterPoint(const std::vector<QnGePoint>& centres, std::mt19937& engine) {
    std::normal_distribution<double> offset(0.0, CLUSTER_SIZE);
    const QnGePoint& centre = centres[engine() % centres.size()];
    const double dx = offset(engine);
    const double dy = offset(engine);
    return {centre.x + dx, centre.y + dy};
}

}  // namespace

std::vector<VertexLine> MakeRandomSegments(long count) {
    std::mt19937 engine(SEGMENT_SEED);
    std::uniform_real_distribution<double> place(0.0, WORLD);
    std::uniform_real_distribution<double> turn(0.0, QN_TWO_PI);
    const double half = HALF_SEGMENT * GetSpacing(WORLD, count);
    std::vector<VertexLine> lines;
    lines.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double x = place(engine);
        const double y = place(engine);
        const double angle = turn(engine);
        const double dx = half * std::cos(angle);
        const double dy = half * std::sin(angle);
        lines.push_back({QnGePoint(x - dx, y - dy), QnGePoint(x + dx, y + dy)});
    }
    return lines;
}

const char* GetName(PointKind kind) {
    switch (kind) {
        case PointKind::UNIFORM:
            return "uniform";
        case PointKind::GRID:
            return "grid";
        case PointKind::CLUSTERS:
            return "clusters";
        case PointKind::TWO_ROWS:
            return "two rows";
        case PointKind::CIRCLE:
            break;
    }
    return "circle";
}

std::vector<QnGePoint> MakePoints(PointKind kind, long count) {
    if (kind == PointKind::GRID) {
        return MakeGrid(count);
    }
    if (kind == PointKind::CIRCLE) {
        return MakeCircle(count);
    }
    std::mt19937 engine(POINT_SEED);
    std::uniform_real_distribution<double> place(0.0, WORLD);
    std::vector<QnGePoint> centres;
    for (long i = 0; i < CLUSTERS; i++) {
        const double x = place(engine);
        const double y = place(engine);
        centres.emplace_back(x, y);
    }
    std::vector<QnGePoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double x = place(engine);
        if (kind == PointKind::TWO_ROWS) {
            points.emplace_back(x, i % 2 == 0 ? 0.0 : ROW_DISTANCE);
        } else if (kind == PointKind::CLUSTERS) {
            points.push_back(MakeClusterPoint(centres, engine));
        } else {
            const double y = place(engine);
            points.emplace_back(x, y);
        }
    }
    return points;
}

std::vector<QnGeExtent2d> MakeBoxes(long count) {
    std::mt19937 engine(BOX_SEED);
    std::uniform_real_distribution<double> place(0.0, BOX_WORLD);
    std::uniform_real_distribution<double> half(0.0, MEAN_BOX * GetSpacing(BOX_WORLD, count));
    std::vector<QnGeExtent2d> boxes;
    boxes.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double x = place(engine);
        const double y = place(engine);
        const double dx = half(engine);
        const double dy = half(engine);
        boxes.emplace_back(x - dx, x + dx, y - dy, y + dy);
    }
    return boxes;
}

std::vector<QnGeExtent2d> MakeWindows(long count, long boxCount) {
    std::mt19937 engine(WINDOW_SEED);
    std::uniform_real_distribution<double> place(0.0, BOX_WORLD);
    const double half = 0.5 * std::sqrt(WINDOW_HITS) * GetSpacing(BOX_WORLD, boxCount);
    std::vector<QnGeExtent2d> windows;
    windows.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double x = place(engine);
        const double y = place(engine);
        windows.emplace_back(x - half, x + half, y - half, y + half);
    }
    return windows;
}

std::vector<QnGePoint> MakeBoxPoints(long count) {
    std::mt19937 engine(WINDOW_SEED);
    std::uniform_real_distribution<double> place(0.0, BOX_WORLD);
    std::vector<QnGePoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (long i = 0; i < count; i++) {
        const double x = place(engine);
        const double y = place(engine);
        points.emplace_back(x, y);
    }
    return points;
}
