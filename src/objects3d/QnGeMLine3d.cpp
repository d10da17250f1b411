// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeMLine3d.h"

QN_DEFINE_CLASS_RECORD(QnGeMLine3d, QnGeCurve3d, CLASS_ID_MLINE3D)
