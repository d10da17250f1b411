// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "TinHistory.h"
#include "TinTesting.h"
#include "support/RandomSource.h"

// A caller works on the lists of a network's tree half way; then the network goes on as the plain one does.

namespace {

using namespace tin_places;
using Tree = QnGeQuadTree2d;

/// Every cell of a network's tree.
void ForEachCell(Tree& cell, const std::function<void(Tree&)>& visit) {
    visit(cell);
    for (Tree* child : cell.Child) {
        if (child != nullptr) {
            ForEachCell(*child, visit);
        }
    }
}

void ForEachList(TinPair& tin, const std::function<void(QnList<QnGeExtent2d*>&)>& visit) {
    ForEachCell(tin.graph.TrgTree, [&visit](Tree& cell) {
        if (cell.ExtentList != nullptr) {
            visit(*cell.ExtentList);
        }
    });
}

}  // namespace

TEST(TinCallerLists, GoesOnAfterACallerWalkedThroughTheLists) {
    ForEachOrder(BaseSeed() + 4, 250, [](TinPair& tin) {
        long seen = 0;
        ForEachList(tin, [&seen](QnList<QnGeExtent2d*>& list) {
            for (list.MoveToFirst(); !list.IsOut(); list.MoveToNext()) {
                ASSERT_TRUE(list.GetCurData()->IsValid());
                ++seen;
            }
        });
        EXPECT_GT(seen, 10);
    });
}

TEST(TinCallerLists, GoesOnAfterACallerTurnedTheListsRoundTwice) {
    ForEachOrder(BaseSeed() + 5, 250, [](TinPair& tin) {
        ForEachList(tin, [](QnList<QnGeExtent2d*>& list) {
            list.ReverseList();
            list.ReverseList();
        });
    });
}

TEST(TinCallerLists, GoesOnAfterACallerTookElementsOutAndPutThemBack) {
    ForEachOrder(BaseSeed() + 6, 250, [](TinPair& tin) {
        int kind = 0;
        ForEachList(tin, [&kind](QnList<QnGeExtent2d*>& list) {
            const long last = list.GetLength() - 1;
            switch (kind++ % 4) {
                case 0: {
                    QnGeExtent2d* const box = list.GetAt(last);
                    list.Del(last);
                    list.Append(box);
                    break;
                }
                case 1: {
                    QnGeExtent2d* const box = list.GetAt(last / 2);
                    list.Del(last / 2);
                    list.Insert(last / 2, box);
                    break;
                }
                case 2: {
                    list.Rotate(last / 2, 0);
                    list.Rotate(0, last / 2);
                    break;
                }
                default: {
                    QnList<QnGeExtent2d*> rest;
                    list.SplitAt(last / 2, rest);
                    list.Conbine(rest, 0);
                    break;
                }
            }
        });
    });
}

// The caller changes the order in the lists, and the plain one does the same.
TEST(TinCallerLists, TakesTheOrderThatACallerGaveTheLists) {
    RandomSource random(BaseSeed() + 7);
    const std::function<void(PlainQuadTree&)> reverse = [&reverse](PlainQuadTree& cell) {
        std::reverse(cell.ExtentList.begin(), cell.ExtentList.end());
        for (auto& child : cell.Child) {
            if (child != nullptr) {
                reverse(*child);
            }
        }
    };
    for (const NamedPlaces& network : Networks(random, 200)) {
        ExpectSame(network.name, Shuffled(random, network.points), [&reverse](TinPair& tin) {
            ForEachList(tin, [](QnList<QnGeExtent2d*>& list) { list.ReverseList(); });
            reverse(tin.plain.TrgTree);
        });
    }
}

TEST(TinCallerLists, GoesOnAfterItsListsWereLookedAtAgainAndAgain) {
    RandomSource random(BaseSeed() + 8);
    const Points points = Shuffled(random, Rows(600, 1.0, 2.0));
    TinPair tin(0, 300, 0, 2);
    for (std::size_t i = 0; i < points.size(); ++i) {
        tin.Insert(points[i].x, points[i].y, points[i].z);
        if (i % 50 == 49) {
            ASSERT_EQ(CompareTin(tin.graph, tin.plain), "") << i;
        }
    }
}
