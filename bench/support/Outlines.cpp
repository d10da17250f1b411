// SPDX-License-Identifier: Apache-2.0
#include "support/Outlines.h"

#include <cmath>
#include <cstddef>
#include <random>

namespace {

constexpr double WAVES = 10.0;
constexpr double WAVE_HEIGHT = 0.1 * OUTLINE_RADIUS;
/// The second wavy outline is turned by not quite half a wave, so that the pair has no symmetry.
constexpr double WAVE_TURN = 0.45;
constexpr double WAVE_SHIFT = 0.003 * OUTLINE_RADIUS;

/// Half the height of a tooth and the shift of the second gear, as shares of a tooth's width. Both gears cross in the
/// middle third of their flanks all round.
constexpr double TOOTH_HEIGHT = 0.5;
constexpr double TOOTH_TURN = 0.45;
constexpr double TOOTH_SHIFT = 0.05;

/// Half-diagonal factor: the hit points reach a little beyond the highest wave.
constexpr double HIT_REACH = 1.15 * OUTLINE_RADIUS;
constexpr unsigned HIT_SEED = 20240611U;

std::vector<QnGePoint> MakeWaves(long n, double turn, double shift) {
    std::vector<QnGePoint> vertices;
    vertices.reserve(static_cast<std::size_t>(n));
    for (long i = 0; i < n; i++) {
        const double angle = QN_TWO_PI * static_cast<double>(i) / static_cast<double>(n);
        const double radius = OUTLINE_RADIUS + WAVE_HEIGHT * std::cos(WAVES * angle);
        const double turned = angle + turn * QN_TWO_PI / WAVES;
        vertices.emplace_back(shift + radius * std::cos(turned), 0.5 * shift + radius * std::sin(turned));
    }
    return vertices;
}

std::vector<QnGePoint> MakeGear(long n, double turn, double shift) {
    const double toothAngle = 2.0 * QN_TWO_PI / static_cast<double>(n);
    const double toothWidth = OUTLINE_RADIUS * toothAngle;
    std::vector<QnGePoint> vertices;
    vertices.reserve(static_cast<std::size_t>(n));
    for (long i = 0; i < n; i++) {
        const double angle = (0.5 * static_cast<double>(i) + turn) * toothAngle;
        const double height = i % 2 == 0 ? TOOTH_HEIGHT : -TOOTH_HEIGHT;
        const double radius = OUTLINE_RADIUS + height * toothWidth;
        const double move = shift * toothWidth;
        vertices.emplace_back(move + radius * std::cos(angle), 0.5 * move + radius * std::sin(angle));
    }
    return vertices;
}

}  // namespace

const char* GetName(OutlineKind kind) {
    return kind == OutlineKind::SMOOTH ? "smooth" : "toothed";
}

std::vector<QnGePoint> MakeOutline(OutlineKind kind, long n) {
    return kind == OutlineKind::SMOOTH ? MakeWaves(n, 0.0, 0.0) : MakeGear(n, 0.0, 0.0);
}

OutlinePair MakeOutlinePair(OutlineKind kind, long n) {
    if (kind == OutlineKind::SMOOTH) {
        return {MakeOutline(kind, n), MakeWaves(n, WAVE_TURN, WAVE_SHIFT)};
    }
    return {MakeOutline(kind, n), MakeGear(n, TOOTH_TURN, TOOTH_SHIFT)};
}

std::vector<QnGePoint> MakeHitPoints(long count) {
    std::mt19937 engine(HIT_SEED);
    std::uniform_real_distribution<double> coordinate(-HIT_REACH, HIT_REACH);
    std::vector<QnGePoint> points(static_cast<std::size_t>(count));
    for (QnGePoint& point : points) {
        point.x = coordinate(engine);
        point.y = coordinate(engine);
    }
    return points;
}

QnGeMLine2d MakeClosedLine(const std::vector<QnGePoint>& vertices) {
    QnGeMLine2d line(static_cast<long>(vertices.size()), true);
    for (std::size_t i = 0; i < vertices.size(); i++) {
        line.SetVertex(static_cast<long>(i), vertices[i]);
    }
    return line;
}
