// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeIntervalList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"

using namespace value_testing;

static_assert(!std::is_convertible_v<double, QnGeIntervalList>, "a number is no list");
static_assert(!std::is_convertible_v<QnGePoint, QnGeIntervalList>, "nor is a point");
static_assert(std::is_base_of_v<QnDList<QnGeInterval>, QnGeIntervalList>, "a list of intervals");

namespace {

using Ranges = std::vector<std::pair<double, double>>;

std::string Text(const Ranges& ranges) {
    std::ostringstream out;
    for (const auto& range : ranges) {
        out << "[" << range.first << ", " << range.second << "] ";
    }
    return out.str();
}

Ranges RangesOf(const QnGeIntervalList& list) {
    Ranges ranges;
    for (const QnGeInterval* e = list.GetFirst(); e != nullptr; e = list.GetNext(e)) {
        ranges.emplace_back(e->min, e->max);
    }
    return ranges;
}

QnGeIntervalList Make(std::initializer_list<std::pair<double, double>> ranges, double period = 0.0) {
    QnGeIntervalList list(period);
    for (const auto& range : ranges) {
        list.Append(QnGeInterval(range.first, range.second));
    }
    return list;
}

::testing::AssertionResult Holds(const QnGeIntervalList& list, const Ranges& expected, double tol = 0.0) {
    const Ranges actual = RangesOf(list);
    bool same = actual.size() == expected.size() && static_cast<size_t>(list.GetLength()) == expected.size();
    for (size_t i = 0; same && i < actual.size(); ++i) {
        same = std::fabs(actual[i].first - expected[i].first) <= tol &&
               std::fabs(actual[i].second - expected[i].second) <= tol;
    }
    if (same) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Text(actual) << "instead of " << Text(expected);
}

/// "" or what is wrong: ascending, disjoint, none touching, none empty.
std::string CheckOrder(const QnGeIntervalList& list) {
    const Ranges ranges = RangesOf(list);
    for (size_t i = 0; i < ranges.size(); ++i) {
        if (ranges[i].second - ranges[i].first <= g_fZero) {
            return "interval without length in " + Text(ranges);
        }
        if (i > 0 && ranges[i].first - ranges[i - 1].second <= g_fZero) {
            return "touching or out of order in " + Text(ranges);
        }
    }
    return "";
}

/// The same set as unit cells, and its maximal runs.
class CellModel {
public:
    explicit CellModel(int cells) : m_covered(static_cast<size_t>(cells), false) {}

    void Set(int from, int to, bool covered) {
        if (from <= to) {
            SetRun(from, to, covered);
        } else {
            SetRun(0, to, covered);
            SetRun(from, static_cast<int>(m_covered.size()), covered);
        }
    }
    Ranges Runs() const {
        Ranges runs;
        for (size_t i = 0; i < m_covered.size(); ++i) {
            if (!m_covered[i]) {
                continue;
            }
            if (i > 0 && m_covered[i - 1]) {
                runs.back().second = double(i + 1);
            } else {
                runs.emplace_back(double(i), double(i + 1));
            }
        }
        return runs;
    }
    double Length() const {
        double length = 0.0;
        for (const auto& run : Runs()) {
            length += run.second - run.first;
        }
        return length;
    }

private:
    void SetRun(int from, int to, bool covered) {
        for (int i = from; i < to; ++i) {
            m_covered[static_cast<size_t>(i)] = covered;
        }
    }
    std::vector<bool> m_covered;
};

void CompareWithTheModel(Random& random, double jitter) {
    constexpr int CELLS = 30;
    for (int round = 0; round < PROPERTY_CASES / 10; ++round) {
        QnGeIntervalList list(CELLS);
        CellModel model(CELLS);
        for (int step = 0; step < 20; ++step) {
            const int from = random.Int(0, CELLS);
            const int to = random.Int(0, CELLS);
            if (from == to) {
                continue;
            }
            const QnGeInterval interval(from + random.Real(-jitter, jitter), to + random.Real(-jitter, jitter));
            const bool add = random.Coin();
            if (add) {
                list += interval;
            } else {
                list -= interval;
            }
            model.Set(from, to, add);
            ASSERT_TRUE(Holds(list, model.Runs(), 1e-9)) << (add ? "+= " : "-= ") << from << " " << to;
            ASSERT_EQ(CheckOrder(list), "");
            ASSERT_NEAR(list.Length(), model.Length(), 1e-7);
        }
    }
}

}  // namespace

TEST(QnGeIntervalList, BuildsWithItsPeriod) {
    EXPECT_EQ(QnGeIntervalList().GetPeriod(), 0.0);
    EXPECT_EQ(QnGeIntervalList(10.0).period, 10.0);
    QnGeIntervalList list;
    list.SetPeriod(4.0);
    EXPECT_EQ(list.GetPeriod(), 4.0);
    EXPECT_EQ(list.GetLength(), 0);
}

TEST(QnGeIntervalList, CopiesTakeListAndPeriod) {
    const QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}}, 10.0);
    QnGeIntervalList copy(list);
    EXPECT_TRUE(Holds(copy, {{0.0, 1.0}, {2.0, 3.0}}));
    EXPECT_EQ(copy.period, 10.0);
    QnGeIntervalList assigned;
    assigned = list;
    EXPECT_TRUE(Holds(assigned, {{0.0, 1.0}, {2.0, 3.0}}));
    EXPECT_EQ(assigned.period, 10.0);
    copy += QnGeInterval(1.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {2.0, 3.0}}));
    const QnGeIntervalList& self = assigned;
    assigned = self;
    EXPECT_TRUE(Holds(assigned, {{0.0, 1.0}, {2.0, 3.0}}));
}

TEST(QnGeIntervalList, LengthIsTheSum) {
    EXPECT_EQ(QnGeIntervalList().Length(), 0.0);
    EXPECT_EQ(Make({{0.0, 1.5}, {2.0, 3.0}}).Length(), 2.5);
}

TEST(QnGeIntervalList, IsClosedWhenTheWholePeriodIsCovered) {
    EXPECT_TRUE(Make({{0.0, 10.0}}, 10.0).IsClosed());
    EXPECT_FALSE(Make({{0.0, 9.0}}, 10.0).IsClosed());
    EXPECT_FALSE(Make({{0.0, 10.0}}, 0.0).IsClosed());
    EXPECT_FALSE(Make({{0.0, 1e-6}}, 1e-6).IsClosed());  // the period is not above the tolerance
    EXPECT_TRUE(Make({{0.0, 2e-6}}, 2e-6).IsClosed());
}

TEST(QnGeIntervalList, KeptOddIsClosedComparesExactly) {
    EXPECT_FALSE(Make({{0.0, 10.0 - 1e-12}}, 10.0).IsClosed());
}

TEST(QnGeIntervalList, HeadAndTailJoinAtTheSeam) {
    EXPECT_TRUE(Make({{0.0, 2.0}, {8.0, 10.0}}, 10.0).IsHeadTailJoined());
    EXPECT_TRUE(Make({{0.0, 10.0}}, 10.0).IsHeadTailJoined());
    EXPECT_TRUE(Make({{1e-9, 2.0}, {8.0, 10.0 - 5e-10}}, 10.0).IsHeadTailJoined());
    EXPECT_TRUE(Make({{-1e-9, 2.0}, {8.0, 10.0}}, 10.0).IsHeadTailJoined());
    EXPECT_FALSE(Make({{2e-9, 2.0}, {8.0, 10.0}}, 10.0).IsHeadTailJoined());
    EXPECT_FALSE(Make({{0.0, 2.0}, {8.0, 10.0 - 1e-8}}, 10.0).IsHeadTailJoined());
    EXPECT_FALSE(Make({{0.0, 2.0}, {8.0, 10.0}}, 0.0).IsHeadTailJoined());
    EXPECT_FALSE(QnGeIntervalList(10.0).IsHeadTailJoined());
}

TEST(QnGeIntervalList, ConnectHeadTailMakesOneIntervalOverTheSeam) {
    QnGeIntervalList list = Make({{0.0, 2.0}, {4.0, 5.0}, {8.0, 10.0}}, 10.0);
    list.ConnectHeadTail();
    EXPECT_TRUE(Holds(list, {{8.0, 2.0}, {4.0, 5.0}}));
    EXPECT_TRUE(list.GetAt(0).IsReverse());
}

TEST(QnGeIntervalList, ConnectHeadTailLeavesListsThatDoNotJoin) {
    QnGeIntervalList single = Make({{0.0, 10.0}}, 10.0);
    single.ConnectHeadTail();
    EXPECT_TRUE(Holds(single, {{0.0, 10.0}}));
    QnGeIntervalList apart = Make({{1.0, 2.0}, {8.0, 10.0}}, 10.0);
    apart.ConnectHeadTail();
    EXPECT_TRUE(Holds(apart, {{1.0, 2.0}, {8.0, 10.0}}));
    QnGeIntervalList empty(10.0);
    empty.ConnectHeadTail();
    EXPECT_TRUE(Holds(empty, {}));
}

TEST(QnGeIntervalList, AddingBridgesTouchingIntervals) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}});
    list += QnGeInterval(1.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 3.0}}));
}

TEST(QnGeIntervalList, AddingFindsThePlace) {
    QnGeIntervalList list;
    list += QnGeInterval(4.0, 5.0);
    EXPECT_TRUE(Holds(list, {{4.0, 5.0}}));
    list += QnGeInterval(8.0, 9.0);
    EXPECT_TRUE(Holds(list, {{4.0, 5.0}, {8.0, 9.0}}));
    list += QnGeInterval(0.0, 1.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {4.0, 5.0}, {8.0, 9.0}}));
    list += QnGeInterval(6.0, 7.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {4.0, 5.0}, {6.0, 7.0}, {8.0, 9.0}}));
    list += QnGeInterval(4.5, 8.5);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {4.0, 9.0}}));
    list += QnGeInterval(-1.0, 20.0);
    EXPECT_TRUE(Holds(list, {{-1.0, 20.0}}));
}

TEST(QnGeIntervalList, AddingTakesAGapOfTheToleranceAsTouching) {
    QnGeIntervalList list = Make({{-1.0, 0.0}});
    list += QnGeInterval(1e-9, 1.0);
    EXPECT_TRUE(Holds(list, {{-1.0, 1.0}}));
    QnGeIntervalList apart = Make({{-1.0, 0.0}});
    apart += QnGeInterval(Above(1e-9), 1.0);
    EXPECT_EQ(apart.GetLength(), 2);
    QnGeIntervalList before = Make({{0.0, 1.0}});
    before += QnGeInterval(-1.0, -1e-9);
    EXPECT_TRUE(Holds(before, {{-1.0, 1.0}}));
    QnGeIntervalList clear = Make({{0.0, 1.0}});
    clear += QnGeInterval(-1.0, -Above(1e-9));
    EXPECT_EQ(clear.GetLength(), 2);
}

TEST(QnGeIntervalList, AddingAReversedIntervalBreaksItAtTheSeam) {
    QnGeIntervalList list(10.0);
    list += QnGeInterval(8.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 2.0}, {8.0, 10.0}}));
    list.ConnectHeadTail();
    EXPECT_TRUE(Holds(list, {{8.0, 2.0}}));
}

TEST(QnGeIntervalList, AddingAReversedIntervalSkipsEmptyParts) {
    QnGeIntervalList list(10.0);
    list += QnGeInterval(8.0, 0.0);
    EXPECT_TRUE(Holds(list, {{8.0, 10.0}}));
    QnGeIntervalList other(10.0);
    other += QnGeInterval(10.0, 3.0);
    EXPECT_TRUE(Holds(other, {{0.0, 3.0}}));
}

TEST(QnGeIntervalList, SubtractingCutsInTheMiddle) {
    QnGeIntervalList list = Make({{0.0, 3.0}});
    list -= QnGeInterval(1.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {2.0, 3.0}}));
}

TEST(QnGeIntervalList, SubtractingTheWholeEmptiesTheList) {
    QnGeIntervalList list = Make({{0.0, 3.0}});
    list -= QnGeInterval(0.0, 3.0);
    EXPECT_TRUE(Holds(list, {}));
    list -= QnGeInterval(0.0, 3.0);
    EXPECT_TRUE(Holds(list, {}));
}

TEST(QnGeIntervalList, SubtractingTakesSeveralWholeIntervals) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}, {4.0, 5.0}});
    list -= QnGeInterval(0.0, 3.0);
    EXPECT_TRUE(Holds(list, {{4.0, 5.0}}));
    list -= QnGeInterval(3.5, 5.5);
    EXPECT_TRUE(Holds(list, {}));
}

TEST(QnGeIntervalList, ElementsOfTheListMayBeArguments) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}});
    list += *list.GetFirst();
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {2.0, 3.0}}));
    list -= *list.GetFirst();
    EXPECT_TRUE(Holds(list, {{2.0, 3.0}}));
}

TEST(QnGeIntervalList, WithoutAPeriodOnlyTheFirstPartOfAReversedIntervalIsLeft) {
    QnGeIntervalList list;
    list += QnGeInterval(8.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 2.0}}));
}

TEST(QnGeIntervalList, ANegativePeriodEnds) {
    QnGeIntervalList list(-5.0);
    list += QnGeInterval(8.0, 2.0);
    EXPECT_TRUE(Holds(list, {{0.0, 2.0}}));
    list -= QnGeInterval(8.0, 1.0);
    EXPECT_TRUE(Holds(list, {{1.0, 2.0}}));
}

TEST(QnGeIntervalList, SubtractingCutsEndsAndSwallowsWhatLiesBetween) {
    QnGeIntervalList list = Make({{0.0, 2.0}, {3.0, 4.0}, {5.0, 7.0}, {8.0, 9.0}});
    list -= QnGeInterval(1.0, 6.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {6.0, 7.0}, {8.0, 9.0}}));
    list -= QnGeInterval(7.2, 7.8);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {6.0, 7.0}, {8.0, 9.0}}));
    list -= QnGeInterval(-5.0, 0.5);
    EXPECT_TRUE(Holds(list, {{0.5, 1.0}, {6.0, 7.0}, {8.0, 9.0}}));
    list -= QnGeInterval(8.5, 50.0);
    EXPECT_TRUE(Holds(list, {{0.5, 1.0}, {6.0, 7.0}, {8.0, 8.5}}));
    list -= QnGeInterval(20.0, 30.0);
    EXPECT_TRUE(Holds(list, {{0.5, 1.0}, {6.0, 7.0}, {8.0, 8.5}}));
}

TEST(QnGeIntervalList, SubtractingLeavesNoSlivers) {
    QnGeIntervalList list = Make({{0.0, 1.0}});
    list -= QnGeInterval(1e-9, 1.0);
    EXPECT_TRUE(Holds(list, {}));
    QnGeIntervalList wider = Make({{0.0, 1.0}});
    wider -= QnGeInterval(2e-9, 1.0);
    EXPECT_TRUE(Holds(wider, {{0.0, 2e-9}}));
}

TEST(QnGeIntervalList, SubtractingAReversedIntervalCutsBothSidesOfTheSeam) {
    QnGeIntervalList list = Make({{0.0, 10.0}}, 10.0);
    list -= QnGeInterval(8.0, 2.0);
    EXPECT_TRUE(Holds(list, {{2.0, 8.0}}));
}

TEST(QnGeIntervalList, ListsApplyElementByElement) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {4.0, 6.0}});
    list += Make({{1.0, 2.0}, {8.0, 9.0}});
    EXPECT_TRUE(Holds(list, {{0.0, 2.0}, {4.0, 6.0}, {8.0, 9.0}}));
    list -= Make({{0.5, 1.0}, {5.0, 8.5}});
    EXPECT_TRUE(Holds(list, {{0.0, 0.5}, {1.0, 2.0}, {4.0, 5.0}, {8.5, 9.0}}));
}

TEST(QnGeIntervalList, TheOtherListKeepsItsCursor) {
    QnGeIntervalList other = Make({{1.0, 2.0}, {8.0, 9.0}, {20.0, 21.0}});
    other.MoveTo(1);
    QnGeIntervalList list;
    list += other;
    EXPECT_EQ(other.GetCur(), 1);
    list -= other;
    EXPECT_EQ(other.GetCur(), 1);
    EXPECT_TRUE(Holds(list, {}));
}

TEST(QnGeIntervalList, AddingAListToItselfChangesNothing) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}, {4.0, 5.0}});
    const QnGeIntervalList& self = list;
    list += self;
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {2.0, 3.0}, {4.0, 5.0}}));
}

TEST(QnGeIntervalList, SubtractingAListFromItselfEmptiesIt) {
    QnGeIntervalList list = Make({{0.0, 1.0}, {2.0, 3.0}, {4.0, 5.0}});
    const QnGeIntervalList& self = list;
    list -= self;
    EXPECT_TRUE(Holds(list, {}));
}

TEST(QnGeIntervalList, OperatorsAnswerTheList) {
    QnGeIntervalList list;
    QnGeIntervalList& added = list += QnGeInterval(0.0, 1.0);
    QnGeIntervalList& subtracted = list -= QnGeInterval(5.0, 6.0);
    EXPECT_EQ(&added, &list);
    EXPECT_EQ(&subtracted, &list);
}

TEST(QnGeIntervalList, KeptOddAnEmptyIntervalIsInsertedAsItIs) {
    QnGeIntervalList list = Make({{0.0, 1.0}});
    list += QnGeInterval(3.0, 3.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {3.0, 3.0}}));
    list += QnGeInterval(0.5, 0.5);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {3.0, 3.0}}));
}

TEST(QnGeIntervalList, KeptOddSubtractingAnEmptyIntervalSplits) {
    QnGeIntervalList list = Make({{0.0, 3.0}});
    list -= QnGeInterval(1.0, 1.0);
    EXPECT_TRUE(Holds(list, {{0.0, 1.0}, {1.0, 3.0}}));
}

TEST(QnGeIntervalList, AgreesWithTheCellModel) {
    Random random(2204);
    CompareWithTheModel(random, 0.0);
}

TEST(QnGeIntervalList, AgreesWithTheCellModelUnderNoise) {
    Random random(2205);
    CompareWithTheModel(random, 0.2e-9);
}
