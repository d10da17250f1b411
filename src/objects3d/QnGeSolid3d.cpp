// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeSolid3d.h"

QN_DEFINE_CLASS_RECORD(QnGeSolid3d, QnGeObject3d, CLASS_ID_SOLID3D)
