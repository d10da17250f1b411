// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurvePaWithPt.h"

QnGeCurvePaWithPt::QnGeCurvePaWithPt() = default;

QnGeCurvePaWithPt::QnGeCurvePaWithPt(double parameter, long flags, const QnGePoint& pt)
    : QnGeCurvePa(parameter, flags), QnGePoint(pt) {}

QnGeCurvePaWithPt::~QnGeCurvePaWithPt() = default;
