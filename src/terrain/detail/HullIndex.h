// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "containers/detail/PodArray.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/detail/HullRing.h"

namespace qn_detail {

/// A long hull in blocks, to pass over the edges that neither face a node nor take it without looking at each.
///
/// Requires  Being told of every change of the ring.
/// Ownership  Of its own blocks. List entries, records and nodes are looked at.
/// See        HullIndex.cpp for how it works
class HullIndex {
public:
    using Ring = HullRing;
    using Entry = HullEntry;

    explicit HullIndex(const Ring& ring);
    ~HullIndex();
    HullIndex(const HullIndex&) = delete;
    HullIndex& operator=(const HullIndex&) = delete;

    /// Whether the ring has the length and the ends that it should have by what was told of it.
    bool FitsTo(const Ring& ring) const;

    /// Moves from edge `index` on to the first that must be looked at, and answers its entry and how many from there on
    /// are to be looked at too; 0 if none is left up to the end of the ring. The edges passed over make no right turn
    /// towards the node, and it lies neither on them nor at their ends.
    long FindNext(const QnGePoint& node, long& index, Entry& entry);

    /// The `count` entries from `index` on are no more; `first` and `second` stand in their place.
    void Replace(long index, long count, Entry first, Entry second);

    /// The ring begins with what was edge `index`.
    void Rotate(long index);

private:
    /// What can be said of some consecutive edges.
    struct Bounds {
        double xMin, xMax, yMin, yMax;      ///< of the nodes
        double uxMin, uxMax, uyMin, uyMax;  ///< of the gradients
        double rx, ry;                      ///< the point of reference
        double most;                        ///< largest v there
        double steepest;                    ///< one by the length of the shortest edge, as |dx| + |dy|

        void AddNode(const QnGePoint& p);
        void AddEdge(const QnGePoint& a, const QnGePoint& b);
        void Add(const Bounds& other);
        double MostAt(double x, double y) const;
        bool CanPass(const QnGePoint& p) const;
    };
    struct Block;
    struct Group {
        Bounds bounds;
        long count;  ///< of edges
        bool stale;
    };
    static constexpr int LEVELS = 2;
    struct BlockRef {
        Block* block;
        long count;
    };

    BlockRef& Locate(long index, long& at, long& offset);
    void KeepLocated(long at, long start);
    const Bounds& BoundsOf(long at);
    const Group& GroupOf(int level, long at);
    Group Gather(int level, long at);
    bool PassGroup(const QnGePoint& node, long& at, long& index);
    void ShortenGroups(long block);
    static long BlocksOf(int level);
    const QnGePoint& EndOf(long at) const;
    void SplitBlock(long at, long offset);
    void RemoveBlock(long at);
    void Remove(long index, long count);
    void ReplaceOne(long at, long offset, Entry first, Entry second);
    void MakeStale(long at);

    PodArray<BlockRef> m_blocks;       ///< in ring order, none empty
    PodArray<Group> m_groups[LEVELS];  ///< of GROUP blocks each, by their places; then of GROUP such groups
    long m_length = 0;
    long m_located = 0;       ///< the block looked at last
    long m_locatedStart = 0;  ///< the index of its first edge
};

}  // namespace qn_detail
