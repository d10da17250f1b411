// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "values/QnGeExtent2d.h"

class QnGeTINNode;

namespace qn_detail {

/// Brings the nodes into the order in which a QnGePtQuadTree2d of this range, filled in list order, gives them back
/// breadth first. The tree itself is not made.
///
/// Requires  No null entry. `range` holds all nodes.
/// Cost      n times the depth of the tree, in passes over plain records. No memory but for the work.
void SortForInsertion(QnList<QnGeTINNode*>& nodes, const QnGeExtent2d& range);

}  // namespace qn_detail
