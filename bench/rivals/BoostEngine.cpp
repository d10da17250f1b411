// SPDX-License-Identifier: Apache-2.0
//
// Boost.Geometry on doubles, Cartesian, with its default strategies: union_, intersection, difference and within.
// Without the rescaling to whole numbers, which this version does by default: it takes longer, and its areas are
// off by 1e-8.

// The library includes old headers of its own, which would say so.
#define BOOST_ALLOW_DEPRECATED_HEADERS
#define BOOST_GEOMETRY_NO_ROBUSTNESS
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>

#include "rivals/Engine.h"

namespace {

namespace bg = boost::geometry;

using Point = bg::model::d2::point_xy<double>;
constexpr bool CLOCKWISE = false;
using Polygon = bg::model::polygon<Point, CLOCKWISE>;
using MultiPolygon = bg::model::multi_polygon<Polygon>;

Polygon MakePolygon(const std::vector<QnGePoint>& outline) {
    Polygon polygon;
    polygon.outer().reserve(outline.size() + 1);
    for (const QnGePoint& vertex : outline) {
        polygon.outer().emplace_back(vertex.x, vertex.y);
    }
    polygon.outer().push_back(polygon.outer().front());
    return polygon;
}

class BoostBoolean : public BooleanEngine {
public:
    std::string GetName() const override { return "Boost"; }

    void Load(const OutlinePair& pair) override {
        m_first = MakePolygon(pair.first);
        m_second = MakePolygon(pair.second);
    }

    void Run(Operation operation) override {
        switch (operation) {
            case Operation::UNION:
                bg::union_(m_first, m_second, m_result);
                break;
            case Operation::INTERSECTION:
                bg::intersection(m_first, m_second, m_result);
                break;
            case Operation::DIFFERENCE:
                bg::difference(m_first, m_second, m_result);
                break;
        }
    }

    double GetArea() const override { return bg::area(m_result); }
    void Clear() override { m_result = MultiPolygon(); }

private:
    Polygon m_first;
    Polygon m_second;
    MultiPolygon m_result;
};

class BoostHits : public HitEngine {
public:
    std::string GetName() const override { return "Boost"; }

    void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) override {
        m_polygon = MakePolygon(outline);
        m_points.clear();
        for (const QnGePoint& point : points) {
            m_points.emplace_back(point.x, point.y);
        }
    }

    long CountInside(long count) override {
        long inside = 0;
        for (long i = 0; i < count; i++) {
            inside += bg::within(m_points[static_cast<std::size_t>(i)], m_polygon) ? 1 : 0;
        }
        return inside;
    }

private:
    Polygon m_polygon;
    std::vector<Point> m_points;
};

}  // namespace

void AddBoost(Engines& engines) {
    engines.booleans.push_back(std::make_unique<BoostBoolean>());
    engines.hits.push_back(std::make_unique<BoostHits>());
}
