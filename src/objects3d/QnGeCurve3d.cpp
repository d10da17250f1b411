// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeCurve3d.h"

QN_DEFINE_CLASS_RECORD(QnGeCurve3d, QnGeObject3d, CLASS_ID_CURVE3D)
