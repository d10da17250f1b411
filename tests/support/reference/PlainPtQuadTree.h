// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <memory>
#include <utility>
#include <vector>

#include "frame/QnGeTolerance.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

/// The quad tree of points in its plain form, with the orders in which it gives its points back.
///
/// Ownership  Its nodes, never the points.
class PlainPtQuadTree {
public:
    QnGeExtent2d Range;
    double CenterX = 0.0;
    double CenterY = 0.0;
    std::unique_ptr<PlainPtQuadTree> Child[4];
    std::vector<QnGePoint*> PointList;
    QnGePoint* OnePoint = nullptr;

    PlainPtQuadTree() = default;
    PlainPtQuadTree(double xMin, double xMax, double yMin, double yMax) { SetRange(xMin, xMax, yMin, yMax); }

    void SetRange(double xMin, double xMax, double yMin, double yMax) {
        Range.SetRange(xMin, xMax, yMin, yMax);
        CenterX = (xMin + xMax) / 2.0;
        CenterY = (yMin + yMax) / 2.0;
    }

    bool IsEmptyTree() const {
        return PointList.empty() && OnePoint == nullptr && Child[0] == nullptr && Child[1] == nullptr &&
               Child[2] == nullptr && Child[3] == nullptr;
    }

    void Reset() {
        PointList.clear();
        OnePoint = nullptr;
        for (std::unique_ptr<PlainPtQuadTree>& child : Child) {
            child.reset();
        }
    }

    void Insert(QnGePoint* p) {
        const int q = QuadrantOf(*p);
        if (q < 0) {
            PointList.push_back(p);
            return;
        }
        if (IsEmptyTree()) {
            OnePoint = p;
            return;
        }
        if (Child[q] == nullptr) {
            const bool right = q == 0 || q == 3;
            const bool above = q == 0 || q == 1;
            Child[q] = std::make_unique<PlainPtQuadTree>(right ? CenterX : Range.x.min, right ? Range.x.max : CenterX,
                                                         above ? CenterY : Range.y.min, above ? Range.y.max : CenterY);
        }
        Child[q]->Insert(p);
        if (OnePoint != nullptr) {
            QnGePoint* const held = OnePoint;
            OnePoint = nullptr;
            Insert(held);
        }
    }

    void GetPointInNode(std::vector<QnGePoint*>& result) const {
        if (OnePoint != nullptr) {
            result.push_back(OnePoint);
        }
        result.insert(result.end(), PointList.begin(), PointList.end());
    }

    void GetAllPoint(std::vector<QnGePoint*>& result, int order) const {
        if (order == 1) {
            std::deque<const PlainPtQuadTree*> queue = {this};
            while (!queue.empty()) {
                const PlainPtQuadTree* const node = queue.front();
                queue.pop_front();
                node->GetPointInNode(result);
                for (const std::unique_ptr<PlainPtQuadTree>& child : node->Child) {
                    if (child != nullptr) {
                        queue.push_back(child.get());
                    }
                }
            }
            return;
        }
        std::deque<Layer> waiting = {Layer{{this, -1}}};
        while (!waiting.empty()) {
            const bool stack = order == 0;
            const Layer layer = stack ? waiting.back() : waiting.front();
            stack ? waiting.pop_back() : waiting.pop_front();
            Layer near;
            Layer far;
            for (const std::pair<const PlainPtQuadTree*, int>& cell : layer) {
                cell.first->GetPointInNode(result);
                Explode(*cell.first, cell.second, near, far);
            }
            const Layer& first = stack ? far : near;
            const Layer& second = stack ? near : far;
            if (!first.empty()) {
                waiting.push_back(first);
            }
            if (!second.empty()) {
                waiting.push_back(second);
            }
        }
    }

private:
    using Layer = std::vector<std::pair<const PlainPtQuadTree*, int>>;

    /// Where a child of a cell goes: which child, with which direction, into which of the two layers.
    struct Step {
        int child;
        int direction;
        bool far;
    };

    static std::vector<Step> StepsOf(int direction) {
        switch (direction) {
            case 0:
                return {{3, 7, false}, {0, 0, false}, {1, 1, false}, {2, 0, true}};
            case 1:
                return {{0, 1, false}, {1, 1, false}, {3, 1, true}, {2, 1, true}};
            case 2:
                return {{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 2, true}};
            case 3:
                return {{1, 3, false}, {2, 3, false}, {0, 3, true}, {3, 3, true}};
            case 4:
                return {{1, 3, false}, {2, 4, false}, {3, 5, false}, {0, 4, true}};
            case 5:
                return {{2, 5, false}, {3, 5, false}, {1, 5, true}, {0, 5, true}};
            case 6:
                return {{2, 5, false}, {3, 6, false}, {0, 7, false}, {1, 6, true}};
            case 7:
                return {{3, 7, false}, {0, 7, false}, {2, 7, true}, {1, 7, true}};
            default:
                return {{0, 0, false}, {1, 2, false}, {2, 4, false}, {3, 6, false}};
        }
    }

    static void Explode(const PlainPtQuadTree& cell, int direction, Layer& near, Layer& far) {
        for (const Step& step : StepsOf(direction)) {
            if (cell.Child[step.child] != nullptr) {
                (step.far ? far : near).emplace_back(cell.Child[step.child].get(), step.direction);
            }
        }
    }

    int QuadrantOf(const QnGePoint& p) const {
        const bool divided = (Range.x.max - Range.x.min) / 2.0 > g_distZero &&
                             (Range.y.max - Range.y.min) / 2.0 > g_distZero && Range.x.min < CenterX &&
                             CenterX < Range.x.max && Range.y.min < CenterY && CenterY < Range.y.max;
        if (!divided) {
            return -1;
        }
        const double dx = p.x - CenterX;
        const double dy = p.y - CenterY;
        if (dx > g_distZero) {
            return dy > g_distZero ? 0 : (dy < -g_distZero ? 3 : -1);
        }
        if (dx < -g_distZero) {
            return dy > g_distZero ? 1 : (dy < -g_distZero ? 2 : -1);
        }
        return -1;
    }
};
