// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "rivals/SpatialEngine.h"
#include "spatial/QnGeQuadTree2d.h"
#include "terrain/QnGeTINGraph.h"

namespace {

void AppendLines(const std::vector<VertexLine>& lines, QnGeObjList& list) {
    for (const VertexLine& line : lines) {
        if (line.size() == 2) {
            list.Append(new QnGeLineSeg2d(line.front(), line.back()));
            continue;
        }
        auto whole = std::make_unique<QnGeMLine2d>(static_cast<long>(line.size()), false);
        for (std::size_t i = 0; i < line.size(); i++) {
            whole->SetVertex(static_cast<long>(i), line[i]);
        }
        list.Append(whole.release());
    }
}

class QuarnNoder : public NodingEngine {
public:
    std::string GetName() const override { return "QuarnGeo"; }

    void Load(const std::vector<VertexLine>& lines) override {
        m_lines.Reset();
        AppendLines(lines, m_lines);
    }

    void Run() override { m_lines.InterBreakCurve2d(m_pieces); }
    long GetPieceNum() const override { return m_pieces.GetLength(); }

    double GetLength() const override {
        double length = 0.0;
        for (auto entry = m_pieces.GetFirst(); entry != nullptr; entry = m_pieces.GetNext(entry)) {
            length += static_cast<const QnGeCurve2d*>(*entry)->Length();
        }
        return length;
    }

    void Clear() override { m_pieces.Reset(); }

private:
    QnGeObjList m_lines;
    QnGeObjList m_pieces;
};

class QuarnNetwork : public NetworkEngine {
public:
    std::string GetName() const override { return "QuarnGeo"; }

    void Load(const std::vector<QnGePoint>& points) override { m_points = points; }

    /// Making the nodes is within the time, as it is within that of the others.
    void Run() override {
        m_graph = std::make_unique<QnGeTINGraph>();
        for (const QnGePoint& point : m_points) {
            m_graph->NodeList.Append(new QnGeTINNode(point));
        }
        m_graph->MakeTIN();
    }

    long GetTriangleNum() const override { return m_graph->TrgList.GetLength(); }
    void Clear() override { m_graph.reset(); }

private:
    std::vector<QnGePoint> m_points;
    std::unique_ptr<QnGeTINGraph> m_graph;
};

class QuarnBoxes : public BoxEngine {
public:
    std::string GetName() const override { return "QuarnGeo"; }

    void Load(const BoxTask& task) override {
        Clear();
        m_task = &task;
        m_boxes = task.boxes;
    }

    void Insert() override {
        m_tree = std::make_unique<QnGeQuadTree2d>();
        for (QnGeExtent2d& box : m_boxes) {
            *m_tree += &box;
        }
    }

    long FindPoints() override {
        long found = 0;
        for (const QnGePoint& point : m_task->points) {
            m_found.Reset();
            m_tree->HitTest(point.x, point.y, m_found);
            found += m_found.GetLength();
        }
        return found;
    }

    long FindWindows() override {
        long found = 0;
        for (const QnGeExtent2d& window : m_task->windows) {
            m_found.Reset();
            m_tree->HitTest(window, m_found);
            found += m_found.GetLength();
        }
        return found;
    }

    long Remove() override {
        long removed = 0;
        for (const long i : m_task->removal) {
            removed += m_tree->Delete(&m_boxes[static_cast<std::size_t>(i)], false) ? 1 : 0;
        }
        return removed;
    }

    void Clear() override { m_tree.reset(); }

private:
    const BoxTask* m_task = nullptr;
    std::vector<QnGeExtent2d> m_boxes;
    std::unique_ptr<QnGeQuadTree2d> m_tree;
    QnDynArray<QnGeExtent2d*> m_found;
};

}  // namespace

long CountPiecesOnce(const std::vector<VertexLine>& lines) {
    QnGeObjList list;
    AppendLines(lines, list);
    QnGeObjList pieces;
    list.InterBreakCurveEx2d(pieces);
    return pieces.GetLength();
}

void AddQuarnSpatial(SpatialEngines& engines) {
    engines.noders.push_back(std::make_unique<QuarnNoder>());
    engines.networks.push_back(std::make_unique<QuarnNetwork>());
    engines.boxes.push_back(std::make_unique<QuarnBoxes>());
}
