// SPDX-License-Identifier: Apache-2.0
#include "containers/QnStack.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

int Top(const QnStack<int>& stack) {
    int top = -1;
    EXPECT_TRUE(stack.GetTopData(top));
    return top;
}

}  // namespace

TEST(QnDListStack, NewStackIsEmptyAndUnlimited) {
    QnDListStack<int> stack;
    int value = 77;
    EXPECT_TRUE(stack.IsEmpty());
    EXPECT_EQ(stack.GetDepth(), 0);
    EXPECT_EQ(stack.GetMaxDepth(), -1);
    EXPECT_FALSE(stack.IsDepthLimited());
    EXPECT_FALSE(stack.CanGoBack());
    EXPECT_FALSE(stack.CanGoAhead());
    EXPECT_FALSE(stack.GoBack());
    EXPECT_FALSE(stack.GoAhead());
    EXPECT_FALSE(stack.Pop(value));
    EXPECT_FALSE(stack.GetTopData(value));
    EXPECT_EQ(value, 77);
}

TEST(QnDListStack, PushOverwritesThePlaceThatGoBackLeft) {
    QnDListStack<char> stack;
    char top = ' ';
    EXPECT_TRUE(stack.Push('a'));
    EXPECT_TRUE(stack.Push('b'));
    EXPECT_TRUE(stack.GoBack());
    EXPECT_TRUE(stack.Push('c'));
    EXPECT_EQ(stack.GetDepth(), 2);
    EXPECT_TRUE(stack.GetTopData(top));
    EXPECT_EQ(top, 'c');
    EXPECT_FALSE(stack.CanGoAhead());
    EXPECT_FALSE(stack.GoAhead());
    EXPECT_EQ(stack.GetDepth(), 2);
}

TEST(QnDListStack, GoBackAndGoAheadStepWithoutDeleting) {
    QnDListStack<int> stack;
    for (const int v : {1, 2, 3}) {
        stack.Push(v);
    }
    EXPECT_TRUE(stack.GoBack());
    EXPECT_EQ(Top(stack), 2);
    EXPECT_TRUE(stack.GoBack());
    EXPECT_TRUE(stack.GoBack());
    EXPECT_EQ(stack.GetDepth(), 0);
    EXPECT_TRUE(stack.IsEmpty());
    EXPECT_FALSE(stack.GoBack()) << "not round to the last element";
    EXPECT_EQ(stack.GetDepth(), 0);
    int value = 0;
    EXPECT_FALSE(stack.Pop(value));
    EXPECT_FALSE(stack.GetTopData(value));
    EXPECT_TRUE(stack.GoAhead());
    EXPECT_EQ(Top(stack), 1);
    EXPECT_TRUE(stack.GoAhead());
    EXPECT_TRUE(stack.GoAhead());
    EXPECT_EQ(Top(stack), 3);
    EXPECT_FALSE(stack.GoAhead());
    EXPECT_EQ(stack.GetDepth(), 3);
}

TEST(QnDListStack, PopAfterGoBackCutsTheWayAhead) {
    QnDListStack<int> stack;
    for (const int v : {1, 2, 3}) {
        stack.Push(v);
    }
    stack.GoBack();
    int value = 0;
    EXPECT_TRUE(stack.Pop(value));
    EXPECT_EQ(value, 2);
    EXPECT_EQ(stack.GetDepth(), 1);
    EXPECT_FALSE(stack.CanGoAhead()) << "the top limit is the depth";
    EXPECT_EQ(Top(stack), 1);
}

TEST(QnDListStack, MaximumDepthRefusesMore) {
    QnDListStack<int> stack(2);
    EXPECT_TRUE(stack.IsDepthLimited());
    EXPECT_TRUE(stack.Push(1));
    EXPECT_TRUE(stack.Push(2));
    EXPECT_FALSE(stack.Push(3));
    EXPECT_EQ(Top(stack), 2);
    stack.GoBack();
    EXPECT_TRUE(stack.Push(4));
    stack.SetMaxDepth(3);
    EXPECT_EQ(stack.GetMaxDepth(), 3);
    EXPECT_TRUE(stack.Push(5));
    EXPECT_FALSE(stack.Push(6));
    stack.SetMaxDepth(-1);
    EXPECT_TRUE(stack.Push(7));
    QnDListStack<int> none(0);
    EXPECT_TRUE(none.IsDepthLimited());
    EXPECT_FALSE(none.Push(1));
}

TEST(QnDListStack, ReadingByIndexLeavesTheDepth) {
    QnDListStack<int> stack;
    for (const int v : {1, 2, 3}) {
        stack.Push(v);
    }
    EXPECT_EQ(stack[0], 1);
    EXPECT_EQ(stack[2], 3);
    stack[1] = 9;
    EXPECT_EQ(stack.GetDepth(), 3);
    int value = 0;
    EXPECT_TRUE(stack.Pop(value));
    EXPECT_EQ(value, 3);
    EXPECT_TRUE(stack.Pop(value));
    EXPECT_EQ(value, 9);
}

TEST(QnDListStack, ResetEmptiesStackAndLimit) {
    QnDListStack<int> stack;
    stack.Push(1);
    stack.Push(2);
    stack.GoBack();
    stack.Reset();
    EXPECT_EQ(stack.GetDepth(), 0);
    EXPECT_FALSE(stack.CanGoAhead());
    EXPECT_TRUE(stack.Push(5));
    EXPECT_EQ(Top(stack), 5);
}

TEST(QnDListStack, CopiesStandAtTheSameDepth) {
    LiveScope scope;
    QnDListStack<LiveObject> stack;
    for (const int v : {1, 2, 3}) {
        stack.Push(LiveObject(v));
    }
    stack.GoBack();
    QnDListStack<LiveObject> copy(stack);
    QnDListStack<LiveObject> assigned;
    assigned.Push(LiveObject(8));
    assigned = stack;
    LiveObject top;
    for (QnDListStack<LiveObject>* const one : {&copy, &assigned}) {
        EXPECT_EQ(one->GetDepth(), 2);
        EXPECT_TRUE(one->GetTopData(top));
        EXPECT_EQ(top.key, 2);
        EXPECT_TRUE(one->GoAhead());
        EXPECT_TRUE(one->Pop(top));
        EXPECT_EQ(top.key, 3);
    }
    EXPECT_EQ(stack.GetDepth(), 2);
    const QnDListStack<LiveObject>& same = stack;
    stack = same;
    EXPECT_EQ(stack.GetDepth(), 2);
}

TEST(QnDListStack, APushedOwnElementIsCopiedFirst) {
    QnDListStack<int> stack;
    stack.Push(4);
    EXPECT_TRUE(stack.Push(stack[0]));
    EXPECT_EQ(Top(stack), 4);
}

TEST(QnDListStack, RandomHistoriesAgreeWithTheVector) {
    constexpr unsigned HISTORIES = 10000;
    constexpr int STEPS = 30;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        RandomSource random(BaseSeed() + k);
        HistoryLog log;
        const long maxDepth = random.Long(-1, 8);
        QnDListStack<int> stack(maxDepth);
        std::vector<int> places;  // what stands behind the depth may come back by GoAhead
        std::size_t depth = 0;
        std::size_t limit = 0;
        for (int step = 0; step < STEPS && !HasFailure(); ++step) {
            const int v = random.Int(0, 99);
            int popped = -1;
            switch (random.Int(0, 5)) {
                case 0:
                case 1: {
                    log.Note("Push", v);
                    const bool fits = maxDepth < 0 || static_cast<long>(depth) < maxDepth;
                    EXPECT_EQ(stack.Push(v), fits);
                    if (fits) {
                        places.resize(std::max(places.size(), depth + 1));
                        places[depth] = v;
                        limit = ++depth;
                    }
                    break;
                }
                case 2:
                    log.Note("Pop");
                    EXPECT_EQ(stack.Pop(popped), depth > 0);
                    if (depth > 0) {
                        EXPECT_EQ(popped, places[depth - 1]);
                        places.erase(places.begin() + static_cast<long>(depth) - 1);
                        limit = --depth;
                    }
                    break;
                case 3:
                    log.Note("GoBack");
                    EXPECT_EQ(stack.GoBack(), depth > 0);
                    depth -= depth > 0 ? 1 : 0;
                    break;
                case 4:
                    log.Note("GoAhead");
                    EXPECT_EQ(stack.GoAhead(), depth < limit);
                    depth += depth < limit ? 1 : 0;
                    break;
                default:
                    EXPECT_EQ(stack.CanGoBack(), depth > 0);
                    EXPECT_EQ(stack.CanGoAhead(), depth < limit);
                    for (std::size_t i = 0; i < depth; ++i) {
                        EXPECT_EQ(stack[static_cast<long>(i)], places[i]);
                    }
            }
            EXPECT_EQ(stack.GetDepth(), static_cast<long>(depth));
            EXPECT_EQ(stack.IsEmpty(), depth == 0);
            EXPECT_EQ(stack.GetTopData(popped), depth > 0);
            if (depth > 0) {
                EXPECT_EQ(popped, places[depth - 1]);
            }
        }
        if (HasFailure()) {
            ADD_FAILURE() << "seed " << BaseSeed() + k << ", steps so far:\n" << log.Text();
        }
    }
}
