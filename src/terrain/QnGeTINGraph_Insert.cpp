// SPDX-License-Identifier: Apache-2.0
//
// QnGeTINGraph_Insert.cpp: a node goes into the network, within it. QnGeTINGraph_InsertOutside.cpp has the other half.
//
// Phases     1  HitTest          the triangle, edge or node where it lies, out of the tree.
//            2  SplitTriangle    one triangle becomes three,
//               SplitEdge        or the two beside an edge become four,
//               Merge            or its value joins that of the node in its place.
//            3  LOP              each new triangle is asked whether the one across edge 1 has the node in its circle;
//                                if so the edge flips, and the two that result are asked in their turn.
// Invariant  The node stands at index 0 of every triangle on the stack, so the edge that can be wrong is always edge 1.
// Order      Of pushing and of making: both decide the order of lists, in the tree too, and with it later answers.
// Ownership  Insert takes the node when it answers true.
#include "terrain/QnGeTINGraph.h"
#include "terrain/detail/TriangleFinder.h"
#include "values/QnGeAnalytic.h"

bool QnGeTINGraph::Insert(QnGeTINNode* node) {
    switch (NodeList.GetLength()) {
        case 0:
            NodeList.Append(node);
            return true;
        case 1:
            if (*node != **NodeList.GetFirst()) {
                NodeList.Append(node);
            } else {
                Merge(**NodeList.GetFirst(), node);
            }
            return true;
        case 2:
            return InsertThird(node);
        default:
            break;
    }
    const QnGeExtent2d box(node->x, node->x, node->y, node->y);
    const bool inRange = Range.IsInclude(box);
    if (!(inRange && InsertInside(node)) && !InsertOutside(node)) {
        Dropped.Append(node);
    }
    if (!inRange) {
        Range += box;
    }
    LOP();
    m_finder->LearnSize(OutEdgeList, Range, NodeList.GetLength());
    return true;
}

/// With two nodes there: makes the first triangle, or turns down a node on their line.
bool QnGeTINGraph::InsertThird(QnGeTINNode* node) {
    QnGeTINNode* const p0 = *NodeList.GetFirst();
    QnGeTINNode* const p1 = *NodeList.GetLast();
    const int turn = GetPathType(*p0, *p1, *node);
    if (turn == PATH_STRAIGHT) {
        if (*node == *p0) {
            Merge(*p0, node);
            return true;
        }
        if (*node == *p1) {
            Merge(*p1, node);
            return true;
        }
        return false;
    }
    m_finder = std::make_unique<qn_detail::TriangleFinder>();  // whatever a former network had taught it
    NodeList.Append(node);
    QnGeTINTriangle* const triangle = NewTriangle();
    triangle->Node[0] = node;
    triangle->Node[1] = turn == PATH_LEFT ? p0 : p1;
    triangle->Node[2] = turn == PATH_LEFT ? p1 : p0;
    for (long i = 0; i < 3; ++i) {
        OutEdgeList.Append(triangle->CreateOutEdge(i));
    }
    TrgList.Append(triangle);
    PushLOP(triangle);
    LOP();
    Range = *triangle;
    return true;
}

void QnGeTINGraph::Merge(QnGeTINNode& kept, QnGeTINNode* node) {
    kept.AppendValue(node->z);
    delete node;
}

bool QnGeTINGraph::InsertInside(QnGeTINNode* node) {
    QnGeTINTriangle* triangle = nullptr;
    const int hit = HitTest(node, triangle);
    if (triangle == nullptr) {
        return false;
    }
    if (hit < 0) {
        Merge(*triangle->Node[-hit - 1], node);
    } else if (hit == 0) {
        SplitTriangle(node, triangle);
    } else {
        SplitEdge(node, triangle, hit - 1);
    }
    return true;
}

namespace {

void SetNodes(QnGeTINTriangle* triangle, QnGeTINNode* a, QnGeTINNode* b, QnGeTINNode* c) {
    triangle->Node[0] = a;
    triangle->Node[1] = b;
    triangle->Node[2] = c;
}

/// Sets the two edges that meet in the new node, which have triangles beyond, and edge 1, which was an edge of the old
/// triangles and keeps what lies there.
void SetEdges(QnGeTINTriangle* triangle, QnGeTINTriangle* beyond0, QnGeTINTriangle* beyond1, QnGeTINTriangle* beyond2,
              QnGeTINOutEdge* out1) {
    triangle->NearTrg[0] = beyond0;
    triangle->NearTrg[1] = beyond1;
    triangle->NearTrg[2] = beyond2;
    triangle->OutEdge[0] = nullptr;
    triangle->OutEdge[1] = out1;
    triangle->OutEdge[2] = nullptr;
}

/// Tells what lies beyond edge 1 that the triangle there is no longer `old`.
void Announce(QnGeTINTriangle* triangle, QnGeTINTriangle* old) {
    if (triangle->NearTrg[1] != nullptr) {
        triangle->NearTrg[1]->ReplaceNearTrg(old, triangle);
    }
    if (triangle->OutEdge[1] != nullptr) {
        triangle->OutEdge[1]->Triangle = triangle;
    }
}

}  // namespace

// T = a b c becomes p a b, T1 is p b c and T2 is p c a. Edge 1 of each is the old outer edge.
void QnGeTINGraph::SplitTriangle(QnGeTINNode* node, QnGeTINTriangle* triangle) {
    QnGeTINNode* const a = triangle->Node[0];
    QnGeTINNode* const b = triangle->Node[1];
    QnGeTINNode* const c = triangle->Node[2];
    QnGeTINTriangle* const near[3] = {triangle->NearTrg[0], triangle->NearTrg[1], triangle->NearTrg[2]};
    QnGeTINOutEdge* const out[3] = {triangle->OutEdge[0], triangle->OutEdge[1], triangle->OutEdge[2]};
    QnGeTINTriangle* const t1 = NewTriangle();
    QnGeTINTriangle* const t2 = NewTriangle();

    SetNodes(triangle, node, a, b);
    SetEdges(triangle, t2, near[0], t1, out[0]);
    SetNodes(t1, node, b, c);
    SetEdges(t1, triangle, near[1], t2, out[1]);
    SetNodes(t2, node, c, a);
    SetEdges(t2, t1, near[2], triangle, out[2]);
    Announce(t1, triangle);
    Announce(t2, triangle);

    NodeList.Append(node);
    TrgList.Append(t1);
    TrgList.Append(t2);
    PushLOP(triangle);
    PushLOP(t1);
    PushLOP(t2);
}

//           B
//         / | \           T = C A B becomes p A B and T3 is p B C; U, across the edge C A, becomes p C D and T5 is
//    T3 /   |   \ T       p D A. Each keeps one outer edge of the two old triangles as its edge 1.
//     C --- p --- A
//     U \   |   / T5
//         \ | /
//           D
void QnGeTINGraph::SplitEdge(QnGeTINNode* node, QnGeTINTriangle* triangle, long edge) {
    const long edgeAB = (edge + 1) % 3;
    const long edgeBC = (edge + 2) % 3;
    QnGeTINNode* const c = triangle->Node[edge];
    QnGeTINNode* const a = triangle->Node[edgeAB];
    QnGeTINNode* const b = triangle->Node[edgeBC];
    QnGeTINTriangle* const other = triangle->NearTrg[edge];
    QnGeTINNode* d = nullptr;
    long edgeDA = 0;
    other->GetThirdNode(a, c, d, edgeDA);
    const long edgeCD = (edgeDA + 2) % 3;

    QnGeTINTriangle* const nearAB = triangle->NearTrg[edgeAB];
    QnGeTINOutEdge* const outAB = triangle->OutEdge[edgeAB];
    QnGeTINTriangle* const nearBC = triangle->NearTrg[edgeBC];
    QnGeTINOutEdge* const outBC = triangle->OutEdge[edgeBC];
    QnGeTINTriangle* const nearCD = other->NearTrg[edgeCD];
    QnGeTINOutEdge* const outCD = other->OutEdge[edgeCD];
    QnGeTINTriangle* const nearDA = other->NearTrg[edgeDA];
    QnGeTINOutEdge* const outDA = other->OutEdge[edgeDA];
    QnGeTINTriangle* const t3 = NewTriangle();
    QnGeTINTriangle* const t5 = NewTriangle();

    SetNodes(triangle, node, a, b);
    SetEdges(triangle, t5, nearAB, t3, outAB);
    SetNodes(t3, node, b, c);
    SetEdges(t3, triangle, nearBC, other, outBC);
    SetNodes(other, node, c, d);
    SetEdges(other, t3, nearCD, t5, outCD);
    SetNodes(t5, node, d, a);
    SetEdges(t5, other, nearDA, triangle, outDA);
    Announce(t3, triangle);
    Announce(t5, other);

    NodeList.Append(node);
    TrgList.Append(t3);
    TrgList.Append(t5);
    PushLOP(triangle);
    PushLOP(t3);
    PushLOP(other);
    PushLOP(t5);
}
