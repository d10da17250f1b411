// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGeQuadTree2d.h"

// What a tree must survive, though nobody should do it.

TEST(QnGeQuadTree2d, GrowsOverCoordinatesThatNoSquareHolds) {
    std::vector<QnGeExtent2d> boxes;
    for (const QnGePoint& p : {QnGePoint(-4.97e306, -4.76e306), QnGePoint(-4.25e306, 5.9e304),
                               QnGePoint(-1.2206764884701794e308, 1.2178705513178831e308),
                               QnGePoint(7.4062860453880976e307, -5.2374484089385442e307)}) {
        boxes.emplace_back(p.x, p.x, p.y, p.y);
    }
    QnGeQuadTree2d tree;
    for (QnGeExtent2d& box : boxes) {
        tree += &box;
    }
    QnDynArray<QnGeExtent2d*> all;
    tree.GetAllExtent(all);
    EXPECT_EQ(all.GetLength(), 4);
    for (QnGeExtent2d& box : boxes) {
        EXPECT_TRUE(tree.Delete(&box, false));
    }
    EXPECT_TRUE(tree.IsEmptyTree());
}

TEST(QnGeQuadTree2d, HasNoPlaceForATreeTurnedInsideOut) {
    QnGeQuadTree2d tree;
    tree.SetRange(-8, 8, -8, 8);
    QnGeQuadTree2d inverted;
    inverted.SetRange(30, 10, 30, 10);
    tree.InsertChild(&inverted);
    EXPECT_TRUE(tree.IsEmptyTree());
}

TEST(QnGeQuadTree2d, FailingToDeleteLeavesAListThatACallerEmptied) {
    QnGeExtent2d box(-1, 1, -1, 1);
    QnGeExtent2d other(-1, 1, -1, 1);
    QnGeQuadTree2d tree;
    tree.SetRange(-8, 8, -8, 8);
    tree.Insert(&box);
    tree.ExtentList->Reset();
    EXPECT_FALSE(tree.Delete(&other, false));
    EXPECT_NE(tree.ExtentList, nullptr);
}

TEST(QnGeQuadTree2d, DeletingStepsTheCursorOfTheListBack) {
    for (const int count : {2, 20, 96, 200}) {
        std::vector<QnGeExtent2d> boxes(static_cast<std::size_t>(count), QnGeExtent2d(-1, 1, -1, 1));
        QnGeQuadTree2d tree;
        tree.SetRange(-8, 8, -8, 8);
        for (QnGeExtent2d& box : boxes) {
            tree.Insert(&box);
        }
        int visited = 0;
        QnList<QnGeExtent2d*>& list = *tree.ExtentList;
        for (list.MoveToFirst(); !list.IsOut() && visited <= count; list.MoveToNext()) {
            QnGeExtent2d* const box = list.GetCurData();
            EXPECT_EQ(box, &boxes[static_cast<std::size_t>(visited)]);
            if (visited++ % 2 == 1) {
                EXPECT_TRUE(tree.Delete(box, false));
            }
        }
        EXPECT_EQ(visited, count);
        EXPECT_EQ(list.GetLength(), count / 2);
    }
}
