// SPDX-License-Identifier: Apache-2.0
//
// InsertionOrder.cpp: the breadth-first order of a point quad tree, by sorting instead of building.
//
// What arrives at a tree node, and in which order, decides what the node keeps and what its children see. So a cell of
// the tree is a segment of records in order of arrival:
//
//   * Points within the tolerance of a centre line stay, in order.
//   * If the first to arrive is a quadrant point, it is held as the cell's only point until a second quadrant point
//     comes. That one goes down first and pushes the first down behind it: two points of one quadrant arrive there in
//     exchanged order. All later points go straight down.
//   * Without a second quadrant point everything stays, the held point in front, which is where it is.
//   * A cell too small to divide keeps everything.
//
// Phases     1  SortCell      keeps the records that stay, parts the rest by quadrants into the other buffer, and goes
//                             down into quadrants 0 to 3. Cells of one level are met in the order of the queue that
//                             walks the tree.
//            2  MergeLevels   brings the kept records, which come cell by cell, into the order of their levels.
// Invariant  The two buffers change roles with each level; a segment has the same place in both.
// See        QnGePtQuadTree2d, with which tests compare.
#include "terrain/detail/InsertionOrder.h"

#include <memory>

#include "terrain/QnGeTINNode.h"

namespace qn_detail {

namespace {

constexpr int QUADRANTS = 4;
constexpr int BAND = QUADRANTS;  ///< the code of points that stay on the centre lines

struct Record {
    double x;
    double y;
    QnGeTINNode* node;
};

struct Kept {
    QnGeTINNode* node;
    int level;
};

class OrderSort {
public:
    explicit OrderSort(long count)
        : m_current(new Record[Size(count)]),
          m_other(new Record[Size(count)]),
          m_codes(new signed char[Size(count)]),
          m_kept(new Kept[Size(count)]) {}

    Record& operator[](long i) { return m_current[Size(i)]; }
    void Sort(long count, const QnGeExtent2d& range) {
        SortCell({m_current.get(), m_other.get(), m_codes.get(), count},
                 Cell{range.x.min, range.x.max, range.y.min, range.y.max}, 0);
    }
    std::unique_ptr<QnGeTINNode*[]> MergeLevels() const;

private:
    struct Cell {
        double xMin, xMax, yMin, yMax;
    };

    /// The records of a cell, and the same place in the other buffer and in that of the codes.
    struct Segment {
        Record* records;
        Record* space;
        signed char* codes;
        long count;
    };

    static std::size_t Size(long n) { return static_cast<std::size_t>(n); }
    static int CodeOf(const Record& record, double centerX, double centerY);
    static bool CanDivide(const Cell& cell, double centerX, double centerY);
    static bool HoldsAll(Record* records, long count, double centerX, double centerY);
    void Keep(const Record* records, long count, int level);
    void SortCell(const Segment& segment, const Cell& cell, int level);

    std::unique_ptr<Record[]> m_current;
    std::unique_ptr<Record[]> m_other;
    std::unique_ptr<signed char[]> m_codes;
    std::unique_ptr<Kept[]> m_kept;
    long m_keptCount = 0;
    int m_deepest = 0;
};

/// Without a branch: which quadrant comes next is anybody's guess.
int OrderSort::CodeOf(const Record& record, double centerX, double centerY) {
    constexpr signed char CODES[16] = {BAND, BAND, BAND, BAND, BAND, 0,    3,    BAND,
                                       BAND, 1,    2,    BAND, BAND, BAND, BAND, BAND};
    const double dx = record.x - centerX;
    const double dy = record.y - centerY;
    const double tolerance = g_distZero;
    const int above = dy > tolerance ? 1 : 0;
    const int below = dy < -tolerance ? 2 : 0;
    const int right = dx > tolerance ? 4 : 0;
    const int left = dx < -tolerance ? 8 : 0;
    return CODES[above | below | right | left];
}

bool OrderSort::CanDivide(const Cell& cell, double centerX, double centerY) {
    return IsGreater((cell.xMax - cell.xMin) / 2.0, g_distZero) &&
           IsGreater((cell.yMax - cell.yMin) / 2.0, g_distZero) && cell.xMin < centerX && centerX < cell.xMax &&
           cell.yMin < centerY && centerY < cell.yMax;
}

/// Whether the cell keeps all records because only the first is a quadrant point; otherwise brings the first two of
/// one quadrant into the order in which they arrive there.
bool OrderSort::HoldsAll(Record* records, long count, double centerX, double centerY) {
    const int first = CodeOf(records[0], centerX, centerY);
    if (first == BAND) {
        return false;
    }
    for (long i = 1; i < count; ++i) {
        const int code = CodeOf(records[i], centerX, centerY);
        if (code == BAND) {
            continue;
        }
        if (code == first) {
            const Record held = records[0];
            records[0] = records[i];
            records[i] = held;
        }
        return false;
    }
    return true;
}

void OrderSort::Keep(const Record* records, long count, int level) {
    for (long i = 0; i < count; ++i) {
        m_kept[Size(m_keptCount++)] = {records[i].node, level};
    }
    m_deepest = level > m_deepest ? level : m_deepest;
}

void OrderSort::SortCell(const Segment& segment, const Cell& cell, int level) {
    Record* const records = segment.records;
    Record* const space = segment.space;
    signed char* const codes = segment.codes;
    const long count = segment.count;
    const double centerX = (cell.xMin + cell.xMax) / 2.0;
    const double centerY = (cell.yMin + cell.yMax) / 2.0;
    if (count == 1 || !CanDivide(cell, centerX, centerY) || HoldsAll(records, count, centerX, centerY)) {
        Keep(records, count, level);
        return;
    }
    long counts[QUADRANTS + 1] = {};
    for (long i = 0; i < count; ++i) {
        codes[i] = static_cast<signed char>(CodeOf(records[i], centerX, centerY));
        ++counts[codes[i]];
    }
    long first[QUADRANTS + 1] = {};
    for (int code = 1; code <= BAND; ++code) {
        first[code] = first[code - 1] + counts[code - 1];
    }
    long next[QUADRANTS + 1] = {first[0], first[1], first[2], first[3], first[4]};
    for (long i = 0; i < count; ++i) {
        space[next[codes[i]]++] = records[i];
    }
    Keep(space + first[BAND], counts[BAND], level);
    const Cell children[QUADRANTS] = {{centerX, cell.xMax, centerY, cell.yMax},
                                      {cell.xMin, centerX, centerY, cell.yMax},
                                      {cell.xMin, centerX, cell.yMin, centerY},
                                      {centerX, cell.xMax, cell.yMin, centerY}};
    for (int q = 0; q < QUADRANTS; ++q) {
        if (counts[q] > 0) {
            SortCell({space + first[q], records + first[q], codes + first[q], counts[q]}, children[q], level + 1);
        }
    }
}

std::unique_ptr<QnGeTINNode* []> OrderSort::MergeLevels() const {
    const auto next = std::make_unique<long[]>(Size(m_deepest) + 2);
    for (long i = 0; i < m_keptCount; ++i) {
        ++next[Size(m_kept[Size(i)].level) + 1];
    }
    for (int level = 1; level <= m_deepest; ++level) {
        next[Size(level)] += next[Size(level) - 1];
    }
    std::unique_ptr<QnGeTINNode*[]> order(new QnGeTINNode*[Size(m_keptCount)]);
    for (long i = 0; i < m_keptCount; ++i) {
        const Kept& kept = m_kept[Size(i)];
        order[Size(next[Size(kept.level)]++)] = kept.node;
    }
    return order;
}

}  // namespace

void SortForInsertion(QnList<QnGeTINNode*>& nodes, const QnGeExtent2d& range) {
    OrderSort sort(nodes.GetLength());
    long count = 0;
    for (QnGeTINNode* const* entry = nodes.GetFirst(); entry != nullptr; entry = nodes.GetNext(entry)) {
        sort[count++] = {(*entry)->x, (*entry)->y, *entry};
    }
    sort.Sort(count, range);
    const auto order = sort.MergeLevels();
    QnGeTINNode* const* next = order.get();
    for (nodes.MoveToFirst(); !nodes.IsOut(); nodes.MoveToNext()) {
        nodes.SetCurData(*next++);
    }
}

}  // namespace qn_detail
