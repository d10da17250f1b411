// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "frame/QnGeObject3d.h"

/// Place in the class tree; answers with the defaults of QnGeObject3d.
class QUARNGEO_API QnGeFace3d : public QnGeObject3d {
public:
    QN_CLASS_RECORD(QnGeFace3d);
};
