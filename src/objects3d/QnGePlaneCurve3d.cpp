// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGePlaneCurve3d.h"

QN_DEFINE_CLASS_RECORD(QnGePlaneCurve3d, QnGeCurve3d, CLASS_ID_PLANE_CURVE3D)
