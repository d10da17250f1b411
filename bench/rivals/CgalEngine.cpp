// SPDX-License-Identifier: Apache-2.0
//
// CGAL: the free functions join, intersection and difference of Polygon_2 in their default form (outlines as
// polylines) on the kernel with exact predicates and exact constructions, which is what they ask for. Hits by
// bounded_side_2 on the kernel with inexact constructions, which is exact there and faster.

#include <CGAL/Boolean_set_operations_2.h>
#include <CGAL/Exact_predicates_exact_constructions_kernel.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Polygon_2.h>
#include <CGAL/Polygon_with_holes_2.h>

#include <iterator>

#include "rivals/Engine.h"

namespace {

using Exact = CGAL::Exact_predicates_exact_constructions_kernel;
using Inexact = CGAL::Exact_predicates_inexact_constructions_kernel;
using ExactPolygon = CGAL::Polygon_2<Exact>;
using ExactRegion = CGAL::Polygon_with_holes_2<Exact>;
using InexactPolygon = CGAL::Polygon_2<Inexact>;

template <class Kernel>
CGAL::Polygon_2<Kernel> MakePolygon(const std::vector<QnGePoint>& outline) {
    CGAL::Polygon_2<Kernel> polygon;
    for (const QnGePoint& vertex : outline) {
        polygon.push_back(typename Kernel::Point_2(vertex.x, vertex.y));
    }
    return polygon;
}

/// The area in doubles: exact numbers of this length would take longer than all booleans together.
double GetSignedArea(const ExactPolygon& polygon) {
    if (polygon.is_empty()) {
        return 0.0;
    }
    const double baseX = CGAL::to_double(polygon[0].x());
    const double baseY = CGAL::to_double(polygon[0].y());
    double twice = 0.0;
    double lastX = 0.0;
    double lastY = 0.0;
    for (const auto& vertex : polygon.vertices()) {
        const double x = CGAL::to_double(vertex.x()) - baseX;
        const double y = CGAL::to_double(vertex.y()) - baseY;
        twice += lastX * y - lastY * x;
        lastX = x;
        lastY = y;
    }
    return 0.5 * twice;
}

class CgalBoolean : public BooleanEngine {
public:
    std::string GetName() const override { return "CGAL"; }

    void Load(const OutlinePair& pair) override {
        m_first = MakePolygon<Exact>(pair.first);
        m_second = MakePolygon<Exact>(pair.second);
    }

    void Run(Operation operation) override {
        switch (operation) {
            case Operation::UNION:
                m_result.emplace_back();
                CGAL::join(m_first, m_second, m_result.back());
                break;
            case Operation::INTERSECTION:
                CGAL::intersection(m_first, m_second, std::back_inserter(m_result));
                break;
            case Operation::DIFFERENCE:
                CGAL::difference(m_first, m_second, std::back_inserter(m_result));
                break;
        }
    }

    double GetArea() const override {
        double area = 0.0;
        for (const ExactRegion& region : m_result) {
            area += GetSignedArea(region.outer_boundary());
            for (const ExactPolygon& hole : region.holes()) {
                area += GetSignedArea(hole);  // holes run clockwise
            }
        }
        return area;
    }

    void Clear() override { m_result.clear(); }

private:
    ExactPolygon m_first;
    ExactPolygon m_second;
    std::vector<ExactRegion> m_result;
};

class CgalHits : public HitEngine {
public:
    std::string GetName() const override { return "CGAL"; }

    void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) override {
        m_polygon = MakePolygon<Inexact>(outline);
        m_points.clear();
        for (const QnGePoint& point : points) {
            m_points.emplace_back(point.x, point.y);
        }
    }

    /// By the free function: the member makes sure first that the polygon is simple.
    long CountInside(long count) override {
        long inside = 0;
        for (long i = 0; i < count; i++) {
            const CGAL::Bounded_side side = CGAL::bounded_side_2(m_polygon.vertices_begin(), m_polygon.vertices_end(),
                                                                 m_points[static_cast<std::size_t>(i)], Inexact());
            inside += side == CGAL::ON_BOUNDED_SIDE ? 1 : 0;
        }
        return inside;
    }

private:
    InexactPolygon m_polygon;
    std::vector<Inexact::Point_2> m_points;
};

}  // namespace

void AddCgal(Engines& engines) {
    engines.booleans.push_back(std::make_unique<CgalBoolean>());
    engines.hits.push_back(std::make_unique<CgalHits>());
}
