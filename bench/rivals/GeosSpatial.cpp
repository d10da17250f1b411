// SPDX-License-Identifier: Apache-2.0
//
// GEOS: GEOSNode_r of the C interface and the monotone-chain noder of the C++ interface; the Delaunay builder of the C
// interface; Quadtree and STRtree.

#include <geos/algorithm/LineIntersector.h>
#include <geos/geom/CoordinateArraySequence.h>
#include <geos/geom/Envelope.h>
#include <geos/index/quadtree/Quadtree.h>
#include <geos/index/strtree/TemplateSTRtree.h>
#include <geos/noding/IntersectionAdder.h>
#include <geos/noding/MCIndexNoder.h>
#include <geos/noding/NodedSegmentString.h>
#include <geos_c.h>

#include <cmath>
#include <stdexcept>

#include "rivals/SpatialEngine.h"

namespace {

using geos::geom::Coordinate;
using geos::geom::CoordinateArraySequence;
using geos::geom::Envelope;

/// A context of the C interface, and what frees its geometries.
class Context {
public:
    Context() : m_handle(GEOS_init_r()) {}
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;
    ~Context() { GEOS_finish_r(m_handle); }

    operator GEOSContextHandle_t() const { return m_handle; }

private:
    GEOSContextHandle_t m_handle;
};

class GeosGeometry {
public:
    explicit GeosGeometry(const Context& context) : m_context(context) {}
    GeosGeometry(const GeosGeometry&) = delete;
    GeosGeometry& operator=(const GeosGeometry&) = delete;
    ~GeosGeometry() { Set(nullptr); }

    void Set(GEOSGeometry* geometry) {
        if (m_geometry != nullptr) {
            GEOSGeom_destroy_r(m_context, m_geometry);
        }
        m_geometry = geometry;
    }
    const GEOSGeometry* Get() const { return m_geometry; }

private:
    const Context& m_context;
    GEOSGeometry* m_geometry = nullptr;
};

class GeosNoder : public NodingEngine {
public:
    std::string GetName() const override { return "GEOS node"; }

    void Load(const std::vector<VertexLine>& lines) override {
        std::vector<GEOSGeometry*> parts;
        for (const VertexLine& line : lines) {
            const auto count = static_cast<unsigned>(line.size());
            GEOSCoordSequence* const vertices = GEOSCoordSeq_create_r(m_context, count, 2);
            for (unsigned i = 0; i < count; i++) {
                GEOSCoordSeq_setXY_r(m_context, vertices, i, line[i].x, line[i].y);
            }
            parts.push_back(GEOSGeom_createLineString_r(m_context, vertices));
        }
        m_lines.Set(GEOSGeom_createCollection_r(m_context, GEOS_MULTILINESTRING, parts.data(),
                                                static_cast<unsigned>(parts.size())));
    }

    void Run() override { m_pieces.Set(GEOSNode_r(m_context, m_lines.Get())); }
    long GetPieceNum() const override { return GEOSGetNumGeometries_r(m_context, m_pieces.Get()); }

    double GetLength() const override {
        double length = 0.0;
        GEOSLength_r(m_context, m_pieces.Get(), &length);
        return length;
    }

    void Clear() override { m_pieces.Set(nullptr); }

private:
    Context m_context;
    GeosGeometry m_lines{m_context};
    GeosGeometry m_pieces{m_context};
};

class GeosChainNoder : public NodingEngine {
public:
    std::string GetName() const override { return "GEOS chains"; }
    void Load(const std::vector<VertexLine>& lines) override { m_lines = &lines; }

    /// The strings of segments hold the nodes that are found on them, so they are made anew for each run.
    void Run() override {
        for (const VertexLine& line : *m_lines) {
            std::vector<Coordinate> vertices;
            vertices.reserve(line.size());
            for (const QnGePoint& vertex : line) {
                vertices.emplace_back(vertex.x, vertex.y);
            }
            auto sequence = std::make_unique<CoordinateArraySequence>(std::move(vertices), 2);
            m_input.push_back(new geos::noding::NodedSegmentString(sequence.release(), nullptr));
        }
        geos::algorithm::LineIntersector intersector;
        geos::noding::IntersectionAdder adder(intersector);
        geos::noding::MCIndexNoder noder(&adder);
        noder.computeNodes(&m_input);
        m_pieces.reset(noder.getNodedSubstrings());
    }

    long GetPieceNum() const override { return static_cast<long>(m_pieces->size()); }

    double GetLength() const override {
        double length = 0.0;
        for (const geos::noding::SegmentString* piece : *m_pieces) {
            for (std::size_t i = 0; i + 1 < piece->size(); i++) {
                length += piece->getCoordinate(i).distance(piece->getCoordinate(i + 1));
            }
        }
        return length;
    }

    void Clear() override {
        Free(m_input);
        if (m_pieces != nullptr) {
            Free(*m_pieces);
            m_pieces.reset();
        }
    }

private:
    static void Free(std::vector<geos::noding::SegmentString*>& strings) {
        for (geos::noding::SegmentString* string : strings) {
            delete string;
        }
        strings.clear();
    }

    const std::vector<VertexLine>* m_lines = nullptr;
    std::vector<geos::noding::SegmentString*> m_input;
    std::unique_ptr<std::vector<geos::noding::SegmentString*>> m_pieces;
};

class GeosNetwork : public NetworkEngine {
public:
    std::string GetName() const override { return "GEOS"; }
    long GetMostPoints() const override { return 100000; }

    void Load(const std::vector<QnGePoint>& points) override {
        const auto count = static_cast<unsigned>(points.size());
        GEOSCoordSequence* const vertices = GEOSCoordSeq_create_r(m_context, count, 2);
        for (unsigned i = 0; i < count; i++) {
            GEOSCoordSeq_setXY_r(m_context, vertices, i, points[i].x, points[i].y);
        }
        m_points.Set(GEOSGeom_createLineString_r(m_context, vertices));
    }

    void Run() override {
        m_network.Set(GEOSDelaunayTriangulation_r(m_context, m_points.Get(), 0.0, 0));
        if (m_network.Get() == nullptr) {
            throw std::runtime_error("no triangulation");
        }
    }

    long GetTriangleNum() const override { return GEOSGetNumGeometries_r(m_context, m_network.Get()); }
    void Clear() override { m_network.Set(nullptr); }

private:
    Context m_context;
    GeosGeometry m_points{m_context};
    GeosGeometry m_network{m_context};
};

Envelope MakeEnvelope(const QnGeExtent2d& box) {
    return {box.x.min, box.x.max, box.y.min, box.y.max};
}

/// What both indexes of GEOS share: the boxes and the queries in its own form.
class GeosIndex : public BoxEngine {
public:
    void Load(const BoxTask& task) override {
        Clear();
        m_removal = task.removal;
        m_boxes.clear();
        for (const QnGeExtent2d& box : task.boxes) {
            m_boxes.push_back(MakeEnvelope(box));
        }
        m_points.clear();
        for (const QnGePoint& point : task.points) {
            m_points.emplace_back(point.x, point.x, point.y, point.y);
        }
        m_windows.clear();
        for (const QnGeExtent2d& window : task.windows) {
            m_windows.push_back(MakeEnvelope(window));
        }
    }

    long FindPoints() override { return Find(m_points); }
    long FindWindows() override { return Find(m_windows); }

protected:
    virtual long Find(const std::vector<Envelope>& places) = 0;

    std::vector<Envelope> m_boxes;
    std::vector<Envelope> m_points;
    std::vector<Envelope> m_windows;
    std::vector<long> m_removal;
};

class GeosQuadtree : public GeosIndex {
public:
    std::string GetName() const override { return "GEOS Quadtree"; }

    void Insert() override {
        m_tree = std::make_unique<geos::index::quadtree::Quadtree>();
        for (Envelope& box : m_boxes) {
            m_tree->insert(&box, &box);
        }
    }

    long Remove() override {
        long removed = 0;
        for (const long i : m_removal) {
            Envelope& box = m_boxes[static_cast<std::size_t>(i)];
            removed += m_tree->remove(&box, &box) ? 1 : 0;
        }
        return removed;
    }

    void Clear() override { m_tree.reset(); }

private:
    /// The tree answers with candidates, which its users test.
    long Find(const std::vector<Envelope>& places) override {
        long found = 0;
        for (const Envelope& place : places) {
            m_found.clear();
            m_tree->query(&place, m_found);
            for (const void* item : m_found) {
                found += static_cast<const Envelope*>(item)->intersects(place) ? 1 : 0;
            }
        }
        return found;
    }

    std::unique_ptr<geos::index::quadtree::Quadtree> m_tree;
    std::vector<void*> m_found;
};

class GeosPacked : public GeosIndex {
public:
    std::string GetName() const override { return "GEOS STRtree"; }
    bool IsDynamic() const override { return false; }

    void Insert() override {
        m_tree = std::make_unique<Tree>(NODE_CAPACITY, m_boxes.size());
        for (const Envelope& box : m_boxes) {
            m_tree->insert(box, &box);
        }
        m_found.clear();
        m_tree->query(Envelope(), m_found);  // the first query builds it
    }

    long Remove() override { return 0; }
    void Clear() override { m_tree.reset(); }

private:
    using Tree = geos::index::strtree::TemplateSTRtree<const Envelope*>;
    static constexpr std::size_t NODE_CAPACITY = 10;  // its default

    long Find(const std::vector<Envelope>& places) override {
        long found = 0;
        for (const Envelope& place : places) {
            m_found.clear();
            m_tree->query(place, m_found);
            found += static_cast<long>(m_found.size());
        }
        return found;
    }

    std::unique_ptr<Tree> m_tree;
    std::vector<const Envelope*> m_found;
};

}  // namespace

void AddGeosSpatial(SpatialEngines& engines) {
    engines.noders.push_back(std::make_unique<GeosNoder>());
    engines.noders.push_back(std::make_unique<GeosChainNoder>());
    engines.networks.push_back(std::make_unique<GeosNetwork>());
    engines.boxes.push_back(std::make_unique<GeosQuadtree>());
    engines.boxes.push_back(std::make_unique<GeosPacked>());
}
