// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "support/TinChecker.h"
#include "support/reference/PlainTin.h"

// What the tests of the network share: networks written as text, and a network that is built beside its plain form.

inline std::string PlaceOf(const QnGePoint& p) {
    std::ostringstream text;
    text.precision(10);
    text << p.x << ',' << p.y;
    return text.str();
}

/// `0,0 4,0 0,4`: the nodes of a triangle from index 0 on.
inline std::string TextOf(const QnGeTINTriangle& t) {
    return PlaceOf(*t.Node[0]) + ' ' + PlaceOf(*t.Node[1]) + ' ' + PlaceOf(*t.Node[2]);
}

/// The triangles in their order, with ` | ` between them.
inline std::string TrianglesOf(const QnGeTINGraph& graph) {
    std::string text;
    for (const QnGeTINTriangle* t : tree_checks::Elements<QnGeTINTriangle*>(graph.TrgList)) {
        text += (text.empty() ? "" : " | ") + TextOf(*t);
    }
    return text;
}

/// The starts of the hull records in their order.
inline std::string RingOf(const QnGeTINGraph& graph) {
    std::string text;
    for (const QnGeTINOutEdge* edge : tree_checks::Elements<QnGeTINOutEdge*>(graph.OutEdgeList)) {
        text += (text.empty() ? "" : " ") + PlaceOf(*edge->Node);
    }
    return text;
}

/// The nodes in their order.
inline std::string NodesOf(const QnGeTINGraph& graph) {
    std::string text;
    for (const QnGeTINNode* node : tree_checks::Elements<QnGeTINNode*>(graph.NodeList)) {
        text += (text.empty() ? "" : " ") + PlaceOf(*node);
    }
    return text;
}

/// Points as a test can paste them.
inline std::string TextOf(const std::vector<QnGePoint>& points) {
    std::ostringstream text;
    text.precision(17);
    for (const QnGePoint& p : points) {
        text << '{' << p.x << ", " << p.y << ", " << p.z << "}, ";
    }
    return text.str();
}

/// A network and its plain form, given the same nodes. At its end both are the same and the network is whole.
class TinPair {
public:
    OpenTin graph;
    PlainTin plain;
    TinRules rules;
    bool compare = true;  ///< false when a test has turned triangles by hand

    TinPair() = default;
    TinPair(double xMin, double xMax, double yMin, double yMax) { SetRange(xMin, xMax, yMin, yMax); }
    TinPair(const TinPair&) = delete;
    TinPair& operator=(const TinPair&) = delete;
    ~TinPair() { Verify(); }

    void SetRange(double xMin, double xMax, double yMin, double yMax) {
        graph.SetRange(xMin, xMax, yMin, yMax);
        plain.SetRange(xMin, xMax, yMin, yMax);
    }

    bool Insert(double x, double y, double z = 0.0) {
        auto own = std::make_unique<QnGeTINNode>(x, y, z);
        const bool taken = graph.Insert(own.get());
        if (taken) {
            static_cast<void>(own.release());
        }
        auto node = std::make_unique<PlainNode>(x, y, z);
        EXPECT_EQ(plain.Insert(node), taken) << x << ',' << y;
        return taken;
    }

    void Insert(const std::vector<QnGePoint>& points) {
        for (const QnGePoint& p : points) {
            Insert(p.x, p.y, p.z);
        }
    }

    void MakeTIN(const std::vector<QnGePoint>& points) {
        for (const QnGePoint& p : points) {
            graph.NodeList.Append(new QnGeTINNode(p.x, p.y, p.z));
            plain.NodeList.push_back(std::make_unique<PlainNode>(p.x, p.y, p.z));
        }
        graph.MakeTIN();
        plain.MakeTIN();
    }

    void Verify() const {
        if (compare) {
            EXPECT_EQ(CompareTin(graph, plain), "");
        }
        EXPECT_EQ(CheckTin(graph, rules), "");
    }

    const QnGeTINNode& Node(long i) const { return *graph.NodeList.GetAt(i); }
    const QnGeTINTriangle& Triangle(long i) const { return *graph.TrgList.GetAt(i); }
};

/// Nodes that live as long as the test, for triangles made by hand.
class NodeStore {
public:
    QnGeTINNode* operator()(double x, double y, double z = 0.0) {
        m_nodes.push_back(std::make_unique<QnGeTINNode>(x, y, z));
        return m_nodes.back().get();
    }

private:
    std::vector<std::unique_ptr<QnGeTINNode>> m_nodes;
};
