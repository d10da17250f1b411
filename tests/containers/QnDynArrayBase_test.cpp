// SPDX-License-Identifier: Apache-2.0
// What every sequence promises through the common base, array or list alike.
#include "containers/QnDynArrayBase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "containers/GroupedList.h"
#include "containers/QnArray.h"
#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "containers/QnList.h"
#include "containers/QnQuene.h"
#include "frame/QnGeTolerance.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

using Ints = std::vector<int>;

template <class T>
std::vector<T> Items(const QnDynArrayBase<T>& s) {
    std::vector<T> items;
    for (const T* p = s.GetFirst(); p != nullptr; p = s.GetNext(p)) {
        items.push_back(*p);
    }
    return items;
}

template <class T>
void Fill(QnDynArrayBase<T>& s, const std::vector<T>& items) {
    for (const T& item : items) {
        s << item;
    }
}

/// Kinds of sequences, as templates of the element type.
struct ArrayKind {
    template <class T>
    using Of = QnDynArray<T>;
};
struct ListKind {
    template <class T>
    using Of = QnList<T>;
};
struct DListKind {
    template <class T>
    using Of = QnDList<T>;
};
struct XListKind {
    template <class T>
    using Of = GroupedList<T, 3>;
};

}  // namespace

template <class Kind>
class AnySequence : public ::testing::Test {
protected:
    using Sequence = typename Kind::template Of<int>;
    using Doubles = typename Kind::template Of<double>;
    using Objects = typename Kind::template Of<LiveObject>;

    LiveScope m_scope;
    Sequence seq;
    QnDynArrayBase<int>& Base() { return seq; }
};

using SequenceKinds = ::testing::Types<ArrayKind, ListKind, DListKind, XListKind>;

struct SequenceNames {
    template <class Kind>
    static std::string GetName(int i) {
        static const char* const names[] = {"QnDynArray", "QnList", "QnDList", "QnXList"};
        return names[i];
    }
};
TYPED_TEST_SUITE(AnySequence, SequenceKinds, SequenceNames);

TYPED_TEST(AnySequence, MoveToItsOwnPlaceIsFalseAndChangesNothing) {
    Fill(this->Base(), {0, 1, 2, 3});
    this->seq.MoveTo(1);
    EXPECT_FALSE(this->seq.Move(2, 3));
    EXPECT_FALSE(this->seq.Move(2, 2));
    EXPECT_EQ(Items(this->Base()), (Ints{0, 1, 2, 3}));
    EXPECT_EQ(this->seq.GetCur(), 1);
}

TYPED_TEST(AnySequence, MoveLandsBeforeTheIndexWithTheCursorOnTheElement) {
    Fill(this->Base(), {0, 1, 2, 3});
    EXPECT_TRUE(this->seq.Move(0, 3));
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 0, 3}));
    EXPECT_EQ(this->seq.GetCur(), 2);
    EXPECT_EQ(this->seq.GetCurData(), 0);
    EXPECT_TRUE(this->seq.Move(3, 1));
    EXPECT_EQ(Items(this->Base()), (Ints{1, 3, 2, 0}));
    EXPECT_EQ(this->seq.GetCur(), 1);
    EXPECT_TRUE(this->seq.Move(0, 4));
    EXPECT_EQ(Items(this->Base()), (Ints{3, 2, 0, 1}));
    EXPECT_EQ(this->seq.GetCur(), 3);
}

TYPED_TEST(AnySequence, OrderComparesLengthsOnly) {
    typename TestFixture::Sequence longer;
    Fill(this->Base(), {9, 9});
    Fill<int>(longer, {1, 1, 1});
    EXPECT_TRUE(this->seq < longer);
    EXPECT_FALSE(this->seq > longer);
    EXPECT_TRUE(longer > this->seq);
    EXPECT_FALSE(longer < longer);
    EXPECT_TRUE(this->seq != longer);
}

TYPED_TEST(AnySequence, SequencesOfDifferentKindsCompareAndCopy) {
    QnDynArray<int> array;
    QnDList<int> list;
    Fill<int>(array, {1, 2, 3});
    Fill<int>(list, {1, 2, 4});
    this->seq.DeepCopy(array);
    EXPECT_TRUE(this->Base() == array);
    EXPECT_TRUE(this->Base() != list);
    this->seq.DeepCopy(list);
    EXPECT_TRUE(this->Base() == list);
    EXPECT_TRUE(this->seq.IsOut());
}

TYPED_TEST(AnySequence, FindWalksFromFirstToLast) {
    Fill(this->Base(), {5, 6, 5});
    this->seq.MoveTo(1);
    EXPECT_EQ(this->seq.Find(5, 0, -1), 0);
    EXPECT_EQ(this->seq.Find(5, 1, -1), 2);
    EXPECT_EQ(this->seq.Find(5, 1, 99), 2) << "a last index beyond the end means the end";
    EXPECT_EQ(this->seq.Find(5, 1, 1), -1);
    EXPECT_EQ(this->seq.Find(5, 5, -1), -1) << "no start";
    EXPECT_EQ(this->seq.Find(5, -1, -1), -1);
    EXPECT_EQ(this->seq.Find(7), -1);
    EXPECT_EQ(this->seq.GetCur(), 1);
    typename TestFixture::Sequence empty;
    EXPECT_EQ(empty.Find(5), -1);
}

TYPED_TEST(AnySequence, FindWithHitsCountsAllEntriesOfTheQueue) {
    Fill(this->Base(), {5, 6, 5, 5});
    QnListQuene<long> hits;
    hits.EnQuene(77);
    EXPECT_EQ(this->seq.Find(5, hits, 1, -1), 3) << "the earlier entry and two hits";
    EXPECT_EQ(hits[1], 2);
    EXPECT_EQ(hits[2], 3);
    EXPECT_EQ(this->seq.Find(5, hits, 9, -1), 3) << "no start adds nothing";
}

TYPED_TEST(AnySequence, FindToLeavesTheCursorOnTheHitOrOut) {
    Fill(this->Base(), {5, 6, 5});
    EXPECT_TRUE(this->seq.FindTo(5, 1));
    EXPECT_EQ(this->seq.GetCur(), 2);
    EXPECT_TRUE(this->seq.FindTo(5));
    EXPECT_EQ(this->seq.GetCur(), 0);
    EXPECT_FALSE(this->seq.FindTo(9));
    EXPECT_TRUE(this->seq.IsOut());
}

TYPED_TEST(AnySequence, FindDelDeletesAllEvenWhenToldByAnOwnElement) {
    Fill(this->Base(), {5, 6, 5, 5, 7});
    EXPECT_EQ(this->seq.FindDel(this->seq.GetAt(0)), 3);
    EXPECT_EQ(Items(this->Base()), (Ints{6, 7}));
    EXPECT_TRUE(this->seq.IsOut());
    EXPECT_EQ(this->seq.FindDel(5), 0);
}

TYPED_TEST(AnySequence, FindOrAppendAndFindOrInsertHead) {
    Fill(this->Base(), {5, 6});
    this->seq.MoveTo(0);
    EXPECT_EQ(this->seq.FindOrAppend(6), 1);
    EXPECT_EQ(this->seq.GetCur(), 0) << "found: the cursor stays";
    EXPECT_EQ(this->seq.FindOrAppend(7), 2);
    EXPECT_EQ(this->seq.GetCur(), 2);
    this->seq.FindOrInsertHead(5);
    this->seq.FindOrInsertHead(4);
    EXPECT_EQ(Items(this->Base()), (Ints{4, 5, 6, 7}));
}

TYPED_TEST(AnySequence, DoublesAreEqualWithinTheTolerance) {
    typename TestFixture::Doubles a;
    typename TestFixture::Doubles b;
    a << 1.0 << 2.0;
    b << 1.0 + 0.5 * g_fZero << 2.0 - 0.5 * g_fZero;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_EQ(a.Find(2.0 + 0.9 * g_fZero), 1);
    EXPECT_EQ(a.Find(2.0 + 1.5 * g_fZero), -1);
    EXPECT_TRUE(a.FindTo(1.0 - 0.9 * g_fZero));
    EXPECT_EQ(a.FindOrAppend(1.0 + 0.9 * g_fZero), 0);
    EXPECT_EQ(a.FindDel(1.0 + 0.9 * g_fZero), 1);
    a.InsertHead(1.0 + 3.0 * g_fZero);
    EXPECT_TRUE(a != b);
}

TYPED_TEST(AnySequence, SortedDoublesThatDifferByLittleBothStay) {
    typename TestFixture::Doubles a;
    EXPECT_TRUE(a.SortInto(1.0, false));
    EXPECT_TRUE(a.SortInto(1.0 + 0.1 * g_fZero, false)) << "sorted places compare exactly";
    EXPECT_FALSE(a.SortInto(1.0, false));
    EXPECT_EQ(a.GetLength(), 2);
    EXPECT_EQ(a.BFind(1.0 + 0.2 * g_fZero, 0, -1), -1);
}

TYPED_TEST(AnySequence, BFindMeetsTheMiddleOfEquals) {
    Fill(this->Base(), {1, 3, 3, 3, 3, 8});
    EXPECT_EQ(this->seq.BFind(3, 0, -1), 2) << "mid = (0 + 5) / 2";
    EXPECT_EQ(this->seq.BFind(3, 3, -1), 4);
    EXPECT_EQ(this->seq.BFind(8, 0, -1), 5);
    EXPECT_EQ(this->seq.BFind(1, 0, 99), 0);
    EXPECT_EQ(this->seq.BFind(0, 0, -1), -1);
    EXPECT_EQ(this->seq.BFind(9, 0, -1), -1);
    EXPECT_EQ(this->seq.BFind(5, 0, -1), -1);
    EXPECT_EQ(this->seq.BFind(8, 0, 4), -1) << "beyond the last index asked for";
    EXPECT_EQ(this->seq.BFind(3, 4, 2), -1) << "first after last";
    EXPECT_EQ(this->seq.BFind(3, -1, -1), -1);
    typename TestFixture::Sequence empty;
    EXPECT_EQ(empty.BFind(3), -1);
}

TYPED_TEST(AnySequence, BFindToGivesThePlaceOfInsertion) {
    EXPECT_FALSE(this->seq.BFindTo(4, 0, -1));
    Fill(this->Base(), {2, 4, 6, 8});
    EXPECT_TRUE(this->seq.BFindTo(6, 0, -1));
    EXPECT_EQ(this->seq.GetCur(), 2);
    for (const int v : {1, 3, 5, 7}) {
        EXPECT_FALSE(this->seq.BFindTo(v, 0, -1));
        EXPECT_EQ(this->seq.GetCur(), v / 2) << "on the element before which " << v << " belongs";
    }
    EXPECT_FALSE(this->seq.BFindTo(9, 0, -1));
    EXPECT_TRUE(this->seq.IsOut());
    EXPECT_FALSE(this->seq.BFindTo(9, 0, 1));
    EXPECT_EQ(this->seq.GetCur(), 2) << "one beyond the last index asked for";
    EXPECT_FALSE(this->seq.BFindTo(1, 2, -1));
    EXPECT_EQ(this->seq.GetCur(), 2) << "smaller than the first one asked for";
    EXPECT_FALSE(this->seq.BFindTo(4, -1, -1));
    EXPECT_TRUE(this->seq.IsOut());
}

TYPED_TEST(AnySequence, BFindToAgreesWithLowerBoundOnRandomSortedContent) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 2000; ++round) {
        Ints items(static_cast<std::size_t>(random.Long(0, 30)));
        std::generate(items.begin(), items.end(), [&random] { return random.Int(0, 40); });
        std::sort(items.begin(), items.end());
        this->seq.Reset();
        Fill(this->Base(), items);
        const int v = random.Int(-1, 41);
        const auto range = std::equal_range(items.begin(), items.end(), v);
        const bool found = this->seq.BFindTo(v, 0, -1);
        ASSERT_EQ(found, range.first != range.second);
        if (found) {
            ASSERT_EQ(this->seq.GetCurData(), v);
        } else if (range.first == items.end()) {
            ASSERT_TRUE(this->seq.IsOut());
        } else {
            ASSERT_EQ(this->seq.GetCur(), range.first - items.begin());
        }
        ASSERT_EQ(this->seq.BFind(v, 0, -1) >= 0, found);
    }
}

TYPED_TEST(AnySequence, SortIntoKeepsOrderEqualsInTheOrderOfArrival) {
    RandomSource random(BaseSeed());
    typename TestFixture::Objects s;
    std::vector<LiveObject> expected;
    for (int i = 0; i < 300; ++i) {
        const LiveObject object(random.Int(0, 20), i);
        EXPECT_TRUE(s.SortInto(object, true));
        EXPECT_EQ(s.GetCurData().tag, i) << "the cursor is on the new element";
        expected.push_back(object);
    }
    std::stable_sort(expected.begin(), expected.end());
    for (long i = 0; i < 300; ++i) {
        ASSERT_EQ(s.GetAt(i).tag, expected[static_cast<std::size_t>(i)].tag) << "place " << i;
    }
}

TYPED_TEST(AnySequence, SortIntoWithoutRepeatsIsASet) {
    Fill(this->Base(), {1, 2, 4});
    EXPECT_FALSE(this->seq.SortInto(2, false));
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 4}));
    EXPECT_TRUE(this->seq.SortInto(3, false));
    EXPECT_TRUE(this->seq.SortInto(0, false));
    EXPECT_TRUE(this->seq.SortInto(5, false));
    EXPECT_EQ(Items(this->Base()), (Ints{0, 1, 2, 3, 4, 5}));
}

TYPED_TEST(AnySequence, SortAgreesWithTheStableStandardSort) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 300; ++round) {
        typename TestFixture::Objects s;
        std::vector<LiveObject> expected;
        const long n = random.Long(0, 40);
        for (int i = 0; i < n; ++i) {
            const LiveObject object(random.Int(0, 9), i);
            s.Append(object);
            expected.push_back(object);
        }
        const bool ascending = random.Coin();
        if (ascending && random.Coin()) {
            s.Sort(&CompareKeys);
        } else {
            s.Sort(ascending);
        }
        std::stable_sort(expected.begin(), expected.end(),
                         [ascending](const LiveObject& a, const LiveObject& b) { return ascending ? a < b : a > b; });
        for (long i = 0; i < n; ++i) {
            ASSERT_EQ(s.GetAt(i).tag, expected[static_cast<std::size_t>(i)].tag) << "round " << round;
        }
    }
}

TYPED_TEST(AnySequence, ReverseSwapsARangeAndEndsOnTheUpperIndexOfTheLastPair) {
    Fill(this->Base(), {0, 1, 2, 3, 4});
    this->seq.Reverse(1, 4);
    EXPECT_EQ(Items(this->Base()), (Ints{0, 4, 3, 2, 1}));
    EXPECT_EQ(this->seq.GetCur(), 3);
    this->seq.Reverse();
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 3, 4, 0}));
    EXPECT_EQ(this->seq.GetCur(), 3);
    this->seq.MoveTo(0);
    this->seq.Reverse(2, 2);
    EXPECT_EQ(this->seq.GetCur(), 0) << "no pair, no move";
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 3, 4, 0}));
}

TYPED_TEST(AnySequence, ExchangeSwapsAndLeavesTheCursor) {
    Fill(this->Base(), {0, 1, 2});
    this->seq.MoveTo(1);
    this->seq.Exchange(0, 2);
    this->seq.Exchange(1, 1);
    EXPECT_EQ(Items(this->Base()), (Ints{2, 1, 0}));
    EXPECT_EQ(this->seq.GetCur(), 1);
}

TYPED_TEST(AnySequence, LeftRightAndMidFillAnyKindOfSequence) {
    Fill(this->Base(), {0, 1, 2, 3, 4});
    QnDynArray<int> array;
    QnDList<int> list;
    array << 77;
    list << 77;
    const std::vector<QnDynArrayBase<int>*> outs = {&array, &list};
    for (QnDynArrayBase<int>* const out : outs) {
        this->seq.Left(2, *out);
        EXPECT_EQ(Items(*out), (Ints{0, 1}));
        EXPECT_TRUE(out->IsOut());
        this->seq.Right(2, *out);
        EXPECT_EQ(Items(*out), (Ints{3, 4}));
        EXPECT_TRUE(out->IsOut());
        this->seq.Mid(1, 3, *out);
        EXPECT_EQ(Items(*out), (Ints{1, 2, 3}));
        EXPECT_TRUE(out->IsOut());
        this->seq.Left(0, *out);
        EXPECT_TRUE(out->IsEmpty());
    }
}

TYPED_TEST(AnySequence, PartsBeyondTheEndsAreCutToWhatIsThere) {
    Fill(this->Base(), {0, 1, 2});
    QnDynArray<int> out;
    this->seq.Left(9, out);
    EXPECT_EQ(Items<int>(out), (Ints{0, 1, 2}));
    this->seq.Right(9, out);
    EXPECT_EQ(Items<int>(out), (Ints{0, 1, 2}));
    this->seq.Mid(1, -1, out);
    EXPECT_EQ(Items<int>(out), (Ints{1, 2}));
    this->seq.Mid(2, 1, out);
    EXPECT_TRUE(out.IsEmpty());
    this->seq.Left(-1, out);
    EXPECT_TRUE(out.IsEmpty());
    this->seq.Mid(3, -1, out);
    EXPECT_TRUE(out.IsEmpty());
}

TYPED_TEST(AnySequence, ASequenceMayBecomeAPartOfItself) {
    Fill(this->Base(), {0, 1, 2, 3, 4});
    this->seq.Mid(1, 4, this->seq);
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 3, 4}));
    this->seq.Right(3, this->seq);
    EXPECT_EQ(Items(this->Base()), (Ints{2, 3, 4}));
    this->seq.Left(2, this->seq);
    EXPECT_EQ(Items(this->Base()), (Ints{2, 3}));
    EXPECT_TRUE(this->seq.IsOut());
}

TYPED_TEST(AnySequence, AppendingItselfStopsAtTheOldLength) {
    Fill(this->Base(), {1, 2, 3});
    const QnDynArrayBase<int>& self = this->seq;
    this->seq << self;
    EXPECT_EQ(Items(this->Base()), (Ints{1, 2, 3, 1, 2, 3}));
}

TYPED_TEST(AnySequence, ExactArraysCanBeAppendedAndCopied) {
    QnArray<int> exact;
    exact.Append(4);
    exact.Append(5);
    Fill(this->Base(), {1});
    this->seq << exact;
    EXPECT_EQ(Items(this->Base()), (Ints{1, 4, 5}));
    this->seq.DeepCopy(exact);
    EXPECT_EQ(Items(this->Base()), (Ints{4, 5}));
    EXPECT_TRUE(this->seq.IsOut());
    const QnArray<int> back(this->Base());
    EXPECT_TRUE(back == exact);
}

TYPED_TEST(AnySequence, SetAllFillsAndLeavesTheCursorOut) {
    Fill(this->Base(), {1, 2, 3});
    this->seq.MoveTo(1);
    this->seq.SetAll(9);
    EXPECT_EQ(Items(this->Base()), (Ints{9, 9, 9}));
    EXPECT_TRUE(this->seq.IsOut());
}

TYPED_TEST(AnySequence, SetCurDataWritesTheCurrentElement) {
    Fill(this->Base(), {1, 2, 3});
    this->seq.MoveTo(1);
    this->seq.SetCurData(9);
    this->seq.GetCurData() += 1;
    EXPECT_EQ(Items(this->Base()), (Ints{1, 10, 3}));
    EXPECT_EQ(*this->seq.GetTo(1), 10);
    EXPECT_EQ(this->seq.GetTo(3), nullptr);
    EXPECT_EQ(this->seq.GetTo(-1), nullptr);
}

TYPED_TEST(AnySequence, SizedConstructorGivesDefaultElements) {
    typename TestFixture::Sequence s(5);
    EXPECT_EQ(Items<int>(s), (Ints{0, 0, 0, 0, 0}));
    typename TestFixture::Objects objects(4);
    EXPECT_EQ(objects.GetAt(3).key, 0);
}

TYPED_TEST(AnySequence, SortIntoUsesTheOrderAndNotTheEquality) {
    // Equal under ==, yet ordered: stepping past "all equal" by == would pass the 7.
    struct Loose {
        int key = 0;
        bool operator==(const Loose&) const { return true; }
        bool operator<(const Loose& other) const { return key < other.key; }
        bool operator>(const Loose& other) const { return key > other.key; }
    };
    typename TypeParam::template Of<Loose> s;
    for (const int key : {5, 7, 5, 3, 7}) {
        EXPECT_TRUE(s.SortInto(Loose{key}, true));
    }
    for (long i = 1; i < 5; ++i) {
        EXPECT_LE(s.GetAt(i - 1).key, s.GetAt(i).key);
    }
    EXPECT_FALSE(s.SortInto(Loose{7}, false));
    EXPECT_TRUE(s.SortInto(Loose{6}, false));
}
