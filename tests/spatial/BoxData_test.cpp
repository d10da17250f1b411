// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGePtQuadTree2d.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/DataFiles.h"

// The boxes of the world's lands, lakes and rivers, and its places, against answers found by exhaustive search.

namespace {

const std::string DATA = std::string(QUARN_SOURCE_DIR) + "/examples/data/";

/// Boxes in a tree; a box's number is its place in the file.
class BoxIndex {
public:
    BoxIndex(std::vector<QnGeExtent2d> boxes, bool grow) : m_boxes(std::move(boxes)) {
        QnGeExtent2d all = m_boxes.front();
        for (const QnGeExtent2d& box : m_boxes) {
            all += box;
        }
        if (!grow) {
            m_tree.SetRange(all.x.min - 1.0, all.x.max + 1.0, all.y.min - 1.0, all.y.max + 1.0);
        }
        for (QnGeExtent2d& box : m_boxes) {
            if (grow) {
                m_tree += &box;
            } else {
                m_tree.Insert(&box);
            }
        }
    }

    QnGeQuadTree2d& Tree() { return m_tree; }
    std::vector<QnGeExtent2d>& Boxes() { return m_boxes; }

    struct Answer {
        long hits = 0;
        long open = 0;
        long inside = 0;
        long sum = 0;
    };
    Answer Ask(const QnGeExtent2d& window) const {
        Answer answer;
        for (const QnGeExtent2d* box : HitsOf(m_tree, window)) {
            ++answer.hits;
            answer.sum += static_cast<long>(box - m_boxes.data());
            answer.open += box->x.min < window.x.max && box->x.max > window.x.min && box->y.min < window.y.max &&
                                   box->y.max > window.y.min
                               ? 1
                               : 0;
            answer.inside += window.IsInclude(*box) ? 1 : 0;
        }
        return answer;
    }

private:
    std::vector<QnGeExtent2d> m_boxes;
    QnGeQuadTree2d m_tree;
};

QnGeExtent2d WindowOf(const data_files::CsvTable& table, std::size_t row) {
    return QnGeExtent2d(table.Number(row, "xmin"), table.Number(row, "xmax"), table.Number(row, "ymin"),
                        table.Number(row, "ymax"));
}

std::vector<QnGeExtent2d> PlacesAsBoxes() {
    std::vector<QnGeExtent2d> boxes;
    for (const QnGePoint& p : data_files::ReadPoints(DATA + "boxes/populated_places.txt")) {
        boxes.emplace_back(p.x, p.x, p.y, p.y);
    }
    return boxes;
}

}  // namespace

TEST(BoxData, FilesHoldWhatTheTableSays) {
    const data_files::CsvTable table(DATA + "boxes/expected_boxes.csv");
    const auto expectSame = [&table](const std::string& file, const std::vector<QnGeExtent2d>& boxes) {
        const std::size_t row = table.Find("file", file);
        EXPECT_EQ(static_cast<double>(boxes.size()), table.Number(row, "records"));
        BoxIndex index(boxes, true);
        QnGeExtent2d all = *AllOf(index.Tree()).front();
        for (const QnGeExtent2d* box : AllOf(index.Tree())) {
            all += *box;
        }
        EXPECT_EQ(all.x.min, table.Number(row, "xmin"));
        EXPECT_EQ(all.x.max, table.Number(row, "xmax"));
        EXPECT_EQ(all.y.min, table.Number(row, "ymin"));
        EXPECT_EQ(all.y.max, table.Number(row, "ymax"));
    };
    expectSame("boxes/features_world.txt", data_files::ReadBoxes(DATA + "boxes/features_world.txt"));
    expectSame("boxes/populated_places.txt", PlacesAsBoxes());
}

TEST(BoxData, WindowsFindTheExpectedBoxes) {
    const data_files::CsvTable table(DATA + "boxes/expected_box_queries.csv");
    const std::vector<QnGeExtent2d> boxes = data_files::ReadBoxes(DATA + "boxes/features_world.txt");
    for (const bool grow : {false, true}) {
        BoxIndex index(boxes, grow);
        EXPECT_EQ(tree_checks::CheckQuadTree(index.Tree()), "");
        for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
            const BoxIndex::Answer found = index.Ask(WindowOf(table, row));
            const std::string query = table.Text(row, "query") + (grow ? ", grown" : "");
            EXPECT_EQ(static_cast<double>(found.hits), table.Number(row, "boxes_intersecting_closed")) << query;
            EXPECT_EQ(static_cast<double>(found.open), table.Number(row, "boxes_intersecting_open")) << query;
            EXPECT_EQ(static_cast<double>(found.inside), table.Number(row, "boxes_inside")) << query;
            EXPECT_EQ(static_cast<double>(found.sum), table.Number(row, "number_sum_closed")) << query;
        }
    }
}

TEST(BoxData, WindowsFindTheExpectedPlaces) {
    const data_files::CsvTable table(DATA + "boxes/expected_point_queries.csv");
    const BoxIndex index(PlacesAsBoxes(), false);
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        const BoxIndex::Answer found = index.Ask(WindowOf(table, row));
        EXPECT_EQ(static_cast<double>(found.hits), table.Number(row, "points_inside_closed")) << row;
        EXPECT_EQ(static_cast<double>(found.sum), table.Number(row, "number_sum")) << row;
    }
}

TEST(BoxData, PointsFindTheBoxesThatHoldThem) {
    BoxIndex index(data_files::ReadBoxes(DATA + "boxes/features_world.txt"), false);
    const std::vector<QnGePoint> places = data_files::ReadPoints(DATA + "boxes/populated_places.txt");
    for (std::size_t i = 0; i < places.size(); i += 20) {
        const QnGePoint& p = places[i];
        Boxes2d expected;
        for (QnGeExtent2d& box : index.Boxes()) {
            if (box.IsInclude(p.x, p.y)) {
                expected.push_back(&box);
            }
        }
        ASSERT_EQ(Sorted(HitsOf(index.Tree(), p.x, p.y)), Sorted(expected)) << "place " << i;
    }
}

TEST(BoxData, WindowsFindTheRestAfterDeleting) {
    BoxIndex index(data_files::ReadBoxes(DATA + "boxes/features_world.txt"), false);
    std::vector<QnGeExtent2d>& boxes = index.Boxes();
    for (std::size_t i = 0; i < boxes.size(); i += 2) {
        ASSERT_TRUE(index.Tree().Delete(&boxes[i], false));
    }
    const data_files::CsvTable table(DATA + "boxes/expected_box_queries.csv");
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        const QnGeExtent2d window = WindowOf(table, row);
        Boxes2d expected;
        for (std::size_t i = 1; i < boxes.size(); i += 2) {
            if (boxes[i].IsInsersectWith(window)) {
                expected.push_back(&boxes[i]);
            }
        }
        ASSERT_EQ(Sorted(HitsOf(index.Tree(), window)), Sorted(expected)) << row;
    }
    for (std::size_t i = 1; i < boxes.size(); i += 2) {
        ASSERT_TRUE(index.Tree().Delete(&boxes[i], false));
    }
    EXPECT_TRUE(index.Tree().IsEmptyTree());
}

TEST(BoxData, PlacesComeBackOnceInEveryOrder) {
    std::vector<QnGePoint> places = data_files::ReadPoints(DATA + "boxes/populated_places.txt");
    QnGePtQuadTree2d tree;
    PlainPtQuadTree plain;
    tree.SetRange(-2e7, 2e7, -1e7, 1e7);
    plain.SetRange(-2e7, 2e7, -1e7, 1e7);
    for (QnGePoint& p : places) {
        tree.Insert(&p);
        plain.Insert(&p);
    }
    for (const int order : {0, 1, 2}) {
        QnList<QnGePoint*> found;
        tree.GetAllPoint(found, order);
        std::vector<QnGePoint*> expected;
        plain.GetAllPoint(expected, order);
        EXPECT_EQ(Elements<QnGePoint*>(found), expected) << order;
        EXPECT_EQ(std::set<QnGePoint*>(expected.begin(), expected.end()).size(), places.size());
    }
}
