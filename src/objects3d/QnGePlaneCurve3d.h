// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "objects3d/QnGeCurve3d.h"

/// Place in the class tree; answers with the defaults of QnGeObject3d.
class QUARNGEO_API QnGePlaneCurve3d : public QnGeCurve3d {
public:
    QN_CLASS_RECORD(QnGePlaneCurve3d);
};
