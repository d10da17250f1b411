// SPDX-License-Identifier: Apache-2.0
#include "containers/QnGraphContainers.h"

template class QnPDList<QnGraphNode>;
template class QnPDList<QnGraphArc>;
template class QnPXList<QnGraphNode>;
template class QnPXList<QnGraphArc>;
template class QnDList<QnGraphNode*>;
template class QnDList<QnGraphArc*>;
template class QnXList<QnGraphNode*>;
template class QnXList<QnGraphArc*>;
