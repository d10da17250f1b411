// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstddef>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "containers/QnList.h"
#include "frame/QnGeTolerance.h"
#include "spatial/QnGePtQuadTree2d.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/reference/PlainPtQuadTree.h"
#include "support/reference/PlainQuadTree.h"

/// Structure checkers of the quad trees, and comparisons with the plain forms. Each gives "" or one sentence that says
/// what is wrong, and in which node: `root/2/0: ...`.
namespace tree_checks {

template <class... Args>
std::string At(const std::string& where, const Args&... args) {
    std::ostringstream text;
    text.precision(17);
    text << where << ": ";
    (text << ... << args);
    return text.str();
}

/// The elements of a sequence in order.
template <class T>
std::vector<T> Elements(const QnDynArrayBase<T>& s) {
    std::vector<T> found;
    for (const T* p = s.GetFirst(); p != nullptr; p = s.GetNext(p)) {
        found.push_back(*p);
    }
    return found;
}

template <class T>
std::vector<T> Elements(const QnList<T>* s) {
    return s == nullptr ? std::vector<T>() : Elements<T>(*s);
}

/// What an operation of a tree appends to an empty array.
template <class T, class Ask>
std::vector<T> Asked(const Ask& ask) {
    QnDynArray<T> found;
    ask(found);
    return Elements<T>(found);
}

/// The quarter into which a box falls wholly, -1 if none.
inline int QuarterOf(const QnGeExtent2d& b, double centerX, double centerY) {
    const bool right = IsGreater(b.x.min - centerX, g_distZero);
    const bool left = IsLess(b.x.max - centerX, g_distZero);
    const bool above = IsGreater(b.y.min - centerY, g_distZero);
    const bool below = IsLess(b.y.max - centerY, g_distZero);
    if (right) {
        return above ? 0 : (below ? 3 : -1);
    }
    if (left) {
        return above ? 1 : (below ? 2 : -1);
    }
    return -1;
}

template <class Tree>
std::string CheckNode(const Tree& tree, const std::string& where) {
    if (tree.CenterX != (tree.x.min + tree.x.max) / 2.0 || tree.CenterY != (tree.y.min + tree.y.max) / 2.0) {
        return At(where, "the centre is not the middle of the range");
    }
    for (int q = 0; q < 4; ++q) {
        const Tree* const child = tree.Child[q];
        if (child == nullptr) {
            continue;
        }
        if (child->IsEmptyTree()) {
            return At(where, "child ", q, " is empty");
        }
        const bool right = q == 0 || q == 3;
        const bool above = q == 0 || q == 1;
        // a tree that was hung here as it grew may have its own roundings, or be flatter
        QnGeExtent2d quarter(right ? tree.CenterX : tree.x.min, right ? tree.x.max : tree.CenterX,
                             above ? tree.CenterY : tree.y.min, above ? tree.y.max : tree.CenterY);
        quarter.Inflate(1e-12 * (tree.GetLength() + std::fabs(tree.CenterX) + std::fabs(tree.CenterY)));
        if (!quarter.IsInclude(*child)) {
            return At(where, "child ", q, " reaches out of its quarter");
        }
    }
    return "";
}

template <class Tree>
bool HasChild(const Tree& tree) {
    return tree.Child[0] != nullptr || tree.Child[1] != nullptr || tree.Child[2] != nullptr || tree.Child[3] != nullptr;
}

/// Every box of the tree stands where its coordinates send it, once; no node is left without need.
///
/// Requires  A tree whose range was set, and whose boxes all lie within it.
inline std::string CheckQuadTree(const QnGeQuadTree2d& tree, const std::string& where = "root") {
    std::string wrong = CheckNode(tree, where);
    if (!wrong.empty()) {
        return wrong;
    }
    if (tree.OneExtent != nullptr && HasChild(tree)) {
        return At(where, "a single box stands beside a child");
    }
    if (tree.OneExtent != nullptr && QuarterOf(*tree.OneExtent, tree.CenterX, tree.CenterY) < 0) {
        return At(where, "the single box crosses a centre line");
    }
    if (tree.ExtentList != nullptr && tree.ExtentList->IsEmpty()) {
        return At(where, "an empty list is kept");
    }
    for (const QnGeExtent2d* box : Elements<QnGeExtent2d*>(tree.ExtentList)) {
        if (QuarterOf(*box, tree.CenterX, tree.CenterY) >= 0) {
            return At(where, "a box of the list crosses no centre line");
        }
    }
    for (int q = 0; q < 4; ++q) {
        if (tree.Child[q] == nullptr) {
            continue;
        }
        for (QnGeExtent2d* box :
             Asked<QnGeExtent2d*>([&](QnDynArrayBase<QnGeExtent2d*>& r) { tree.Child[q]->GetAllExtent(r); })) {
            if (QuarterOf(*box, tree.CenterX, tree.CenterY) != q) {
                return At(where, "a box below child ", q, " does not lie in that quarter");
            }
        }
        wrong = CheckQuadTree(*tree.Child[q], where + "/" + std::to_string(q));
        if (!wrong.empty()) {
            return wrong;
        }
    }
    if (where == "root") {
        const std::vector<QnGeExtent2d*> all =
            Asked<QnGeExtent2d*>([&](QnDynArrayBase<QnGeExtent2d*>& r) { tree.GetAllExtent(r); });
        if (std::set<QnGeExtent2d*>(all.begin(), all.end()).size() != all.size()) {
            return At(where, "a box stands in the tree twice");
        }
    }
    return "";
}

// ---- the same as the plain form --------------------------------------------------------------------

/// Two boxes are the same if they are one object; trees over different objects pass something else.
struct SameObject {
    template <class T>
    bool operator()(const T* a, const T* b) const {
        return a == b;
    }
};

template <class Tree, class Plain>
std::string CompareRange(const Tree& tree, const Plain& plain, const std::string& where) {
    if (tree.x.min != plain.Range.x.min || tree.x.max != plain.Range.x.max || tree.y.min != plain.Range.y.min ||
        tree.y.max != plain.Range.y.max) {
        return At(where, "range ", tree.x.min, ' ', tree.x.max, ' ', tree.y.min, ' ', tree.y.max, " instead of ",
                  plain.Range.x.min, ' ', plain.Range.x.max, ' ', plain.Range.y.min, ' ', plain.Range.y.max);
    }
    if (tree.CenterX != plain.CenterX || tree.CenterY != plain.CenterY) {
        return At(where, "another centre");
    }
    return "";
}

template <class T, class Same>
std::string CompareOrder(const std::vector<T*>& found, const std::vector<T*>& plain, const Same& same,
                         const std::string& where) {
    if (found.size() != plain.size()) {
        return At(where, found.size(), " entries instead of ", plain.size());
    }
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (!same(found[i], plain[i])) {
            return At(where, "another one at place ", i, " of ", found.size());
        }
    }
    return "";
}

/// The library's tree has the nodes of the plain one, with the same boxes in the same order.
template <class Same = SameObject>
std::string CompareQuadTree(const QnGeQuadTree2d& tree, const PlainQuadTree& plain, const Same& same = Same(),
                            const std::string& where = "root") {
    std::string wrong = CompareRange(tree, plain, where);
    if (!wrong.empty()) {
        return wrong;
    }
    if ((tree.ExtentList != nullptr) != plain.HasList) {
        return At(where, tree.ExtentList != nullptr ? "a list too many" : "no list");
    }
    wrong = CompareOrder(Elements<QnGeExtent2d*>(tree.ExtentList), plain.ExtentList, same, where + " list");
    if (!wrong.empty()) {
        return wrong;
    }
    if ((tree.OneExtent != nullptr) != (plain.OneExtent != nullptr) ||
        (tree.OneExtent != nullptr && !same(tree.OneExtent, plain.OneExtent))) {
        return At(where, "another single box");
    }
    for (int q = 0; q < 4; ++q) {
        if ((tree.Child[q] != nullptr) != (plain.Child[q] != nullptr)) {
            return At(where, tree.Child[q] != nullptr ? "a child too many at " : "no child at ", q);
        }
        if (tree.Child[q] != nullptr) {
            wrong = CompareQuadTree(*tree.Child[q], *plain.Child[q], same, where + "/" + std::to_string(q));
            if (!wrong.empty()) {
                return wrong;
            }
        }
    }
    return "";
}

inline std::string ComparePtQuadTree(const QnGePtQuadTree2d& tree, const PlainPtQuadTree& plain,
                                     const std::string& where = "root") {
    std::string wrong = CompareRange(tree, plain, where);
    if (wrong.empty()) {
        wrong = CompareOrder(Elements<QnGePoint*>(tree.PointList), plain.PointList, SameObject(), where + " list");
    }
    if (wrong.empty() && tree.OnePoint != plain.OnePoint) {
        wrong = At(where, "another single point");
    }
    for (int q = 0; wrong.empty() && q < 4; ++q) {
        if ((tree.Child[q] != nullptr) != (plain.Child[q] != nullptr)) {
            return At(where, "another set of children");
        }
        if (tree.Child[q] != nullptr) {
            wrong = ComparePtQuadTree(*tree.Child[q], *plain.Child[q], where + "/" + std::to_string(q));
        }
    }
    return wrong;
}

}  // namespace tree_checks
