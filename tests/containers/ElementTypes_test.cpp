// SPDX-License-Identifier: Apache-2.0
// What the containers ask of their elements: copy, assignment and a default; everything else only where it is called.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "containers/Qn2dArray.h"
#include "containers/QnDynArray.h"
#include "containers/QnDynPArray.h"
#include "containers/QnFreeList.h"
#include "containers/QnPDList.h"
#include "containers/QnPXList.h"
#include "containers/QnQuene.h"
#include "containers/QnStack.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"

namespace {

/// No comparison at all, and no address: `&` gives nothing useful.
struct Plain {
    int value = 0;
    Plain* operator&() { return nullptr; }
    const Plain* operator&() const { return nullptr; }
};

/// Cannot be copied, and only its heirs can be made.
class Abstract {
public:
    Abstract() = default;
    Abstract(const Abstract&) = delete;
    Abstract& operator=(const Abstract&) = delete;
    virtual ~Abstract() = default;
    virtual int Answer() const = 0;
};

class Concrete : public Abstract {
public:
    int Answer() const override { return 42; }
    LiveObject part;
};

template <class Sequence>
void ExpectHoldsPlainElements() {
    Sequence s(2);
    EXPECT_EQ(s.GetAt(1).value, 0);
    for (int i = 0; i < 20; ++i) {
        s.InsertHead(Plain{i});
    }
    s.Sort(true);
    s.Sort(false);
    EXPECT_EQ(s.GetAt(0).value, 19) << "without an order everything stays";
    s.Move(0, 5);
    s.Exchange(0, 1);
    s.Reverse();
    Sequence copy(s);
    copy = s;
    copy.DelTail();
    EXPECT_EQ(copy.GetLength(), 21);
    EXPECT_EQ(CheckSequence<Plain>(s), "");
}

template <class Owner>
void ExpectOwnsAbstractObjects() {
    LiveScope scope;
    {
        Owner owner;
        for (int i = 0; i < 8; ++i) {
            owner.Append(new Concrete);
        }
        owner.Sort(true);
        owner.Move(0, 4);
        owner.DelHead();
        owner.Release(2);
        const std::unique_ptr<Abstract> taken(owner.TakeOffTail());
        EXPECT_EQ(taken->Answer(), 42);
        EXPECT_EQ(owner.GetDataNum(), 5);
        EXPECT_EQ(scope.Count(), 6);
    }
}

template <class T>
void ExpectAllHold(const std::vector<T>& values) {
    QnDynArray<T> dynamic;
    QnArray<T> exact;
    QnDList<T> list;
    QnXList<T> indexed(0, 3, 10);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const T value = values[i];
        dynamic.Append(value);
        exact.Append(value);
        list.InsertHead(value);
        indexed.SortInto(value, true);
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        const T value = values[i];
        const long k = static_cast<long>(i);
        EXPECT_TRUE(dynamic.GetAt(k) == value && exact[k] == value && list.GetAt(list.GetMaxIndex() - k) == value);
        EXPECT_GE(indexed.BFind(value), 0);
    }
    EXPECT_TRUE(dynamic == QnDynArray<T>(dynamic));
    EXPECT_EQ(CheckArray<T>(dynamic), "");
    EXPECT_EQ(CheckList<T>(indexed), "");
}

}  // namespace

TEST(ElementTypes, NoComparisonIsNeededToBeHeld) {
    ExpectHoldsPlainElements<QnDynArray<Plain>>();
    ExpectHoldsPlainElements<QnList<Plain>>();
    ExpectHoldsPlainElements<QnDList<Plain>>();
    ExpectHoldsPlainElements<QnXList<Plain>>();
    Qn2dArray<Plain> grid(2, 2);
    grid.SetAll(Plain{3});
    EXPECT_EQ(grid[1][1].value, 3);
    QnDListStack<Plain> stack;
    EXPECT_TRUE(stack.Push(Plain{1}));
    QnListQuene<Plain> queue;
    EXPECT_TRUE(queue.EnQuene(Plain{1}));
    QnFreeList<Plain> node;
    EXPECT_EQ(node.data.value, 0);
}

TEST(ElementTypes, AbstractObjectsCanBeOwned) {
    ExpectOwnsAbstractObjects<QnPDList<Abstract>>();
    ExpectOwnsAbstractObjects<QnPXList<Abstract>>();
    ExpectOwnsAbstractObjects<QnDynPArray<Abstract>>();
}

TEST(ElementTypes, NumbersFlagsAndPointers) {
    ExpectAllHold<char>({'b', 'a', 'c', 'a'});
    ExpectAllHold<int>({3, 1, 2, 3, -7});
    ExpectAllHold<long>({1L << 40, -(1L << 40), 0L});
    ExpectAllHold<double>({0.5, -0.25, 1e300, 0.0});
    ExpectAllHold<bool>({true, false, true});
    int places[3] = {};
    ExpectAllHold<int*>({&places[2], nullptr, &places[0], &places[1]});
}

TEST(ElementTypes, SequencesAsElements) {
    QnDynArray<QnDynArray<int>> rows;
    for (int i = 0; i < 30; ++i) {
        QnDynArray<int> row;
        for (int k = 0; k <= i % 7; ++k) {
            row.Append(i);
        }
        rows.Append(row);
    }
    rows.Sort(true);
    for (long i = 1; i < rows.GetLength(); ++i) {
        const QnDynArray<int>& before = rows.GetAt(i - 1);
        const QnDynArray<int>& after = rows.GetAt(i);
        EXPECT_LE(before.GetLength(), after.GetLength());
        EXPECT_TRUE(before.GetLength() < after.GetLength() || before.GetAt(0) < after.GetAt(0));
    }
    EXPECT_EQ(rows.Find(rows.GetAt(4)), 4);
}
