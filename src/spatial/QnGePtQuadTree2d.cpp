// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGePtQuadTree2d.h"

#include <memory>

#include "containers/QnQuene.h"
#include "containers/QnStack.h"
#include "spatial/QnGePointQuadTreeLayer2d.h"
#include "spatial/detail/SectorTree.h"

namespace {

using Work = qn_detail::PointTreeWork<QnGePtQuadTree2d, qn_detail::PlanSectors<QnGePtQuadTree2d>>;
using Layer = QnGePointQuadTreeLayer2d;

constexpr int ORDER_RINGS_DEEP = 0;  ///< each ring down to its leaves before the next
constexpr int ORDER_BY_LEVEL = 1;    ///< all nodes of a level, then those of the next
constexpr int DIRECTION_OF_ROOT = -1;

void GetByLevel(QnGePtQuadTree2d& tree, QnList<QnGePoint*>& result) {
    QnListQuene<QnGePtQuadTree2d*> waiting;
    waiting.EnQuene(&tree);
    QnGePtQuadTree2d* node = nullptr;
    while (waiting.DeQuene(node)) {
        node->GetPointInNode(result);
        for (QnGePtQuadTree2d* child : node->Child) {
            if (child != nullptr) {
                waiting.EnQuene(child);
            }
        }
    }
}

std::unique_ptr<Layer> FirstLayer(QnGePtQuadTree2d& tree) {
    auto layer = std::make_unique<Layer>();
    layer->Append(&tree, DIRECTION_OF_ROOT);
    return layer;
}

/// The layers inside a layer: `near` the border, and `far` from it; null where there are no nodes.
struct InnerLayers {
    std::unique_ptr<Layer> near = std::make_unique<Layer>();
    std::unique_ptr<Layer> far = std::make_unique<Layer>();

    explicit InnerLayers(const Layer& layer) {
        layer.ExplodeTo(*near, *far);
        if (near->IsEmpty()) {
            near.reset();
        }
        if (far->IsEmpty()) {
            far.reset();
        }
    }
};

void GetRingsDeep(QnGePtQuadTree2d& tree, QnList<QnGePoint*>& result) {
    QnDListStack<Layer*> waiting;
    waiting.Push(FirstLayer(tree).release());
    Layer* top = nullptr;
    while (waiting.Pop(top)) {
        const std::unique_ptr<Layer> layer(top);
        layer->GetPoint(result);
        InnerLayers inner(*layer);
        if (inner.far != nullptr) {
            waiting.Push(inner.far.release());
        }
        if (inner.near != nullptr) {
            waiting.Push(inner.near.release());
        }
    }
}

void GetRingsWide(QnGePtQuadTree2d& tree, QnList<QnGePoint*>& result) {
    QnListQuene<Layer*> waiting;
    waiting.EnQuene(FirstLayer(tree).release());
    Layer* head = nullptr;
    while (waiting.DeQuene(head)) {
        const std::unique_ptr<Layer> layer(head);
        layer->GetPoint(result);
        InnerLayers inner(*layer);
        if (inner.near != nullptr) {
            waiting.EnQuene(inner.near.release());
        }
        if (inner.far != nullptr) {
            waiting.EnQuene(inner.far.release());
        }
    }
}

}  // namespace

void* QnGePtQuadTree2d::operator new(std::size_t bytes) {
    return qn_detail::TakePiece(bytes);
}

void QnGePtQuadTree2d::operator delete(void* tree, std::size_t bytes) {
    qn_detail::GivePiece(tree, bytes);
}

QnGePtQuadTree2d::QnGePtQuadTree2d() : CenterX(0.0), CenterY(0.0) {
    Work::MakeEmpty(*this);
}

QnGePtQuadTree2d::~QnGePtQuadTree2d() {
    Work::Reset(*this);
}

void QnGePtQuadTree2d::SetRange(double xMin, double xMax, double yMin, double yMax) {
    QnGeExtent2d::SetRange(xMin, xMax, yMin, yMax);
    CenterX = x.GetCenter();
    CenterY = y.GetCenter();
}

bool QnGePtQuadTree2d::IsEmptyTree() const {
    return Work::IsEmpty(*this);
}

void QnGePtQuadTree2d::Reset() {
    Work::Reset(*this);
}

void QnGePtQuadTree2d::Insert(QnGePoint* point) {
    Work::Insert(*this, point);
}

void QnGePtQuadTree2d::GetPointInNode(QnList<QnGePoint*>& result) const {
    Work::GetPointInNode(*this, result);
}

void QnGePtQuadTree2d::GetAllPoint(QnList<QnGePoint*>& result, int order) const {
    auto& tree =
        const_cast<QnGePtQuadTree2d&>(*this);  // layers hold nodes that their callers may change; none is changed here
    if (order == ORDER_BY_LEVEL) {
        GetByLevel(tree, result);
    } else if (order == ORDER_RINGS_DEEP) {
        GetRingsDeep(tree, result);
    } else {
        GetRingsWide(tree, result);
    }
}
