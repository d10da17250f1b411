// SPDX-License-Identifier: Apache-2.0
// Nodes and arcs of a caller's own graph, and the containers of them that the library keeps compiled.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "containers/QnGraphContainers.h"

namespace {

/// A node that is ordered by its name, against the order of the flag words.
class NamedNode : public QnGraphNode {
public:
    explicit NamedNode(int name) : m_name(name) { ++s_alive; }
    NamedNode(const NamedNode& other) : QnGraphNode(other), m_name(other.m_name) { ++s_alive; }
    NamedNode& operator=(const NamedNode&) = default;
    ~NamedNode() override { --s_alive; }

    int CmpNode(const QnGraphNode& other) const override {
        return 100 * (m_name - static_cast<const NamedNode&>(other).m_name);
    }
    int Name() const { return m_name; }
    inline static int s_alive = 0;

private:
    int m_name;
};

class NamedArc : public QnGraphArc {
public:
    explicit NamedArc(int name) : m_name(name) { ++s_alive; }
    NamedArc(const NamedArc& other) : QnGraphArc(other), m_name(other.m_name) { ++s_alive; }
    NamedArc& operator=(const NamedArc&) = default;
    ~NamedArc() override { --s_alive; }

    int CmpArc(const QnGraphArc& other) const override {
        return 100 * (m_name - static_cast<const NamedArc&>(other).m_name);
    }
    int Name() const { return m_name; }
    inline static int s_alive = 0;

private:
    int m_name;
};

template <class Named, class Element>
std::vector<int> Names(const QnDList<Element*>& list) {
    std::vector<int> names;
    for (Element* const* p = list.GetFirst(); p != nullptr; p = list.GetNext(p)) {
        names.push_back(static_cast<const Named*>(*p)->Name());
    }
    return names;
}

template <class Element>
void ExpectOrderOfWords(const Element& low, const Element& high) {
    EXPECT_TRUE(low < high);
    EXPECT_FALSE(low > high);
    EXPECT_FALSE(low == high);
    EXPECT_TRUE(low != high);
    EXPECT_TRUE(high > low);
    EXPECT_FALSE(high < low);
    EXPECT_FALSE(low < low);
    EXPECT_FALSE(low > low);
    EXPECT_TRUE(low == low);
    EXPECT_FALSE(low != low);
}

template <class Owner, class Named>
void ExpectOwningListWorks() {
    const int before = Named::s_alive;
    {
        Owner list;
        for (const int name : {3, 1, 2}) {
            EXPECT_TRUE(list.SortInto(new Named(name), false));
        }
        EXPECT_EQ((Names<Named>(list)), (std::vector<int>{1, 2, 3}));
        list.Sort(false);
        EXPECT_EQ((Names<Named>(list)), (std::vector<int>{3, 2, 1}));
        EXPECT_EQ(list.FindData(Named(2), 0, -1), 1);
        EXPECT_EQ(list.FindData(Named(5), 0, -1), -1);
        list.MoveTo(1);
        list.DelCur();
        EXPECT_EQ(Named::s_alive, before + 2);
        Owner other;
        other.Conbine(list, 0);
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_EQ((Names<Named>(other)), (std::vector<int>{3, 1}));
        const std::unique_ptr<Named> taken(static_cast<Named*>(other.TakeOffHead()));
        EXPECT_EQ(taken->Name(), 3);
    }
    EXPECT_EQ(Named::s_alive, before);
}

template <class Borrower, class Named>
void ExpectBorrowingListWorks() {
    const int before = Named::s_alive;
    Named a(1);
    Named b(2);
    Named c(1);
    {
        Borrower list;
        list.Append(&b);
        list.Append(&a);
        list.Append(&c);
        EXPECT_EQ(list.Find(&c), 2) << "pointers are compared, not elements";
        list.Rotate(1, 0);
        EXPECT_EQ((Names<Named>(list)), (std::vector<int>{1, 1, 2}));
        list.ReverseList();
        EXPECT_EQ((Names<Named>(list)), (std::vector<int>{2, 1, 1}));
        const Borrower copy(list);
        EXPECT_EQ(copy.GetAt(2), &a);
        list.DelHead();
        EXPECT_EQ(list.GetLength(), 2);
    }
    EXPECT_EQ(Named::s_alive, before + 3) << "nothing is owned";
}

}  // namespace

TEST(QnGraphNode, IsZeroWhenNewAndCopiesItsWord) {
    QnGraphNode node;
    EXPECT_EQ(node.GetBits(), 0U);
    node.SetBits(5);
    const QnGraphNode copy(node);
    EXPECT_EQ(copy.GetBits(), 5U);
    EXPECT_TRUE(copy == node);
}

TEST(QnGraphNode, ComparesByTheUnsignedWord) {
    QnGraphNode low;
    QnGraphNode high;
    low.SetBits(0x7FFFFFFFU);
    high.SetBits(0x80000000U);
    ExpectOrderOfWords(low, high);
    EXPECT_EQ(low.CmpNode(high), -1);
    EXPECT_EQ(low.CmpNode(low), 0);
    EXPECT_EQ(high.CmpNode(low), 1);
}

TEST(QnGraphNode, OperatorsGoThroughTheVirtualComparison) {
    NamedNode low(1);
    NamedNode high(2);
    low.SetBits(9);
    high.SetBits(3);
    ExpectOrderOfWords<QnGraphNode>(low, high);
}

TEST(QnGraphArc, IsZeroWhenNewAndCopiesItsWord) {
    QnGraphArc arc;
    EXPECT_EQ(arc.GetBits(), 0U);
    arc.SetBits(5);
    const QnGraphArc copy(arc);
    EXPECT_EQ(copy.GetBits(), 5U);
    EXPECT_TRUE(copy == arc);
}

TEST(QnGraphArc, ComparesByTheUnsignedWord) {
    QnGraphArc low;
    QnGraphArc high;
    low.SetBits(0x7FFFFFFFU);
    high.SetBits(0x80000000U);
    ExpectOrderOfWords(low, high);
    EXPECT_EQ(low.CmpArc(high), -1);
    EXPECT_EQ(low.CmpArc(low), 0);
    EXPECT_EQ(high.CmpArc(low), 1);
}

TEST(QnGraphArc, OperatorsGoThroughTheVirtualComparison) {
    NamedArc low(1);
    NamedArc high(2);
    low.SetBits(9);
    high.SetBits(3);
    ExpectOrderOfWords<QnGraphArc>(low, high);
}

TEST(QnGraphContainers, OwningListsOfNodes) {
    ExpectOwningListWorks<QnPDList<QnGraphNode>, NamedNode>();
    ExpectOwningListWorks<QnPXList<QnGraphNode>, NamedNode>();
}

TEST(QnGraphContainers, OwningListsOfArcs) {
    ExpectOwningListWorks<QnPDList<QnGraphArc>, NamedArc>();
    ExpectOwningListWorks<QnPXList<QnGraphArc>, NamedArc>();
}

TEST(QnGraphContainers, BorrowingListsOfNodes) {
    ExpectBorrowingListWorks<QnDList<QnGraphNode*>, NamedNode>();
    ExpectBorrowingListWorks<QnXList<QnGraphNode*>, NamedNode>();
}

TEST(QnGraphContainers, BorrowingListsOfArcs) {
    ExpectBorrowingListWorks<QnDList<QnGraphArc*>, NamedArc>();
    ExpectBorrowingListWorks<QnXList<QnGraphArc*>, NamedArc>();
}
