// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"

/// A stack that can step back below what was pushed and ahead to it again, as undo and redo do.
///
/// The top limit is the depth up to which GoAhead may go. Pushing makes it the new depth: what a step back left behind
/// is no longer reached.
template <class T>
class QUARN_TEMPLATE_API QnStack {
protected:
    long m_nMaxDepth;  ///< negative: no limit
    long m_nTopLimit = 0;

    explicit QnStack(long maxDepth) : m_nMaxDepth(maxDepth) {}
    QnStack(const QnStack&) = default;
    QnStack& operator=(const QnStack&) = default;

public:
    virtual ~QnStack() {}
    virtual void Reset() = 0;
    /// Fails  False and unchanged at the maximum depth.
    virtual bool Push(const T& value) = 0;
    /// Fails  False with `value` unchanged at depth 0; so does GetTopData.
    virtual bool Pop(T& value) = 0;
    virtual bool GetTopData(T& value) const = 0;
    virtual long GetDepth() const = 0;
    /// Element `i` counted from the bottom. The depth stays.
    virtual T& operator[](long i) = 0;
    /// Steps down without deleting; false at depth 0.
    virtual bool GoBack() = 0;
    /// Steps up to what GoBack left; false at the top limit.
    virtual bool GoAhead() = 0;

    bool IsEmpty() const { return GetDepth() == 0; }
    bool CanGoBack() const { return GetDepth() != 0; }
    bool CanGoAhead() const { return GetDepth() < m_nTopLimit; }
    bool IsDepthLimited() const { return m_nMaxDepth >= 0; }
    long GetMaxDepth() const { return m_nMaxDepth; }
    void SetMaxDepth(long maxDepth) { m_nMaxDepth = maxDepth; }
};

/// The stack on a list whose cursor is the stack pointer. The list may hold elements above it that GoBack left.
///
/// Ownership  Copies are deep and stand at the same depth. Pointers as elements are not owned.
template <class T>
class QUARN_TEMPLATE_API QnDListStack : public QnStack<T> {
public:
    explicit QnDListStack(long maxDepth = -1) : QnStack<T>(maxDepth) {}
    QnDListStack(const QnDListStack& other);
    QnDListStack& operator=(const QnDListStack& other);

    void Reset() override;
    bool Push(const T& value) override;
    bool Pop(T& value) override;
    bool GetTopData(T& value) const override;
    long GetDepth() const override { return m_list.GetCur() + 1; }
    T& operator[](long i) override;
    bool GoBack() override;
    bool GoAhead() override;

private:
    QnDList<T> m_list;
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnDListStack<T>::QnDListStack(const QnDListStack& other) : QnStack<T>(other), m_list(other.m_list) {
    m_list.MoveTo(other.m_list.GetCur());
}

template <class T>
QnDListStack<T>& QnDListStack<T>::operator=(const QnDListStack& other) {
    if (&other != this) {
        QnStack<T>::operator=(other);
        m_list = other.m_list;
        m_list.MoveTo(other.m_list.GetCur());
    }
    return *this;
}

template <class T>
void QnDListStack<T>::Reset() {
    m_list.Reset();
    this->m_nTopLimit = 0;
}

template <class T>
bool QnDListStack<T>::Push(const T& value) {
    const long depth = GetDepth();
    if (this->IsDepthLimited() && depth >= this->m_nMaxDepth) {
        return false;
    }
    if (depth == m_list.GetLength()) {
        m_list.Append(value);
    } else {
        m_list[depth] = value;  // moves the cursor there
    }
    this->m_nTopLimit = depth + 1;
    return true;
}

template <class T>
bool QnDListStack<T>::Pop(T& value) {
    if (!GetTopData(value)) {
        return false;
    }
    m_list.DelCur();
    this->m_nTopLimit = GetDepth();
    return true;
}

template <class T>
bool QnDListStack<T>::GetTopData(T& value) const {
    if (this->IsEmpty()) {
        return false;
    }
    value = const_cast<QnDList<T>&>(m_list).GetCurData();
    return true;
}

/// Reads by GetAt, because the list's own `[]` would move the cursor and with it the depth.
template <class T>
T& QnDListStack<T>::operator[](long i) {
    return const_cast<T&>(m_list.GetAt(i));
}

template <class T>
bool QnDListStack<T>::GoBack() {
    const bool canGo = this->CanGoBack();
    if (canGo) {
        m_list.MoveToPre();
    }
    return canGo;
}

template <class T>
bool QnDListStack<T>::GoAhead() {
    const bool canGo = this->CanGoAhead();
    if (canGo) {
        m_list.MoveToNext();
    }
    return canGo;
}
