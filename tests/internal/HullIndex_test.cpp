// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "frame/QnPushVar.h"
#include "support/RandomSource.h"
#include "terrain/detail/HullIndex.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

// An index of a ring, and a plain walk over the same ring: whatever is done to it, no edge is passed over that faces a
// node or takes it.

namespace {

using qn_detail::HullIndex;
using Entry = HullIndex::Entry;
using Points = std::vector<QnGePoint>;

/// A ring of records without triangles, with its index.
class IndexedRing {
public:
    explicit IndexedRing(const Points& points) {
        for (const QnGePoint& p : points) {
            m_ring.Append(Record(p));
        }
        m_index = std::make_unique<HullIndex>(m_ring);
        Read();
    }

    HullIndex::Ring& GetRing() { return m_ring; }
    HullIndex& GetIndex() { return *m_index; }
    long GetLength() const { return static_cast<long>(m_entries.size()); }
    const QnGePoint& At(long i) const { return *(*m_entries[static_cast<std::size_t>(i % GetLength())])->Node; }

    /// `count` edges from `index` on give way to two by way of `p`.
    void Replace(long index, long count, const QnGePoint& p) {
        QnGeTINOutEdge* const first = Record(At(index));
        for (long i = 0; i < count; ++i) {
            m_ring.Del(index);
        }
        m_ring.Insert(index, Record(p));
        m_ring.Insert(index, first);
        const Entry entry = m_ring.GetTo(index);
        m_index->Replace(index, count, entry, m_ring.GetNext(entry));
        Read();
    }

    void Rotate(long index) {
        m_ring.Rotate(index, 0);
        m_index->Rotate(index);
        Read();
    }

    /// "", or which edge was passed over that a walk must look at.
    std::string Walk(const QnGePoint& p, long index = 0) {
        const QnGeTINNode node(p);
        Entry entry = nullptr;
        long count = 0;
        const auto passed = [&](long end) -> std::string {
            for (; index < end; ++index) {
                if (Decides(index, p)) {
                    return Text(p, "passes over edge ", index);
                }
            }
            return "";
        };
        for (long at = index; (count = m_index->FindNext(node, at, entry)) > 0;) {
            if (at < index || at + count > GetLength()) {
                return Text(p, "leaves the ring at ", at);
            }
            const std::string wrong = passed(at);
            if (!wrong.empty()) {
                return wrong;
            }
            for (long i = 0; i < count; ++i, entry = m_ring.GetNext(entry)) {
                if (entry != m_entries[static_cast<std::size_t>(at + i)]) {
                    return Text(p, "answers another entry than that of ", at + i);
                }
            }
            m_looked += count;
            at += count;
            index = at;
        }
        return passed(GetLength());
    }

    long GetLooked() const { return m_looked; }

private:
    QnGeTINOutEdge* Record(const QnGePoint& p) {
        m_nodes.push_back(std::make_unique<QnGeTINNode>(p));
        return new QnGeTINOutEdge{m_nodes.back().get(), nullptr};
    }

    void Read() {
        m_entries.clear();
        for (Entry entry = m_ring.GetFirst(); entry != nullptr; entry = m_ring.GetNext(entry)) {
            m_entries.push_back(entry);
        }
    }

    /// Whether a walk ends at this edge: it faces the node, or the node lies on it or at an end.
    bool Decides(long i, const QnGePoint& p) const {
        const QnGePoint& a = At(i);
        const QnGePoint& b = At(i + 1);
        const int turn = GetPathType(a, b, p);
        if (turn != PATH_STRAIGHT) {
            return turn == PATH_RIGHT;
        }
        if (GetDistance2d(a, p) <= g_distZero || GetDistance2d(b, p) <= g_distZero) {
            return true;
        }
        double pa = 0.0;
        QnGeBaseLine2d line;
        line.SetPoint(a, b);
        line.GetPaFromPt(p, pa);
        return pa > 0.0 && pa < 1.0;
    }

    std::string Text(const QnGePoint& p, const char* what, long i) const {
        std::ostringstream text;
        text.precision(17);
        text << what << i << " of " << GetLength() << " for " << p.x << ',' << p.y << ": " << At(i).x << ',' << At(i).y
             << ' ' << At(i + 1).x << ',' << At(i + 1).y;
        return text.str();
    }

    HullIndex::Ring m_ring;
    std::vector<std::unique_ptr<QnGeTINNode>> m_nodes;
    std::vector<Entry> m_entries;
    std::unique_ptr<HullIndex> m_index;
    long m_looked = 0;
};

Points Round(int n, double radius, double x = 0.0, double y = 0.0) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double angle = QN_TWO_PI * i / n;
        points.emplace_back(x + radius * std::cos(angle), y + radius * std::sin(angle));
    }
    return points;
}

/// The border of a square, counter-clockwise, with rows of nodes on its sides.
Points Square(int side) {
    Points points;
    for (int i = 0; i < 4 * side; ++i) {
        const int at = i % side;
        const int which = i / side;
        points.emplace_back(which == 0 ? at : (which == 1 ? side : (which == 2 ? side - at : 0)),
                            which == 0 ? 0 : (which == 1 ? at : (which == 2 ? side : side - at)));
    }
    return points;
}

/// A place near an edge, at its ends, on its line, or anywhere.
QnGePoint Place(RandomSource& random, const IndexedRing& ring, double size) {
    constexpr double STEPS[] = {0.0, 2.5e-7, 1e-6, 3e-6, 1e-5, 1e-3, 1.0};
    const long i = random.Long(0, ring.GetLength() - 1);
    const QnGePoint& a = ring.At(i);
    const QnGePoint& b = ring.At(i + 1);
    const double t = random.Coin() ? random.Int(0, 1) : random.Double(-1, 2);
    const double by = STEPS[random.Int(0, 6)];
    switch (random.Int(0, 3)) {
        case 0:
            return QnGePoint(a.x + t * (b.x - a.x), a.y + t * (b.y - a.y));
        case 1:
            return QnGePoint(a.x + t * (b.x - a.x) + by * random.Int(-5, 5), a.y + t * (b.y - a.y));
        case 2:
            return QnGePoint(a.x + t * (b.x - a.x) + by * random.Int(-5, 5),
                             a.y + t * (b.y - a.y) + by * random.Int(-5, 5));
        default:
            return QnGePoint(random.Double(-2, 2) * size, random.Double(-2, 2) * size);
    }
}

struct Named {
    const char* name;
    Points points;
    double size;
};

std::vector<Named> Rings() {
    Points twice;
    for (const QnGePoint& p : Round(400, 50)) {
        twice.insert(twice.end(), 2, p);
    }
    return {
        {"circle", Round(700, 100), 100},
        {"small circle", Round(700, 0.01), 0.01},
        {"circle of edges of a tolerance", Round(700, 1e-4), 1e-4},
        {"huge circle", Round(700, 1e9), 1e9},
        {"circle far off", Round(700, 500, 5e5, 4e6), 4e6},
        {"square", Square(200), 200},
        {"few", Round(5, 10), 10},
        {"one block", Round(33, 10), 10},
        {"edges without length", twice, 50},
        {"clockwise", Points(twice.rbegin(), twice.rend()), 50},
        {"one place", Points(100, QnGePoint(3, 4)), 5},
    };
}

void RunHistory(const Named& kind, unsigned seed, int length) {
    RandomSource random(seed);
    IndexedRing ring(kind.points);
    for (int i = 0; i < length; ++i) {
        const long index = random.Long(0, ring.GetLength() - 1);
        switch (random.Int(0, 5)) {
            case 0:
            case 1:
                ring.Replace(index, 1, Place(random, ring, kind.size));
                break;
            case 2: {
                const long most = std::min(ring.GetLength() - index, random.OneIn(20) ? 150L : 6L);
                const long count = std::min(random.Long(1, most), ring.GetLength() - 3);
                ring.Replace(index, count, Place(random, ring, kind.size));
                break;
            }
            case 3:
                ring.Rotate(random.OneIn(5) ? 0 : index);
                break;
            default:
                break;
        }
        ASSERT_TRUE(ring.GetIndex().FitsTo(ring.GetRing()));
        for (int j = 0; j < 4; ++j) {
            const long from = random.OneIn(4) ? random.Long(0, ring.GetLength()) : 0;
            ASSERT_EQ(ring.Walk(Place(random, ring, kind.size), from), "") << kind.name << ", seed " << seed;
        }
    }
}

}  // namespace

TEST(HullIndex, PassesOverNoEdgeThatDecides) {
    for (const Named& kind : Rings()) {
        IndexedRing ring(kind.points);
        RandomSource random(BaseSeed());
        for (int i = 0; i < 600; ++i) {
            ASSERT_EQ(ring.Walk(Place(random, ring, kind.size)), "") << kind.name;
        }
    }
}

TEST(HullIndex, PassesOverNoneWhateverWasDoneToTheRing) {
    unsigned seed = BaseSeed();
    for (const Named& kind : Rings()) {
        for (int run = 0; run < 4; ++run) {
            RunHistory(kind, ++seed, 250);
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

TEST(HullIndex, FollowsTheTolerance) {
    for (const double tolerance : {0.0, 1e-9, 1e-3, 0.5}) {
        const QnPushVar<double> push(g_distZero, tolerance);
        for (const Named& kind : Rings()) {
            RunHistory(kind, BaseSeed(), 40);
            if (HasFatalFailure()) {
                return;
            }
        }
    }
}

// 3,000 edges of a circle: none faces a node well inside.
TEST(HullIndex, LooksAtNothingForANodeInTheMiddle) {
    IndexedRing ring(Round(3000, 100));
    EXPECT_EQ(ring.Walk({0, 0}), "");
    EXPECT_EQ(ring.Walk({50, 20}), "");
    EXPECT_EQ(ring.GetLooked(), 0);
    EXPECT_EQ(ring.Walk({100.001, 0}), "");
    EXPECT_GT(ring.GetLooked(), 0);
    EXPECT_LT(ring.GetLooked(), 300);
}

// A straight row of 1,000 edges: the one under a node is looked at, and few others.
TEST(HullIndex, LooksAtFewEdgesOfARowForANodeOnIt) {
    IndexedRing ring(Square(1000));
    for (const double x : {437.5, 437.0, 0.0, 999.99}) {
        EXPECT_EQ(ring.Walk({x, 0}), "") << x;
    }
    EXPECT_LT(ring.GetLooked(), 1000);
}

TEST(HullIndex, AnswersNoneBehindTheEndOfTheRing) {
    IndexedRing ring(Round(100, 10));
    Entry entry = nullptr;
    const QnGeTINNode outside(20, 0);
    for (const long behind : {100L, 101L, 1000L}) {
        long index = behind;
        EXPECT_EQ(ring.GetIndex().FindNext(outside, index, entry), 0);
        EXPECT_EQ(index, behind);
    }
    long index = 99;
    EXPECT_EQ(ring.GetIndex().FindNext(outside, index, entry), 1) << "the last edge faces it";
    EXPECT_EQ(index, 99);
    EXPECT_EQ(entry, ring.GetRing().GetLast());
}

TEST(HullIndex, LooksAtAllForANodeThatIsNoNumber) {
    IndexedRing ring(Round(600, 10));
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ring.Walk({none, 0}), "");
    EXPECT_EQ(ring.Walk({none, none}), "");
    EXPECT_EQ(ring.GetLooked(), 1200);
}

TEST(HullIndex, FitsToARingOfTheSameLengthAndEnds) {
    IndexedRing ring(Round(200, 10));
    HullIndex::Ring& records = ring.GetRing();
    const HullIndex& index = ring.GetIndex();
    EXPECT_TRUE(index.FitsTo(records));
    records.Rotate(7, 0);
    EXPECT_FALSE(index.FitsTo(records)) << "turned";
    records.Rotate(0, 7);
    EXPECT_TRUE(index.FitsTo(records)) << "and turned back";
    records.ReverseList();
    EXPECT_FALSE(index.FitsTo(records)) << "in reverse";
    records.ReverseList();
    QnGeTINOutEdge* const last = records.TakeOffTail();
    EXPECT_FALSE(index.FitsTo(records)) << "one too few";
    records.Append(last);
    records.Append(new QnGeTINOutEdge{last->Node, nullptr});
    EXPECT_FALSE(index.FitsTo(records)) << "one too many";
    HullIndex::Ring empty;
    EXPECT_FALSE(index.FitsTo(empty));
    EXPECT_FALSE(HullIndex(empty).FitsTo(empty)) << "there is nothing to pass over";
}
