// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeMCurve2d.h"

namespace qn_detail {

// Children are reached without moving the chain's cursor, so that a caller's own walk over the chain survives every
// question he asks it.

/// The entry of child `i`, null if there is none.
///
/// Cost  Constant for indexes asked for in order. The ends are reached from the list itself, so that asking for them
///       in between does not lose the place.
inline QnGeCurve2d* const* EntryAt(const QnGeMCurve2d& chain, long i) {
    if (!chain.IsValidIndex(i)) {
        return nullptr;
    }
    if (i == 0) {
        return chain.GetFirst();
    }
    return i == chain.GetSegNum() - 1 ? chain.GetLast() : &chain.GetAt(i);
}

/// Child `i`, null if there is none.
inline QnGeCurve2d* ChildAt(const QnGeMCurve2d& chain, long i) {
    QnGeCurve2d* const* const entry = EntryAt(chain, i);
    return entry != nullptr ? *entry : nullptr;
}

/// Shows the children from `first` to before `end` to `visit`, which takes the child and its index and answers whether
/// to go on. Null entries are passed over.
template <class Visit>
void ForEachChild(const QnGeMCurve2d& chain, long first, long end, Visit visit) {
    QnGeCurve2d* const* entry = EntryAt(chain, first);
    for (long i = first; i < end && entry != nullptr; ++i) {
        if (*entry != nullptr && !visit(**entry, i)) {
            return;
        }
        entry = chain.GetNext(entry);
    }
}

template <class Visit>
void ForEachChild(const QnGeMCurve2d& chain, Visit visit) {
    ForEachChild(chain, 0, chain.GetSegNum(), visit);
}

/// Gives a chain a clone of `curve`, unless it is of a class that cannot be cloned.
inline void AppendCloneTo(QnGeMCurve2d& chain, const QnGeCurve2d& curve) {
    QnGeObject* const clone = curve.Clone();
    if (clone != nullptr) {
        chain.Append(static_cast<QnGeCurve2d*>(clone));
    }
}

}  // namespace qn_detail
