// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/LineSubCurve.h"

QnGeCurve2d* QnGeMLine2d::GetSubCurve(double pa1, double pa2) const {
    return qn_detail::MakeLineSubCurve(*this, pa1, pa2);
}
