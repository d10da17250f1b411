// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeLineSeg3d.h"

QN_DEFINE_CLASS_RECORD(QnGeLineSeg3d, QnGeLine3d, CLASS_ID_LINE_SEG3D)
