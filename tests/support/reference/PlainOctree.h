// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "frame/QnGeTolerance.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePoint.h"

/// An octree of boxes as it is stated: one node after the other from the root, lists gone through.
///
/// Order  Of lists, of hits: what the library must keep to.
class PlainOctree {
public:
    using Box = QnGeExtent3d;

    QnGeExtent3d range;
    double centre[3] = {0.0, 0.0, 0.0};
    std::vector<Box*> list;
    Box* one = nullptr;
    std::unique_ptr<PlainOctree> child[8];

    explicit PlainOctree(const QnGeExtent3d& r) : range(r) {
        for (int axis = 0; axis < 3; ++axis) {
            centre[axis] = (AxisOf(r, axis).min + AxisOf(r, axis).max) / 2.0;
        }
    }

    bool IsEmpty() const {
        return list.empty() && one == nullptr &&
               std::none_of(std::begin(child), std::end(child), [](const auto& c) { return c != nullptr; });
    }

    void Insert(Box* box) {
        const int octant = OctantOf(*box);
        if (octant < 0) {
            list.push_back(box);
        } else if (IsEmpty()) {
            one = box;
        } else {
            if (child[octant] == nullptr) {
                child[octant] = std::make_unique<PlainOctree>(CellOf(octant));
            }
            child[octant]->Insert(box);
            if (one != nullptr) {
                Box* const pushed = one;
                one = nullptr;
                Insert(pushed);
            }
        }
    }

    bool Delete(const Box* box) {
        const int octant = OctantOf(*box);
        if (octant < 0) {
            const auto at = std::find(list.begin(), list.end(), box);
            const bool isHere = at != list.end();
            if (isHere) {
                list.erase(at);
            }
            return isHere;
        }
        if (child[octant] == nullptr) {
            const bool isHere = one == box;
            one = isHere ? nullptr : one;
            return isHere;
        }
        const bool isDeleted = child[octant]->Delete(box);
        if (isDeleted && child[octant]->IsEmpty()) {
            child[octant] = nullptr;
        }
        return isDeleted;
    }

    void HitTest(const QnGePoint& p, std::vector<Box*>& hits) const {
        const int octant = OctantOf(QnGeExtent3d(p.x, p.x, p.y, p.y, p.z, p.z));
        if (octant >= 0 && child[octant] != nullptr) {
            child[octant]->HitTest(p, hits);
        } else if (octant >= 0 && one != nullptr && one->IsInclude(p.x, p.y, p.z)) {
            hits.push_back(one);
        }
        for (Box* box : list) {
            if (box->IsInclude(p.x, p.y, p.z)) {
                hits.push_back(box);
            }
        }
    }

    void HitTest(const Box& box, std::vector<Box*>& hits) const {
        const int octant = OctantOf(box);
        for (int i = 0; i < 8; ++i) {
            if (child[i] != nullptr && (octant < 0 || octant == i)) {
                const Box cut = octant < 0 ? box & child[i]->range : box;
                if (cut.IsValid()) {
                    child[i]->HitTest(cut, hits);
                }
            }
        }
        if (one != nullptr && one->IsInsersectWith(box)) {
            hits.push_back(one);
        }
        for (Box* b : list) {
            if (b->IsInsersectWith(box)) {
                hits.push_back(b);
            }
        }
    }

    void GetAllExtent(std::vector<Box*>& all) const {
        all.insert(all.end(), list.begin(), list.end());
        if (one != nullptr) {
            all.push_back(one);
        }
        for (const auto& c : child) {
            if (c != nullptr) {
                c->GetAllExtent(all);
            }
        }
    }

private:
    static const QnGeExtent& AxisOf(const Box& box, int axis) {
        return axis == 0 ? box.x : (axis == 1 ? box.y : box.z);
    }

    /// -1: on a centre plane, or the range is too small to divide.
    int OctantOf(const Box& box) const {
        bool isAbove[3];
        for (int axis = 0; axis < 3; ++axis) {
            const QnGeExtent& side = AxisOf(box, axis);
            const QnGeExtent& whole = AxisOf(range, axis);
            isAbove[axis] = side.min - centre[axis] > g_distZero;
            if (!isAbove[axis] && !(side.max - centre[axis] < -g_distZero)) {
                return -1;
            }
            if (!((whole.max - whole.min) / 2.0 > g_distZero && whole.min < centre[axis] && centre[axis] < whole.max)) {
                return -1;
            }
        }
        const int quadrant = isAbove[0] ? (isAbove[1] ? 0 : 3) : (isAbove[1] ? 1 : 2);
        return (isAbove[2] ? 0 : 4) + quadrant;
    }

    QnGeExtent3d CellOf(int octant) const {
        const int quadrant = octant % 4;
        const auto half = [this](int axis, bool isAbove) {
            const QnGeExtent& whole = AxisOf(range, axis);
            return isAbove ? QnGeExtent(centre[axis], whole.max) : QnGeExtent(whole.min, centre[axis]);
        };
        const QnGeExtent x = half(0, quadrant == 0 || quadrant == 3);
        const QnGeExtent y = half(1, quadrant < 2);
        const QnGeExtent z = half(2, octant < 4);
        return QnGeExtent3d(x.min, x.max, y.min, y.max, z.min, z.max);
    }
};
