// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"
#include "containers/QnList.h"

/// A queue: in at the tail, out at the head.
template <class T>
class QUARN_TEMPLATE_API QnQuene {
protected:
    long m_nMaxLength;  ///< negative: no limit

    explicit QnQuene(long maxLength) : m_nMaxLength(maxLength) {}
    QnQuene(const QnQuene&) = default;
    QnQuene& operator=(const QnQuene&) = default;

public:
    virtual void Reset() = 0;
    virtual long GetLength() const = 0;
    /// Element `i` counted from the head.
    virtual T& operator[](long i) = 0;
    /// Fails  False with `value` unchanged when empty; so do GetTailData and DeQuene.
    virtual bool GetHeadData(T& value) const = 0;
    virtual bool GetTailData(T& value) const = 0;
    /// Fails  False and unchanged at the maximum length.
    virtual bool EnQuene(const T& value) = 0;
    virtual bool DeQuene(T& value) = 0;
    virtual ~QnQuene() {}

    bool IsEmpty() const { return GetLength() == 0; }
};

/// The queue on a list.
///
/// Ownership  Copies are deep. Pointers as elements are not owned.
template <class T>
class QUARN_TEMPLATE_API QnListQuene : public QnQuene<T> {
public:
    explicit QnListQuene(long maxLength = -1) : QnQuene<T>(maxLength) {}

    void Reset() override { m_list.Reset(); }
    long GetLength() const override { return m_list.GetLength(); }
    T& operator[](long i) override { return const_cast<T&>(m_list.GetAt(i)); }
    bool GetHeadData(T& value) const override;
    bool GetTailData(T& value) const override;
    bool EnQuene(const T& value) override;
    bool DeQuene(T& value) override;

private:
    QnList<T> m_list;
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
bool QnListQuene<T>::GetHeadData(T& value) const {
    const T* head = m_list.GetFirst();
    if (head == nullptr) {
        return false;
    }
    value = *head;
    return true;
}

template <class T>
bool QnListQuene<T>::GetTailData(T& value) const {
    const T* tail = m_list.GetLast();
    if (tail == nullptr) {
        return false;
    }
    value = *tail;
    return true;
}

template <class T>
bool QnListQuene<T>::EnQuene(const T& value) {
    if (this->m_nMaxLength >= 0 && GetLength() >= this->m_nMaxLength) {
        return false;
    }
    m_list.Append(value);
    return true;
}

template <class T>
bool QnListQuene<T>::DeQuene(T& value) {
    if (!GetHeadData(value)) {
        return false;
    }
    m_list.DelHead();
    return true;
}
