// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGePointQuadTreeLayer2d.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGePtQuadTree2d.h"

namespace {

/// A node with four children, freed with it.
struct Cell : QnGePtQuadTree2d {
    Cell() {
        SetRange(-8, 8, -8, 8);
        for (QnGePtQuadTree2d*& child : Child) {
            child = new QnGePtQuadTree2d;
        }
    }
    int NumberOf(const QnGePtQuadTree2d* node) const {
        for (int q = 0; q < 4; ++q) {
            if (Child[q] == node) {
                return q;
            }
        }
        return -1;
    }
};

/// `3as7 0as0`: the children of `cell` in a layer, with their directions.
std::string TextOf(const QnGePointQuadTreeLayer2d& layer, const Cell& cell) {
    std::string text;
    EXPECT_EQ(layer.GetLength(), layer.Direction.GetLength()) << "in step";
    for (long i = 0; i < layer.GetLength(); ++i) {
        text += (i == 0 ? "" : " ") + std::to_string(cell.NumberOf(layer.GetAt(i))) + "as" +
                std::to_string(layer.Direction.GetAt(i));
    }
    return text;
}

struct Row {
    int direction;
    const char* near;
    const char* far;
};

const Row TABLE[] = {
    {0, "3as7 0as0 1as1", "2as0"},  {1, "0as1 1as1", "3as1 2as1"},   {2, "0as1 1as2 2as3", "3as2"},
    {3, "1as3 2as3", "0as3 3as3"},  {4, "1as3 2as4 3as5", "0as4"},   {5, "2as5 3as5", "1as5 0as5"},
    {6, "2as5 3as6 0as7", "1as6"},  {7, "3as7 0as7", "2as7 1as7"},   {-1, "0as0 1as2 2as4 3as6", ""},
    {8, "0as0 1as2 2as4 3as6", ""}, {-7, "0as0 1as2 2as4 3as6", ""}, {100, "0as0 1as2 2as4 3as6", ""},
};

}  // namespace

TEST(QnGePointQuadTreeLayer2d, StartsEmpty) {
    const QnGePointQuadTreeLayer2d layer;
    EXPECT_TRUE(layer.IsEmpty());
    EXPECT_TRUE(layer.Direction.IsEmpty());
}

TEST(QnGePointQuadTreeLayer2d, AppendKeepsBothListsInStep) {
    Cell cell;
    QnGePointQuadTreeLayer2d layer;
    layer.Append(cell.Child[2], 5);
    layer.Append(cell.Child[0], -1);
    EXPECT_EQ(TextOf(layer, cell), "2as5 0as-1");
}

TEST(QnGePointQuadTreeLayer2d, EachDirectionSendsItsChildrenAsTheTableSays) {
    for (const Row& row : TABLE) {
        Cell cell;
        QnGePointQuadTreeLayer2d layer;
        QnGePointQuadTreeLayer2d near;
        QnGePointQuadTreeLayer2d far;
        layer.Append(&cell, row.direction);
        layer.ExplodeTo(near, far);
        EXPECT_EQ(TextOf(near, cell), row.near) << "direction " << row.direction;
        EXPECT_EQ(TextOf(far, cell), row.far) << "direction " << row.direction;
        EXPECT_EQ(layer.GetLength(), 1) << "it stays";
    }
}

TEST(QnGePointQuadTreeLayer2d, AbsentChildrenAreSkipped) {
    for (const Row& row : TABLE) {
        for (int q = 0; q < 4; ++q) {
            Cell cell;
            delete cell.Child[q];
            cell.Child[q] = nullptr;
            QnGePointQuadTreeLayer2d layer;
            QnGePointQuadTreeLayer2d near;
            QnGePointQuadTreeLayer2d far;
            layer.Append(&cell, row.direction);
            layer.ExplodeTo(near, far);
            const auto without = [q](std::string text) {
                const std::size_t at = text.find(std::to_string(q) + "as");
                if (at != std::string::npos) {
                    const std::size_t end = text.find(' ', at);
                    text.erase(at, end == std::string::npos ? end : end - at + 1);
                    if (!text.empty() && text.back() == ' ') {
                        text.pop_back();
                    }
                }
                return text;
            };
            EXPECT_EQ(TextOf(near, cell), without(row.near)) << row.direction << " without " << q;
            EXPECT_EQ(TextOf(far, cell), without(row.far)) << row.direction << " without " << q;
        }
    }
}

TEST(QnGePointQuadTreeLayer2d, NodesAreTakenInTheirOrderAndAppended) {
    Cell first;
    Cell second;
    QnGePointQuadTreeLayer2d layer;
    layer.Append(&first, 1);
    layer.Append(&second, 3);
    QnGePointQuadTreeLayer2d near;
    QnGePointQuadTreeLayer2d far;
    near.Append(nullptr, 9);
    layer.ExplodeTo(near, far);
    EXPECT_EQ(
        Elements<QnGePtQuadTree2d*>(near),
        (std::vector<QnGePtQuadTree2d*>{nullptr, first.Child[0], first.Child[1], second.Child[1], second.Child[2]}));
    EXPECT_EQ(Elements<int>(near.Direction), (std::vector<int>{9, 1, 1, 3, 3}));
    EXPECT_EQ(Elements<QnGePtQuadTree2d*>(far),
              (std::vector<QnGePtQuadTree2d*>{first.Child[3], first.Child[2], second.Child[0], second.Child[3]}));
    EXPECT_EQ(Elements<int>(far.Direction), (std::vector<int>{1, 1, 3, 3}));
}

TEST(QnGePointQuadTreeLayer2d, PointsAreThoseOfTheNodesThemselves) {
    QnGePtQuadTree2d a;
    QnGePtQuadTree2d b;
    a.SetRange(-8, 8, -8, 8);
    b.SetRange(-8, 8, -8, 8);
    QnGePoint onLine(0, 1);
    QnGePoint single(1, 1);
    QnGePoint deep(1, 1);
    QnGePoint deepToo(7, 7);
    b.Insert(&single);
    b.Insert(&onLine);
    a.Insert(&deep);
    a.Insert(&deepToo);
    QnGePointQuadTreeLayer2d layer;
    layer.Append(&a, 0);
    layer.Append(&b, 0);
    QnList<QnGePoint*> found;
    layer.GetPoint(found);
    EXPECT_EQ(Elements<QnGePoint*>(found), (std::vector<QnGePoint*>{&single, &onLine}));
}

TEST(QnGePointQuadTreeLayer2d, CopiesHaveBothLists) {
    Cell cell;
    QnGePointQuadTreeLayer2d layer;
    layer.Append(cell.Child[2], 5);
    layer.Append(cell.Child[0], 3);
    const QnGePointQuadTreeLayer2d copy(layer);
    QnGePointQuadTreeLayer2d assigned;
    assigned.Append(cell.Child[1], 1);
    assigned = layer;
    EXPECT_EQ(TextOf(copy, cell), "2as5 0as3");
    EXPECT_EQ(TextOf(assigned, cell), "2as5 0as3");
}
