// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"
#include "containers/QnPDList.h"
#include "support/reference/PtNode.h"

class QnGeMLine2d;

namespace qn_detail {

/// The crossing graph of two straight polygons: their vertices and crossings, linked along both outlines.
///
/// One graph serves one Build and one Trace: the marks of a trace stay in its nodes.
///
/// Ownership  The graph owns its nodes.
/// See        PtGraph_Build.cpp and PtGraph_Trace.cpp for how it works.
class PtGraph : public QnPDList<PtNode> {
public:
    enum class TraceKind { UNION, INTER };

    /// Fills the graph from the outlines of the first and the second polygon; whether a crossing was found.
    bool Build(const QnGeMLine2d& first, const QnGeMLine2d& second);

    /// Appends the rings of the wanted result, each a closed line; a ring may have fewer than 3 vertices.
    void Trace(TraceKind kind, QnPDList<QnGeMLine2d>& rings);

private:
    friend class PtGraphBuilder;

    /// Drops the marked entries and those whose node another entry lists already, then lists the rest.
    void CleanUp();

    QnDList<PtNode::Position> m_marked;  // entries of this list that CleanUp drops
    QnPDList<PtNode> m_unlisted;         // nodes that have no entry of their own
};

}  // namespace qn_detail
