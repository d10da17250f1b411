// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "containers/QnDynArrayBase.h"
#include "containers/QnList.h"

/// Structure checkers of the sequences. Each gives "" or one sentence that says which rule is broken and where.
/// They use the public interface only, and leave the sequence and its cursor as they found it.

namespace container_checks {

template <class... Args>
std::string Sentence(const Args&... args) {
    std::ostringstream text;
    (text << ... << args);
    return text.str();
}

/// The elements' addresses in order, by the pointer walk; stops one beyond the length.
template <class T>
std::vector<const T*> Addresses(const QnDynArrayBase<T>& s) {
    std::vector<const T*> found;
    for (const T* p = s.GetFirst(); p != nullptr; p = s.GetNext(p)) {
        found.push_back(p);
        if (static_cast<long>(found.size()) > s.GetLength()) {
            break;
        }
    }
    return found;
}

template <class T>
std::string CheckWalks(const QnDynArrayBase<T>& s, const std::vector<const T*>& forward) {
    const long n = s.GetLength();
    if (static_cast<long>(forward.size()) != n) {
        return Sentence("the walk forward meets ", forward.size(), " elements, the length is ", n);
    }
    if (s.GetLast() != (n == 0 ? nullptr : forward.back())) {
        return "GetLast is not the end of the walk forward";
    }
    const T* p = s.GetLast();
    for (long i = n - 1; i >= 0; --i, p = s.GetPre(p)) {
        if (p != forward[static_cast<std::size_t>(i)]) {
            return Sentence("the walk backward does not meet element ", i);
        }
    }
    if (p != nullptr) {
        return "the walk backward does not end before the first element";
    }
    if (s.GetNext(nullptr) != nullptr || s.GetPre(nullptr) != nullptr) {
        return "a step from null is not null";
    }
    return "";
}

template <class T>
std::string CheckAccess(const QnDynArrayBase<T>& s, const std::vector<const T*>& forward) {
    const long n = s.GetLength();
    for (long i = 0; i < n; ++i) {
        // Odd steps from the far end, so that access by hint or cursor is tried in both directions.
        const long k = i % 2 == 0 ? i : n - i - (n % 2 == 0 ? 0 : 1);
        const T* const expected = forward[static_cast<std::size_t>(k)];
        if (std::addressof(s.GetAt(k)) != expected || s.GetTo(k) != expected) {
            return Sentence("access to index ", k, " does not reach element ", k);
        }
    }
    if (s.GetTo(-1) != nullptr || s.GetTo(n) != nullptr) {
        return "GetTo of an invalid index is not null";
    }
    if (s.IsValidIndex(-1) || s.IsValidIndex(n) || (n > 0 && !s.IsValidIndex(0)) || s.GetMaxIndex() != n - 1 ||
        s.IsEmpty() != (n == 0)) {
        return "length, greatest index and validity disagree";
    }
    return "";
}

template <class T>
std::string CheckCursor(QnDynArrayBase<T>& s, const std::vector<const T*>& forward) {
    const long n = s.GetLength();
    const long cursor = s.GetCur();
    const bool out = cursor < 0 || cursor >= n;
    if (s.IsOut() != out || s.IsBegin() != (cursor < 0) || s.IsEnd() != (cursor >= n)) {
        return Sentence("IsOut, IsBegin, IsEnd do not fit cursor ", cursor, " and length ", n);
    }
    if (!out && std::addressof(s.GetCurData()) != forward[static_cast<std::size_t>(cursor)]) {
        return Sentence("the current element is not the one at the cursor index ", cursor);
    }
    return s.GetCur() == cursor ? "" : "reading moves the cursor";
}

/// All places of the cursor ring are met in order, and one turn ends where it began.
template <class T>
std::string CheckCursorRing(QnList<T>& list, const std::vector<const T*>& forward, bool ahead) {
    const long n = list.GetLength();
    const long places = n + 1;
    const long start = list.GetCur();
    for (long step = 1; step <= places; ++step) {
        if (ahead) {
            list.MoveToNext();
        } else {
            list.MoveToPre();
        }
        const long moved = ahead ? start + 1 + step : start + 1 + places - step;
        const long expected = moved % places - 1;
        if (list.GetCur() != expected) {
            return Sentence(ahead ? "MoveToNext" : "MoveToPre", " arrives at ", list.GetCur(), " for ", expected);
        }
        const std::string fault = CheckCursor<T>(list, forward);
        if (!fault.empty()) {
            return Sentence("after a step ", ahead ? "ahead" : "back", ": ", fault);
        }
    }
    return "";
}

/// MoveTo reaches each element from near and far.
template <class T>
std::string CheckMoveTo(QnList<T>& list, const std::vector<const T*>& forward) {
    const long n = list.GetLength();
    const long start = list.GetCur();
    for (long step = 0; step < 2 * n; ++step) {
        const long i = step < n ? step : (step - n) * 7919 % n;
        list.MoveTo(i);
        const std::string fault = CheckCursor<T>(list, forward);
        if (list.GetCur() != i || !fault.empty()) {
            return Sentence("MoveTo(", i, ") arrives at ", list.GetCur(), ' ', fault);
        }
    }
    list.MoveTo(n);
    const T* const sentinelData = std::addressof(list.GetCurData());
    for (const T* p : forward) {
        if (p == sentinelData) {
            return "with the cursor out an element is current";
        }
    }
    if (std::addressof(list.GetAt(n)) != sentinelData || std::addressof(list.GetAt(-1)) != sentinelData) {
        return "GetAt of an invalid index is not the sentinel's data";
    }
    list.MoveTo(start);
    return list.GetCur() == start ? "" : "the cursor does not go back to its place";
}

}  // namespace container_checks

/// Rules that every sequence keeps: walks, indexes and cursor agree.
template <class T>
std::string CheckSequence(QnDynArrayBase<T>& s) {
    using namespace container_checks;
    if (s.GetLength() < 0) {
        return Sentence("the length is ", s.GetLength());
    }
    const std::vector<const T*> forward = Addresses(s);
    std::string fault = CheckWalks(s, forward);
    if (fault.empty()) {
        fault = CheckAccess(s, forward);
    }
    return fault.empty() ? CheckCursor(s, forward) : fault;
}

/// Rules of growing arrays: those of sequences, and one block with room for the length.
template <class T>
std::string CheckArray(QnDynArray<T>& a) {
    using namespace container_checks;
    std::string fault = CheckSequence<T>(a);
    if (!fault.empty()) {
        return fault;
    }
    if (a.GetSpaceSize() < a.GetLength()) {
        return Sentence("the space ", a.GetSpaceSize(), " is below the length ", a.GetLength());
    }
    for (long i = 1; i < a.GetLength(); ++i) {
        if (std::addressof(a.GetAt(i)) != std::addressof(a.GetAt(0)) + i) {
            return Sentence("element ", i, " is not in one block with element 0");
        }
    }
    return "";
}

/// Rules of lists: those of sequences; the cursor is a valid index or exactly -1, it runs round in both directions,
/// and MoveTo reaches every element (which shows the index of an indexed list, too).
template <class T>
std::string CheckList(QnList<T>& list) {
    using namespace container_checks;
    std::string fault = CheckSequence<T>(list);
    if (!fault.empty()) {
        return fault;
    }
    if (list.GetCur() < -1 || list.GetCur() >= list.GetLength()) {
        return Sentence("the cursor ", list.GetCur(), " is neither a valid index nor -1");
    }
    const std::vector<const T*> forward = Addresses<T>(list);
    fault = CheckCursorRing(list, forward, true);
    if (fault.empty()) {
        fault = CheckCursorRing(list, forward, false);
    }
    return fault.empty() ? CheckMoveTo(list, forward) : fault;
}
