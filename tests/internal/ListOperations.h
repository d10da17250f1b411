// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "containers/QnList.h"
#include "containers/QnQuene.h"
#include "support/ContainerCheckers.h"
#include "support/TreeChecker.h"
#include "values/QnGeExtent2d.h"

/// What callers can do with a list of boxes, each operation with what it answers as text. A list that keeps its
/// elements otherwise has to answer as a plain one, and to look like it afterwards.
namespace list_operations {

using Box = QnGeExtent2d;
using List = QnList<Box*>;
using Boxes = QnDynArray<Box*>;

struct Operation {
    const char* name;
    long fewest;  ///< elements that a list must have for it
    std::function<std::string(List&)> run;
};

/// Boxes by address: the lists that are compared hold the same ones.
template <class... Args>
std::string Text(const Args&... args) {
    std::ostringstream text;
    ((text << args << ' '), ...);
    return text.str();
}

inline std::string Contents(const QnDynArrayBase<Box*>& boxes) {
    std::string text = Text("cursor", boxes.GetCur(), "of", boxes.GetLength(), ':');
    for (Box* const* entry = boxes.GetFirst(); entry != nullptr; entry = boxes.GetNext(entry)) {
        text += Text(*entry);
    }
    return text;
}

inline std::string Element(Box* const* element) {
    return element == nullptr ? "none" : Text(*element);
}

/// Boxes that are in no list at first.
inline Box* Stranger(std::size_t i) {
    static Box strangers[3] = {Box(-3, 0, 0, 0), Box(2.5, 9, 0, 0), Box(9, 9, 0, 0)};
    return strangers + i;
}

inline List Strangers() {
    List list;
    for (std::size_t i = 0; i < 3; ++i) {
        list.Append(Stranger(i));
    }
    return list;
}

/// By the low end in x; what a grown list has in addition comes first.
inline int CompareX(Box* const& a, Box* const& b) {
    return a != nullptr && (b == nullptr || a->x.min > b->x.min) ? 1 : 0;
}

/// An operation that answers nothing.
template <class Do>
Operation Doing(const char* name, long fewest, Do what) {
    return {name, fewest, [what](List& list) {
                what(list);
                return std::string();
            }};
}

/// Those that a list without nodes has to answer for itself.
inline std::vector<Operation> OverriddenOperations() {
    return {
        Doing("IncreaseSize", 0, [](List& s) { s.IncreaseSize(2); }),
        Doing("DecreaseSize", 0, [](List& s) { s.DecreaseSize(1); }),
        Doing("SetLength to one", 0, [](List& s) { s.SetLength(1, false); }),
        Doing("SetLength to more", 0, [](List& s) { s.SetLength(s.GetLength() + 2, true); }),
        Doing("Reset", 0, [](List& s) { s.Reset(); }),
        {"GetCurData", 0, [](List& s) { return Text(s.GetCurData()); }},
        Doing("SetCurData", 0, [](List& s) { s.SetCurData(Stranger(0)); }),
        Doing("MoveToFirst", 0, [](List& s) { s.MoveToFirst(); }),
        Doing("MoveToNext", 0, [](List& s) { s.MoveToNext(); }),
        Doing("MoveToPre", 0, [](List& s) { s.MoveToPre(); }),
        Doing("MoveToLast", 0, [](List& s) { s.MoveToLast(); }),
        Doing("MoveTo an element", 0, [](List& s) { s.MoveTo(1); }),
        Doing("MoveTo out", 0, [](List& s) { s.MoveTo(-1); }),
        {"GetFirst", 0, [](List& s) { return Element(s.GetFirst()); }},
        {"GetNext", 0, [](List& s) { return Element(s.GetNext(nullptr)); }},
        {"GetNext of the first", 1, [](List& s) { return Element(s.GetNext(s.GetFirst())); }},
        {"GetPre", 0, [](List& s) { return Element(s.GetPre(nullptr)); }},
        {"GetPre of the last", 1, [](List& s) { return Element(s.GetPre(s.GetLast())); }},
        {"GetLast", 0, [](List& s) { return Element(s.GetLast()); }},
        {"GetAt an index", 0, [](List& s) { return Text(s.GetAt(1)); }},
        {"GetAt no index", 0, [](List& s) { return Text(s.GetAt(-1)); }},
        {"[] of an index", 2, [](List& s) { return Text(s[1]); }},
        {"[] past the end", 0, [](List& s) { return Text(s[s.GetLength() + 1]); }},
        Doing("InsertCur", 0, [](List& s) { s.InsertCur(Stranger(0)); }),
        Doing("Insert", 0, [](List& s) { s.Insert(1, Stranger(0)); }),
        Doing("InsertHead", 0, [](List& s) { s.InsertHead(Stranger(0)); }),
        {"Append", 0, [](List& s) { return Text(s.Append(Stranger(0))); }},
        Doing("DelCur", 0, [](List& s) { s.DelCur(); }),
        Doing("Sort by a comparison", 0, [](List& s) { s.Sort(CompareX); }),
        Doing("Sort up", 0, [](List& s) { s.Sort(true); }),
        Doing("Sort down", 0, [](List& s) { s.Sort(false); }),
        {"Move", 0, [](List& s) { return Text(s.Move(0, 2)); }},
        {"Move to the end", 0, [](List& s) { return Text(s.Move(1, s.GetLength())); }},
        Doing("InsertAfterCur", 0, [](List& s) { s.InsertAfterCur(Stranger(0)); }),
        {"Conbine", 0,
         [](List& s) {
             List other = Strangers();
             const long length = s.Conbine(other, 1);
             return Text(length, Contents(other));
         }},
        {"Conbine with itself", 0, [](List& s) { return Text(s.Conbine(s, 0)); }},
        Doing("ReverseList", 0, [](List& s) { s.ReverseList(); }),
        Doing("Rotate", 0, [](List& s) { s.Rotate(1, 0); }),
        Doing("Rotate far", 0, [](List& s) { s.Rotate(-7, 1); }),
    };
}

/// Those that do their work by others, or read the list from outside.
inline std::vector<Operation> OtherOperations() {
    return {
        {"const []", 0, [](List& s) { return Text(static_cast<const List&>(s)[1]); }},
        {"GetTo", 0, [](List& s) { return Element(s.GetTo(1)) + Element(s.GetTo(-1)); }},
        {"being copied", 0, [](List& s) { return Contents(List(s)); }},
        {"being assigned", 0,
         [](List& s) {
             List copy = Strangers();
             copy = s;
             return Contents(copy);
         }},
        {"being assigned to an array", 0,
         [](List& s) {
             Boxes copy;
             copy.DeepCopy(s);
             return Contents(copy);
         }},
        Doing("operator=", 0, [](List& s) { s = Strangers(); }),
        Doing("operator= of itself", 0, [](List& s) { s.DeepCopy(s); }),
        {"being combined", 0,
         [](List& s) {
             List other = Strangers();
             const long length = other.Conbine(s, 1);
             return Text(length, Contents(other));
         }},
        {"SplitAt", 0,
         [](List& s) {
             List rest = Strangers();
             s.SplitAt(1, rest);
             return Contents(rest);
         }},
        {"SplitAtCur", 0,
         [](List& s) {
             List rest = Strangers();
             s.SplitAtCur(rest);
             return Contents(rest);
         }},
        Doing("SetAll", 0, [](List& s) { s.SetAll(Stranger(1)); }),
        Doing("Exchange", 3, [](List& s) { s.Exchange(0, 2); }),
        Doing("Reverse", 0, [](List& s) { s.Reverse(); }),
        Doing("Reverse of a part", 3, [](List& s) { s.Reverse(1, 2); }),
        {"Left, Mid and Right", 0,
         [](List& s) {
             Boxes left;
             List mid;
             Boxes right;
             s.Left(2, left);
             s.Mid(1, 2, mid);
             s.Right(2, right);
             return Contents(left) + Contents(mid) + Contents(right);
         }},
        Doing("<<", 0, [](List& s) { s << Stranger(2); }),
        Doing("<< of a list", 0, [](List& s) { s << Strangers(); }),
        Doing("<< of itself", 0, [](List& s) { s << s; }),
        Doing("Del", 0, [](List& s) { s.Del(1); }),
        Doing("DelHead", 0, [](List& s) { s.DelHead(); }),
        Doing("DelTail", 0, [](List& s) { s.DelTail(); }),
        {"Find", 2, [](List& s) { return Text(s.Find(s.GetAt(1)), s.Find(Stranger(0))); }},
        {"Find all", 2,
         [](List& s) {
             QnListQuene<long> hits;
             const long count = s.Find(s.GetAt(1), hits);
             return Text(count, hits[0]);
         }},
        {"FindTo", 2, [](List& s) { return Text(s.FindTo(s.GetAt(1))); }},
        {"FindTo a stranger", 0, [](List& s) { return Text(s.FindTo(Stranger(0))); }},
        {"FindDel", 2, [](List& s) { return Text(s.FindDel(s.GetAt(1))); }},
        {"FindOrAppend", 0, [](List& s) { return Text(s.FindOrAppend(Stranger(0))); }},
        Doing("FindOrInsertHead", 0, [](List& s) { s.FindOrInsertHead(Stranger(0)); }),
        {"BFindTo", 0, [](List& s) { return Text(s.BFind(Stranger(0)), s.BFindTo(Stranger(0))); }},
        {"SortInto", 0, [](List& s) { return Text(s.SortInto(Stranger(0), true)); }},
        {"comparing", 0,
         [](List& s) {
             const List other = Strangers();
             return Text(s == other, s != other, s<other, s> other, other == s);
         }},
    };
}

inline std::vector<Operation> AllOperations() {
    std::vector<Operation> all = OverriddenOperations();
    for (const Operation& operation : OtherOperations()) {
        all.push_back(operation);
    }
    return all;
}

/// A plain list of some boxes with its cursor at an index, -1 for out.
struct PlainList : List {
    PlainList(const std::vector<Box*>& boxes, long cursor) {
        for (Box* box : boxes) {
            Append(box);
        }
        MoveTo(cursor);
    }
};

/// Does the same to both and compares. "" or what is wrong.
inline std::string Compare(const Operation& operation, List& list, List& plain) {
    if (list.GetLength() < operation.fewest) {
        return "";
    }
    const std::string found = operation.run(list);
    const std::string expected = operation.run(plain);
    if (found != expected) {
        return container_checks::Sentence(operation.name, " answers ", found, " instead of ", expected);
    }
    if (Contents(list) != Contents(plain)) {
        return container_checks::Sentence(operation.name, " leaves ", Contents(list), " instead of ", Contents(plain));
    }
    if (list.IsOut() != plain.IsOut() || list.IsEmpty() != plain.IsEmpty()) {
        return container_checks::Sentence(operation.name, " leaves another state");
    }
    const std::string fault = CheckList<Box*>(list);
    return fault.empty() ? "" : container_checks::Sentence("after ", operation.name, ": ", fault);
}

}  // namespace list_operations
