// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/QnBitData.h"
#include "containers/impl/Pieces.h"
#include "frame/QnGeApi.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

class QnGeQuadTree2d;
class QnGeTINGraph;
class QnGeTINNode;
class QnGeTINOutEdge;

namespace qn_detail {
struct TreePlace;
}  // namespace qn_detail

/// Bits of a triangle's flag word.
enum : std::uint32_t {
    TRG_VISITED = 1,   ///< free for whoever walks over the triangles
    TRG_IN_TREE = 16,  ///< has been stored in the tree of its network
};

/// A triangle of a network: three nodes, three neighbours, three hull edges. It is also its own bounding box, under
/// which the network's quad tree stores it.
///
///              Node[2]                 NearTrg[i] and OutEdge[i] belong to the edge from Node[i] to Node[(i+1)%3]:
///               /  \                   the triangle across it, or the hull record if there is none. One of the two
///     Near[2]  /    \  Near[1]         is null.
///             /      \                 The node that is being inserted stands at index 0 of every triangle it changes,
///      Node[0]--------Node[1]          so the edge to be tested next is always edge 1.
///             Near[0]
///
/// Direction  The nodes run counter-clockwise.
/// Ownership  Owns nothing: nodes, triangles and hull records are the graph's.
/// Invariant  The circle is computed when it is asked for. Whoever changes a node sets Radius to -1, as PushLOP does.
class QUARNGEO_API QnGeTINTriangle : public QnGeExtent2d, public QnBitData {
    friend struct qn_detail::TreePlace;

    /// What belongs to this very object: copying and assigning leave it.
    template <class T>
    struct Own {
        T value{};

        Own() = default;
        Own(const Own&) {}
        Own& operator=(const Own&) { return *this; }
    };
    Own<std::uint32_t> m_place;  ///< in the list of its cell; first, for it fits in behind the flag word

public:
    QnGeTINNode* Node[3] = {nullptr, nullptr, nullptr};
    QnGeTINTriangle* NearTrg[3] = {nullptr, nullptr, nullptr};
    QnGeTINOutEdge* OutEdge[3] = {nullptr, nullptr, nullptr};
    double Radius = -1.0;  ///< of the circle through the nodes; below 0: not computed
    double CenterX = 0.0;
    double CenterY = 0.0;

    QnGeTINTriangle() = default;
    ~QnGeTINTriangle() override;

    static void* operator new(std::size_t bytes) { return qn_detail::TakePiece(bytes); }
    static void operator delete(void* memory, std::size_t bytes) { qn_detail::GivePiece(memory, bytes); }

    /// Restores the empty-circle condition across edge 1, one step: flips the edge if the triangle beyond has Node[0]
    /// within its circle, which leaves that one to be looked at first, or else takes this triangle off the stack.
    ///
    /// Requires  This triangle is the top of the graph's stack.
    virtual void LOP(QnGeTINGraph& graph);

    // ---- nodes and neighbours --------------------------------------------------------------------

    /// Fails  2 for a node that is not of this triangle.
    long GetNodeIndex(const QnGeTINNode* node) const;
    /// Turns the three arrays round such that `node` stands at index 0; the cyclic order stays.
    ///
    /// Fails  Nothing changes for a node that is not of this triangle.
    void RotateNode(QnGeTINNode* node);
    /// Kept odd  If `oldTrg` is in neither of the first two places, the third is overwritten whatever it holds.
    void ReplaceNearTrg(QnGeTINTriangle* oldTrg, QnGeTINTriangle* newTrg);
    /// The first node that is neither `a` nor `b`, and its index.
    void GetThirdNode(const QnGeTINNode* a, const QnGeTINNode* b, QnGeTINNode*& third, long& index) const;
    /// Makes the hull record of edge `i` and enters it in OutEdge.
    ///
    /// Ownership  The record goes into OutEdgeList; putting it there is the caller's part.
    QnGeTINOutEdge* CreateOutEdge(long i);

    // ---- shape -----------------------------------------------------------------------------------

    /// How the nodes turn: 0 counter-clockwise, -1 on one line, 1 clockwise.
    int GetPathType() const;
    /// Whether `p` lies within the circle through the nodes. Computes the circle if Radius says so.
    ///
    /// Tolerance  By more than g_distZero: four nodes on one circle do not flip, which is what ends the flipping.
    /// Fails      False for nodes on one line, which have no circle.
    bool IsInsideCircle(const QnGePoint& p);
    /// Sets the bounding box from the nodes.
    void UpdateExtend();

    // ---- flipping --------------------------------------------------------------------------------

    /// Exchanges the diagonal of the quadrangle made of this triangle and the one across edge 1. Of this one, a b c,
    /// and the node d beyond, it makes a b d here and a d c there: a stands at index 0 of both.
    ///
    /// Fails  Does nothing on the hull.
    void SwapDiagonalLine();
    /// Whether the node across edge 1 lies within the corner at Node[0], so that both new triangles would run
    /// counter-clockwise.
    bool CanSwapDiagonalLine() const;

private:
    Own<QnGeQuadTree2d*> m_cell;  ///< of the network's tree, in which the triangle stands

    double DistanceTo(const QnGePoint& p) const;
    void ComputeCircle();
};
