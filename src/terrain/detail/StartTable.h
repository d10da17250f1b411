// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/detail/PodArray.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

class QnGeTINTriangle;

namespace qn_detail {

/// Triangles that were found lately, by their places: where to begin the next walk in a network that is long and thin,
/// of which the tree says little.
///
/// Ownership  Triangles are looked at; they must live as long as this.
/// Cost       One step. Of two triangles at one entry the older is forgotten. Takes memory when the first is kept.
class StartTable {
public:
    /// Empties the table and sets it up for so many nodes spread along the range.
    void Reset(const QnGeExtent2d& range, long nodeNum);

    void Keep(const QnGePoint& place, QnGeTINTriangle* triangle);
    /// One that was found a few nodes away at most; null if there is none.
    QnGeTINTriangle* Get(const QnGePoint& place) const;

private:
    struct Entry {
        double x;
        double y;
        QnGeTINTriangle* triangle;
    };

    long IndexOf(const QnGePoint& place) const;

    PodArray<Entry> m_entries;  ///< m_entryNum, or none yet
    long m_entryNum = 0;        ///< a power of two
    double m_x = 0.0;
    double m_y = 0.0;
    double m_scale = 0.0;  ///< cells to a unit of length
};

}  // namespace qn_detail
