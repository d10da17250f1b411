// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/detail/PodArray.h"
#include "values/QnGePoint.h"
#include "values/detail/BoxLanes.h"

class QnGeMLine2d;

namespace qn_detail {

/// Unit direction and plan length of an edge, with the very bits that normalising a copy of its vector gives.
struct EdgeDirection {
    double x;
    double y;
    double length;
};

/// The edges of a straight outline under an implicit tree of boxes, eight to a node, in the order of their index.
///
///     level 2        [ box of blocks 0..7 ]                     ...        one lane per 64 edges
///     level 1   [ block 0 | block 1 | ... | block 7 ] [ block 8 | ...      one lane per 8 edges
///     level 0   [ edge 0..7 ] [ edge 8..15 ] ...                           one lane per edge
///
/// Nothing is sorted: neighbours in a simple outline lie close together. Level 0 and the directions of the edges are
/// made for a block of eight when they are first asked for, so that an index over a long outline costs little where
/// only a small part of it is looked at.
///
/// Boxes are floats relative to a centre near the outline. Each is the rounded box of its edges, not an outer bound:
/// who searches widens the box he searches with.
///
/// Ownership  The outline is looked at and must outlive the index unchanged.
/// Cost       One pass over the vertices to make; 28 bytes an edge for level 0, 24 for the directions, 3 for the rest.
class OutlineIndex {
public:
    OutlineIndex(const QnGeMLine2d& outline, const QnGePoint& centre);

    /// False if a coordinate is too large for a float or no number; the boxes then mean nothing.
    bool IsUsable() const { return m_usable; }

    long GetVertexNum() const { return m_vertexNum; }
    long GetEdgeNum() const { return m_edgeNum; }
    long GetBlockNum() const { return m_edgeNum == 0 ? 0 : (m_edgeNum - 1) / BoxLanes::COUNT + 1; }
    const QnGePoint& GetVertex(long i) const { return m_vertices[i]; }

    /// The vertex at the end of edge `i`, with the wrap of a closed outline.
    long GetVertexAfter(long i) const { return i + 1 < m_vertexNum ? i + 1 : 0; }
    const QnGePoint& GetEdgeEnd(long i) const { return m_vertices[GetVertexAfter(i)]; }

    /// False if a box cannot be widened by so much: `margin` is too large for a float or no number. An infinite box
    /// would meet empty lanes too, which stand for no edge.
    static bool CanWiden(double margin);

    /// The box of the whole outline.
    const FloatBox& GetHull() const { return m_hull; }

    /// A point as a box without extent, in the frame of the boxes.
    FloatBox GetFrameBox(const QnGePoint& point) const {
        const auto x = static_cast<float>(point.x - m_centreX);
        const auto y = static_cast<float>(point.y - m_centreY);
        return {x, y, x, y};
    }

    /// The number of the topmost level, which is one BoxLanes. Requires at least one edge.
    int GetTopLevel() const { return m_levelNum; }

    /// Boxes `8 * group` to `8 * group + 7` of a level from 1 upward.
    const BoxLanes& GetLanes(int level, long group) const { return m_upper[m_levelStart[level] + group]; }

    /// The boxes of the edges of a block.
    const BoxLanes& GetEdgeBoxes(long block);

    /// Of the edge that starts at a vertex; of an open outline's last vertex, of the edge that would close it.
    const EdgeDirection& GetDirection(long vertex);

    /// The vertices of the edges of a block whose boxes have been asked for.
    const BlockVertices& GetBlockVertices(long block) const { return m_blockVertices[block]; }

    /// True if an edge is not longer than g_fZero along x and along y: it has no direction to speak of. Looked up once.
    bool HasShortEdge();

    /// Bytes held beside the object itself.
    long GetMemory() const;

    OutlineIndex(const OutlineIndex&) = delete;
    OutlineIndex& operator=(const OutlineIndex&) = delete;

private:
    static constexpr int MAX_LEVELS = 24;
    enum : unsigned char { HAS_BOXES = 1, HAS_DIRECTIONS = 2 };
    enum class Answer : unsigned char { UNKNOWN, NO, YES };

    void MakeUpperLevels();
    void MakeEdgeBoxes(long block);
    void MakeDirections(long block);
    FloatBox GetBlockBox(long block);

    const QnGePoint* m_vertices;
    long m_vertexNum;
    long m_edgeNum;
    double m_centreX;
    double m_centreY;
    bool m_usable = true;
    Answer m_hasShortEdge = Answer::UNKNOWN;
    FloatBox m_hull = {};

    int m_levelNum = 0;
    long m_levelStart[MAX_LEVELS] = {};
    PodArray<BoxLanes> m_upper;
    PodArray<BoxLanes> m_edgeBoxes;
    PodArray<BlockVertices> m_blockVertices;
    PodArray<EdgeDirection> m_directions;
    PodArray<unsigned char> m_made;  ///< HAS_... of each block
};

inline const BoxLanes& OutlineIndex::GetEdgeBoxes(long block) {
    if ((m_made[block] & HAS_BOXES) == 0) {
        MakeEdgeBoxes(block);
    }
    return m_edgeBoxes[block];
}

inline const EdgeDirection& OutlineIndex::GetDirection(long vertex) {
    const long block = vertex / BoxLanes::COUNT;
    if ((m_made[block] & HAS_DIRECTIONS) == 0) {
        MakeDirections(block);
    }
    return m_directions[vertex];
}

}  // namespace qn_detail
