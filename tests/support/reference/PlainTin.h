// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "support/reference/PlainPtQuadTree.h"
#include "support/reference/PlainQuadTree.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

class PlainTrg;

/// A node of the plain network: a place and the running mean of the values given there.
class PlainNode : public QnGePoint {
public:
    long count = 1;

    PlainNode(double px, double py, double pz) : QnGePoint(px, py, pz) {}
    void AppendValue(double v) {
        z = (static_cast<double>(count) * z + v) / static_cast<double>(count + 1);
        ++count;
    }
    bool IsAt(const PlainNode& other) const;
};

struct PlainOutEdge {
    PlainNode* Node;
    PlainTrg* Triangle;
};

class PlainTin;

/// A triangle of the plain network. Its extent is its box as the tree knows it.
class PlainTrg : public QnGeExtent2d {
public:
    PlainNode* Node[3] = {nullptr, nullptr, nullptr};
    PlainTrg* NearTrg[3] = {nullptr, nullptr, nullptr};
    PlainOutEdge* OutEdge[3] = {nullptr, nullptr, nullptr};
    double Radius = -1.0;
    double CenterX = 0.0;
    double CenterY = 0.0;
    bool InTree = false;

    long GetNodeIndex(const PlainNode* node) const;
    void ReplaceNearTrg(const PlainTrg* oldTrg, PlainTrg* newTrg);
    bool IsInsideCircle(const QnGePoint& p);
    void GetThirdNode(const PlainNode* a, const PlainNode* b, PlainNode*& third, long& index) const;
    void SwapDiagonalLine();
    void UpdateExtend();
    void LOP(PlainTin& graph);
};

/// The triangulated network in its plain form: every step as it is described, all lists walked from their beginning.
/// The library's own has to come to the same triangles, with the same lists in the same order.
class PlainTin {
public:
    std::vector<std::unique_ptr<PlainNode>> NodeList;
    std::vector<std::unique_ptr<PlainTrg>> TrgList;
    std::vector<std::unique_ptr<PlainOutEdge>> OutEdgeList;
    std::vector<std::unique_ptr<PlainNode>> Dropped;  ///< nodes for which no place was found
    PlainQuadTree TrgTree;
    PlainPtQuadTree NodeTree;
    QnGeExtent2d Range;
    std::vector<PlainTrg*> LOPStack;

    void SetRange(double xMin, double xMax, double yMin, double yMax);
    /// Takes the node out of `node` unless the answer is false.
    bool Insert(std::unique_ptr<PlainNode>& node);
    /// Requires  Nodes that are not all on one slanted line: those would be tried for ever.
    void MakeTIN();
    void PushLOP(PlainTrg* trg);
    void PopLOP();
    int HitTest(const PlainNode& p, PlainTrg*& trg) const;

    /// What the retries of MakeTIN came to.
    long Retries = 0;

private:
    using NodePtr = std::unique_ptr<PlainNode>;
    using Index = std::size_t;

    void LOP();
    PlainTrg* NewTriangle();
    PlainNode* AppendNode(NodePtr& node);
    PlainOutEdge* InsertOutEdge(Index at, PlainTrg* trg, int slot);
    bool InsertThird(NodePtr& node);
    bool InsertInside(NodePtr& node);
    void SplitInThree(PlainNode* p, PlainTrg* t);
    void SplitInFour(PlainNode* p, PlainTrg* t, int e);
    bool InsertOutside(NodePtr& node);
    bool InsertBefore(Index i, NodePtr& node);
    bool InsertOnEdge(Index i, NodePtr& node);
    void DropOutEdge(Index i);
    long FindAndRotateEdge(const PlainNode& p, Index& i);
    const PlainNode* StartOf(Index i) const { return OutEdgeList[i]->Node; }
    const PlainNode* EndOf(Index i) const { return OutEdgeList[i + 1 < OutEdgeList.size() ? i + 1 : 0]->Node; }

    std::vector<std::unique_ptr<PlainOutEdge>> m_gone;
};
