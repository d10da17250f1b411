// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeLine3d.h"

QN_DEFINE_CLASS_RECORD(QnGeLine3d, QnGeCurve3d, CLASS_ID_LINE3D)
