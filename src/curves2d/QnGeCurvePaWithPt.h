// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurvePa.h"
#include "values/QnGePoint.h"

/// A parameter record that brings its point along.
///
/// See  QnGeCurvePa for order and equality; the point plays no part in them.
class QUARNGEO_API QnGeCurvePaWithPt : public QnGeCurvePa, public QnGePoint {
public:
    // Both bases compare. What is meant is the record.
    using QnGeCurvePa::operator<;
    using QnGeCurvePa::operator>;
    using QnBitData::operator==;
    using QnBitData::operator!=;

    QnGeCurvePaWithPt();
    QnGeCurvePaWithPt(double parameter, long flags, const QnGePoint& pt);
    QnGeCurvePaWithPt(const QnGeCurvePaWithPt&) = default;
    QnGeCurvePaWithPt& operator=(const QnGeCurvePaWithPt&) = default;
    ~QnGeCurvePaWithPt() override;
};
