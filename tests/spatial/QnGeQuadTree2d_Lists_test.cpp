// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "TreeTesting.h"
#include "frame/QnPushVar.h"
#include "spatial/QnGeOctree.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/RandomSource.h"

// The lists of a tree are public: whatever callers do to them, to the tolerance and to identity, and whatever is kept
// beside long lists, the answers are those of going through the list.

namespace {

using Box = QnGeExtent2d;
using List = QnList<QnGeExtent2d*>;
using Store = std::vector<std::unique_ptr<Box>>;
constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

/// Lists that are short, middling and long.
constexpr int LENGTHS[] = {1, 2, 3, 4, 5, 20, 64, 96, 97, 200};

/// A tree over -8 .. 8 on both axes.
struct Tree16 : QnGeQuadTree2d {
    Tree16() { SetRange(-8, 8, -8, 8); }
};

/// Boxes across the horizontal centre line, in no order along it.
Store BoxesAcross(int count) {
    Store boxes;
    for (int i = 0; i < count; ++i) {
        const double at = -7.0 + 13.0 * ((i * 37) % count) / count;
        boxes.push_back(std::make_unique<Box>(at, at + 0.4 + 0.1 * (i % 5), -0.5 - 0.1 * (i % 3), 0.5));
    }
    return boxes;
}

/// "" or what the tree, whose boxes all are in its list, answers otherwise than going through the list.
std::string DifferenceFromWalk(const QnGeQuadTree2d& tree, const Boxes2d& list) {
    for (double x = -8.1; x <= 8.1; x += 0.23) {
        Boxes2d atPoint;
        Boxes2d inWindow;
        const Box window(x, x + 0.3, -1.0, 0.1);
        for (Box* box : list) {
            if (box->IsInclude(x, 0.2)) {
                atPoint.push_back(box);
            }
            if (box->IsInsersectWith(window)) {
                inWindow.push_back(box);
            }
        }
        if (HitsOf(tree, x, 0.2) != atPoint) {
            return "point at " + std::to_string(x);
        }
        if (HitsOf(tree, window) != inWindow) {
            return "window at " + std::to_string(x);
        }
    }
    return AllOf(tree) == list ? "" : "all";
}

struct Edit {
    const char* name;
    std::function<void(List&)> apply;
};

int ByLeft(QnGeExtent2d* const& a, QnGeExtent2d* const& b) {
    return a->x.min > b->x.min ? 1 : -1;
}

QnGeExtent2d* First(const List& list) {
    return *list.GetFirst();
}
QnGeExtent2d* Last(const List& list) {
    return *list.GetLast();
}

const Edit EDITS[] = {
    {"cursor read", [](List& l) { l.MoveToFirst(), l.GetCurData(); }},
    {"index",
     [](List& l) {
         QnGeExtent2d* const last = Last(l);
         l[0] = last;
     }},
    {"set current", [](List& l) { l.MoveToLast(), l.SetCurData(First(l)); }},
    {"append", [](List& l) { l.Append(First(l)); }},
    {"insert at the head", [](List& l) { l.InsertHead(Last(l)); }},
    {"insert", [](List& l) { l.Insert(1, Last(l)); }},
    {"insert at the cursor", [](List& l) { l.MoveToLast(), l.InsertCur(First(l)); }},
    {"delete at the cursor", [](List& l) { l.Append(First(l)), l.MoveToFirst(), l.DelCur(); }},
    {"append an element of its own", [](List& l) { l.Append(l.GetAt(0)); }},
    {"insert one at the head", [](List& l) { l.InsertHead(*l.GetLast()); }},
    {"insert one", [](List& l) { l.Insert(1, *l.GetLast()); }},
    {"set one", [](List& l) { l.MoveToLast(), l.SetCurData(*l.GetFirst()); }},
    {"append itself", [](List& l) { l << l; }},
    {"exchange", [](List& l) { l.Exchange(0, l.GetMaxIndex()); }},
    {"shorten", [](List& l) { l.SetLength((l.GetLength() + 1) / 2, true); }},
    {"sort", [](List& l) { l.Sort(&ByLeft); }},
    {"move", [](List& l) { l.Move(0, l.GetLength()); }},
    {"turn round", [](List& l) { l.ReverseList(); }},
    {"turn values round", [](List& l) { l.Reverse(); }},
    {"rotate", [](List& l) { l.Rotate(0, 1); }},
    {"set all",
     [](List& l) {
         QnGeExtent2d* const last = Last(l);
         l.SetAll(last);
     }},
    {"copy of a part", [](List& l) { l.Right((l.GetLength() + 1) / 2, l); }},
    {"assignment",
     [](List& l) {
         const List copy(l);
         l.Append(First(l));
         l = copy;
     }},
    {"split",
     [](List& l) {
         List rest;
         l.SplitAt(l.GetLength() / 2, rest);
         l.Conbine(rest, 0);
         l.Conbine(rest, 0);
         rest.Append(First(l));
         l.Conbine(rest, 0);
     }},
};

}  // namespace

// ---- lists in the hands of callers -----------------------------------------------------------------

TEST(QnGeQuadTree2dLists, AnswersFollowWhatACallerDoesToAList) {
    for (const int length : LENGTHS) {
        for (const Edit& edit : EDITS) {
            SCOPED_TRACE(std::string(edit.name) + " on " + std::to_string(length));
            const Store boxes = BoxesAcross(length);
            Tree16 tree;
            List plain;
            for (const std::unique_ptr<Box>& box : boxes) {
                tree.Insert(box.get());
                plain.Append(box.get());
            }
            ASSERT_EQ(DifferenceFromWalk(tree, Elements<QnGeExtent2d*>(plain)), "");
            edit.apply(*tree.ExtentList);
            edit.apply(plain);
            ASSERT_EQ(tree.ExtentList->GetLength(), plain.GetLength());
            EXPECT_EQ(DifferenceFromWalk(tree, Elements<QnGeExtent2d*>(plain)), "");
            Box another(-1, 1, -1, 1);
            tree.Insert(&another);
            plain.Append(&another);
            EXPECT_EQ(DifferenceFromWalk(tree, Elements<QnGeExtent2d*>(plain)), "");
            while (!plain.IsEmpty()) {
                plain.MoveTo(plain.GetLength() / 2);
                Box* const taken = plain.GetCurData();
                plain.FindTo(taken);  // the first of several
                plain.DelCur();
                ASSERT_TRUE(tree.Delete(taken, false));
                ASSERT_EQ(AllOf(tree), Elements<QnGeExtent2d*>(plain));
            }
            EXPECT_TRUE(tree.IsEmptyTree());
        }
    }
}

TEST(QnGeQuadTree2dLists, ListThatACallerMadeIsGoneThrough) {
    for (const int length : LENGTHS) {
        const Store boxes = BoxesAcross(length);
        Tree16 tree;
        tree.ExtentList = new List;
        Boxes2d expected;
        for (const std::unique_ptr<Box>& box : boxes) {
            expected.push_back(box.get());
            if (expected.size() % 2 == 0) {
                tree.ExtentList->Append(box.get());
            } else {
                tree.Insert(box.get());
            }
        }
        EXPECT_EQ(DifferenceFromWalk(tree, expected), "");
        for (const std::unique_ptr<Box>& box : boxes) {
            EXPECT_TRUE(tree.Delete(box.get(), false));
        }
        EXPECT_EQ(tree.ExtentList, nullptr);
    }
}

TEST(QnGeQuadTree2dLists, BoxThatCameTwiceGoesOnceAtATimeTheFirstFirst) {
    for (const int length : LENGTHS) {
        const Store boxes = BoxesAcross(length);
        Tree16 tree;
        Boxes2d expected;
        for (int round = 0; round < 2; ++round) {
            for (const std::unique_ptr<Box>& box : boxes) {
                tree.Insert(box.get());
                expected.push_back(box.get());
            }
        }
        EXPECT_EQ(DifferenceFromWalk(tree, expected), "");
        for (const std::unique_ptr<Box>& box : boxes) {
            EXPECT_TRUE(tree.Delete(box.get(), false));
            expected.erase(std::find(expected.begin(), expected.end(), box.get()));
            ASSERT_EQ(AllOf(tree), expected);
        }
        for (const std::unique_ptr<Box>& box : boxes) {
            EXPECT_TRUE(tree.Delete(box.get(), false));
            EXPECT_FALSE(tree.Delete(box.get(), false));
        }
    }
}

TEST(QnGeQuadTree2dLists, CopySharesALongListWithWhatIsKeptBesideIt) {
    const Store boxes = BoxesAcross(200);
    Tree16 tree;
    Boxes2d expected;
    for (const std::unique_ptr<Box>& box : boxes) {
        tree.Insert(box.get());
        expected.push_back(box.get());
    }
    {
        QnGeQuadTree2d copy(tree);
        Box another(-1, 1, -1, 1);
        copy.Insert(&another);
        expected.push_back(&another);
        EXPECT_EQ(DifferenceFromWalk(tree, expected), "");
        EXPECT_TRUE(tree.Delete(boxes[3].get(), false));
        expected.erase(expected.begin() + 3);
        EXPECT_EQ(DifferenceFromWalk(copy, expected), "");
        EXPECT_TRUE(copy.Delete(&another, false));
        expected.pop_back();
        QnGeQuadTree2d target;
        tree >> target;
        EXPECT_EQ(DifferenceFromWalk(copy, expected), "") << "the list has another owner";
        target >> tree;
        copy.ExtentList = nullptr;  // only one of them may free it
    }
    EXPECT_EQ(DifferenceFromWalk(tree, expected), "");
    QnGeQuadTree2d copy;
    copy = tree;
    tree.Reset();
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_FALSE(copy.IsEmptyTree());
    copy.ExtentList = nullptr;
}

TEST(QnGeQuadTree2dLists, RangeSetOverALongListChangesNoAnswer) {
    const Store boxes = BoxesAcross(100);
    Tree16 tree;
    Boxes2d expected;
    for (const std::unique_ptr<Box>& box : boxes) {
        tree.Insert(box.get());
        expected.push_back(box.get());
    }
    for (const Box& range : {Box(-80, 80, -80, 80), Box(0, 0, 0, 0), Box(-1, 0, -1, 1), Box(-INF, INF, -INF, INF)}) {
        tree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
        EXPECT_EQ(DifferenceFromWalk(tree, expected), "") << range.x.min;
    }
}

// ---- tolerance and coordinates ---------------------------------------------------------------------

TEST(QnGeQuadTree2dLists, ToleranceMayChangeBetweenComingAskingAndGoing) {
    const double tolerances[] = {1e-6, 1e-3, 0.1, 1e-9, 0.0};
    for (unsigned run = 0; run < 200; ++run) {
        RandomSource random(BaseSeed() + run);
        Tree16 tree;
        PlainQuadTree plain(-8, 8, -8, 8);
        Store store;
        Boxes2d held;
        for (int step = 0; step < 300; ++step) {
            const QnPushVar<double> tolerance(g_distZero, tolerances[random.Int(0, 4)]);
            const int choice = random.Int(0, 9);
            if (choice < 6 || held.empty()) {
                const double x = random.Double(-7, 7);
                const double y = random.Double(-0.2, 0.1);
                store.push_back(std::make_unique<Box>(x, x + random.Double(0.0, 0.9), y, y + random.Double(0.0, 0.2)));
                held.push_back(store.back().get());
                tree.Insert(held.back());
                plain.Insert(held.back());
            } else if (choice < 8) {
                const auto at = held.begin() + random.Long(0, static_cast<long>(held.size()) - 1);
                ASSERT_EQ(tree.Delete(*at, false), plain.Delete(*at));
                held.erase(at);
            } else {
                const double x = random.Coin() ? held[held.size() / 2]->x.max + 0.9e-3 : random.Double(-8, 8);
                const double y = random.Double(-0.3, 0.3);
                Boxes2d expected;
                plain.HitTest(x, y, expected);
                ASSERT_EQ(HitsOf(tree, x, y), expected) << "run " << run;
                expected.clear();
                plain.HitTest(Box(x, x + 0.1, y, y), expected);
                ASSERT_EQ(HitsOf(tree, Box(x, x + 0.1, y, y)), expected) << "run " << run;
            }
        }
        ASSERT_EQ(tree_checks::CompareQuadTree(tree, plain), "") << "run " << run;
    }
}

TEST(QnGeQuadTree2dLists, CoordinatesThatAreNoNumbersOrWithoutEndAreAsInThePlainForm) {
    const double odd[] = {NOT_A_NUMBER, INF, -INF, 1e308, -1e308, 5.0};
    for (const int length : {20, 200}) {
        RandomSource random(BaseSeed() + static_cast<unsigned>(length));
        const Store boxes = BoxesAcross(length);
        Store odds;
        Tree16 tree;
        PlainQuadTree plain(-8, 8, -8, 8);
        for (const std::unique_ptr<Box>& box : boxes) {
            odds.push_back(std::make_unique<Box>(*box));
            for (double* end : {&odds.back()->x.min, &odds.back()->x.max, &odds.back()->y.min, &odds.back()->y.max}) {
                *end = random.OneIn(4) ? odd[random.Int(0, 5)] : *end;
            }
            for (Box* b : {box.get(), odds.back().get()}) {
                tree.Insert(b);
                plain.Insert(b);
            }
        }
        ASSERT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
        for (int i = 0; i < 2000; ++i) {
            double at[4];
            for (double& c : at) {
                c = random.OneIn(4) ? odd[random.Int(0, 5)] : random.Double(-8, 8);
            }
            Boxes2d expected;
            plain.HitTest(at[0], at[2], expected);
            ASSERT_EQ(HitsOf(tree, at[0], at[2]), expected) << at[0] << ' ' << at[2];
            const Box window(at[0], at[1], at[2], at[3]);
            expected.clear();
            plain.HitTest(window, expected);
            ASSERT_EQ(HitsOf(tree, window), expected) << at[0] << ' ' << at[1] << ' ' << at[2] << ' ' << at[3];
        }
        for (const Store* store : {static_cast<const Store*>(&odds), &boxes}) {
            for (const std::unique_ptr<Box>& box : *store) {
                ASSERT_EQ(tree.Delete(box.get(), false), plain.Delete(box.get()));
            }
        }
        ASSERT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
    }
}

// ---- identity of a caller's own --------------------------------------------------------------------

namespace {

/// Boxes that are the same if their number is.
struct Numbered : QnGeExtent2d {
    int number;
    Numbered(const QnGeExtent2d& box, int n) : QnGeExtent2d(box), number(n) {}
    bool IsSameWith(const QnGeExtent2d* other) const override {
        return static_cast<const Numbered*>(other)->number == number;
    }
};

struct Numbered3d : QnGeExtent3d {
    int number;
    Numbered3d(const QnGeExtent3d& box, int n) : QnGeExtent3d(box), number(n) {}
    using QnGeExtent3d::IsSameWith;
    bool IsSameWith(const QnGeExtent3d* other) const override {
        return static_cast<const Numbered3d*>(other)->number == number;
    }
};

}  // namespace

TEST(QnGeQuadTree2dLists, BoxesOfACallersClassSayThemselvesWhichAreTheSame) {
    for (const int length : LENGTHS) {
        const Store boxes = BoxesAcross(length);
        std::vector<std::unique_ptr<Numbered>> numbered;
        Tree16 tree;
        for (int i = 0; i < length; ++i) {
            numbered.push_back(std::make_unique<Numbered>(*boxes[static_cast<std::size_t>(i)], i));
            tree.Insert(numbered.back().get());
        }
        Numbered stranger(*boxes[0], length);
        EXPECT_FALSE(tree.Delete(&stranger, false));
        for (int i = length - 1; i >= 0; --i) {
            Numbered twin(*boxes[0], i);
            EXPECT_TRUE(tree.Delete(&twin, false)) << i << " of " << length;
            numbered.pop_back();
            Boxes2d expected;
            for (const std::unique_ptr<Numbered>& box : numbered) {
                expected.push_back(box.get());
            }
            ASSERT_EQ(AllOf(tree), expected);
        }
    }
    Tree16 tree;
    Numbered leaf(Box(1, 2, 1, 2), 7);
    Numbered other(Box(1, 2, 1, 2), 8);
    Numbered twin(Box(3, 4, 3, 4), 7);
    tree.Insert(&leaf);
    EXPECT_FALSE(tree.Delete(&other, false));
    EXPECT_TRUE(tree.Delete(&twin, false));
    EXPECT_TRUE(tree.IsEmptyTree());
}

TEST(QnGeOctree, BoxesOfACallersClassSayThemselvesWhichAreTheSameInSpace) {
    QnGeOctree tree;
    tree.SetRange(-8, 8, -8, 8, -8, 8);
    Numbered3d leaf(QnGeExtent3d(1, 2, 1, 2, 1, 2), 1);
    Numbered3d listed(QnGeExtent3d(-1, 1, -1, 1, -1, 1), 2);
    Numbered3d leafTwin(QnGeExtent3d(3, 4, 3, 4, 3, 4), 1);
    Numbered3d listedTwin(QnGeExtent3d(-1, 1, 0, 1, -1, 1), 2);
    tree.Insert(&leaf);
    tree.Insert(&listed);
    EXPECT_TRUE(tree.Delete(&listedTwin, false));
    EXPECT_TRUE(tree.Delete(&leafTwin, false));
    EXPECT_TRUE(tree.IsEmptyTree());
}
