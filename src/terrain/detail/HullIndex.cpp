// SPDX-License-Identifier: Apache-2.0
//
// HullIndex.cpp: which edges of a long hull can face a node, or take it.
//
// A walk over the hull asks each edge a b for v, the signed area of a b p by the length of a b. Beyond the tolerance to
// the right the edge faces p; within it p lies on the line of the edge, and on the edge itself if it is also between
// its ends. v is linear in p:
//
//      v(p) = u (p - r) + v(r)         u = (yb - ya, xa - xb) / 2 / length, r any point
//
// So a block of edges is judged by the ranges of u, the largest v(r), and the box of its nodes: no edge faces p if the
// largest value that ranges and v(r) allow is below the tolerance, and none takes p if p is off the box. Straight rows
// have a single u and are passed over although p lies on their line.
//
// Phases     1  BoundsOf    bounds of a block from its edges, when something in it has changed.
//            2  GroupOf     those of a group of blocks from the blocks, and of groups from groups.
//            3  FindNext    groups, in those that may hold an edge blocks, in those edges one by one.
// Invariant  Blocks stand in the order of the ring. The last edge of a block ends at the first node of the next, so a
//            change stales the block before it as well.
// Why so     Nothing is assumed of the hull: not that it is convex, nor that its edges have any length. The bound takes
//            in the rounding of the walk's own formula, which for short edges far from p exceeds the tolerance; such a
//            block is walked.
// Cost       For h edges about h / 3000 + 30 steps to find one; h / 32 moves to change one.
#include "terrain/detail/HullIndex.h"

#include <algorithm>
#include <cmath>

namespace qn_detail {

namespace {

constexpr long MOST = 32;           ///< edges of a block
constexpr long GROUP = 8;           ///< blocks of a group, and groups of one above
constexpr double ROUNDING = 1e-14;  ///< above all errors of the few operations here, in parts of their operands
constexpr double NEAR = 5.0;        ///< how far beyond its box, in tolerances, an edge can take a node; in truth 4

double Larger(double a, double b) {
    return a > b ? a : b;
}

}  // namespace

struct HullIndex::Block {
    Entry entries[MOST];
    Bounds bounds;
    bool stale;
};

void HullIndex::Bounds::AddNode(const QnGePoint& p) {
    xMin = p.x < xMin ? p.x : xMin;
    xMax = p.x > xMax ? p.x : xMax;
    yMin = p.y < yMin ? p.y : yMin;
    yMax = p.y > yMax ? p.y : yMax;
}

void HullIndex::Bounds::AddEdge(const QnGePoint& a, const QnGePoint& b) {
    AddNode(b);
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = std::fabs(dx) + std::fabs(dy);
    const double perLength = 1.0 / length;
    const double ux = dy * perLength / 2.0;
    const double uy = -dx * perLength / 2.0;
    uxMin = ux < uxMin ? ux : uxMin;
    uxMax = ux > uxMax ? ux : uxMax;
    uyMin = uy < uyMin ? uy : uyMin;
    uyMax = uy > uyMax ? uy : uyMax;
    most = Larger(ux * (rx - a.x) + uy * (ry - a.y), most);
    steepest = Larger(perLength, steepest);
}

void HullIndex::Bounds::Add(const Bounds& other) {
    xMin = other.xMin < xMin ? other.xMin : xMin;
    xMax = other.xMax > xMax ? other.xMax : xMax;
    yMin = other.yMin < yMin ? other.yMin : yMin;
    yMax = other.yMax > yMax ? other.yMax : yMax;
    uxMin = other.uxMin < uxMin ? other.uxMin : uxMin;
    uxMax = other.uxMax > uxMax ? other.uxMax : uxMax;
    uyMin = other.uyMin < uyMin ? other.uyMin : uyMin;
    uyMax = other.uyMax > uyMax ? other.uyMax : uyMax;
    most = Larger(other.MostAt(rx, ry), most);
    steepest = Larger(other.steepest, steepest);
}

/// No edge has a larger v at this point, but for rounding.
double HullIndex::Bounds::MostAt(double x, double y) const {
    const double dx = x - rx;
    const double dy = y - ry;
    return Larger(uxMin * dx, uxMax * dx) + Larger(uyMin * dy, uyMax * dy) + most;
}

/// Whether no edge faces `p` and none takes it. What is no number passes no comparison, and so is not passed over.
bool HullIndex::Bounds::CanPass(const QnGePoint& p) const {
    const double farX = Larger(std::fabs(p.x - xMin), std::fabs(p.x - xMax));
    const double farY = Larger(std::fabs(p.y - yMin), std::fabs(p.y - yMax));
    const double width = (xMax - xMin) + (yMax - yMin);
    const double error = ROUNDING * (farX + farY + width) + ROUNDING * farX * farY * steepest;
    if (!(MostAt(p.x, p.y) + error < g_distZero)) {
        return false;
    }
    const double margin = NEAR * (g_distZero + error);
    return p.x < xMin - margin || p.x > xMax + margin || p.y < yMin - margin || p.y > yMax + margin;
}

// ---- making ----------------------------------------------------------------------------------------

HullIndex::HullIndex(const Ring& ring) {
    for (Entry entry = ring.GetFirst(); entry != nullptr; entry = ring.GetNext(entry)) {
        if (m_blocks.IsEmpty() || m_blocks[m_blocks.GetLength() - 1].count == MOST / 2) {
            m_blocks.Append({new Block, 0});
            m_blocks[m_blocks.GetLength() - 1].block->stale = true;
        }
        BlockRef& last = m_blocks[m_blocks.GetLength() - 1];
        last.block->entries[last.count++] = entry;
        ++m_length;
    }
}

HullIndex::~HullIndex() {
    for (const BlockRef& ref : m_blocks) {
        delete ref.block;
    }
}

bool HullIndex::FitsTo(const Ring& ring) const {
    if (ring.GetLength() != m_length || m_length == 0) {
        return false;
    }
    const BlockRef& last = m_blocks[m_blocks.GetLength() - 1];
    return m_blocks[0].block->entries[0] == ring.GetFirst() && last.block->entries[last.count - 1] == ring.GetLast();
}

// ---- bounds ----------------------------------------------------------------------------------------

/// Where the last edge of a block ends.
const QnGePoint& HullIndex::EndOf(long at) const {
    const long next = at + 1 < m_blocks.GetLength() ? at + 1 : 0;
    return *(*m_blocks[next].block->entries[0])->Node;
}

const HullIndex::Bounds& HullIndex::BoundsOf(long at) {
    const BlockRef& ref = m_blocks[at];
    Block& block = *ref.block;
    if (block.stale) {
        const QnGePoint* from = (*block.entries[0])->Node;
        const double none = HUGE_VAL;
        block.bounds = {from->x, from->x, from->y, from->y, none, -none, none, -none, from->x, from->y, -none, 0.0};
        for (long i = 1; i < ref.count; ++i) {
            const QnGePoint* const to = (*block.entries[i])->Node;
            block.bounds.AddEdge(*from, *to);
            from = to;
        }
        block.bounds.AddEdge(*from, EndOf(at));
        block.stale = false;
    }
    return block.bounds;
}

/// How many blocks a group has at the most.
long HullIndex::BlocksOf(int level) {
    return level == 0 ? GROUP : GROUP * GROUP;
}

const HullIndex::Group& HullIndex::GroupOf(int level, long at) {
    PodArray<Group>& groups = m_groups[level];
    const long blocks = BlocksOf(level);
    const long needed = (m_blocks.GetLength() + blocks - 1) / blocks;
    while (groups.GetLength() < needed) {
        groups.AppendUnset().stale = true;
    }
    Group& group = groups[at];
    if (group.stale) {
        group = Gather(level, at);
    }
    return group;
}

/// A group from what it is made of.
HullIndex::Group HullIndex::Gather(int level, long at) {
    const long parts = level == 0 ? m_blocks.GetLength() : (m_blocks.GetLength() + GROUP - 1) / GROUP;
    const auto part = [this, level](long i) {
        return level == 0 ? Group{BoundsOf(i), m_blocks[i].count, false} : GroupOf(level - 1, i);
    };
    const long first = at * GROUP;
    const long end = std::min(first + GROUP, parts);
    Group group = part(first);
    for (long i = first + 1; i < end; ++i) {
        const Group next = part(i);
        group.bounds.Add(next.bounds);
        group.count += next.count;
    }
    return group;
}

/// Groups from that of a block on are no more true.
void HullIndex::ShortenGroups(long block) {
    for (int level = 0; level < LEVELS; ++level) {
        PodArray<Group>& groups = m_groups[level];
        groups.Shorten(std::min(groups.GetLength(), block / BlocksOf(level)));
    }
}

/// A block has changed, or its successor has.
void HullIndex::MakeStale(long at) {
    const long before = at > 0 ? at - 1 : m_blocks.GetLength() - 1;
    for (const long changed : {at, before}) {
        m_blocks[changed].block->stale = true;
        for (int level = 0; level < LEVELS; ++level) {
            if (changed / BlocksOf(level) < m_groups[level].GetLength()) {
                m_groups[level][changed / BlocksOf(level)].stale = true;
            }
        }
    }
}

// ---- finding ---------------------------------------------------------------------------------------

/// The block that holds edge `index`, and the edge's place in it.
HullIndex::BlockRef& HullIndex::Locate(long index, long& at, long& offset) {
    const bool isBehind = index >= m_locatedStart;
    at = isBehind ? m_located : 0;
    offset = isBehind ? index - m_locatedStart : index;
    while (offset >= m_blocks[at].count) {
        offset -= m_blocks[at].count;
        ++at;
    }
    KeepLocated(at, index - offset);
    return m_blocks[at];
}

/// The next change or question is likely to be about the same edges. Changes of a block leave its start.
void HullIndex::KeepLocated(long at, long start) {
    m_located = at;
    m_locatedStart = start;
}

/// Goes over the largest group that begins at a block, if it can be passed over.
bool HullIndex::PassGroup(const QnGePoint& node, long& at, long& index) {
    for (int level = LEVELS - 1; level >= 0; --level) {
        const long blocks = BlocksOf(level);
        if (at % blocks != 0) {
            continue;
        }
        const Group& group = GroupOf(level, at / blocks);
        if (group.bounds.CanPass(node)) {
            index += group.count;
            at += blocks;
            return true;
        }
    }
    return false;
}

long HullIndex::FindNext(const QnGePoint& node, long& index, Entry& entry) {
    if (index >= m_length) {
        return 0;
    }
    long at = 0;
    long offset = 0;
    Locate(index, at, offset);
    while (at < m_blocks.GetLength()) {
        if (offset == 0 && PassGroup(node, at, index)) {
            continue;
        }
        const BlockRef& ref = m_blocks[at];
        if (offset > 0 || !BoundsOf(at).CanPass(node)) {
            entry = ref.block->entries[offset];
            KeepLocated(at, index - offset);
            return ref.count - offset;
        }
        index += ref.count;
        ++at;
    }
    return 0;
}

// ---- changes ---------------------------------------------------------------------------------------

/// Ends a block before place `offset`; the rest becomes the next block. Groups behind it lose their places.
void HullIndex::SplitBlock(long at, long offset) {
    Block* const rest = new Block;
    const long count = m_blocks[at].count;
    std::copy(m_blocks[at].block->entries + offset, m_blocks[at].block->entries + count, rest->entries);
    m_blocks[at].count = offset;
    m_blocks.Append({nullptr, 0});
    std::copy_backward(m_blocks.begin() + at + 1, m_blocks.end() - 1, m_blocks.end());
    m_blocks[at + 1] = {rest, count - offset};
    rest->stale = true;
    m_blocks[at].block->stale = true;
    ShortenGroups(at);
}

void HullIndex::RemoveBlock(long at) {
    KeepLocated(0, 0);
    delete m_blocks[at].block;
    std::copy(m_blocks.begin() + at + 1, m_blocks.end(), m_blocks.begin() + at);
    m_blocks.Shorten(m_blocks.GetLength() - 1);
    ShortenGroups(at);
}

void HullIndex::Remove(long index, long count) {
    while (count > 0) {
        long at = 0;
        long offset = 0;
        BlockRef& ref = Locate(index, at, offset);
        const long here = std::min(count, ref.count - offset);
        MakeStale(at);
        std::copy(ref.block->entries + offset + here, ref.block->entries + ref.count, ref.block->entries + offset);
        ref.count -= here;
        m_length -= here;
        count -= here;
        if (ref.count == 0) {
            RemoveBlock(at);
        }
    }
}

/// Two edges in the place of one: their block stays, with bounds that take them in and keep what the one gave. That is
/// made good when the block is divided.
void HullIndex::ReplaceOne(long at, long offset, Entry first, Entry second) {
    BlockRef& ref = m_blocks[at];
    Block& block = *ref.block;
    std::copy_backward(block.entries + offset, block.entries + ref.count, block.entries + ref.count + 1);
    block.entries[offset] = first;
    block.entries[offset + 1] = second;
    ++ref.count;
    ++m_length;
    const QnGePoint& from = *(*first)->Node;
    const QnGePoint& middle = *(*second)->Node;
    const QnGePoint& to = offset + 2 < ref.count ? *(*block.entries[offset + 2])->Node : EndOf(at);
    const auto widen = [&](Bounds& bounds) {
        bounds.AddEdge(from, middle);
        bounds.AddEdge(middle, to);
    };
    if (!block.stale) {
        widen(block.bounds);
    }
    for (int level = 0; level < LEVELS; ++level) {
        if (at / BlocksOf(level) < m_groups[level].GetLength()) {
            Group& group = m_groups[level][at / BlocksOf(level)];
            ++group.count;
            if (!group.stale) {
                widen(group.bounds);
            }
        }
    }
}

void HullIndex::Replace(long index, long count, Entry first, Entry second) {
    // The new entries go in first, so that the ring is never empty.
    long at = 0;
    long offset = 0;
    if (Locate(index, at, offset).count + 2 > MOST) {
        SplitBlock(at, MOST / 2);
        Locate(index, at, offset);
    }
    if (count == 1) {
        ReplaceOne(at, offset, first, second);
        return;
    }
    BlockRef& ref = m_blocks[at];
    std::copy_backward(ref.block->entries + offset, ref.block->entries + ref.count, ref.block->entries + ref.count + 2);
    ref.block->entries[offset] = first;
    ref.block->entries[offset + 1] = second;
    ref.count += 2;
    m_length += 2;
    MakeStale(at);
    Remove(index + 2, count);
}

void HullIndex::Rotate(long index) {
    long at = 0;
    long offset = 0;
    Locate(index, at, offset);
    if (offset > 0) {
        SplitBlock(at, offset);
        ++at;
    }
    KeepLocated(0, 0);
    std::rotate(m_blocks.begin(), m_blocks.begin() + at, m_blocks.end());
    ShortenGroups(0);
}

}  // namespace qn_detail
