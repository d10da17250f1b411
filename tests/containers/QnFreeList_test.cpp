// SPDX-License-Identifier: Apache-2.0
#include "containers/QnFreeList.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

using Node = QnFreeList<LiveObject>;
using DNode = QnFreeDList<LiveObject>;

/// A chain of `count` nodes with keys 0, 1, ... The caller owns it by its first node.
Node* MakeChain(int count) {
    Node* first = nullptr;
    for (int key = count - 1; key >= 0; --key) {
        Node* const node = new Node;
        node->data.key = key;
        node->SetNext(first);
        first = node;
    }
    return first;
}

/// The same with links both ways; the last node comes out, too.
DNode* MakeLinked(int count, DNode** last = nullptr) {
    DNode* const first = new DNode;
    DNode* end = first;
    for (int key = 1; key < count; ++key) {
        DNode* const node = new DNode;
        node->data.key = key;
        end->Link(node);
        end = node;
    }
    if (last != nullptr) {
        *last = end;
    }
    return first;
}

class QnFreeListTest : public ::testing::Test {
protected:
    LiveScope m_scope;
};

using QnFreeDListTest = QnFreeListTest;

}  // namespace

TEST_F(QnFreeListTest, NewNodeStandsAlone) {
    const Node node;
    EXPECT_EQ(node.next, nullptr);
    EXPECT_EQ(node.data.key, 0);
    const QnFreeList<double> number;
    EXPECT_EQ(number.data, 0.0);
}

TEST_F(QnFreeListTest, DestructorDeletesTheWholeChain) {
    Node* const first = MakeChain(5);
    EXPECT_EQ(m_scope.Count(), 5);
    delete first;
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnFreeListTest, ALongChainDoesNotRecurse) {
    delete MakeChain(1000000);
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnFreeListTest, SetNextDeletesNothing) {
    Node* const first = MakeChain(3);
    Node* const old = first->next;
    first->SetNext(nullptr);
    EXPECT_EQ(m_scope.Count(), 3);
    delete first;
    EXPECT_EQ(m_scope.Count(), 2);
    delete old;
}

TEST_F(QnFreeListTest, ClearNextUnhooksAndGivesTheFollowingNode) {
    Node* const first = MakeChain(3);
    Node* const rest = first->ClearNext();
    EXPECT_EQ(rest->data.key, 1);
    EXPECT_EQ(first->next, nullptr);
    EXPECT_EQ(first->ClearNext(), nullptr);
    Node* const last = rest->Detach();
    EXPECT_EQ(last->data.key, 2);
    EXPECT_EQ(rest->next, nullptr);
    delete first;
    delete rest;
    delete last;
}

TEST_F(QnFreeListTest, ARingIsDeletedOnce) {
    for (const int count : {1, 2, 3, 10, 100000}) {
        Node* const first = MakeChain(count);
        Node* last = first;
        while (last->next != nullptr) {
            last = last->next;
        }
        last->SetNext(first);
        delete first;
        EXPECT_EQ(m_scope.Count(), 0) << "ring of " << count;
    }
}

TEST_F(QnFreeDListTest, LinkJoinsBothWays) {
    DNode* last = nullptr;
    DNode* const first = MakeLinked(3, &last);
    DNode* const middle = last->previous;
    EXPECT_EQ(middle->data.key, 1);
    EXPECT_EQ(middle->next, last);
    EXPECT_EQ(middle->previous, first);
    EXPECT_EQ(first->next, middle);
    EXPECT_EQ(first->previous, nullptr);
    delete first;
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnFreeDListTest, LinkCutsTheOldLinkAndUnhooksFromTheFormerPredecessor) {
    DNode* const a = MakeLinked(2);
    DNode* const b = static_cast<DNode*>(a->next);
    DNode* const c = MakeLinked(2);
    DNode* const d = static_cast<DNode*>(c->next);
    a->Link(d);
    EXPECT_EQ(a->next, d);
    EXPECT_EQ(d->previous, a);
    EXPECT_EQ(b->previous, nullptr);
    EXPECT_EQ(c->next, nullptr);
    a->Link(nullptr);
    EXPECT_EQ(a->next, nullptr);
    EXPECT_EQ(d->previous, nullptr);
    EXPECT_EQ(m_scope.Count(), 4);
    for (DNode* const node : {a, b, c, d}) {
        delete node;
    }
}

TEST_F(QnFreeDListTest, LinkingTheSameNodeAgainKeepsIt) {
    DNode* const first = MakeLinked(2);
    DNode* const second = static_cast<DNode*>(first->next);
    first->Link(second);
    EXPECT_EQ(first->next, second);
    EXPECT_EQ(second->previous, first);
    delete first;
}

TEST_F(QnFreeDListTest, ClearNextAlsoClearsTheLinkBack) {
    DNode* const first = MakeLinked(3);
    DNode* const rest = first->ClearNext();
    EXPECT_EQ(rest->data.key, 1);
    EXPECT_EQ(rest->previous, nullptr);
    EXPECT_EQ(first->next, nullptr);
    delete first;
    EXPECT_EQ(m_scope.Count(), 2);
    delete rest;
}

TEST_F(QnFreeDListTest, SetNextSetsNoLinkBackAndDropsTheOldOne) {
    DNode* const first = MakeLinked(2);
    DNode* const second = static_cast<DNode*>(first->next);
    DNode* const other = new DNode;
    first->SetNext(other);
    EXPECT_EQ(first->next, other);
    EXPECT_EQ(other->previous, nullptr);
    EXPECT_EQ(second->previous, nullptr);
    EXPECT_EQ(m_scope.Count(), 3);
    delete first;
    EXPECT_EQ(m_scope.Count(), 1);
    delete second;
}

TEST_F(QnFreeDListTest, DeletingAMiddleNodeCutsItFromItsPredecessor) {
    DNode* const first = MakeLinked(4);
    delete first->next->next;
    EXPECT_EQ(m_scope.Count(), 2);
    EXPECT_EQ(first->next->next, nullptr);
    delete first;
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnFreeDListTest, RingsAndLongChainsAreDeletedOnce) {
    for (const int count : {1, 2, 3, 10, 100000}) {
        DNode* last = nullptr;
        DNode* const ring = MakeLinked(count, &last);
        last->Link(ring);
        EXPECT_EQ(ring->previous, last);
        delete ring;
        EXPECT_EQ(m_scope.Count(), 0) << "ring of " << count;
    }
    delete MakeLinked(1000000);
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnFreeDListTest, RandomLinkingKeepsBothDirectionsTogether) {
    constexpr unsigned HISTORIES = 10000;
    constexpr long COUNT = 6;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        RandomSource random(BaseSeed() + k);
        SCOPED_TRACE("seed " + std::to_string(BaseSeed() + k));
        DNode* nodes[COUNT];
        std::vector<long> next(COUNT, -1);
        for (DNode*& node : nodes) {
            node = new DNode;
        }
        for (int step = 0; step < 12; ++step) {
            const long from = random.Long(0, COUNT - 1);
            const long to = random.Long(-1, COUNT - 1);
            for (long& target : next) {
                target = to >= 0 && target == to ? -1 : target;  // `to` leaves its former predecessor
            }
            next[static_cast<std::size_t>(from)] = to;
            if (to < 0) {
                nodes[from]->ClearNext();
            } else {
                nodes[from]->Link(nodes[to]);
            }
            for (long i = 0; i < COUNT; ++i) {
                const long target = next[static_cast<std::size_t>(i)];
                ASSERT_EQ(nodes[i]->next, target < 0 ? nullptr : nodes[target]) << "node " << i << ", step " << step;
                const DNode* predecessor = nullptr;
                for (long j = 0; j < COUNT; ++j) {
                    predecessor = next[static_cast<std::size_t>(j)] == i ? nodes[j] : predecessor;
                }
                ASSERT_EQ(nodes[i]->previous, predecessor) << "node " << i << ", step " << step;
            }
        }
        for (DNode* const node : nodes) {
            node->ClearNext();
        }
        for (DNode* const node : nodes) {
            delete node;
        }
    }
}
