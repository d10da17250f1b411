// SPDX-License-Identifier: Apache-2.0
//
// QnGePointQuadTreeLayer2d.cpp: how a ring of cells falls into an outer and an inner ring.
//
//      +----+----+----+----+     Four cells of a ring, each with its quarters. What touches the tree's border stays
//      | 1  . 0  | 1  . 0  |     near: of a corner three quarters, of a side two. The others are far. A corner's
//      |....2....|....1....|     outer quarter is a corner again, its two neighbours are sides.
//      | 2  . 3  | 2  . 3  |
//      +----+----+----+----+     The table says for each direction, in order, which children go where and as what.
#include "spatial/QnGePointQuadTreeLayer2d.h"

#include "spatial/QnGePtQuadTree2d.h"

namespace {

struct Move {
    int child;  ///< END behind the last
    int direction;
};

constexpr int END = -1;
constexpr int DIRECTIONS = 8;
constexpr int MOST_MOVES = 5;

struct MovesOfDirection {
    Move near[MOST_MOVES];
    Move far[MOST_MOVES];
};

constexpr MovesOfDirection MOVES[DIRECTIONS] = {
    {{{3, 7}, {0, 0}, {1, 1}, {END, 0}}, {{2, 0}, {END, 0}}}, {{{0, 1}, {1, 1}, {END, 0}}, {{3, 1}, {2, 1}, {END, 0}}},
    {{{0, 1}, {1, 2}, {2, 3}, {END, 0}}, {{3, 2}, {END, 0}}}, {{{1, 3}, {2, 3}, {END, 0}}, {{0, 3}, {3, 3}, {END, 0}}},
    {{{1, 3}, {2, 4}, {3, 5}, {END, 0}}, {{0, 4}, {END, 0}}}, {{{2, 5}, {3, 5}, {END, 0}}, {{1, 5}, {0, 5}, {END, 0}}},
    {{{2, 5}, {3, 6}, {0, 7}, {END, 0}}, {{1, 6}, {END, 0}}}, {{{3, 7}, {0, 7}, {END, 0}}, {{2, 7}, {1, 7}, {END, 0}}},
};

/// The root touches the border on all sides: its quarters are the corners.
constexpr MovesOfDirection MOVES_OF_ROOT = {{{0, 0}, {1, 2}, {2, 4}, {3, 6}, {END, 0}}, {{END, 0}}};

const MovesOfDirection& MovesOf(int direction) {
    return direction >= 0 && direction < DIRECTIONS ? MOVES[direction] : MOVES_OF_ROOT;
}

void AppendChildren(const QnGePtQuadTree2d& node, const Move* moves, QnGePointQuadTreeLayer2d& layer) {
    for (; moves->child != END; ++moves) {
        if (node.Child[moves->child] != nullptr) {
            layer.Append(node.Child[moves->child], moves->direction);
        }
    }
}

}  // namespace

void QnGePointQuadTreeLayer2d::Append(QnGePtQuadTree2d* node, int direction) {
    QnList<QnGePtQuadTree2d*>::Append(node);
    Direction.Append(direction);
}

void QnGePointQuadTreeLayer2d::GetPoint(QnList<QnGePoint*>& result) const {
    for (QnGePtQuadTree2d* const* node = GetFirst(); node != nullptr; node = GetNext(node)) {
        (*node)->GetPointInNode(result);
    }
}

void QnGePointQuadTreeLayer2d::ExplodeTo(QnGePointQuadTreeLayer2d& near, QnGePointQuadTreeLayer2d& far) const {
    const int* direction = Direction.GetFirst();
    for (QnGePtQuadTree2d* const* node = GetFirst(); node != nullptr && direction != nullptr; node = GetNext(node)) {
        const MovesOfDirection& moves = MovesOf(*direction);
        AppendChildren(**node, moves.near, near);
        AppendChildren(**node, moves.far, far);
        direction = Direction.GetNext(direction);
    }
}
