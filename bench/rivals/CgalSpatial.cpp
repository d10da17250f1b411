// SPDX-License-Identifier: Apache-2.0
//
// CGAL: segments by the sweep over exact numbers, points by the Delaunay triangulation that sorts them first.

#include <CGAL/Arr_segment_traits_2.h>
#include <CGAL/Delaunay_triangulation_2.h>
#include <CGAL/Exact_predicates_exact_constructions_kernel.h>
#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Surface_sweep_2_algorithms.h>

#include <cmath>
#include <iterator>

#include "rivals/SpatialEngine.h"

namespace {

using Exact = CGAL::Exact_predicates_exact_constructions_kernel;
using Inexact = CGAL::Exact_predicates_inexact_constructions_kernel;
using Traits = CGAL::Arr_segment_traits_2<Exact>;
using Segment = Traits::Curve_2;

constexpr long MOST_SEGMENTS = 10000;

class CgalNoder : public NodingEngine {
public:
    std::string GetName() const override { return "CGAL sweep"; }
    long GetMostSegments() const override { return MOST_SEGMENTS; }

    void Load(const std::vector<VertexLine>& lines) override {
        m_segments.clear();
        for (const VertexLine& line : lines) {
            for (std::size_t i = 0; i + 1 < line.size(); i++) {
                m_segments.emplace_back(Exact::Point_2(line[i].x, line[i].y),
                                        Exact::Point_2(line[i + 1].x, line[i + 1].y));
            }
        }
    }

    void Run() override {
        Traits traits;
        CGAL::compute_subcurves(m_segments.begin(), m_segments.end(), std::back_inserter(m_pieces), false, traits);
    }

    long GetPieceNum() const override { return static_cast<long>(m_pieces.size()); }

    double GetLength() const override {
        double length = 0.0;
        for (const Segment& piece : m_pieces) {
            const double dx = CGAL::to_double(piece.target().x() - piece.source().x());
            const double dy = CGAL::to_double(piece.target().y() - piece.source().y());
            length += std::hypot(dx, dy);
        }
        return length;
    }

    void Clear() override { m_pieces.clear(); }

private:
    std::vector<Segment> m_segments;
    std::vector<Segment> m_pieces;
};

class CgalNetwork : public NetworkEngine {
public:
    std::string GetName() const override { return "CGAL"; }

    void Load(const std::vector<QnGePoint>& points) override {
        m_points.clear();
        for (const QnGePoint& point : points) {
            m_points.emplace_back(point.x, point.y);
        }
    }

    void Run() override { m_network.insert(m_points.begin(), m_points.end()); }
    long GetTriangleNum() const override { return static_cast<long>(m_network.number_of_faces()); }
    void Clear() override { m_network.clear(); }

private:
    std::vector<Inexact::Point_2> m_points;
    CGAL::Delaunay_triangulation_2<Inexact> m_network;
};

}  // namespace

void AddCgalSpatial(SpatialEngines& engines) {
    engines.noders.push_back(std::make_unique<CgalNoder>());
    engines.networks.push_back(std::make_unique<CgalNetwork>());
}
