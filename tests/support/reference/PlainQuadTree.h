// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "frame/QnGeTolerance.h"
#include "values/QnGeExtent2d.h"

/// The quad tree of boxes in its plain form: each step as it is described, nothing kept beside the boxes. The library's
/// own has to hold the same boxes in the same nodes and lists, and to answer in the same order.
///
/// Ownership  Its nodes, never the boxes.
class PlainQuadTree {
public:
    using Box = QnGeExtent2d;

    QnGeExtent2d Range;
    double CenterX = 0.0;
    double CenterY = 0.0;
    bool HasList = false;  ///< the list is made by its first box and goes with its last
    std::vector<Box*> ExtentList;
    Box* OneExtent = nullptr;
    std::unique_ptr<PlainQuadTree> Child[4];

    PlainQuadTree() = default;
    PlainQuadTree(double xMin, double xMax, double yMin, double yMax) { SetRange(xMin, xMax, yMin, yMax); }

    void SetRange(double xMin, double xMax, double yMin, double yMax) {
        Range.SetRange(xMin, xMax, yMin, yMax);
        CenterX = (xMin + xMax) / 2.0;
        CenterY = (yMin + yMax) / 2.0;
    }

    bool IsEmptyTree() const {
        return !HasList && OneExtent == nullptr &&
               std::none_of(Child, Child + 4, [](const std::unique_ptr<PlainQuadTree>& c) { return c != nullptr; });
    }

    void Reset() {
        ExtentList.clear();
        HasList = false;
        OneExtent = nullptr;
        for (std::unique_ptr<PlainQuadTree>& child : Child) {
            child.reset();
        }
    }

    void Insert(Box* b) {
        const int q = QuadrantOf(*b);
        if (q < 0) {
            HasList = true;
            ExtentList.push_back(b);
            return;
        }
        if (IsEmptyTree()) {
            OneExtent = b;
            return;
        }
        ChildAt(q).Insert(b);
        PushDown();
    }

    void operator+=(Box* b) {
        if (IsEmptyTree()) {
            SetSquareRound(MiddleX(*b), MiddleY(*b), 1.0, *b, nullptr);
        }
        if (Range.IsInside(*b)) {
            Insert(b);
            return;
        }
        Grow(b);
    }

    bool Delete(const Box* b) {
        const int q = QuadrantOf(*b);
        if (q < 0) {
            const auto found = std::find_if(ExtentList.begin(), ExtentList.end(),
                                            [b](const Box* held) { return held->IsSameWith(b); });
            if (found == ExtentList.end()) {
                return false;
            }
            ExtentList.erase(found);
            HasList = !ExtentList.empty();
            return true;
        }
        if (Child[q] == nullptr) {
            if (OneExtent == nullptr || !OneExtent->IsSameWith(b)) {
                return false;
            }
            OneExtent = nullptr;
            return true;
        }
        if (!Child[q]->Delete(b)) {
            return false;
        }
        if (Child[q]->IsEmptyTree()) {
            Child[q].reset();
        }
        return true;
    }

    void operator-=(const Box* b) {
        if (Delete(b)) {
            Compress();
        }
    }

    void Compress() {
        if (HasList) {
            return;
        }
        if (OneExtent != nullptr) {
            Box* const kept = OneExtent;
            Reset();
            *this += kept;
            return;
        }
        int lone = -1;
        for (int q = 0; q < 4; ++q) {
            if (Child[q] != nullptr) {
                if (lone >= 0) {
                    return;
                }
                lone = q;
            }
        }
        if (lone < 0) {
            return;
        }
        const std::unique_ptr<PlainQuadTree> child = std::move(Child[lone]);
        child->MoveInto(*this);
        Compress();
    }

    /// The stated operator>>.
    void MoveInto(PlainQuadTree& target) {
        if (&target == this) {
            return;
        }
        target.SetRange(Range.x.min, Range.x.max, Range.y.min, Range.y.max);
        target.ExtentList.swap(ExtentList);
        ExtentList.clear();
        target.HasList = HasList;
        HasList = false;
        target.OneExtent = OneExtent;
        OneExtent = nullptr;
        for (int q = 0; q < 4; ++q) {
            target.Child[q] = std::move(Child[q]);
        }
    }

    /// Puts a whole tree beneath this node; it stays with the caller where the answer is false.
    bool InsertChild(std::unique_ptr<PlainQuadTree>& subtree) {
        const int q = QuadrantOf(MiddleX(subtree->Range) - CenterX, MiddleY(subtree->Range) - CenterY);
        if (q < 0) {
            return false;
        }
        bool placed = true;
        if (Range.GetLength() / 2.0 - subtree->Range.GetLength() > g_distZero) {
            const bool made = Child[q] == nullptr;
            placed = ChildAt(q).InsertChild(subtree);
            if (made && !placed) {
                Child[q].reset();
            }
        } else {
            Child[q] = std::move(subtree);
        }
        if (placed) {
            PushDown();
        }
        return placed;
    }

    void HitTest(double x, double y, std::vector<Box*>& result) const {
        const int q = IsDivided() ? QuadrantOf(x - CenterX, y - CenterY) : -1;
        if (q >= 0) {
            if (Child[q] != nullptr) {
                Child[q]->HitTest(x, y, result);
            } else if (OneExtent != nullptr && OneExtent->IsInclude(x, y)) {
                result.push_back(OneExtent);
            }
        }
        for (Box* b : ExtentList) {
            if (b->IsInclude(x, y)) {
                result.push_back(b);
            }
        }
    }

    void HitTest(const Box& box, std::vector<Box*>& result) const {
        const int q = QuadrantOf(box);
        if (q >= 0 && Child[q] != nullptr) {
            Child[q]->HitTest(box, result);
        }
        if (q < 0) {
            for (const std::unique_ptr<PlainQuadTree>& child : Child) {
                if (child == nullptr) {
                    continue;
                }
                const Box cut = box & child->Range;
                if (cut.IsValid()) {
                    child->HitTest(cut, result);
                }
            }
        }
        if (OneExtent != nullptr && OneExtent->IsInsersectWith(box)) {
            result.push_back(OneExtent);
        }
        for (Box* b : ExtentList) {
            if (b->IsInsersectWith(box)) {
                result.push_back(b);
            }
        }
    }

    void GetAllExtent(std::vector<Box*>& result) const {
        result.insert(result.end(), ExtentList.begin(), ExtentList.end());
        if (OneExtent != nullptr) {
            result.push_back(OneExtent);
        }
        for (const std::unique_ptr<PlainQuadTree>& child : Child) {
            if (child != nullptr) {
                child->GetAllExtent(result);
            }
        }
    }

    /// The quadrant into which a box falls wholly, -1 if there is none.
    int QuadrantOf(const Box& b) const {
        if (!IsDivided()) {
            return -1;
        }
        if (b.x.min - CenterX > g_distZero) {
            if (b.y.min - CenterY > g_distZero) {
                return 0;
            }
            return b.y.max - CenterY < -g_distZero ? 3 : -1;
        }
        if (b.x.max - CenterX < -g_distZero) {
            if (b.y.min - CenterY > g_distZero) {
                return 1;
            }
            return b.y.max - CenterY < -g_distZero ? 2 : -1;
        }
        return -1;
    }

private:
    static double MiddleX(const Box& b) { return (b.x.min + b.x.max) / 2.0; }
    static double MiddleY(const Box& b) { return (b.y.min + b.y.max) / 2.0; }

    /// Whether the node is large enough to have quadrants.
    bool IsDivided() const {
        return (Range.x.max - Range.x.min) / 2.0 > g_distZero && (Range.y.max - Range.y.min) / 2.0 > g_distZero &&
               Range.x.min < CenterX && CenterX < Range.x.max && Range.y.min < CenterY && CenterY < Range.y.max;
    }

    static int QuadrantOf(double dx, double dy) {
        if (dx > g_distZero) {
            return dy > g_distZero ? 0 : (dy < -g_distZero ? 3 : -1);
        }
        if (dx < -g_distZero) {
            return dy > g_distZero ? 1 : (dy < -g_distZero ? 2 : -1);
        }
        return -1;
    }

    PlainQuadTree& ChildAt(int q) {
        if (Child[q] == nullptr) {
            const bool right = q == 0 || q == 3;
            const bool above = q == 0 || q == 1;
            Child[q] = std::make_unique<PlainQuadTree>(right ? CenterX : Range.x.min, right ? Range.x.max : CenterX,
                                                       above ? CenterY : Range.y.min, above ? Range.y.max : CenterY);
        }
        return *Child[q];
    }

    /// A box that is alone in this node does not stay beside a child.
    void PushDown() {
        if (OneExtent != nullptr) {
            Box* const held = OneExtent;
            OneExtent = nullptr;
            Insert(held);
        }
    }

    /// Takes the square round a point whose half side is doubled until `b` lies inside, and `include` in it if given.
    void SetSquareRound(double x, double y, double half, const Box& b, const Box* include) {
        Box square(x - half, x + half, y - half, y + half);
        while (std::isfinite(half) && !(square.IsInside(b) && (include == nullptr || square.IsInclude(*include)))) {
            half *= 2.0;
            square.SetRange(x - half, x + half, y - half, y + half);
        }
        SetRange(square.x.min, square.x.max, square.y.min, square.y.max);
    }

    /// Makes room for a box that does not lie inside the range.
    void Grow(Box* b) {
        const Box old = Range;
        const Box both = Range + *b;
        const double w = Range.GetLength();
        const bool usable = w > 2.0 * g_distZero;
        double ux = MiddleX(both);
        double uy = MiddleY(both);
        if (usable) {
            const double ax = CenterX < ux ? Range.x.max : Range.x.min;
            const double ay = CenterY < uy ? Range.y.max : Range.y.min;
            ux = std::trunc((ux - ax) / w) * w + ax;
            uy = std::trunc((uy - ay) / w) * w + ay;
        }
        if (usable && Range.GetHeight() - w <= g_distZero) {
            auto content = std::make_unique<PlainQuadTree>();
            PlainQuadTree square;
            square.SetSquareRound(ux, uy, w, *b, nullptr);
            if (square.Range.IsInclude(old)) {
                MoveInto(*content);
                SetRange(square.Range.x.min, square.Range.x.max, square.Range.y.min, square.Range.y.max);
                if (InsertChild(content)) {
                    Insert(b);
                    return;
                }
                content->MoveInto(*this);
            }
        }
        std::vector<Box*> boxes;
        GetAllExtent(boxes);
        Reset();
        SetSquareRound(ux, uy, std::max(w, 1.0), *b, &old);
        for (Box* box : boxes) {
            Insert(box);
        }
        Insert(b);
    }
};
