// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeObject.h"

namespace qn_detail {

/// The hull of the extents of several objects while they come in, in plan or in space.
///
/// Fails  One object without an extent spoils the whole: the hull then stays what was merged before it.
template <class Extent>
class ExtentHull {
public:
    using GetExtent = bool (QnGeObject::*)(Extent&) const;

    ExtentHull(GetExtent getExtent, Extent& hull) : m_getExtent(getExtent), m_hull(hull) {}

    /// Answers whether more objects make sense.
    bool Add(const QnGeObject& object) {
        if (m_isEmpty) {
            m_isWhole = (object.*m_getExtent)(m_hull);
        } else {
            Extent own;
            m_isWhole = (object.*m_getExtent)(own);
            if (m_isWhole) {
                m_hull += own;
            }
        }
        m_isEmpty = false;
        return m_isWhole;
    }

    /// Whether there was an object, and none without an extent.
    bool IsThere() const { return m_isWhole && !m_isEmpty; }

private:
    GetExtent m_getExtent;
    Extent& m_hull;
    bool m_isEmpty = true;
    bool m_isWhole = true;
};

}  // namespace qn_detail
