// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"
#include "values/QnGeInterval.h"

/// A set of parameter ranges on one curve.
///
/// Order      Ascending, disjoint, no two touching; `+=` and `-=` keep it so.
/// Units      `period` is that of the curve, 0 for an open one.
/// Tolerance  g_fZero; g_distZero asks whether there is a period.
/// Kept odd   ConnectHeadTail leaves a reversed first interval, so it comes last: `+=` and `-=` after it find
///            no order to rely on. An empty interval that is not reversed is added and subtracted like any
///            other: it is inserted as it is, and taking it off splits the interval round it into two that
///            touch.
class QUARNGEO_API QnGeIntervalList : public QnDList<QnGeInterval> {
public:
    double period;

    explicit QnGeIntervalList(double curvePeriod = 0.0);
    QnGeIntervalList(const QnGeIntervalList& other);
    QnGeIntervalList& operator=(const QnGeIntervalList& other);
    ~QnGeIntervalList() override;

    double GetPeriod() const { return period; }
    void SetPeriod(double curvePeriod) { period = curvePeriod; }

    /// Sum of the lengths of the intervals.
    double Length() const;
    /// The intervals fill the period. The sum is compared exactly.
    bool IsClosed() const;
    /// The first interval starts at the seam and the last one ends there.
    bool IsHeadTailJoined() const;
    /// Joins the last interval to the first over the seam; the first becomes reversed.
    void ConnectHeadTail();

    /// Union with an interval; a reversed one is first broken at the seam.
    QnGeIntervalList& operator+=(const QnGeInterval& interval);
    /// Takes an interval off; a reversed one is first broken at the seam. No rest of g_fZero or less stays.
    QnGeIntervalList& operator-=(const QnGeInterval& interval);
    /// Each interval in turn. `other` may be this list.
    QnGeIntervalList& operator+=(const QnGeIntervalList& other);
    QnGeIntervalList& operator-=(const QnGeIntervalList& other);

private:
    void AddForward(const QnGeInterval& interval);
    void SubtractForward(const QnGeInterval& interval);
};
