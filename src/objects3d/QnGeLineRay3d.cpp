// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeLineRay3d.h"

QN_DEFINE_CLASS_RECORD(QnGeLineRay3d, QnGeLine3d, CLASS_ID_LINE_RAY3D)
