// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnGraphArc.h"
#include "base/QnGraphNode.h"
#include "containers/QnPDList.h"
#include "containers/QnPXList.h"
#include "containers/QnQuene.h"

/// The containers of graph elements are compiled once, inside the library; whoever includes this takes them from there.
extern template class QnPDList<QnGraphNode>;
extern template class QnPDList<QnGraphArc>;
extern template class QnPXList<QnGraphNode>;
extern template class QnPXList<QnGraphArc>;
extern template class QnDList<QnGraphNode*>;
extern template class QnDList<QnGraphArc*>;
extern template class QnXList<QnGraphNode*>;
extern template class QnXList<QnGraphArc*>;
