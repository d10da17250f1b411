// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "objects3d/QnGeLine3d.h"

/// Place in the class tree; answers with the defaults of QnGeObject3d.
class QUARNGEO_API QnGeLineRay3d : public QnGeLine3d {
public:
    QN_CLASS_RECORD(QnGeLineRay3d);
};
