// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/OutlineIndex.h"

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeVector2d.h"

namespace qn_detail {

namespace {

constexpr int LANES = BoxLanes::COUNT;
constexpr double FLOAT_COORDINATE_LIMIT = 1e30;

}  // namespace

OutlineIndex::OutlineIndex(const QnGeMLine2d& outline, const QnGePoint& centre)
    : m_vertices(outline.GetVertexArray().GetFirst()),
      m_vertexNum(outline.GetVertexNum()),
      m_edgeNum(outline.GetSegNum()),
      m_centreX(centre.x),
      m_centreY(centre.y) {
    const long vertexBlocks = (m_vertexNum + LANES - 1) / LANES;
    m_edgeBoxes = PodArray<BoxLanes>(GetBlockNum());
    m_blockVertices = PodArray<BlockVertices>(GetBlockNum());
    m_directions = PodArray<EdgeDirection>(m_vertexNum);
    m_made = PodArray<unsigned char>(vertexBlocks);
    std::fill(m_made.begin(), m_made.end(), static_cast<unsigned char>(0));
    if (m_edgeNum > 0) {
        MakeUpperLevels();
    }
}

bool OutlineIndex::CanWiden(double margin) {
    return margin <= FLOAT_COORDINATE_LIMIT;
}

// Rounding is monotone: the float hull of a block is the hull of its vertices, rounded once.
FloatBox OutlineIndex::GetBlockBox(long block) {
    const long first = block * LANES;
    const long last = std::min(first + LANES, m_edgeNum);  // a vertex more than edges
    const QnGePoint& end = GetEdgeEnd(last - 1);
    double x0 = end.x;
    double y0 = end.y;
    double x1 = end.x;
    double y1 = end.y;
    double sum = end.x + end.y;  // stays finite as long as all coordinates are, and are usable
    for (long i = first; i < last; ++i) {
        const QnGePoint& p = m_vertices[i];
        x0 = std::min(x0, p.x);
        y0 = std::min(y0, p.y);
        x1 = std::max(x1, p.x);
        y1 = std::max(y1, p.y);
        sum += p.x + p.y;
    }
    const FloatBox box = {static_cast<float>(x0 - m_centreX), static_cast<float>(y0 - m_centreY),
                          static_cast<float>(x1 - m_centreX), static_cast<float>(y1 - m_centreY)};
    const double reach = std::max({std::fabs(x0), std::fabs(y0), std::fabs(x1), std::fabs(y1)});
    m_usable = m_usable && std::isfinite(sum) && reach <= FLOAT_COORDINATE_LIMIT;
    return box;
}

void OutlineIndex::MakeUpperLevels() {
    m_usable = std::fabs(m_centreX) <= FLOAT_COORDINATE_LIMIT && std::fabs(m_centreY) <= FLOAT_COORDINATE_LIMIT;
    long groups = 0;
    for (long boxes = GetBlockNum(), more = 1; more != 0; boxes = (boxes - 1) / LANES + 1) {
        m_levelStart[++m_levelNum] = groups;
        groups += (boxes - 1) / LANES + 1;
        more = boxes > LANES ? 1 : 0;
    }
    m_upper = PodArray<BoxLanes>(groups);

    long boxes = GetBlockNum();
    for (int level = 1; level <= m_levelNum; ++level) {
        BoxLanes* const lanes = &m_upper[m_levelStart[level]];
        lanes[(boxes - 1) / LANES].Clear();
        for (long i = 0; i < boxes; ++i) {
            const FloatBox box = level == 1 ? GetBlockBox(i) : m_upper[m_levelStart[level - 1] + i].GetHull();
            lanes[i / LANES].SetBox(static_cast<int>(i % LANES), box);
        }
        boxes = (boxes - 1) / LANES + 1;
    }

    m_hull = GetLanes(m_levelNum, 0).GetHull();
}

void OutlineIndex::MakeEdgeBoxes(long block) {
    BoxLanes& lanes = m_edgeBoxes[block];
    BlockVertices& vertices = m_blockVertices[block];
    const long first = block * LANES;
    const long count = std::min<long>(LANES, m_edgeNum - first);
    if (count < LANES) {
        lanes.Clear();
    }
    for (long k = 0; k < BlockVertices::SPACE; ++k) {
        const QnGePoint& vertex = k == 0 ? m_vertices[first] : GetEdgeEnd(first + std::min(k, count) - 1);
        vertices.x[k] = static_cast<float>(vertex.x - m_centreX);
        vertices.y[k] = static_cast<float>(vertex.y - m_centreY);
    }
    for (long k = 0; k < count; ++k) {
        lanes.x0[k] = std::min(vertices.x[k], vertices.x[k + 1]);
        lanes.x1[k] = std::max(vertices.x[k], vertices.x[k + 1]);
        lanes.y0[k] = std::min(vertices.y[k], vertices.y[k + 1]);
        lanes.y1[k] = std::max(vertices.y[k], vertices.y[k + 1]);
    }
    m_made[block] |= HAS_BOXES;
}

void OutlineIndex::MakeDirections(long block) {
    const long first = block * LANES;
    const long last = std::min(first + LANES, m_vertexNum);
    for (long i = first; i < last; ++i) {
        QnGeVector2d vector(m_vertices[i], GetEdgeEnd(i));
        const double length = vector.Length();
        vector.Normalize();
        m_directions[i] = {vector.x, vector.y, length};
    }
    m_made[block] |= HAS_DIRECTIONS;
}

bool OutlineIndex::HasShortEdge() {
    if (m_hasShortEdge == Answer::UNKNOWN) {
        m_hasShortEdge = Answer::NO;
        for (long i = 0; i < m_edgeNum; ++i) {
            const QnGePoint& end = GetEdgeEnd(i);
            if (IsZero(end.x - m_vertices[i].x, g_fZero) && IsZero(end.y - m_vertices[i].y, g_fZero)) {
                m_hasShortEdge = Answer::YES;
                break;
            }
        }
    }
    return m_hasShortEdge == Answer::YES;
}

long OutlineIndex::GetMemory() const {
    return m_upper.GetMemory() + m_edgeBoxes.GetMemory() + m_blockVertices.GetMemory() + m_directions.GetMemory() +
           m_made.GetMemory();
}

}  // namespace qn_detail
