// SPDX-License-Identifier: Apache-2.0
//
// Trees of boxes with one history, one of them through the triangles' own places: the same cells, lists and answers.
#include "terrain/detail/TriangleTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "frame/QnPushVar.h"
#include "internal/TriangleTrees.h"
#include "support/RandomSource.h"

namespace {

using qn_detail::TreePlace;
using qn_detail::TriangleTree;
using triangle_trees::Asked;
using triangle_trees::Box;
using triangle_trees::Boxes;
using triangle_trees::Trees;
using triangle_trees::Triangle;

// ---- by hand ---------------------------------------------------------------------------------------

const Box SQUARE(-1.0, 1.0, -1.0, 1.0);
const Box RIGHT_ABOVE(0.1, 0.2, 0.1, 0.2);
const Box LEFT_BELOW(-0.2, -0.1, -0.2, -0.1);
const Box ACROSS(-0.1, 0.1, -0.1, 0.1);
const QnGePoint OUTSIDE(5.0, 5.0);

Asked Ask(const Triangle* triangle, double x, double y) {
    return TriangleTree::IsAsked(*triangle, QnGePoint(x, y));
}

}  // namespace

TEST(TriangleTree, EachTriangleKnowsItsCell) {
    Trees trees(SQUARE);
    Triangle* const first = trees.Add(RIGHT_ABOVE);
    EXPECT_EQ(TreePlace::CellOf(*first), &trees.GetRoot());
    Triangle* const second = trees.Add(LEFT_BELOW);
    Triangle* const third = trees.Add(ACROSS);
    EXPECT_EQ(TreePlace::CellOf(*first), trees.GetRoot().Child[0]);
    EXPECT_EQ(TreePlace::CellOf(*second), trees.GetRoot().Child[2]);
    EXPECT_EQ(TreePlace::CellOf(*third), &trees.GetRoot());
    for (Triangle* triangle : {first, second, third}) {
        EXPECT_TRUE(TriangleTree::IsIn(*triangle));
        trees.Delete(triangle);
        EXPECT_FALSE(TriangleTree::IsIn(*triangle));
    }
    EXPECT_TRUE(trees.GetRoot().IsEmptyTree());
}

TEST(TriangleTree, DeletingWhatIsNotInDoesNothing) {
    Trees trees(SQUARE);
    Triangle* const in = trees.Add(RIGHT_ABOVE);
    Triangle* const other = trees.Make(RIGHT_ABOVE);
    trees.Delete(other);
    EXPECT_EQ(trees.CompareByPlaces(), "");
    trees.Delete(in);
    trees.Delete(in);
    EXPECT_TRUE(trees.GetRoot().IsEmptyTree());
    trees.Insert(in);
    trees.Insert(other);
    EXPECT_EQ(trees.CompareByPlaces(), "");
}

TEST(TriangleTree, ACopyStandsNowhere) {
    Trees trees(SQUARE);
    for (const Box& box : {RIGHT_ABOVE, ACROSS}) {
        Triangle* const triangle = trees.Add(box);
        Triangle copy(*triangle);
        Triangle assigned;
        assigned = *triangle;
        for (Triangle* other : {&copy, &assigned}) {
            EXPECT_FALSE(TriangleTree::IsIn(*other));
            EXPECT_EQ(TriangleTree::IsAsked(*other, QnGePoint(0.15, 0.15)), Asked::UNSURE);
            trees.GetTree().Delete(other);
            EXPECT_EQ(trees.CompareByPlaces(), "");
        }
        EXPECT_TRUE(TriangleTree::IsIn(*triangle));
    }
}

TEST(TriangleTree, ACopyGoesInAsATriangleOfItsOwn) {
    Trees trees(SQUARE);
    Triangle* const triangle = trees.Add(ACROSS);
    Triangle* const copy = trees.Make(RIGHT_ABOVE);
    *copy = *triangle;
    trees.Insert(copy);
    EXPECT_EQ(trees.Find(QnGePoint(0.0, 0.0)), (Boxes{triangle, copy}));
    trees.Delete(triangle);
    EXPECT_EQ(trees.Find(QnGePoint(0.0, 0.0)), (Boxes{copy}));
    EXPECT_EQ(trees.CompareByPlaces(), "");
}

TEST(TriangleTree, AnEmptyTreeHasNothingNear) {
    Trees trees(SQUARE);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.5, 0.5)).triangle, nullptr);
    EXPECT_EQ(trees.GetTree().GetNear(OUTSIDE).triangle, nullptr);
    trees.Delete(trees.Add(RIGHT_ABOVE));
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.5, 0.5)).triangle, nullptr);
}

TEST(TriangleTree, NearIsWhatTheSmallestCellRoundThePointHas) {
    Trees trees(SQUARE);
    Triangle* const first = trees.Add(RIGHT_ABOVE);
    EXPECT_EQ(trees.GetTree().GetNear(OUTSIDE).triangle, first);
    Triangle* const second = trees.Add(LEFT_BELOW);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.9, 0.9)).triangle, first);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(-0.9, -0.9)).triangle, second);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(-0.9, 0.9)).triangle, nullptr);
    trees.Add(ACROSS);
    Triangle* const last = trees.Add(ACROSS);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(-0.9, 0.9)).triangle, last);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.0, 0.5)).triangle, last);
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.9, 0.9)).triangle, first);
    trees.GetTree().GoPlain();
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.9, 0.9)).triangle, nullptr);
}

TEST(TriangleTree, ASearchIsUnsureOutsideTheCellAndAtItsBorder) {
    Trees trees(SQUARE);
    const Triangle* const first = trees.Add(RIGHT_ABOVE);
    EXPECT_EQ(Ask(first, 0.15, 0.15), Asked::YES);
    EXPECT_EQ(Ask(first, 0.2 + 0.5e-6, 0.15), Asked::YES);
    EXPECT_EQ(Ask(first, 0.2 + 2e-6, 0.15), Asked::NO);
    EXPECT_EQ(Ask(first, -0.5, -0.5), Asked::NO);
    EXPECT_EQ(Ask(first, 1.0 - 0.5e-6, 0.5), Asked::UNSURE);
    EXPECT_EQ(Ask(first, 5.0, 5.0), Asked::UNSURE);
    trees.Add(LEFT_BELOW);  // and the first goes down a cell
    EXPECT_EQ(Ask(first, 0.15, 0.15), Asked::YES);
    EXPECT_EQ(Ask(first, 0.5e-6, 0.15), Asked::UNSURE);
    EXPECT_EQ(Ask(first, -0.5, -0.5), Asked::UNSURE);
}

TEST(TriangleTree, AListInNodesMakesASearchUnsure) {
    Trees trees(SQUARE);
    const Triangle* const triangle = trees.Add(ACROSS);
    EXPECT_EQ(Ask(triangle, 0.0, 0.0), Asked::YES);
    EXPECT_EQ(Ask(triangle, 0.0, 0.5), Asked::NO);
    trees.GetRoot().ExtentList->MoveToFirst();
    EXPECT_EQ(Ask(triangle, 0.0, 0.0), Asked::UNSURE);
    EXPECT_EQ(Ask(triangle, 0.0, 0.5), Asked::UNSURE);
}

TEST(TriangleTree, KnowsATriangleThatWasAssignedAnother) {
    Trees trees(SQUARE);
    Triangle* const a = trees.Add(ACROSS);
    Triangle* const b = trees.Add(ACROSS);
    *a = *b;
    trees.Delete(a);
    EXPECT_EQ(trees.CompareByNodes(), "");
}

TEST(TriangleTree, GoesOnWithAListThatHasBeenRead) {
    Trees trees(SQUARE);
    trees.Add(ACROSS);
    Triangle* const second = trees.Add(ACROSS);
    trees.Add(ACROSS);
    trees.GetRoot().ExtentList->MoveToFirst();
    trees.Delete(second);
    EXPECT_EQ(trees.CompareByNodes(), "");
    trees.Add(ACROSS);
    EXPECT_EQ(trees.CompareByNodes(), "");
    EXPECT_EQ(trees.CompareHits(QnGePoint(0.0, 0.0)), "");
    EXPECT_EQ(trees.CompareNear(QnGePoint(0.0, 0.0)), "");
    while (!trees.GetIn().empty()) {
        trees.Delete(trees.GetIn().front());
        EXPECT_EQ(trees.CompareByNodes(), "");
    }
}

TEST(TriangleTree, ASearchComesToDeepCellsFirstAndThenByArrival) {
    Trees trees(SQUARE);
    const Triangle* const single = trees.Add(Box(0.1, 0.4, 0.1, 0.4));
    const Triangle* const older = trees.Add(Box(-0.5, 0.5, -0.5, 0.5));
    const Triangle* const newer = trees.Add(Box(-0.6, 0.6, -0.6, 0.6));
    EXPECT_TRUE(TriangleTree::IsBefore(*single, *older));  // both in the root
    EXPECT_FALSE(TriangleTree::IsBefore(*older, *single));
    EXPECT_TRUE(TriangleTree::IsBefore(*older, *newer));
    EXPECT_FALSE(TriangleTree::IsBefore(*newer, *older));
    const Triangle* const deep = trees.Add(Box(0.2, 0.3, 0.2, 0.3));
    EXPECT_TRUE(TriangleTree::IsBefore(*deep, *older));
    EXPECT_TRUE(TriangleTree::IsBefore(*single, *older));
    EXPECT_EQ(trees.CompareAsked(QnGePoint(0.25, 0.25)), "");
    EXPECT_EQ(trees.CompareHits(QnGePoint(0.25, 0.25)), "");
}

TEST(TriangleTree, EqualBoxesStandInTheOrderInWhichTheyCameThere) {
    Trees trees(SQUARE);
    const Box across(0.45, 0.55, 0.45, 0.55);  // the centre of the quarter right above
    Triangle* const first = trees.Add(across);
    Triangle* const second = trees.Add(across);  // goes down first, and the first follows it
    Triangle* const third = trees.Add(across);
    const QnGePoint point(0.5, 0.5);
    EXPECT_EQ(trees.Find(point), (Boxes{second, first, third}));
    EXPECT_TRUE(TriangleTree::IsBefore(*second, *first));
    EXPECT_TRUE(TriangleTree::IsBefore(*first, *third));
    trees.Delete(first);
    trees.Insert(first);
    EXPECT_EQ(trees.Find(point), (Boxes{second, third, first}));
    EXPECT_EQ(trees.CompareByPlaces(), "");
}

TEST(TriangleTree, ATriangleThatComesTwiceIsInTwice) {
    Trees trees(SQUARE);
    Triangle* const triangle = trees.Add(ACROSS);
    trees.Insert(triangle);
    EXPECT_EQ(trees.Find(QnGePoint(0.0, 0.0)), (Boxes{triangle, triangle}));
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.0, 0.0)).triangle, nullptr);
    trees.Delete(triangle);
    EXPECT_EQ(trees.Find(QnGePoint(0.0, 0.0)), (Boxes{triangle}));
    trees.Delete(triangle);
    EXPECT_TRUE(trees.GetRoot().IsEmptyTree());
}

TEST(TriangleTree, AnEmptyTreeTakesANewTolerance) {
    Trees trees(SQUARE);
    trees.Delete(trees.Add(ACROSS));
    const QnPushVar<double> other(g_distZero, 0.3);
    trees.Add(Box(0.1, 0.2, 0.5, 0.6));  // within the wider band of the centre line
    Triangle* const second = trees.Add(Box(0.4, 0.9, 0.5, 0.6));
    EXPECT_EQ(trees.CompareByPlaces(), "");
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.5, 0.5)).triangle, second);
}

TEST(TriangleTree, ATreeWithoutRangeKeepsAllInItsRoot) {
    Trees trees(Box(0.0, 0.0, 0.0, 0.0));
    Triangle* const first = trees.Add(RIGHT_ABOVE);
    Triangle* const second = trees.Add(LEFT_BELOW);
    EXPECT_EQ(TreePlace::CellOf(*first), &trees.GetRoot());
    EXPECT_EQ(TreePlace::CellOf(*second), &trees.GetRoot());
    EXPECT_EQ(trees.CompareByPlaces(), "");
    EXPECT_EQ(trees.GetTree().GetNear(QnGePoint(0.15, 0.15)).triangle, second);
    EXPECT_EQ(trees.Find(QnGePoint(0.15, 0.15)), (Boxes{first}));
}

// ---- random histories ------------------------------------------------------------------------------

namespace {

/// What happens in the middle of a history.
enum class Trouble { NONE, READ, PLAIN, TOLERANCE, TWICE };

class History {
public:
    History(unsigned seed, Trouble trouble)
        : m_random(seed),
          m_trouble(trouble),
          m_range(AnyRange(m_random.Int(0, 4))),
          m_trees(m_range),
          m_favourite(m_random.Int(0, KINDS - 1)) {}

    void Run(long length, long every) {
        const long middle = m_random.Long(length / 4, length / 2);
        for (long i = 0; i < length; ++i) {
            if (i == middle) {
                MakeTrouble();
            }
            ASSERT_NO_FATAL_FAILURE(Step()) << "step " << i;
            if (i % every == 0) {
                ASSERT_NO_FATAL_FAILURE(Compare()) << "step " << i;
            }
        }
        ASSERT_NO_FATAL_FAILURE(Compare());
        ASSERT_EQ(m_trees.CompareByNodes(), "");
        while (!m_trees.GetIn().empty()) {
            ASSERT_NO_FATAL_FAILURE(m_trees.Delete(AnyIn()));
            ASSERT_FALSE(m_isPlain && m_trees.GetTree().GetNear(AnyPoint()).triangle != nullptr);
            if (m_isStuck) {
                return;
            }
        }
        ASSERT_TRUE(m_trees.GetRoot().IsEmptyTree());
    }

private:
    static constexpr int KINDS = 8;
    static constexpr int CLUSTER = 6;

    static Box AnyRange(int kind) {
        switch (kind) {
            case 0:
                return Box(-1.0, 1.0, -1.0, 1.0);
            case 1:
                return Box(0.0, 1000.0, 0.0, 300.0);
            case 2:
                return Box(500000.0, 500100.0, 4000000.0, 4000100.0);
            case 3:
                return Box(-0.1, 0.2, 0.0, 0.3);
            default:
                return Box(-7e5, 1e5 / 3.0, -1.0, 1e6);
        }
    }

    /// The centre line of a cell `depth` levels down, by the halving of the tree.
    double Line(const QnGeExtent& range, int depth) {
        QnGeExtent cell = range;
        for (int i = 0; i < depth; ++i) {
            (m_random.Coin() ? cell.min : cell.max) = cell.GetCenter();
        }
        return cell.GetCenter();
    }
    double AnyOf(const QnGeExtent& range) { return m_random.Double(range.min, range.max); }
    double FewHalfTolerances() { return g_distZero / 2.0 * m_random.Int(-4, 4); }

    /// One axis of a box.
    QnGeExtent AnySide(int kind, const QnGeExtent& range, double& cluster) {
        const double size = range.GetLength() * std::pow(2.0, m_random.Double(-14.0, -1.0));
        double low = AnyOf(range);
        switch (kind) {
            case 0:  // a point
                return QnGeExtent(low, low);
            case 1:  // small
                return QnGeExtent(low, low + size / 64.0);
            case 2:  // across a centre line
                low = Line(range, m_random.Int(0, 5));
                return QnGeExtent(low - size, low + size * m_random.Double(0.0, 1.0));
            case 3:  // at the tolerance band of a centre line
                low = Line(range, m_random.Int(0, 5)) + FewHalfTolerances();
                return m_random.Coin() ? QnGeExtent(low, low + size) : QnGeExtent(low - size, low);
            case 4:  // from band to band
                low = Line(range, m_random.Int(1, 5)) + FewHalfTolerances();
                return QnGeExtent(low, low + range.GetLength() / 32.0 + FewHalfTolerances());
            case 5:  // deep: a few tolerances long
                low = Line(range, m_random.Int(0, 30)) + FewHalfTolerances() * 5.0;
                return QnGeExtent(low, low + std::fabs(FewHalfTolerances()) * 3.0);
            case CLUSTER:
                cluster += size * m_random.Double(-1.0, 1.0);
                return QnGeExtent(cluster, cluster + size / 4.0);
            default:  // at the border of the range or beyond it
                low = m_random.Coin() ? range.max + FewHalfTolerances() : range.min - size;
                return QnGeExtent(low, low + (m_random.Coin() ? size : 0.0));
        }
    }

    Box AnyBox() {
        if (!m_trees.GetIn().empty() && m_random.OneIn(8)) {
            return *AnyIn();
        }
        const int kind = m_random.Coin() ? m_favourite : m_random.Int(0, KINDS - 1);
        const QnGeExtent x = AnySide(kind, m_range.x, m_clusterX);
        return Box(x, AnySide(m_random.OneIn(4) ? 0 : kind, m_range.y, m_clusterY));
    }

    Triangle* AnyIn() {
        const std::vector<Triangle*>& in = m_trees.GetIn();
        const long last = static_cast<long>(in.size()) - 1;
        return in[static_cast<std::size_t>(m_random.OneIn(3) ? last : m_random.Long(0, last))];
    }

    QnGePoint AnyPoint() {
        if (!m_trees.GetIn().empty() && m_random.Coin()) {
            const Triangle& box = *AnyIn();
            return QnGePoint((m_random.Coin() ? box.x.min : box.x.max) + FewHalfTolerances(),
                             (m_random.Coin() ? box.y.min : box.y.GetCenter()) + FewHalfTolerances());
        }
        const QnGeExtent x = AnySide(m_random.Int(0, KINDS - 1), m_range.x, m_clusterX);
        const QnGeExtent y = AnySide(m_random.Int(0, KINDS - 1), m_range.y, m_clusterY);
        return QnGePoint(x.min, y.max);
    }

    void Step() {
        const int step = m_random.Int(0, 9);
        if (m_trees.GetIn().empty() || step < 4) {
            m_out.push_back(m_trees.Add(AnyBox()));
        } else if (step < 6) {
            m_trees.Delete(AnyIn());
        } else if (step < 7) {  // as a triangle goes whose nodes change
            Triangle* const moved = AnyIn();
            m_trees.Delete(moved);
            if (!m_isPlain) {
                moved->SetRange(AnyBox().x, AnyBox().y);
                m_trees.Insert(moved);
            }
        } else if (step < 8) {
            Triangle* const any =
                m_out[static_cast<std::size_t>(m_random.Long(0, static_cast<long>(m_out.size()) - 1))];
            const bool isIn = std::count(m_trees.GetIn().begin(), m_trees.GetIn().end(), any) > 0;
            m_trees.Delete(isIn ? m_trees.Make(AnyBox()) : any);
        } else {
            ASSERT_NO_FATAL_FAILURE(Ask(AnyPoint()));
        }
        if (m_trouble == Trouble::READ && m_random.OneIn(30)) {
            ReadLists(m_trees.GetRoot());
        }
    }

    void Ask(const QnGePoint& point) {
        ASSERT_EQ(m_trees.CompareHits(point), "") << point.x << ' ' << point.y;
        if (m_isPlain) {
            ASSERT_EQ(m_trees.GetTree().GetNear(point).triangle, nullptr);
            return;
        }
        ASSERT_EQ(m_trees.CompareAsked(point), "") << point.x << ' ' << point.y;
        ASSERT_EQ(m_trees.CompareNear(point), "") << point.x << ' ' << point.y;
    }

    void Compare() { ASSERT_EQ(m_isPlain ? m_trees.CompareByNodes() : m_trees.CompareByPlaces(), ""); }

    /// Somebody looks at some of the lists.
    void ReadLists(const QnGeQuadTree2d& cell) {
        if (cell.ExtentList != nullptr && m_random.Coin()) {
            cell.ExtentList->MoveTo(m_random.Long(-1, cell.ExtentList->GetLength() - 1));
        }
        for (const QnGeQuadTree2d* child : cell.Child) {
            if (child != nullptr) {
                ReadLists(*child);
            }
        }
    }

    void MakeTrouble() {
        switch (m_trouble) {
            case Trouble::PLAIN:
                m_trees.GetTree().GoPlain();
                m_isPlain = true;
                break;
            case Trouble::TWICE:
                if (!m_trees.GetIn().empty()) {
                    m_trees.Insert(AnyIn());
                    m_isPlain = true;
                }
                break;
            case Trouble::TOLERANCE:
                ChangeTolerance();
                break;
            default:
                break;
        }
    }

    /// Searches go by the new tolerance at once, and with the first box that comes all goes plain.
    void ChangeTolerance() {
        m_trees.Add(AnyBox());
        constexpr double TOLERANCES[] = {0.0, 1e-9, 1e-5, 1e-3, 0.1};
        m_tolerance = std::make_unique<QnPushVar<double>>(g_distZero, TOLERANCES[m_random.Int(0, 4)]);
        for (int i = 0; i < 20; ++i) {
            const QnGePoint point = AnyPoint();
            ASSERT_EQ(m_trees.CompareHits(point), "") << point.x << ' ' << point.y;
        }
        m_trees.Add(AnyBox());
        m_isPlain = true;
        m_isStuck = true;
    }

    RandomSource m_random;
    Trouble m_trouble;
    Box m_range;
    Trees m_trees;
    int m_favourite;
    double m_clusterX = m_range.x.GetCenter();
    double m_clusterY = m_range.y.GetCenter();
    std::vector<Triangle*> m_out;  ///< have been in at some time
    bool m_isPlain = false;
    bool m_isStuck = false;  ///< boxes may be where the way down no longer leads
    std::unique_ptr<QnPushVar<double>> m_tolerance;
};

void RunHistories(Trouble trouble, unsigned count) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + count; ++seed) {
        const bool isLong = seed % 20 == 0;
        History history(seed, trouble);
        history.Run(isLong ? 2500 : 120, isLong ? 50 : 1);
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

}  // namespace

TEST(TriangleTree, DoesWhatTheTreeDoesFromItsRoot) {
    RunHistories(Trouble::NONE, 300);
}

TEST(TriangleTree, GoesOnWithListsThatHaveBeenRead) {
    RunHistories(Trouble::READ, 100);
}

TEST(TriangleTree, GoesPlainInTheMiddle) {
    RunHistories(Trouble::PLAIN, 60);
}

TEST(TriangleTree, GoesPlainWithAnotherTolerance) {
    RunHistories(Trouble::TOLERANCE, 100);
}

TEST(TriangleTree, GoesPlainWithATriangleThatComesTwice) {
    RunHistories(Trouble::TWICE, 100);
}
