// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeApi.h"
#include "frame/QnGeClassRecord.h"
#include "values/QnGeBaseEllipse.h"

/// An ellipse's place in the class tree: its shape, its direction of travel and no curve behaviour of its own.
///
/// GetPtFromPa, GetPaFromPt and HitTest are those of QnGeCurve2d, so the first two answer false and every point is
/// HIT_OUT; those of QnGeBaseEllipse are reached qualified.
///
/// Direction  Bit OBJ_CLOCKWISE of the flag word.
/// Z          That of the centre.
/// Valid      Both semi-axes > g_distZero.
/// Stream     flags only. Class id 119, for which DynCreateGeObject makes nothing.
/// Kept odd   Centre, semi-axes and rotation are not streamed; Length() and Area() are 0 and there is no extent.
class QUARNGEO_API QnGeEllipse2d : public QnGeCurve2d, public QnGeBaseEllipse {
public:
    /// All zero.
    explicit QnGeEllipse2d(bool ccw = true);
    QnGeEllipse2d(const QnGeEllipse2d&) = default;
    QnGeEllipse2d& operator=(const QnGeEllipse2d&) = default;
    ~QnGeEllipse2d() override;

    // ---- names that both bases have --------------------------------------------------------------

    using QnBitData::operator==;  // objects compare their flag words
    using QnBitData::operator!=;
    using QnGeCurve2d::GetPaFromPt;
    using QnGeCurve2d::GetPtFromPa;
    using QnGeCurve2d::HitTest;
    using QnGeCurve2d::IsFinite;
    using QnGeObject::operator<;
    using QnGeObject::operator>;

    // ---- object protocol, in slot order ----------------------------------------------------------

    QN_CLASS_RECORD(QnGeEllipse2d);
    bool IsValid() const override;
    QnGeObject* Clone() const override;
    void SetElevation(double z) override;
    double GetElevation() const override;

    // ---- curve protocol, in slot order -----------------------------------------------------------

    /// False: an ellipse has no ends.
    bool IsFinite(bool atStart) const override;
    bool IsClosed() const override;
    double GetPeriod() const override;
    bool IsClockwise() const override;
    void Reverse() override;

    /// A copy: there is nothing past the ends.
    ///
    /// Ownership  The caller's.
    QnGeCurve2d* GetExtendCurve() const override;
};
