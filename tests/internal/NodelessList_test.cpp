// SPDX-License-Identifier: Apache-2.0
//
// A list that keeps its boxes without nodes, against a plain one with the same boxes and cursor.
#include "spatial/detail/NodelessList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "containers/KeepReachable.h"
#include "internal/ListOperations.h"

namespace {

using list_operations::Box;
using list_operations::Compare;
using list_operations::Contents;
using list_operations::List;
using list_operations::Operation;
using list_operations::PlainList;

/// Keeps its boxes in a vector until nodes are asked for.
class Kept final : public qn_detail::NodelessList {
    using Box = list_operations::Box;

public:
    Kept(const std::vector<Box*>& boxes, long cursor) : m_boxes(boxes) {
        m_nLength = static_cast<long>(boxes.size());
        m_nCur = cursor;
    }

    bool HasNodes() const { return m_hasNodes; }
    /// For who detaches nodes: the nodes made are not to count as leaked.
    void KeepNodesReachable() { m_isReachable = true; }

protected:
    void MakeNodes() override {
        if (m_hasNodes) {
            return;
        }
        m_hasNodes = true;
        for (Box* box : m_boxes) {
            LinkAtEnd(box);
        }
        FinishNodes();
        if (m_isReachable) {
            KeepReachable<Box*>(*this, 0);
        }
    }

private:
    std::vector<Box*> m_boxes;
    bool m_hasNodes = false;
    bool m_isReachable = false;
};

/// Some boxes in no order of addresses, nor of places.
class Sample {
public:
    explicit Sample(long length) : m_boxes(static_cast<std::size_t>(length)) {
        for (std::size_t i = 0; i < m_boxes.size(); ++i) {
            m_boxes[i].SetRange(static_cast<double>(i * 5 % 7), 9.0, 0.0, 0.0);
            m_list.push_back(&m_boxes[i]);
        }
        std::reverse(m_list.begin() + length / 2, m_list.end());
    }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    const std::vector<Box*>& Get() const { return m_list; }
    long GetLength() const { return static_cast<long>(m_list.size()); }
    std::vector<long> Cursors() const {
        std::vector<long> cursors;
        for (long i = -1; i < GetLength(); ++i) {
            cursors.push_back(i);
        }
        return cursors;
    }

private:
    std::vector<Box> m_boxes;
    std::vector<Box*> m_list;
};

constexpr long LENGTHS[] = {0, 1, 2, 3, 5, 8};

}  // namespace

TEST(NodelessList, LengthAndCursorAreTrueWithoutNodes) {
    const Sample sample(3);
    const Kept kept(sample.Get(), 2);
    EXPECT_EQ(kept.GetLength(), 3);
    EXPECT_EQ(kept.GetMaxIndex(), 2);
    EXPECT_EQ(kept.GetCur(), 2);
    EXPECT_FALSE(kept.IsOut());
    EXPECT_FALSE(kept.IsEmpty());
    EXPECT_TRUE(kept.IsValidIndex(2));
    EXPECT_FALSE(kept.IsValidIndex(3));
    EXPECT_FALSE(kept.HasNodes());
    EXPECT_TRUE(Kept(sample.Get(), -1).IsOut());
    EXPECT_TRUE(Kept({}, -1).IsEmpty());
}

TEST(NodelessList, EveryOperationMakesTheNodesAndIsThatOfAPlainList) {
    for (const long length : LENGTHS) {
        const Sample sample(length);
        for (const long cursor : sample.Cursors()) {
            for (const Operation& operation : list_operations::OverriddenOperations()) {
                Kept kept(sample.Get(), cursor);
                PlainList plain(sample.Get(), cursor);
                EXPECT_EQ(Compare(operation, kept, plain), "") << length << " boxes, cursor " << cursor;
            }
            for (const Operation& operation : list_operations::OverriddenOperations()) {
                Kept kept(sample.Get(), cursor);
                if (length >= operation.fewest) {
                    operation.run(kept);
                    EXPECT_TRUE(kept.HasNodes()) << operation.name;
                }
            }
        }
    }
}

TEST(NodelessList, OperationsMadeOfOthersAreThoseOfAPlainList) {
    for (const long length : LENGTHS) {
        const Sample sample(length);
        for (const long cursor : sample.Cursors()) {
            for (const Operation& operation : list_operations::OtherOperations()) {
                Kept kept(sample.Get(), cursor);
                PlainList plain(sample.Get(), cursor);
                EXPECT_EQ(Compare(operation, kept, plain), "") << length << " boxes, cursor " << cursor;
            }
        }
    }
}

TEST(NodelessList, AnythingCanFollowAnything) {
    const std::vector<Operation> all = list_operations::AllOperations();
    const Sample sample(5);
    for (const Operation& first : all) {
        for (const Operation& second : all) {
            Kept kept(sample.Get(), 2);
            PlainList plain(sample.Get(), 2);
            first.run(kept);
            first.run(plain);
            ASSERT_EQ(Compare(second, kept, plain), "") << "after " << first.name;
        }
    }
}

TEST(NodelessList, DetachingMakesTheNodesAndCutsBehindTheCursor) {
    for (const long length : LENGTHS) {
        const Sample sample(length);
        for (const long cursor : sample.Cursors()) {
            Kept kept(sample.Get(), cursor);
            PlainList plain(sample.Get(), cursor);
            kept.KeepNodesReachable();
            KeepReachable<Box*>(plain, 0);
            kept.DetachAfterCur();
            plain.DetachAfterCur();
            EXPECT_TRUE(kept.HasNodes());
            EXPECT_EQ(Contents(kept), Contents(plain));
            EXPECT_EQ(CheckList<Box*>(kept), "");
            kept.Append(list_operations::Stranger(0));
            plain.Append(list_operations::Stranger(0));
            EXPECT_EQ(Contents(kept), Contents(plain));
        }
    }
}

TEST(NodelessList, ListsWithoutNodesCombine) {
    const Sample first(3);
    const Sample second(4);
    for (long from = -1; from <= 4; ++from) {
        Kept kept(first.Get(), 0);
        Kept other(second.Get(), -1);
        PlainList plain(first.Get(), 0);
        PlainList plainOther(second.Get(), -1);
        EXPECT_EQ(kept.Conbine(other, from), plain.Conbine(plainOther, from));
        EXPECT_EQ(Contents(kept), Contents(plain));
        EXPECT_EQ(Contents(other), Contents(plainOther));
        EXPECT_EQ(CheckList<Box*>(kept), "");
        EXPECT_EQ(CheckList<Box*>(other), "");
    }
}
