// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeIntervalList.h"

QnGeIntervalList::QnGeIntervalList(double curvePeriod) : period(curvePeriod) {}

QnGeIntervalList::QnGeIntervalList(const QnGeIntervalList& other)
    : QnDList<QnGeInterval>(other), period(other.period) {}

QnGeIntervalList& QnGeIntervalList::operator=(const QnGeIntervalList& other) {
    if (this != &other) {
        QnDList<QnGeInterval>::operator=(other);
        period = other.period;
    }
    return *this;
}

QnGeIntervalList::~QnGeIntervalList() = default;

double QnGeIntervalList::Length() const {
    double sum = 0.0;
    for (const QnGeInterval* e = GetFirst(); e != nullptr; e = GetNext(e)) {
        sum += e->Length();
    }
    return sum;
}

bool QnGeIntervalList::IsClosed() const {
    return IsGreater(period, g_distZero) && Length() == period;
}

bool QnGeIntervalList::IsHeadTailJoined() const {
    if (!IsGreater(period, g_distZero) || IsEmpty()) {
        return false;
    }
    return IsZero(GetFirst()->min, g_fZero) && IsZero(GetLast()->max - period, g_fZero);
}

void QnGeIntervalList::ConnectHeadTail() {
    if (GetLength() <= 1 || !IsHeadTailJoined()) {
        return;
    }
    const double tailMin = GetLast()->min;
    DelTail();
    MoveToFirst();
    GetCurData().min = tailMin;
}

QnGeIntervalList& QnGeIntervalList::operator+=(const QnGeInterval& interval) {
    if (!interval.IsReverse()) {
        AddForward(interval);
        return *this;
    }
    QnGeInterval fromSeam;
    QnGeInterval toSeam;
    interval.Validate(period, fromSeam, toSeam);
    // a negative period leaves a reversed part, of which breaking it again would make no more
    if (fromSeam.IsValid()) {
        AddForward(fromSeam);
    }
    if (toSeam.IsValid()) {
        AddForward(toSeam);
    }
    return *this;
}

QnGeIntervalList& QnGeIntervalList::operator-=(const QnGeInterval& interval) {
    if (!interval.IsReverse()) {
        SubtractForward(interval);
        return *this;
    }
    QnGeInterval fromSeam;
    QnGeInterval toSeam;
    interval.Validate(period, fromSeam, toSeam);
    if (fromSeam.IsValid()) {
        SubtractForward(fromSeam);
    }
    if (toSeam.IsValid()) {
        SubtractForward(toSeam);
    }
    return *this;
}

QnGeIntervalList& QnGeIntervalList::operator+=(const QnGeIntervalList& other) {
    if (&other == this) {
        return *this += QnGeIntervalList(other);
    }
    for (const QnGeInterval* e = other.GetFirst(); e != nullptr; e = other.GetNext(e)) {
        *this += *e;
    }
    return *this;
}

QnGeIntervalList& QnGeIntervalList::operator-=(const QnGeIntervalList& other) {
    if (&other == this) {
        return *this -= QnGeIntervalList(other);
    }
    for (const QnGeInterval* e = other.GetFirst(); e != nullptr; e = other.GetNext(e)) {
        *this -= *e;
    }
    return *this;
}

/// Puts the interval in its place, or swallows the elements that it meets and starts over with the hull.
void QnGeIntervalList::AddForward(const QnGeInterval& interval) {
    QnGeInterval hull(interval);  // the argument may be an element that is about to be swallowed
    MoveToFirst();
    while (!IsOut()) {
        const QnGeInterval e(GetCurData());
        if (IsGreater(hull.min - e.max, g_fZero)) {
            MoveToNext();
            continue;
        }
        if (IsLess(hull.max - e.min, g_fZero)) {
            InsertCur(hull);
            return;
        }
        DelCur();
        hull += e;
        MoveToFirst();
    }
    Append(hull);
}

void QnGeIntervalList::SubtractForward(const QnGeInterval& interval) {
    const QnGeInterval cut(interval);  // the argument may be an element that is about to be deleted
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        QnGeInterval& e = GetCurData();
        if (IsGreater(cut.min - e.max, g_fZero)) {
            continue;
        }
        if (IsLess(cut.max - e.min, g_fZero)) {
            return;
        }
        QnGeInterval left;
        QnGeInterval right;
        e.SubtractBy(cut, left, right);
        if (left.IsValid()) {
            e = left;
            if (right.IsValid()) {
                InsertAfterCur(right);
                return;
            }
        } else if (right.IsValid()) {
            e = right;
            return;
        } else {
            DelCur();
        }
    }
}
