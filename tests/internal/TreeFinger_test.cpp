// SPDX-License-Identifier: Apache-2.0
//
// Two quad trees with one history, one of them through a finger: the same nodes, lists and answers.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "spatial/QnGeQuadTree2d.h"
#include "spatial/detail/TreeFinger.h"
#include "support/RandomSource.h"

namespace {

using Box = QnGeExtent2d;

std::vector<Box*> ToVector(const QnDynArrayBase<Box*>& found) {
    std::vector<Box*> boxes;
    for (Box* const* entry = found.GetFirst(); entry != nullptr; entry = found.GetNext(entry)) {
        boxes.push_back(*entry);
    }
    return boxes;
}

bool IsSame(const QnGeQuadTree2d& a, const QnGeQuadTree2d& b) {
    if (a.OneExtent != b.OneExtent || (a.ExtentList == nullptr) != (b.ExtentList == nullptr) || a.x.min != b.x.min ||
        a.x.max != b.x.max || a.y.min != b.y.min || a.y.max != b.y.max) {
        return false;
    }
    if (a.ExtentList != nullptr && ToVector(*a.ExtentList) != ToVector(*b.ExtentList)) {
        return false;
    }
    for (int i = 0; i < 4; ++i) {
        if ((a.Child[i] == nullptr) != (b.Child[i] == nullptr) ||
            (a.Child[i] != nullptr && !IsSame(*a.Child[i], *b.Child[i]))) {
            return false;
        }
    }
    return true;
}

/// A walk over the square from -1 to 1, along which boxes come, go and are asked for.
class TwoTrees {
public:
    explicit TwoTrees(unsigned seed)
        : m_random(seed), m_finger(m_tree), m_size(std::pow(2.0, m_random.Double(-12, 0))) {
        m_tree.SetRange(-1.0, 1.0, -1.0, 1.0);
        m_plain.SetRange(-1.0, 1.0, -1.0, 1.0);
    }

    void Insert() {
        const double dx = m_random.OneIn(5) ? 0.0 : m_random.Double(0.0, m_size);
        const double dy = m_random.OneIn(5) ? 0.0 : m_random.Double(0.0, m_size);
        m_boxes.push_back(std::make_unique<Box>(m_x, m_x + dx, m_y, m_y + dy));
        m_finger.Insert(m_boxes.back().get());
        m_plain.Insert(m_boxes.back().get());
    }

    void Delete() {
        if (m_boxes.empty()) {
            return;
        }
        const long last = static_cast<long>(m_boxes.size()) - 1;
        const auto i = static_cast<std::size_t>(m_random.Coin() ? last : m_random.Long(0, last));
        Box* const box = m_boxes[i].get();
        ASSERT_TRUE(m_finger.Delete(box));
        ASSERT_TRUE(m_plain.Delete(box, false));
        ASSERT_FALSE(m_finger.Delete(box));
        m_boxes.erase(m_boxes.begin() + static_cast<std::ptrdiff_t>(i));
    }

    void Query() {
        QnDynArray<Box*> expected;
        m_plain.HitTest(m_x, m_y, expected);
        std::vector<Box*> found;
        const bool isStopped = m_finger.VisitHits(m_x, m_y, [&found](Box* box) {
            found.push_back(box);
            return false;
        });
        ASSERT_FALSE(isStopped);
        ASSERT_EQ(found, ToVector(expected));
        if (!found.empty()) {
            Box* first = nullptr;
            ASSERT_TRUE(m_finger.VisitHits(m_x, m_y, [&first](Box* box) {
                first = box;
                return true;
            }));
            ASSERT_EQ(first, found.front());
        }
    }

    void Move() {
        if (m_random.OneIn(20)) {
            m_x = m_random.Double(-1.1, 1.1);  // also outside
            m_y = m_random.OneIn(3) ? 0.0 : m_random.Double(-1.1, 1.1);
        } else {
            m_x += m_random.Double(-m_size, m_size);
            m_y += m_random.Coin() ? 0.0 : m_random.Double(-m_size, m_size);
        }
    }

    void Run(long length) {
        for (long i = 0; i < length && !::testing::Test::HasFatalFailure(); ++i) {
            Move();
            const int step = m_random.Int(0, 9);
            if (step < 5) {
                Insert();
            } else if (step < 8) {
                Delete();
            } else {
                Query();
            }
            if (m_random.OneIn(1000)) {
                m_tree.Reset();
                m_plain.Reset();
                m_boxes.clear();
                m_finger.Forget();
            }
        }
        ASSERT_TRUE(IsSame(m_tree, m_plain));
    }

private:
    RandomSource m_random;
    QnGeQuadTree2d m_tree;
    QnGeQuadTree2d m_plain;
    qn_detail::TreeFinger m_finger;
    double m_size;
    double m_x = 0.0;
    double m_y = 0.0;
    std::vector<std::unique_ptr<Box>> m_boxes;
};

}  // namespace

TEST(TreeFinger, DoesWhatTheTreeDoesFromItsRoot) {
    constexpr unsigned HISTORIES = 2000;
    for (unsigned i = 0; i < HISTORIES; ++i) {
        TwoTrees(BaseSeed() + i).Run(i % 20 == 0 ? 2000 : 100);
        ASSERT_FALSE(HasFatalFailure()) << "seed " << BaseSeed() + i;
    }
}
