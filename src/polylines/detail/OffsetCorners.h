// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace qn_detail {

/// The segments that an offset moves: all of a line, or one.
struct MovedSegs {
    long first;
    long last;

    bool Has(long i) const { return first <= i && i <= last; }
    bool HasOneOf(long i, long k) const { return Has(i) || Has(k); }
};

/// Writes the vertices that an offset makes anew: the corners at a moved segment and the ends of an open line.
///
/// `carriers` has Corner(a, b, vertex), the vertex between the segments a and b, false if their carriers do not meet,
/// and GetStart(i, vertex) and GetEnd(i, vertex), the ends of the moved segment i.
///
/// Fails  False; some of `vertices` may then be written.
template <class Carriers, class Points>
bool MoveVertices(const Carriers& carriers, long segNum, bool closed, const MovedSegs& moved, Points& vertices) {
    for (long k = 1; k < segNum; ++k) {
        if (moved.HasOneOf(k - 1, k) && !carriers.Corner(k - 1, k, vertices[k])) {
            return false;
        }
    }
    const long last = segNum - 1;
    if (closed) {
        return !moved.HasOneOf(last, 0) || carriers.Corner(last, 0, vertices[0]);
    }
    if (moved.Has(0)) {
        carriers.GetStart(0, vertices[0]);
    }
    if (moved.Has(last)) {
        carriers.GetEnd(last, vertices[segNum]);
    }
    return true;
}

/// Writes moved vertices into their line; bulges stay.
template <class Points, class Line>
void SetVertices(const Points& vertices, Line& line) {
    for (long i = 0; i < vertices.GetLength(); ++i) {
        line.SetVertex(i, vertices[i]);
    }
}

}  // namespace qn_detail
