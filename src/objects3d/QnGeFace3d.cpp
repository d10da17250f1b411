// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGeFace3d.h"

QN_DEFINE_CLASS_RECORD(QnGeFace3d, QnGeObject3d, CLASS_ID_FACE3D)
