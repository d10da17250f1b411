// SPDX-License-Identifier: Apache-2.0
//
// Boost.Geometry: the R-tree, filled box by box with the R*-tree's and with the quadratic rule, and packed at once.

#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <iterator>
#include <optional>
#include <utility>

#include "rivals/SpatialEngine.h"

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using Point = bg::model::point<double, 2, bg::cs::cartesian>;
using Box = bg::model::box<Point>;
using Entry = std::pair<Box, long>;

constexpr std::size_t MOST_IN_NODE = 16;

Box MakeBox(const QnGeExtent2d& box) {
    return {Point(box.x.min, box.y.min), Point(box.x.max, box.y.max)};
}

template <class Rule>
class BoostBoxes : public BoxEngine {
public:
    BoostBoxes(std::string name, bool isPacked) : m_name(std::move(name)), m_isPacked(isPacked) {}

    std::string GetName() const override { return m_name; }
    bool IsDynamic() const override { return !m_isPacked; }

    void Load(const BoxTask& task) override {
        Clear();
        m_task = &task;
        m_entries.clear();
        long i = 0;
        for (const QnGeExtent2d& box : task.boxes) {
            m_entries.emplace_back(MakeBox(box), i++);
        }
        m_points.clear();
        for (const QnGePoint& point : task.points) {
            m_points.emplace_back(point.x, point.y);
        }
        m_windows.clear();
        for (const QnGeExtent2d& window : task.windows) {
            m_windows.push_back(MakeBox(window));
        }
    }

    void Insert() override {
        if (m_isPacked) {
            m_tree.emplace(m_entries.begin(), m_entries.end());
            return;
        }
        m_tree.emplace();
        for (const Entry& entry : m_entries) {
            m_tree->insert(entry);
        }
    }

    long FindPoints() override { return Find(m_points); }
    long FindWindows() override { return Find(m_windows); }

    long Remove() override {
        long removed = 0;
        for (const long i : m_task->removal) {
            removed += static_cast<long>(m_tree->remove(m_entries[static_cast<std::size_t>(i)]));
        }
        return removed;
    }

    void Clear() override { m_tree.reset(); }

private:
    template <class Places>
    long Find(const Places& places) {
        long found = 0;
        for (const auto& place : places) {
            m_found.clear();
            m_tree->query(bgi::intersects(place), std::back_inserter(m_found));
            found += static_cast<long>(m_found.size());
        }
        return found;
    }

    std::string m_name;
    bool m_isPacked;
    const BoxTask* m_task = nullptr;
    std::vector<Entry> m_entries;
    std::vector<Point> m_points;
    std::vector<Box> m_windows;
    std::optional<bgi::rtree<Entry, Rule>> m_tree;
    std::vector<Entry> m_found;
};

}  // namespace

void AddBoostSpatial(SpatialEngines& engines) {
    engines.boxes.push_back(std::make_unique<BoostBoxes<bgi::rstar<MOST_IN_NODE>>>("Boost R*", false));
    engines.boxes.push_back(std::make_unique<BoostBoxes<bgi::quadratic<MOST_IN_NODE>>>("Boost quadratic", false));
    engines.boxes.push_back(std::make_unique<BoostBoxes<bgi::rstar<MOST_IN_NODE>>>("Boost packed", true));
}
