// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"

/// Changes a variable for the length of a scope and writes the old value back on every way out.
///
/// The library narrows or widens a tolerance with it, which is one more reason why calls must not overlap.
template <class T>
class QUARN_TEMPLATE_API QnPushVar {
public:
    /// `newValue` is taken by value, so that it may be computed from the variable itself.
    QnPushVar(T& variable, T newValue) : m_saved(variable), m_pVar(&variable) { variable = newValue; }
    virtual ~QnPushVar() { *m_pVar = m_saved; }

    QnPushVar(const QnPushVar&) = delete;  // a copy would write back twice
    QnPushVar& operator=(const QnPushVar&) = delete;

private:
    T m_saved;
    T* m_pVar;
};
