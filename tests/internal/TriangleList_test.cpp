// SPDX-License-Identifier: Apache-2.0
//
// The list of triangles that a tree cell keeps in a row of places: order, cursor and hits are those of a plain list.
#include "terrain/detail/TriangleList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "frame/QnPushVar.h"
#include "internal/ListOperations.h"
#include "support/RandomSource.h"
#include "terrain/detail/TreePlace.h"

namespace {

using list_operations::Box;
using list_operations::Contents;
using list_operations::Operation;
using list_operations::PlainList;
using qn_detail::TreePlace;
using qn_detail::TriangleList;
using Triangle = QnGeTINTriangle;
using Places = std::vector<std::uint32_t>;

/// A list beside what must be in it, in that order.
class Row {
public:
    TriangleList list;
    QnGeExtent2d range{-100.0, 100.0, -100.0, 100.0};
    std::vector<Triangle*> expected;

    Triangle* Add(double xMin = -1.0, double xMax = 1.0, double yMin = -1.0, double yMax = 1.0) {
        m_all.push_back(std::make_unique<Triangle>());
        Triangle* const triangle = m_all.back().get();
        triangle->SetRange(xMin, xMax, yMin, yMax);
        list.Add(triangle, range);
        expected.push_back(triangle);
        return triangle;
    }
    void AddMany(long count) {
        for (long i = 0; i < count; ++i) {
            Add();
        }
    }

    void RemoveAt(std::size_t i) {
        list.Remove(expected[i]);
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
    }

    Places GetPlaces() const {
        Places places;
        for (const Triangle* triangle : expected) {
            places.push_back(TreePlace::PlaceOf(*triangle));
        }
        return places;
    }

    std::vector<Box*> Boxes() const { return std::vector<Box*>(expected.begin(), expected.end()); }

    std::vector<Box*> Hits(const QnGePoint& point) const {
        std::vector<Box*> hits = Boxes();
        const auto isMissed = [&point](const Box* box) { return !box->IsInclude(point.x, point.y); };
        hits.erase(std::remove_if(hits.begin(), hits.end(), isMissed), hits.end());
        return hits;
    }

    std::vector<Box*> Find(const QnGePoint& point) {
        return tree_checks::Asked<Box*>([&](QnDynArray<Box*>& found) { list.Find(point, range, found); });
    }

    /// The places rise in the order of the list, without a node being made.
    void ExpectRow() const {
        EXPECT_TRUE(list.IsInRow());
        EXPECT_EQ(list.GetLength(), static_cast<long>(expected.size()));
        const Places places = GetPlaces();
        EXPECT_EQ(std::adjacent_find(places.begin(), places.end(), std::greater_equal<>()), places.end());
        EXPECT_EQ(list.GetLastTriangle(), expected.empty() ? nullptr : expected.back());
    }

    /// Makes the nodes.
    void ExpectElements() {
        EXPECT_EQ(tree_checks::Elements<Box*>(list), Boxes());
        EXPECT_FALSE(list.IsInRow());
        EXPECT_EQ(list.GetLastTriangle(), expected.empty() ? nullptr : expected.back());
        EXPECT_EQ(CheckList<Box*>(list), "");
    }

private:
    std::vector<std::unique_ptr<Triangle>> m_all;
};

const QnGePoint MIDDLE(0.0, 0.0);

}  // namespace

// ---- in the row ------------------------------------------------------------------------------------

TEST(TriangleList, IsEmptyAndOutAtFirst) {
    Row row;
    row.ExpectRow();
    EXPECT_TRUE(row.list.IsEmpty());
    EXPECT_TRUE(row.list.IsOut());
    EXPECT_TRUE(row.Find(MIDDLE).empty());
    EXPECT_TRUE(row.list.IsInRow());
    row.ExpectElements();
}

TEST(TriangleList, TheCursorIsOnWhatCameAndOutAfterRemoving) {
    Row row;
    for (long i = 0; i < 9; ++i) {
        row.Add();
        EXPECT_EQ(row.list.GetCur(), i);
    }
    for (long left = 8; left >= 0; --left) {
        row.RemoveAt(static_cast<std::size_t>(left / 2));
        EXPECT_EQ(row.list.GetCur(), -1);
        EXPECT_EQ(row.list.GetLength(), left);
        row.ExpectRow();
    }
    row.Add();
    EXPECT_EQ(row.list.GetCur(), 0);
}

TEST(TriangleList, APlaceIsUsedAgainOnlyAtTheEndOfTheRow) {
    Row row;
    row.AddMany(3);
    EXPECT_EQ(row.GetPlaces(), (Places{0, 1, 2}));
    row.RemoveAt(2);
    row.Add();
    EXPECT_EQ(row.GetPlaces(), (Places{0, 1, 2}));
    row.RemoveAt(0);
    EXPECT_EQ(row.GetPlaces(), (Places{1, 2}));
    row.RemoveAt(1);
    row.Add();
    EXPECT_EQ(row.GetPlaces(), (Places{1, 2}));
    row.RemoveAt(1);
    row.RemoveAt(0);
    row.Add();
    EXPECT_EQ(row.GetPlaces(), (Places{0}));
    row.ExpectElements();
}

TEST(TriangleList, AFullRowIsTidiedAndKeepsItsOrder) {
    Row row;
    row.AddMany(3);  // as many as have a place in the object
    row.RemoveAt(1);
    EXPECT_EQ(row.GetPlaces(), (Places{0, 2}));
    row.Add();
    EXPECT_EQ(row.GetPlaces(), (Places{0, 1, 2}));
    row.ExpectRow();
    row.Add();
    EXPECT_EQ(row.GetPlaces(), (Places{0, 1, 2, 3}));
    row.ExpectRow();
    row.ExpectElements();
}

TEST(TriangleList, KeepsTheOrderWhileTheRowGrowsAndShrinks) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + 60; ++seed) {
        RandomSource random(seed);
        Row row;
        for (int phase = 0; phase < 6; ++phase) {
            const auto aim = static_cast<std::size_t>(random.OneIn(3) ? random.Long(0, 3) : random.Long(0, 120));
            for (int step = 0; step < 250; ++step) {
                const bool isTooLong = row.expected.size() > aim;
                if (row.expected.empty() || random.OneIn(4) == isTooLong) {
                    row.Add();
                    ASSERT_EQ(row.list.GetCur(), row.list.GetLength() - 1);
                } else {
                    const long last = row.list.GetLength() - 1;
                    row.RemoveAt(static_cast<std::size_t>(random.OneIn(3) ? last : random.Long(0, last)));
                    ASSERT_EQ(row.list.GetCur(), -1);
                }
                if (step % 10 == 0) {
                    row.ExpectRow();
                    ASSERT_EQ(row.Find(MIDDLE), row.Boxes());
                }
                ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
            }
        }
        row.ExpectElements();
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

// ---- in nodes --------------------------------------------------------------------------------------

namespace {

/// Rows with and without holes, in the object or not, with the cursor out or on the last.
void MakeRow(int kind, long length, Row& row) {
    const long more = kind % 2 == 0 ? 0 : 2;
    const bool isOut = kind >= 2;
    row.AddMany(length + more - (isOut ? 0 : 1));
    if (isOut && more == 0) {
        row.Add();
        row.RemoveAt(0);
    }
    for (long i = more; i > 0; --i) {
        row.RemoveAt(static_cast<std::size_t>(i * (row.list.GetLength() - 1) / 3));
    }
    if (!isOut) {
        row.Add();
    }
}

constexpr int KINDS = 4;
constexpr long LENGTHS[] = {1, 2, 3, 4, 7, 30};

}  // namespace

TEST(TriangleList, EveryOperationOfListsIsThatOfAPlainList) {
    for (const Operation& operation : list_operations::AllOperations()) {
        for (const long length : LENGTHS) {
            for (int kind = 0; kind < KINDS; ++kind) {
                Row row;
                MakeRow(kind, length, row);
                row.ExpectRow();
                ASSERT_EQ(row.list.GetLength(), length);
                PlainList plain(row.Boxes(), row.list.GetCur());
                ASSERT_EQ(row.list.GetCur(), kind < 2 ? length - 1 : -1);
                ASSERT_EQ(list_operations::Compare(operation, row.list, plain), "")
                    << length << " triangles, kind " << kind;
            }
        }
    }
}

TEST(TriangleList, EveryOverriddenOperationMakesNodes) {
    for (const Operation& operation : list_operations::OverriddenOperations()) {
        for (int kind = 0; kind < KINDS; ++kind) {
            Row row;
            MakeRow(kind, 4, row);
            operation.run(row.list);
            EXPECT_FALSE(row.list.IsInRow()) << operation.name;
        }
    }
}

TEST(TriangleList, AnEmptiedListIsAPlainEmptyOne) {
    for (const Operation& operation : list_operations::AllOperations()) {
        Row row;
        row.AddMany(2);
        row.RemoveAt(0);
        row.RemoveAt(0);
        PlainList plain({}, -1);
        EXPECT_EQ(list_operations::Compare(operation, row.list, plain), "");
    }
}

TEST(TriangleList, TheCursorStepsFromWhereItStood) {
    Row row;
    row.AddMany(5);
    row.list.MoveToPre();
    EXPECT_EQ(row.list.GetCur(), 3);
    EXPECT_EQ(row.list.GetCurData(), row.expected[3]);
    Row other;
    other.AddMany(5);
    other.RemoveAt(2);
    other.list.MoveToNext();
    EXPECT_EQ(other.list.GetCur(), 0);
    EXPECT_EQ(other.list.GetCurData(), other.expected[0]);
}

TEST(TriangleList, AskingForLengthAndCursorMakesNoNodes) {
    Row row;
    row.AddMany(4);
    EXPECT_EQ(row.list.GetLength(), 4);
    EXPECT_EQ(row.list.GetMaxIndex(), 3);
    EXPECT_EQ(row.list.GetCur(), 3);
    EXPECT_FALSE(row.list.IsEmpty());
    EXPECT_FALSE(row.list.IsOut());
    EXPECT_TRUE(row.list.IsValidIndex(3));
    EXPECT_EQ(row.list.GetLastTriangle(), row.expected[3]);
    EXPECT_TRUE(row.list.IsInRow());
}

TEST(TriangleList, TrianglesComeAndGoInNodesToo) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + 40; ++seed) {
        RandomSource random(seed);
        Row row;
        row.AddMany(random.Long(0, 200));
        for (int i = 0; i < 12; ++i) {
            row.Find(MIDDLE);  // a long one has an index now
        }
        row.ExpectElements();
        for (int step = 0; step < 60; ++step) {
            if (row.expected.empty() || random.Coin()) {
                row.Add();
                ASSERT_EQ(row.list.GetCur(), row.list.GetLength() - 1);
            } else {
                row.RemoveAt(static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1)));
            }
            row.list.MoveTo(random.Long(-1, row.list.GetLength()));
            ASSERT_EQ(row.list.GetLastTriangle(), row.expected.empty() ? nullptr : row.expected.back());
            ASSERT_EQ(row.Find(MIDDLE), row.Boxes());
        }
        row.ExpectElements();
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

// ---- searching -------------------------------------------------------------------------------------

namespace {

constexpr long LONGEST_WITHOUT_INDEX = 128;
constexpr int MOST_WITHOUT_INDEX = 8;  ///< searches

/// Boxes of all sizes within the range of the cell, at its border, beyond it, or the same as another.
void AddAny(Row& row, RandomSource& random) {
    const double size = std::pow(2.0, random.Double(-14.0, 7.0));
    const double x = random.OneIn(10) ? random.Double(-150.0, 150.0) : random.Double(-100.0, 100.0);
    const double y = random.OneIn(10) ? 100.0 : random.Double(-100.0, 100.0);
    if (!row.expected.empty() && random.OneIn(6)) {
        const Triangle& other = *row.expected[static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1))];
        row.Add(other.x.min, other.x.max, other.y.min, other.y.max);
    } else if (random.OneIn(3)) {
        row.Add(-size, size, random.OneIn(9) ? -1e30 : y, y + size);
    } else {
        row.Add(x, x + (random.OneIn(4) ? 0.0 : size), y, y + size);
    }
}

/// Anywhere, or within two tolerances of the edges of a box.
QnGePoint AnyPoint(const Row& row, RandomSource& random) {
    if (row.expected.empty() || random.OneIn(3)) {
        return QnGePoint(random.OneIn(3) ? 0.0 : random.Double(-101.0, 101.0), random.Double(-101.0, 101.0));
    }
    const Triangle& box = *row.expected[static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1))];
    const double step = g_distZero / 2.0;
    return QnGePoint((random.Coin() ? box.x.min : box.x.max) + step * static_cast<double>(random.Int(-4, 4)),
                     (random.Coin() ? box.y.min : box.y.max) + step * static_cast<double>(random.Int(-4, 4)));
}

void ExpectHits(Row& row, RandomSource& random) {
    const QnGePoint point = AnyPoint(row, random);
    ASSERT_EQ(row.Find(point), row.Hits(point)) << point.x << ' ' << point.y;
}

}  // namespace

TEST(TriangleList, FindsWhatHoldsThePointInOrder) {
    Row row;
    Triangle* const first = row.Add(0.0, 2.0, 0.0, 2.0);
    row.Add(3.0, 4.0, 0.0, 2.0);
    Triangle* const third = row.Add(1.0, 5.0, 1.0, 1.0);
    EXPECT_EQ(row.Find(QnGePoint(1.0, 1.0)), (std::vector<Box*>{first, third}));
    EXPECT_EQ(row.Find(QnGePoint(2.0 + 0.5e-6, 1.5)), (std::vector<Box*>{first}));
    EXPECT_TRUE(row.Find(QnGePoint(2.0 + 2e-6, 1.5)).empty());
    row.ExpectRow();
}

TEST(TriangleList, FindAppends) {
    Row row;
    row.AddMany(2);
    QnDynArray<Box*> found;
    found.Append(list_operations::Stranger(0));
    row.list.Find(MIDDLE, row.range, found);
    EXPECT_EQ(tree_checks::Elements<Box*>(found),
              (std::vector<Box*>{list_operations::Stranger(0), row.expected[0], row.expected[1]}));
}

TEST(TriangleList, ManySearchesFindTheSame) {
    for (const long length : {LONGEST_WITHOUT_INDEX, LONGEST_WITHOUT_INDEX + 1, 5 * LONGEST_WITHOUT_INDEX}) {
        RandomSource random(BaseSeed());
        Row row;
        while (row.list.GetLength() < length) {
            AddAny(row, random);
        }
        for (int i = 0; i < 4 * MOST_WITHOUT_INDEX; ++i) {
            ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random)) << length << " triangles, search " << i;
        }
        row.ExpectRow();
        row.ExpectElements();
    }
}

TEST(TriangleList, ChangesBetweenSearchesAreSeen) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + 12; ++seed) {
        RandomSource random(seed);
        Row row;
        for (int step = 0; step < 1500; ++step) {
            const int kind = random.Int(0, 9);
            const bool isLong = row.list.GetLength() > 2 * LONGEST_WITHOUT_INDEX;
            if (row.expected.empty() || kind < (isLong ? 3 : 6)) {
                AddAny(row, random);
            } else if (kind < 8) {
                row.RemoveAt(static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1)));
            } else {
                ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random)) << "seed " << seed << " step " << step;
            }
        }
        row.ExpectRow();
        row.ExpectElements();
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed;
    }
}

TEST(TriangleList, ManyChangesWithoutASearchAreSeenByTheNext) {
    RandomSource random(BaseSeed());
    Row row;
    while (row.list.GetLength() <= LONGEST_WITHOUT_INDEX) {
        AddAny(row, random);
    }
    for (int round = 0; round < 3; ++round) {
        for (int i = 0; i < 2 * MOST_WITHOUT_INDEX; ++i) {
            ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random));
        }
        for (long i = 0; i <= MOST_WITHOUT_INDEX * row.list.GetLength(); ++i) {
            AddAny(row, random);
            row.RemoveAt(static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1)));
        }
        ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random));
        row.ExpectRow();
    }
    row.ExpectElements();
}

TEST(TriangleList, AnIndexedListThatEmptiesFillsAnew) {
    RandomSource random(BaseSeed());
    Row row;
    for (int round = 0; round < 3; ++round) {
        while (row.list.GetLength() <= LONGEST_WITHOUT_INDEX) {
            AddAny(row, random);
        }
        for (int i = 0; i < 2 * MOST_WITHOUT_INDEX; ++i) {
            ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random));
        }
        while (!row.expected.empty()) {
            row.RemoveAt(static_cast<std::size_t>(random.Long(0, row.list.GetLength() - 1)));
            ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random));
        }
        row.ExpectRow();
    }
}

TEST(TriangleList, AnotherToleranceFindsOtherBoxes) {
    RandomSource random(BaseSeed());
    Row row;
    while (row.list.GetLength() <= LONGEST_WITHOUT_INDEX) {
        AddAny(row, random);
    }
    for (const double tolerance : {1e-6, 10.0, 1e-3, 0.0, 1e30, 1e-6}) {
        const QnPushVar<double> other(g_distZero, tolerance);
        for (int i = 0; i < 2 * MOST_WITHOUT_INDEX; ++i) {
            ASSERT_NO_FATAL_FAILURE(ExpectHits(row, random)) << "tolerance " << tolerance;
        }
    }
}

TEST(TriangleList, AnIndexedListComesToNodesAsAnyOther) {
    for (const Operation& operation : list_operations::AllOperations()) {
        Row row;
        row.AddMany(LONGEST_WITHOUT_INDEX + 2);
        for (int i = 0; i < 2 * MOST_WITHOUT_INDEX; ++i) {
            row.Find(MIDDLE);
        }
        row.RemoveAt(7);
        PlainList plain(row.Boxes(), -1);
        ASSERT_EQ(list_operations::Compare(operation, row.list, plain), "");
        const std::vector<Box*> elements = tree_checks::Elements<Box*>(row.list);
        if (std::find(elements.begin(), elements.end(), nullptr) == elements.end()) {
            std::vector<Box*> hits;
            std::copy_if(elements.begin(), elements.end(), std::back_inserter(hits),
                         [](const Box* box) { return box->IsInclude(MIDDLE.x, MIDDLE.y); });
            EXPECT_EQ(row.Find(MIDDLE), hits) << operation.name;
        }
    }
}

TEST(TriangleList, PutsTheCursorOutWhenATriangleLeavesItsNodes) {
    TriangleList list;
    Triangle a;
    Triangle b;
    list.Add(&a, QnGeExtent2d(-1.0, 1.0, -1.0, 1.0));
    list.Add(&b, QnGeExtent2d(-1.0, 1.0, -1.0, 1.0));
    list.MoveToFirst();
    list.Remove(&b);
    EXPECT_EQ(list.GetCur(), -1);
}
