// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGePtFreeList.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

/// A chain of points 0,0 1,0 2,0 ... The caller owns it by its first node.
template <class Node>
Node* MakeChain(int count, bool ring) {
    Node* const first = new Node(QnGePoint(0.0, 0.0));
    Node* last = first;
    for (int i = 1; i < count; ++i) {
        Node* const node = new Node(QnGePoint(i, 0.0));
        last->SetNext(node);
        last = node;
    }
    if (ring) {
        last->SetNext(first);
    }
    return first;
}

}  // namespace

TEST(QnGePtFreeList, BasesAreThoseOfChainsAndFlags) {
    EXPECT_TRUE((std::is_base_of<QnFreeList<QnGePoint>, QnGePtFreeList>::value));
    EXPECT_TRUE((std::is_base_of<QnGePtFreeList, QnGePtFreeList1>::value));
    EXPECT_TRUE((std::is_base_of<QnBitData, QnGePtFreeList1>::value));
    EXPECT_TRUE((std::is_base_of<QnGePtFreeList1, QnGePtFreeList2>::value));
}

TEST(QnGePtFreeList, NewNodeStandsAlone) {
    const QnGePtFreeList plain;
    EXPECT_EQ(plain.GetNext(), nullptr);
    EXPECT_EQ(plain.CountNodes(), 1);
    const QnGePtFreeList2 node(QnGePoint(1.0, 2.0, 3.0));
    EXPECT_EQ(node.data.z, 3.0);
    EXPECT_EQ(node.GetBits(), 0U);
    EXPECT_EQ(node.m_linePa, 0.0);
}

TEST(QnGePtFreeList, CountsAChainToItsEndAndARingAllRound) {
    const std::unique_ptr<QnGePtFreeList> chain(MakeChain<QnGePtFreeList>(5, false));
    EXPECT_EQ(chain->CountNodes(), 5);
    EXPECT_EQ(chain->GetNext()->CountNodes(), 4);
    const std::unique_ptr<QnGePtFreeList> ring(MakeChain<QnGePtFreeList>(5, true));
    EXPECT_EQ(ring->CountNodes(), 5);
    EXPECT_EQ(ring->GetNext()->GetNext()->CountNodes(), 5);
}

TEST(QnGePtFreeList, FindsTheLastBeforeTheEndOrBeforeItself) {
    const std::unique_ptr<QnGePtFreeList> chain(MakeChain<QnGePtFreeList>(4, false));
    EXPECT_EQ(chain->FindLast()->data.x, 3.0);
    const std::unique_ptr<QnGePtFreeList> ring(MakeChain<QnGePtFreeList>(4, true));
    EXPECT_EQ(ring->FindLast()->data.x, 3.0);
    EXPECT_EQ(ring->GetNext()->FindLast()->data.x, 0.0);
    QnGePtFreeList single;
    EXPECT_EQ(single.FindLast(), &single);
}

TEST(QnGePtFreeList, ARingOfOneEndsItsWalksAndItsLife) {
    const std::unique_ptr<QnGePtFreeList> self(MakeChain<QnGePtFreeList>(1, true));
    EXPECT_EQ(self->GetNext(), self.get());
    EXPECT_EQ(self->CountNodes(), 1);
    EXPECT_EQ(self->FindLast(), self.get());
}

TEST(QnGePtFreeList, DetachClearsNextAndHandsTheRestOver) {
    QnGePtFreeList* const first = MakeChain<QnGePtFreeList>(3, false);
    const std::unique_ptr<QnGePtFreeList> owner(first);
    const std::unique_ptr<QnFreeList<QnGePoint>> rest(first->Detach());
    EXPECT_EQ(first->GetNext(), nullptr);
    ASSERT_NE(rest, nullptr);
    EXPECT_EQ(rest->data.x, 1.0);
    EXPECT_EQ(first->Detach(), nullptr);
}

TEST(QnGePtFreeList, AnyNodeOwnsItsRing) {
    // Deleting a node in the middle of a ring frees all of it: the leak check of the test program looks on.
    QnGePtFreeList2* const ring = MakeChain<QnGePtFreeList2>(100, true);
    delete ring->GetNext()->GetNext();
}

TEST(QnGePtFreeList, ANodeIsTakenOutOfARingByDetachingIt) {
    QnGePtFreeList* const ring = MakeChain<QnGePtFreeList>(3, true);
    QnGePtFreeList* const middle = ring->GetNext();
    ring->SetNext(middle->GetNext());
    middle->Detach();
    delete middle;
    EXPECT_EQ(ring->CountNodes(), 2);
    delete ring;
}

TEST(QnGePtFreeList, LongRingsAreFreedWithoutRecursion) {
    delete MakeChain<QnGePtFreeList>(1000000, true);
    delete MakeChain<QnGePtFreeList1>(1000000, false);
}

TEST(QnGePtFreeList, FlagsAreTheNodesOwn) {
    const std::unique_ptr<QnGePtFreeList1> ring(MakeChain<QnGePtFreeList1>(3, true));
    ring->SetBit(QnGePtFreeList1::PT_RING_TAKEN);
    EXPECT_TRUE(ring->HasBit(1U));
    EXPECT_FALSE(ring->GetNext()->HasBit(1U));
}

TEST(QnFreeDListOfPoints, LinkAndDetachKeepBothWays) {
    using Node = QnFreeDList<QnGePoint>;
    Node* const a = new Node;
    Node* const b = new Node;
    Node* const c = new Node;
    a->Link(b);
    EXPECT_EQ(b->previous, a);
    a->Link(c);  // cuts b off first
    EXPECT_EQ(b->previous, nullptr);
    EXPECT_EQ(c->previous, a);
    b->Link(c);  // unhooks c from a
    EXPECT_EQ(a->next, nullptr);
    EXPECT_EQ(c->previous, b);
    EXPECT_EQ(b->Detach(), c);
    EXPECT_EQ(c->previous, nullptr);
    c->Link(a);
    a->Link(c);  // a ring of two
    delete a;
    delete b;
}
