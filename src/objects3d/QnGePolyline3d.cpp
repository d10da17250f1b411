// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGePolyline3d.h"

QN_DEFINE_CLASS_RECORD(QnGePolyline3d, QnGePlaneCurve3d, CLASS_ID_POLYLINE3D)
