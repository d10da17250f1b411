// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "containers/QnPDList.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeTolerance.h"

/// A parameter on a curve with a flag word, whose meaning is its user's.
///
/// Tolerance  The order is that of the parameters under g_fZero: of two that are no further apart neither comes first.
///            So a list sorts stably by `Sort`, its null entries last.
/// Kept odd   Equality is that of the flag words.
class QUARNGEO_API QnGeCurvePa : public QnBitData {
public:
    QnGeCurvePa();
    QnGeCurvePa(double parameter, long flags);
    QnGeCurvePa(const QnGeCurvePa&) = default;
    QnGeCurvePa& operator=(const QnGeCurvePa&) = default;
    ~QnGeCurvePa() override;

    bool operator<(const QnGeCurvePa& other) const { return IsGreater(other.pa - pa, g_fZero); }
    bool operator>(const QnGeCurvePa& other) const { return IsGreater(pa - other.pa, g_fZero); }

    double pa;
};
