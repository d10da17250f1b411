// SPDX-License-Identifier: Apache-2.0
//
// Random histories on the quad tree and on its plain form at once: the same nodes, the same lists in the same order,
// the same answers in the same order.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/RandomSource.h"
#include "support/reference/PlainQuadTree.h"

namespace {

using Box = QnGeExtent2d;

/// "" or where the two trees differ first.
std::string Difference(const QnGeQuadTree2d& tree, const PlainQuadTree& plain, const std::string& path = "root") {
    if (tree.x.min != plain.Range.x.min || tree.x.max != plain.Range.x.max || tree.y.min != plain.Range.y.min ||
        tree.y.max != plain.Range.y.max || tree.CenterX != plain.CenterX || tree.CenterY != plain.CenterY) {
        return path + ": range";
    }
    if (tree.OneExtent != plain.OneExtent) {
        return path + ": single box";
    }
    if ((tree.ExtentList != nullptr) != plain.HasList) {
        return path + ": has a list or not";
    }
    if (tree.ExtentList != nullptr) {
        std::vector<Box*> list;
        for (Box* const* entry = tree.ExtentList->GetFirst(); entry != nullptr;
             entry = tree.ExtentList->GetNext(entry)) {
            list.push_back(*entry);
        }
        if (list != plain.ExtentList || tree.ExtentList->GetLength() != static_cast<long>(list.size())) {
            return path + ": order of the list";
        }
    }
    for (int i = 0; i < 4; ++i) {
        if ((tree.Child[i] != nullptr) != (plain.Child[i] != nullptr)) {
            return path + ": child " + std::to_string(i);
        }
        if (tree.Child[i] != nullptr) {
            std::string found = Difference(*tree.Child[i], *plain.Child[i], path + " " + std::to_string(i));
            if (!found.empty()) {
                return found;
            }
        }
    }
    return "";
}

std::vector<Box*> ToVector(const QnDynArray<Box*>& found) {
    std::vector<Box*> boxes;
    for (Box* const* entry = found.GetFirst(); entry != nullptr; entry = found.GetNext(entry)) {
        boxes.push_back(*entry);
    }
    return boxes;
}

/// The kinds of boxes that make trees different.
enum class Boxes {
    SMALL,       ///< all over the area
    VARIED,      ///< of sizes from a thousandth to the whole
    ROW,         ///< across the middle line
    LATTICE,     ///< corners on a coarse lattice, many on centre lines and equal to others
    CONCENTRIC,  ///< about one point
    TOLERANCE,   ///< corners within a few tolerances of the middle lines
    FAR,         ///< small, and far from the origin
    KINDS
};

constexpr double HALF_AREA = 64.0;
constexpr double FAR_X = 500000.0;
constexpr double FAR_Y = 4000000.0;

Box MakeBox(Boxes kind, RandomSource& random) {
    const auto about = [](double x, double y, double dx, double dy) { return Box(x - dx, x + dx, y - dy, y + dy); };
    const double x = random.Double(-HALF_AREA, HALF_AREA) * 0.9;
    const double y = random.Double(-HALF_AREA, HALF_AREA) * 0.9;
    const double d = random.Double(0.0, 0.5);
    switch (kind) {
        case Boxes::SMALL:
            return about(x, y, d, random.Double(0.0, 0.5));
        case Boxes::VARIED: {
            const double size = 0.05 * HALF_AREA * std::pow(2.0, random.Double(-10.0, 0.0));
            return about(x, y, size * d, size * random.Double(0.0, 1.0));
        }
        case Boxes::ROW:
            return random.OneIn(8) ? about(random.Double(-1.0, 1.0), y, 2.0, d) : about(x, d, d, 1.0);
        case Boxes::LATTICE: {
            const auto at = [&random] { return static_cast<double>(random.Int(-12, 12)) * 4.0; };
            const double left = at();
            const double low = at();
            return Box(left, left + static_cast<double>(random.Int(0, 2)) * 4.0, low,
                       low + static_cast<double>(random.Int(0, 2)) * 4.0);
        }
        case Boxes::CONCENTRIC:
            return random.Coin() ? about(0.0, 0.0, 10.0 * d, 10.0 * d) : about(0.25, 7.0, d, d);
        case Boxes::TOLERANCE: {
            const auto near = [&random] { return static_cast<double>(random.Int(-6, 6)) * 0.5 * g_distZero; };
            const double left = random.Coin() ? near() : x;
            const double low = random.Coin() ? near() : y;
            return Box(left, left + (random.Coin() ? d : 0.0), low, low + (random.Coin() ? d : 0.0));
        }
        default:
            return about(FAR_X + x, FAR_Y + y, d, d);
    }
}

/// One history on both trees.
class TwoTrees {
public:
    TwoTrees(Boxes kind, unsigned seed, bool isGrowing) : m_kind(kind), m_random(seed), m_isGrowing(isGrowing) {
        const double x = kind == Boxes::FAR ? FAR_X : 0.0;
        const double y = kind == Boxes::FAR ? FAR_Y : 0.0;
        m_tree.SetRange(x - HALF_AREA, x + HALF_AREA, y - HALF_AREA, y + HALF_AREA);
        m_plain.SetRange(x - HALF_AREA, x + HALF_AREA, y - HALF_AREA, y + HALF_AREA);
    }

    void Insert() {
        if (!m_boxes.empty() && m_random.OneIn(50)) {
            Insert(m_boxes[PickIndex()].get());  // a second time
            return;
        }
        m_boxes.push_back(std::make_unique<Box>(MakeBox(m_kind, m_random)));
        Insert(m_boxes.back().get());
    }

    void Delete() {
        if (m_in.empty()) {
            return;
        }
        const std::size_t i = static_cast<std::size_t>(m_random.Long(0, static_cast<long>(m_in.size()) - 1));
        Box* const box = m_in[i];
        if (m_isGrowing) {
            m_tree -= box;
            m_plain -= box;
        } else {
            const bool isFound = m_tree.Delete(box, false);
            ASSERT_EQ(isFound, m_plain.Delete(box));
        }
        m_in[i] = m_in.back();
        m_in.pop_back();
    }

    void Compress() {
        if (m_isGrowing) {
            m_tree.Compress();
            m_plain.Compress();
        }
    }

    void Query() {
        Box box = MakeBox(m_kind, m_random);
        QnDynArray<Box*> found;
        std::vector<Box*> expected;
        const double x = m_random.Coin() ? box.x.min : box.x.GetCenter();
        const double y = m_random.Coin() ? box.y.max : box.y.GetCenter();
        m_tree.HitTest(x, y, found);
        m_plain.HitTest(x, y, expected);
        ASSERT_EQ(ToVector(found), expected) << "at " << x << ", " << y;

        box.Inflate(m_random.Coin() ? m_random.Double(0.0, 40.0) : 0.0);
        found.Reset();
        expected.clear();
        m_tree.HitTest(box, found);
        m_plain.HitTest(box, expected);
        ASSERT_EQ(ToVector(found), expected) << "box about " << box.x.GetCenter() << ", " << box.y.GetCenter();
    }

    void Compare() const {
        ASSERT_EQ(Difference(m_tree, m_plain), "");
        QnDynArray<Box*> all;
        std::vector<Box*> expected;
        m_tree.GetAllExtent(all);
        m_plain.GetAllExtent(expected);
        ASSERT_EQ(ToVector(all), expected);
    }

    /// `length` random steps, of which more are insertions than deletions in the first half and fewer in the second.
    void Run(long length, long compareEvery) {
        for (long i = 0; i < length; ++i) {
            const int step = m_random.Int(0, 9);
            const bool isFirstHalf = 2 * i < length;
            if (step < (isFirstHalf ? 6 : 2)) {
                Insert();
            } else if (step < 8) {
                Delete();
            } else if (step == 8) {
                Query();
            } else {
                Compress();
            }
            if (i % compareEvery == 0) {
                Compare();
            }
            if (::testing::Test::HasFatalFailure()) {
                return;
            }
        }
        Compare();
    }

private:
    void Insert(Box* box) {
        if (m_isGrowing) {
            m_tree += box;
            m_plain += box;
        } else {
            m_tree.Insert(box);
            m_plain.Insert(box);
        }
        m_in.push_back(box);
    }
    std::size_t PickIndex() {
        return static_cast<std::size_t>(m_random.Long(0, static_cast<long>(m_boxes.size()) - 1));
    }

    Boxes m_kind;
    RandomSource m_random;
    bool m_isGrowing;
    QnGeQuadTree2d m_tree;
    PlainQuadTree m_plain;
    std::vector<std::unique_ptr<Box>> m_boxes;
    std::vector<Box*> m_in;
};

void RunHistories(long histories, long length, long compareEvery) {
    for (long i = 0; i < histories; ++i) {
        const auto kind = static_cast<Boxes>(i % static_cast<long>(Boxes::KINDS));
        const unsigned seed = BaseSeed() + static_cast<unsigned>(i);
        TwoTrees(kind, seed, i % 3 == 0).Run(length, compareEvery);
        if (::testing::Test::HasFatalFailure()) {
            FAIL() << "history " << i << ", kind " << static_cast<int>(kind) << ", seed " << seed;
        }
    }
}

}  // namespace

TEST(QuadTreeAgainstPlain, ShortHistoriesGiveTheSameTreesAndAnswers) {
    constexpr long HISTORIES = 10000;
    constexpr long LENGTH = 60;
    RunHistories(HISTORIES, LENGTH, LENGTH / 4);
}

TEST(QuadTreeAgainstPlain, LongHistoriesGiveTheSameTreesAndAnswers) {
    constexpr long HISTORIES = 140;
    constexpr long LENGTH = 4000;
    RunHistories(HISTORIES, LENGTH, LENGTH / 16);
}
