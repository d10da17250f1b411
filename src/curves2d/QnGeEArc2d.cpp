// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeEArc2d.h"

QN_DEFINE_CLASS_RECORD(QnGeEArc2d, QnGeCurve2d, CLASS_ID_EARC2D)

QnGeEArc2d::QnGeEArc2d() = default;

QnGeEArc2d::~QnGeEArc2d() = default;
