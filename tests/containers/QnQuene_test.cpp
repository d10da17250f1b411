// SPDX-License-Identifier: Apache-2.0
#include "containers/QnQuene.h"

#include <gtest/gtest.h>

#include <deque>

#include "support/LiveObject.h"
#include "support/RandomSource.h"

TEST(QnListQuene, NewQueueIsEmptyAndUnlimited) {
    QnListQuene<int> queue;
    int value = 77;
    EXPECT_TRUE(queue.IsEmpty());
    EXPECT_EQ(queue.GetLength(), 0);
    EXPECT_FALSE(queue.DeQuene(value));
    EXPECT_FALSE(queue.GetHeadData(value));
    EXPECT_FALSE(queue.GetTailData(value));
    EXPECT_EQ(value, 77);
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(queue.EnQuene(i));
    }
    EXPECT_EQ(queue.GetLength(), 100);
}

TEST(QnListQuene, FirstInIsFirstOut) {
    QnListQuene<int> queue;
    for (const int v : {1, 2, 3}) {
        EXPECT_TRUE(queue.EnQuene(v));
    }
    int value = 0;
    EXPECT_TRUE(queue.GetHeadData(value));
    EXPECT_EQ(value, 1);
    EXPECT_TRUE(queue.GetTailData(value));
    EXPECT_EQ(value, 3);
    EXPECT_EQ(queue.GetLength(), 3);
    EXPECT_EQ(queue[1], 2);
    for (const int expected : {1, 2, 3}) {
        EXPECT_TRUE(queue.DeQuene(value));
        EXPECT_EQ(value, expected);
    }
    EXPECT_TRUE(queue.IsEmpty());
}

TEST(QnListQuene, TheLimitRefusesMore) {
    QnListQuene<int> queue(2);
    int value = 0;
    EXPECT_TRUE(queue.EnQuene(1));
    EXPECT_TRUE(queue.EnQuene(2));
    EXPECT_FALSE(queue.EnQuene(3));
    EXPECT_TRUE(queue.DeQuene(value));
    EXPECT_TRUE(queue.EnQuene(4));
    EXPECT_EQ(queue[1], 4);
    QnListQuene<int> none(0);
    EXPECT_FALSE(none.EnQuene(1));
}

TEST(QnListQuene, ResetEmptiesAndObjectsAreFreedOnce) {
    LiveScope scope;
    {
        QnListQuene<LiveObject> queue;
        for (int i = 0; i < 10; ++i) {
            queue.EnQuene(LiveObject(i));
        }
        QnListQuene<LiveObject> copy(queue);
        queue.Reset();
        EXPECT_EQ(queue.GetLength(), 0);
        EXPECT_TRUE(queue.EnQuene(LiveObject(3)));
        LiveObject head;
        EXPECT_TRUE(copy.DeQuene(head));
        EXPECT_EQ(head.key, 0);
        EXPECT_EQ(copy.GetLength(), 9);
        copy = queue;
        EXPECT_EQ(copy.GetLength(), 1);
    }
}

TEST(QnListQuene, RandomHistoriesAgreeWithTheStandardQueue) {
    constexpr unsigned HISTORIES = 10000;
    constexpr int STEPS = 30;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        RandomSource random(BaseSeed() + k);
        const long limit = random.Long(-1, 10);
        QnListQuene<int> queue(limit);
        std::deque<int> expected;
        SCOPED_TRACE("seed " + std::to_string(BaseSeed() + k));
        for (int step = 0; step < STEPS; ++step) {
            const int v = random.Int(0, 99);
            int value = -1;
            if (random.OneIn(3)) {
                ASSERT_EQ(queue.DeQuene(value), !expected.empty());
                if (!expected.empty()) {
                    ASSERT_EQ(value, expected.front());
                    expected.pop_front();
                }
            } else {
                const bool fits = limit < 0 || static_cast<long>(expected.size()) < limit;
                ASSERT_EQ(queue.EnQuene(v), fits);
                if (fits) {
                    expected.push_back(v);
                }
            }
            ASSERT_EQ(queue.GetLength(), static_cast<long>(expected.size()));
            for (std::size_t i = 0; i < expected.size(); ++i) {
                ASSERT_EQ(queue[static_cast<long>(i)], expected[i]);
            }
        }
    }
}
