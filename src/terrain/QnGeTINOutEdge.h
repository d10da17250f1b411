// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/impl/Pieces.h"
#include "frame/QnGeApi.h"

class QnGeTINNode;
class QnGeTINTriangle;

/// One edge of a network's hull, on the way round with the network to its left.
///
/// Direction  From Node to the Node of the next record in the ring.
/// Ownership  Owns neither. The record itself is owned by QnGeTINGraph::OutEdgeList.
class QUARNGEO_API QnGeTINOutEdge {
public:
    QnGeTINNode* Node = nullptr;          ///< where the edge starts
    QnGeTINTriangle* Triangle = nullptr;  ///< the triangle that lies on it

    QnGeTINOutEdge() = default;
    QnGeTINOutEdge(QnGeTINNode* node, QnGeTINTriangle* triangle) : Node(node), Triangle(triangle) {}

    static void* operator new(std::size_t bytes) { return qn_detail::TakePiece(bytes); }
    static void operator delete(void* memory, std::size_t bytes) { qn_detail::GivePiece(memory, bytes); }
};
