// SPDX-License-Identifier: Apache-2.0
// Not part of any program: what the compiler is asked to dump the virtual tables of. See CheckSlots.cmake.
#include "QuarnGeo.h"

template class QnDynArrayBase<double>;
template class QnDynArray<double>;
template class QnDynPArray<QnGeObject>;
template class QnList<double>;
template class QnDList<double>;
template class QnPDList<QnGeObject>;
template class QnXList<double>;
template class QnPXList<QnGraphNode>;
template class QnDListStack<double>;
template class QnListQuene<double>;
template class QnFreeList<QnGePoint>;
template class QnFreeDList<QnGePoint>;
