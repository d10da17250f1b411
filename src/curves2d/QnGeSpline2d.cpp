// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeSpline2d.h"

QN_DEFINE_CLASS_RECORD(QnGeSpline2d, QnGeCurve2d, CLASS_ID_SPLINE2D)

QnGeSpline2d::QnGeSpline2d() = default;

QnGeSpline2d::~QnGeSpline2d() = default;
