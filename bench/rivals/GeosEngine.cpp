// SPDX-License-Identifier: Apache-2.0
//
// GEOS by its C++ interface: Geometry::Union, intersection and difference; for hits the ray count over a ring, and the
// indexed locator as the prepared form.

#include <geos/algorithm/PointLocation.h>
#include <geos/algorithm/locate/IndexedPointInAreaLocator.h>
#include <geos/geom/Coordinate.h>
#include <geos/geom/CoordinateSequence.h>
#include <geos/geom/Geometry.h>
#include <geos/geom/GeometryFactory.h>
#include <geos/geom/LinearRing.h>
#include <geos/geom/Location.h>
#include <geos/geom/Polygon.h>

#include "rivals/Engine.h"

namespace {

using geos::geom::Coordinate;

std::unique_ptr<geos::geom::Polygon> MakePolygon(const std::vector<QnGePoint>& outline) {
    std::vector<Coordinate> ring;
    ring.reserve(outline.size() + 1);
    for (const QnGePoint& vertex : outline) {
        ring.emplace_back(vertex.x, vertex.y);
    }
    ring.push_back(ring.front());
    return geos::geom::GeometryFactory::getDefaultInstance()->createPolygon(std::move(ring));
}

class GeosBoolean : public BooleanEngine {
public:
    std::string GetName() const override { return "GEOS"; }

    void Load(const OutlinePair& pair) override {
        m_first = MakePolygon(pair.first);
        m_second = MakePolygon(pair.second);
    }

    void Run(Operation operation) override {
        switch (operation) {
            case Operation::UNION:
                m_result = m_first->Union(m_second.get());
                break;
            case Operation::INTERSECTION:
                m_result = m_first->intersection(m_second.get());
                break;
            case Operation::DIFFERENCE:
                m_result = m_first->difference(m_second.get());
                break;
        }
    }

    double GetArea() const override { return m_result->getArea(); }
    void Clear() override { m_result.reset(); }

private:
    std::unique_ptr<geos::geom::Geometry> m_first;
    std::unique_ptr<geos::geom::Geometry> m_second;
    std::unique_ptr<geos::geom::Geometry> m_result;
};

class GeosHits : public HitEngine {
public:
    explicit GeosHits(bool isPrepared) : m_isPrepared(isPrepared) {}

    std::string GetName() const override { return m_isPrepared ? "GEOS prepared" : "GEOS"; }
    bool IsPrepared() const override { return m_isPrepared; }

    void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) override {
        m_locator.reset();
        m_polygon = MakePolygon(outline);
        m_locator = std::make_unique<geos::algorithm::locate::IndexedPointInAreaLocator>(*m_polygon);
        m_points.clear();
        for (const QnGePoint& point : points) {
            m_points.emplace_back(point.x, point.y);
        }
    }

    long CountInside(long count) override {
        const auto& ring = *m_polygon->getExteriorRing()->getCoordinatesRO();
        long inside = 0;
        for (long i = 0; i < count; i++) {
            const Coordinate& point = m_points[static_cast<std::size_t>(i)];
            const geos::geom::Location location =
                m_isPrepared ? m_locator->locate(&point) : geos::algorithm::PointLocation::locateInRing(point, ring);
            inside += location == geos::geom::Location::INTERIOR ? 1 : 0;
        }
        return inside;
    }

private:
    bool m_isPrepared;
    std::unique_ptr<geos::geom::Polygon> m_polygon;
    std::unique_ptr<geos::algorithm::locate::IndexedPointInAreaLocator> m_locator;
    std::vector<Coordinate> m_points;
};

}  // namespace

void AddGeos(Engines& engines) {
    engines.booleans.push_back(std::make_unique<GeosBoolean>());
    engines.hits.push_back(std::make_unique<GeosHits>(false));
    engines.hits.push_back(std::make_unique<GeosHits>(true));
}
