// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINTriangle.h"

namespace qn_detail {

/// What looking for the place of a node has come to.
struct TriangleHit {
    QnGeTINTriangle* triangle = nullptr;
    int place = 0;  ///< 0 within the triangle, 1 to 3 on its edge of that index less 1, -1 to -3 at a node likewise

    /// Whether this candidate ends the search: it holds the node, or the node is on the line of its hull edge, which
    /// leaves no triangle.
    bool Decide(const QnGeTINNode& node, QnGeTINTriangle* candidate);
};

}  // namespace qn_detail
