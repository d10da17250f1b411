// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/impl/Pieces.h"
#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"

/// A node of a triangulated network: a place in the plan and a value that rides along.
///
/// Z          The value. It enters no geometric test.
/// Tolerance  `==` and `!=` compare in the plan under g_distZero.
/// Laws       `==` is reflexive and symmetric; it is not transitive near the tolerance.
/// Kept odd   A copy begins a new mean with a count of 1; assignment takes the count along.
///
/// A node is polymorphic and a point is not: the way back from a QnGePoint* is static_cast, never a reinterpreting one.
class QUARNGEO_API QnGeTINNode : public QnGePoint {
public:
    long count;  ///< of how many values z is the mean

    QnGeTINNode() : count(1) {}
    QnGeTINNode(double px, double py, double pz = 0.0) : QnGePoint(px, py, pz), count(1) {}
    QnGeTINNode(const QnGePoint& p) : QnGePoint(p), count(1) {}
    QnGeTINNode(const QnGeTINNode& other) : QnGePoint(other), count(1) {}
    virtual ~QnGeTINNode();

    QnGeTINNode& operator=(const QnGeTINNode& other) = default;

    static void* operator new(std::size_t bytes) { return qn_detail::TakePiece(bytes); }
    static void operator delete(void* memory, std::size_t bytes) { qn_detail::GivePiece(memory, bytes); }

    double GetValue() const { return z; }
    void SetValue(double value) { z = value; }
    /// Takes one more value into the mean.
    void AppendValue(double value);

    bool operator==(const QnGeTINNode& other) const { return IsZero(GetDistance2d(*this, other), g_distZero); }
    bool operator!=(const QnGeTINNode& other) const { return !(*this == other); }
};
