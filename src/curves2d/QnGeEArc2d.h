// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"

/// An elliptic arc's place in the class tree: it holds its fields and answers with the defaults of QnGeCurve2d.
///
/// Stream     flags only. Class id 120, for which DynCreateGeObject makes nothing, so Clone() is null.
class QUARNGEO_API QnGeEArc2d : public QnGeCurve2d {
public:
    /// All zero, counter-clockwise.
    QnGeEArc2d();
    QnGeEArc2d(const QnGeEArc2d&) = default;
    QnGeEArc2d& operator=(const QnGeEArc2d&) = default;
    ~QnGeEArc2d() override;

    QN_CLASS_RECORD(QnGeEArc2d);

    QnGeEllipse2d ellipse;
    double startAngle = 0.0;    ///< as the start angle of a QnGeArc2d
    double centralAngle = 0.0;  ///< as the sweep of a QnGeArc2d
};
