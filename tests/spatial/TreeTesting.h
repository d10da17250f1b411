// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <vector>

#include "containers/QnDynArray.h"
#include "containers/QnList.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/TreeChecker.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePoint.h"

// What the tests of the trees share: what a tree answers as a vector, and boxes that live as long as the test.

using tree_checks::Elements;

using Boxes2d = std::vector<QnGeExtent2d*>;
using Boxes3d = std::vector<QnGeExtent3d*>;

/// Boxes that count how many of them are alive.
class CountedBox : public QnGeExtent2d {
public:
    CountedBox(double xMin, double xMax, double yMin, double yMax) : QnGeExtent2d(xMin, xMax, yMin, yMax) { ++s_alive; }
    CountedBox(const CountedBox&) = delete;
    CountedBox& operator=(const CountedBox&) = delete;
    ~CountedBox() override { --s_alive; }
    static long Alive() { return s_alive; }

private:
    inline static long s_alive = 0;
};

class CountedBox3d : public QnGeExtent3d {
public:
    CountedBox3d(double xMin, double xMax, double yMin, double yMax, double zMin, double zMax)
        : QnGeExtent3d(xMin, xMax, yMin, yMax, zMin, zMax) {
        ++s_alive;
    }
    CountedBox3d(const CountedBox3d&) = delete;
    CountedBox3d& operator=(const CountedBox3d&) = delete;
    ~CountedBox3d() override { --s_alive; }
    static long Alive() { return s_alive; }

private:
    inline static long s_alive = 0;
};

inline Boxes2d AllOf(const QnGeQuadTree2d& tree) {
    return tree_checks::Asked<QnGeExtent2d*>([&](QnDynArrayBase<QnGeExtent2d*>& r) { tree.GetAllExtent(r); });
}

inline Boxes2d HitsOf(const QnGeQuadTree2d& tree, double x, double y) {
    return tree_checks::Asked<QnGeExtent2d*>([&](QnDynArrayBase<QnGeExtent2d*>& r) { tree.HitTest(x, y, r); });
}

inline Boxes2d HitsOf(const QnGeQuadTree2d& tree, const QnGeExtent2d& box) {
    return tree_checks::Asked<QnGeExtent2d*>([&](QnDynArrayBase<QnGeExtent2d*>& r) { tree.HitTest(box, r); });
}

template <class T>
std::multiset<T> Sorted(const std::vector<T>& v) {
    return std::multiset<T>(v.begin(), v.end());
}
