// SPDX-License-Identifier: Apache-2.0
//
// Clipper works on whole numbers: coordinates are multiplied and rounded before the timed part. The factor keeps them
// below 2^30, the range in which Clipper needs no 128-bit products.

#include <cmath>
#include <polyclipping/clipper.hpp>

#include "rivals/Engine.h"

namespace {

/// The largest coordinate of any outline or hit point is below 1.2 radii.
constexpr double SCALE = 8.0e8 / OUTLINE_RADIUS;

ClipperLib::IntPoint MakePoint(const QnGePoint& point) {
    return ClipperLib::IntPoint(std::llround(point.x * SCALE), std::llround(point.y * SCALE));
}

ClipperLib::Path MakePath(const std::vector<QnGePoint>& points) {
    ClipperLib::Path path;
    path.reserve(points.size());
    for (const QnGePoint& point : points) {
        path.push_back(MakePoint(point));
    }
    return path;
}

class ClipperBoolean : public BooleanEngine {
public:
    std::string GetName() const override { return "Clipper"; }
    double GetAreaTolerance() const override { return 1e-6; }

    void Load(const OutlinePair& pair) override {
        m_first = MakePath(pair.first);
        m_second = MakePath(pair.second);
    }

    void Run(Operation operation) override {
        ClipperLib::Clipper clipper;
        clipper.AddPath(m_first, ClipperLib::ptSubject, true);
        clipper.AddPath(m_second, ClipperLib::ptClip, true);
        clipper.Execute(GetClipType(operation), m_result, ClipperLib::pftNonZero, ClipperLib::pftNonZero);
    }

    double GetArea() const override {
        double area = 0.0;
        for (const ClipperLib::Path& path : m_result) {
            area += ClipperLib::Area(path);  // holes run clockwise
        }
        return area / SCALE / SCALE;
    }

    void Clear() override { m_result = ClipperLib::Paths(); }

private:
    static ClipperLib::ClipType GetClipType(Operation operation) {
        switch (operation) {
            case Operation::UNION:
                return ClipperLib::ctUnion;
            case Operation::INTERSECTION:
                return ClipperLib::ctIntersection;
            case Operation::DIFFERENCE:
                break;
        }
        return ClipperLib::ctDifference;
    }

    ClipperLib::Path m_first;
    ClipperLib::Path m_second;
    ClipperLib::Paths m_result;
};

class ClipperHits : public HitEngine {
public:
    std::string GetName() const override { return "Clipper"; }

    void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) override {
        m_outline = MakePath(outline);
        m_points = MakePath(points);
    }

    long CountInside(long count) override {
        long inside = 0;
        for (long i = 0; i < count; i++) {
            const int side = ClipperLib::PointInPolygon(m_points[static_cast<std::size_t>(i)], m_outline);
            inside += side == 1 ? 1 : 0;
        }
        return inside;
    }

private:
    ClipperLib::Path m_outline;
    ClipperLib::Path m_points;
};

}  // namespace

void AddClipper(Engines& engines) {
    engines.booleans.push_back(std::make_unique<ClipperBoolean>());
    engines.hits.push_back(std::make_unique<ClipperHits>());
}
