// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "curves2d/QnGeCurve2d.h"
#include "regions/QnGeRegion2d.h"
#include "support/TextGeo.h"

namespace region_testing {

/// A region that overrides nothing but its boundaries, which may be missing anywhere: "circle 0,0 r5; null; line
/// 0,0 1,0". An empty text is a region without boundaries.
class BoundaryRegion : public QnGeRegion2d {
public:
    explicit BoundaryRegion(const std::string& boundaries) {
        std::istringstream texts(boundaries);
        for (std::string text; std::getline(texts, text, ';');) {
            const bool missing = text.find("null") != std::string::npos;
            m_boundaries.push_back(missing ? nullptr : ParseGeoAs<QnGeCurve2d>(text));
        }
    }

    QnGeCurve2d* GetBoundary(long i) const override {
        const bool exists = i >= 0 && i < GetBoundaryNum();
        return exists ? m_boundaries[static_cast<std::size_t>(i)].get() : nullptr;
    }
    long GetBoundaryNum() const override { return static_cast<long>(m_boundaries.size()); }

private:
    std::vector<std::unique_ptr<QnGeCurve2d>> m_boundaries;
};

}  // namespace region_testing
