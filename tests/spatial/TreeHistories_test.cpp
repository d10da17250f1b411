// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGeOctree.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/RandomSource.h"
#include "support/reference/PlainQuadTree.h"

// Random histories of trees of boxes. After each step the quad tree is that of the plain form, node by node and list by
// list; and it holds and finds what a plain list of the same boxes holds and finds. Octrees against the list alone.

namespace {

constexpr int HISTORIES = 10000;

/// Of coordinates near the tolerance apart. A tree that grows may have a border just beyond the tolerance from a box,
/// and rounding brings it within when it becomes a centre line; hence no step of which the tolerance is a multiple
/// there.
constexpr double FINE_STEP = 5e-7;
constexpr double FINE_STEP_OF_GROWING = 3.7e-7;

/// One coordinate range of a box: of any size, on a lattice, near the middle by `fine` steps, or anything.
QnGeExtent RandomRange(RandomSource& random, int kind, double half, double fine) {
    double a = random.Double(-half, half);
    double b = a + std::pow(10.0, random.Double(-4, 0.5));
    if (kind == 1) {
        a = random.Int(-8, 7) * half / 8.0;
        b = a + random.Int(0, 4) * half / 8.0;
    } else if (kind == 2) {
        a = random.Int(-4, 4) * fine;
        b = a + random.Int(0, 8) * fine;
    } else if (kind == 3) {
        b = random.Double(-half, half);
    }
    return QnGeExtent(std::min(a, b), std::max(a, b));
}

template <class Box>
struct History {
    RandomSource random;
    std::vector<std::unique_ptr<Box>> store;
    std::vector<Box*> held;

    explicit History(unsigned seed) : random(seed) {}

    Box* Keep(std::unique_ptr<Box> box) {
        store.push_back(std::move(box));
        return store.back().get();
    }
    /// Takes some box out of the plain list.
    Box* TakeOne() {
        const auto at = held.begin() + random.Long(0, static_cast<long>(held.size()) - 1);
        Box* const box = *at;
        held.erase(at);
        return box;
    }
};

class QuadHistory : History<QnGeExtent2d> {
public:
    explicit QuadHistory(unsigned seed) : History<QnGeExtent2d>(seed) {
        m_half = random.OneIn(4) ? 1e4 : 8.0;
        m_grows = random.Coin();
        if (!m_grows) {
            const double edge = m_half + 8.0;
            tree.SetRange(-edge, edge, -edge, edge);
            plain.SetRange(-edge, edge, -edge, edge);
        }
    }

    void Run(int steps) {
        for (int i = 0; i < steps; ++i) {
            Step();
            const std::string different = tree_checks::CompareQuadTree(tree, plain);
            ASSERT_EQ(different, "");
        }
        ASSERT_EQ(tree_checks::CheckQuadTree(tree), "");
        ASSERT_EQ(Sorted(AllOf(tree)), Sorted(held));
    }

private:
    QnGeExtent2d RandomBox() {
        const int kind = random.Int(0, 3);
        const double fine = m_grows ? FINE_STEP_OF_GROWING : FINE_STEP;
        const QnGeExtent first = RandomRange(random, kind, m_half, fine);
        return QnGeExtent2d(first, RandomRange(random, random.OneIn(3) ? random.Int(0, 3) : kind, m_half, fine));
    }

    void Step() {
        const int choice = random.Int(0, 9);
        if (choice < 5 || held.empty()) {
            QnGeExtent2d* const box = Keep(std::make_unique<QnGeExtent2d>(RandomBox()));
            held.push_back(box);
            if (m_grows) {
                tree += box;
                plain += box;
            } else {
                tree.Insert(box);
                plain.Insert(box);
            }
            return;
        }
        if (choice < 7) {
            QnGeExtent2d* const box = TakeOne();
            if (m_grows && random.Coin()) {
                tree -= box;
                plain -= box;
            } else {
                ASSERT_TRUE(tree.Delete(box, false));
                ASSERT_TRUE(plain.Delete(box));
            }
            ASSERT_FALSE(tree.Delete(box, false)) << "twice";
            return;
        }
        if (choice == 7 && m_grows) {
            tree.Compress();
            plain.Compress();
            return;
        }
        Ask();
    }

    void Ask() {
        const QnGeExtent2d window = RandomBox();
        Boxes2d expected;
        plain.HitTest(window, expected);
        const Boxes2d found = HitsOf(tree, window);
        ASSERT_EQ(found, expected) << "order of the boxes in a window";
        Boxes2d listed;
        for (QnGeExtent2d* box : held) {
            if (box->IsInsersectWith(window)) {
                listed.push_back(box);
            }
        }
        ExpectFound(found, listed, [&](const QnGeExtent2d& box) { return box.IsConnectWith(window); });
        const double px = random.OneIn(3) ? 5e-7 * random.Int(-5, 5) : random.Double(-m_half, m_half);
        const double py = random.OneIn(3) ? window.y.min : random.Double(-m_half, m_half);
        expected.clear();
        plain.HitTest(px, py, expected);
        const Boxes2d hits = HitsOf(tree, px, py);
        ASSERT_EQ(hits, expected) << "order of the boxes at a point";
        listed.clear();
        for (QnGeExtent2d* box : held) {
            if (box->IsInclude(px, py)) {
                listed.push_back(box);
            }
        }
        ExpectFound(hits, listed, [&](const QnGeExtent2d& box) {
            return px >= box.x.min && px <= box.x.max && py >= box.y.min && py <= box.y.max;
        });
    }

    /// What is found is in the list; what of the list is not found only touches by the tolerance.
    template <class Surely>
    static void ExpectFound(const Boxes2d& found, const Boxes2d& listed, const Surely& surely) {
        const std::multiset<QnGeExtent2d*> in = Sorted(found);
        for (QnGeExtent2d* box : found) {
            ASSERT_EQ(in.count(box), 1U);
            ASSERT_NE(std::find(listed.begin(), listed.end(), box), listed.end());
        }
        for (QnGeExtent2d* box : listed) {
            ASSERT_TRUE(in.count(box) == 1U || !surely(*box)) << box->x.min << ' ' << box->x.max << ' ' << box->y.min;
        }
    }

    QnGeQuadTree2d tree;
    PlainQuadTree plain;
    double m_half;
    bool m_grows;
};

class OctreeHistory : History<QnGeExtent3d> {
public:
    explicit OctreeHistory(unsigned seed) : History<QnGeExtent3d>(seed) {
        m_grows = random.Coin();
        if (!m_grows) {
            tree.SetRange(-16, 16, -16, 16, -16, 16);
        }
    }

    void Run(int steps) {
        for (int i = 0; i < steps && !testing::Test::HasFatalFailure(); ++i) {
            Step();
        }
        ASSERT_EQ(Sorted(All()), Sorted(held));
    }

private:
    QnGeExtent3d RandomBox() {
        const int kind = random.Int(0, 3);
        const double fine = m_grows ? FINE_STEP_OF_GROWING : FINE_STEP;
        const QnGeExtent first = RandomRange(random, kind, HALF, fine);
        const QnGeExtent second = RandomRange(random, kind, HALF, fine);
        return QnGeExtent3d(first, second, RandomRange(random, random.OneIn(3) ? random.Int(0, 3) : kind, HALF, fine));
    }

    Boxes3d All() const {
        return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.GetAllExtent(r); });
    }

    void Step() {
        const int choice = random.Int(0, 8);
        if (choice < 5 || held.empty()) {
            QnGeExtent3d* const box = Keep(std::make_unique<QnGeExtent3d>(RandomBox()));
            held.push_back(box);
            if (m_grows) {
                tree += box;
                ASSERT_TRUE(tree.IsInside(*box));
            } else {
                tree.Insert(box);
            }
            return;
        }
        if (choice < 7) {
            QnGeExtent3d* const box = TakeOne();
            if (m_grows && random.Coin()) {
                tree -= box;
                ASSERT_EQ(All().size(), held.size()) << "nothing else leaves";
            } else {
                ASSERT_TRUE(tree.Delete(box, false));
            }
            ASSERT_FALSE(tree.Delete(box, false)) << "twice";
            return;
        }
        Ask();
    }

    void Ask() {
        const QnGeExtent3d window = RandomBox();
        const Boxes3d found =
            tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.HitTest(window, r); });
        const double px = window.x.min;
        const double py = window.y.GetCenter();
        const double pz = window.z.max;
        const Boxes3d hits =
            tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.HitTest(px, py, pz, r); });
        for (QnGeExtent3d* box : held) {
            const auto times = std::count(found.begin(), found.end(), box);
            ASSERT_LE(times, box->IsInsersectWith(window) ? 1 : 0);
            ASSERT_GE(times, box->IsConnectWith(window) ? 1 : 0);
            const bool within = px >= box->x.min && px <= box->x.max && py >= box->y.min && py <= box->y.max &&
                                pz >= box->z.min && pz <= box->z.max;
            const auto hit = std::count(hits.begin(), hits.end(), box);
            ASSERT_LE(hit, box->IsInclude(px, py, pz) ? 1 : 0);
            ASSERT_GE(hit, within ? 1 : 0);
        }
    }

    static constexpr double HALF = 8.0;
    QnGeOctree tree;
    bool m_grows;
};

template <class Kind>
void RunHistories() {
    for (int i = 0; i < HISTORIES; ++i) {
        const unsigned seed = BaseSeed() + static_cast<unsigned>(i);
        SCOPED_TRACE("seed " + std::to_string(seed));
        const int steps = i % 100 == 0 ? 400 : 10 + i % 40;
        Kind(seed).Run(steps);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

}  // namespace

TEST(TreeHistories, QuadTreeIsThatOfThePlainFormAndFindsWhatAListFinds) {
    RunHistories<QuadHistory>();
}

TEST(TreeHistories, OctreeFindsWhatAListFinds) {
    RunHistories<OctreeHistory>();
}
