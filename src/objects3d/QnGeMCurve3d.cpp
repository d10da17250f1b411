// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeMCurve3d.h"

QN_DEFINE_CLASS_RECORD(QnGeMCurve3d, QnGeCurve3d, CLASS_ID_MCURVE3D)
