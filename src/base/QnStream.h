// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"

/// A sequential stream of typed values.
///
/// What is read back equals bit for bit what was written, in the same order and with the same types. The stream knows
/// nothing of records: all structure lies in the order in which objects write and read.
///
/// Units  A `long` travels as 32 bits, signed: what lies beyond loses its upper part.
/// Fails  A read past the end gives 0, 0.0 or false.
class QUARNBASE_API QnStream {
public:
    virtual ~QnStream();

    virtual QnStream& operator<<(long value) = 0;
    virtual QnStream& operator<<(double value) = 0;
    virtual QnStream& operator<<(bool value) = 0;
    virtual QnStream& operator>>(long& value) = 0;
    virtual QnStream& operator>>(double& value) = 0;
    virtual QnStream& operator>>(bool& value) = 0;

    /// Sets the position to the start and keeps the contents.
    virtual void MoveToFirst() = 0;

    QnStream& operator<<(int value) { return *this << static_cast<long>(value); }

    /// A pointer would silently be written as a bool.
    template <class U>
    QnStream& operator<<(U*) = delete;
};
