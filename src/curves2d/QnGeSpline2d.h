// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"

/// A spline's place in the class tree: no field, and the defaults of QnGeCurve2d for every question.
///
/// Stream     flags only. Class id 121, for which DynCreateGeObject makes nothing, so Clone() is null.
/// Kept odd   IsClosed() is true, because the two points that nothing writes coincide.
class QUARNGEO_API QnGeSpline2d : public QnGeCurve2d {
public:
    QnGeSpline2d();
    QnGeSpline2d(const QnGeSpline2d&) = default;
    QnGeSpline2d& operator=(const QnGeSpline2d&) = default;
    ~QnGeSpline2d() override;

    QN_CLASS_RECORD(QnGeSpline2d);
};
