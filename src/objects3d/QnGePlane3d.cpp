// SPDX-License-Identifier: Apache-2.0
#include "objects3d/QnGePlane3d.h"

QN_DEFINE_CLASS_RECORD(QnGePlane3d, QnGeFace3d, CLASS_ID_PLANE3D)
