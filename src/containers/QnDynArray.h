// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "containers/QnArray.h"
#include "containers/QnDynArrayBase.h"
#include "containers/impl/RankSort.h"

/// A growing array: one block, elements side by side.
///
/// GetSpaceSize() counts the elements that it says to hold; every growth takes the allocation unit more than asked for.
/// The block behind may be larger, so that n appends copy about n elements and not n * n. Callers that know the size
/// say so first (SetSpaceSize, SetLength).
///
/// Requires   `T` is default constructible and assignable. New elements are value-initialised (0, null, false).
/// Ownership  Owns the block. A copy takes the allocation unit along, an assignment keeps its own; the cursor of either
///            is out.
/// Kept odd   Shrinking inside the space leaves elements beyond the length as they are, and growing again inside the
///            space shows them again.
template <class T>
class QUARN_TEMPLATE_API QnDynArray : public QnDynArrayBase<T> {
    using Base = QnDynArrayBase<T>;

public:
    explicit QnDynArray(long length = 0, long allocUnit = 10);
    QnDynArray(const QnDynArray& other);
    ~QnDynArray() override { delete[] m_pData; }

    QnDynArray& operator=(const QnDynArray& other);
    QnDynArray& operator=(const QnDynArrayBase<T>& other);

    // ---- operations of the family, in slot order -------------------------------------------------
protected:
    void ReAllocate(long length) override;

public:
    /// Makes space and length exactly `length`. If that is the space already, the elements stay as they are; otherwise
    /// they are kept as far as both lengths go, or none if `keep` is false.
    void SetLength(long length, bool keep) override;
    /// Empties the array and keeps the block.
    void Reset() override;
    T& GetCurData() override { return m_pData[m_nCur]; }
    void SetCurData(const T& value) override { m_pData[m_nCur] = value; }
    const T* GetFirst() const override { return m_nLength > 0 ? m_pData : nullptr; }
    const T* GetNext(const T* element) const override;
    const T* GetPre(const T* element) const override;
    const T* GetLast() const override { return m_nLength > 0 ? m_pData + (m_nLength - 1) : nullptr; }
    const T& GetAt(long index) const override { return m_pData[index]; }
    void InsertCur(const T& value) override;
    long Append(const T& value) override;
    void DelCur() override;
    /// Cost  Quadratic in the length. The cursor stays at its index.
    void Sort(int (*compare)(const T&, const T&)) override;
    /// Cost  Quadratic, but for numbers and pointers.
    void Sort(bool ascending) override;

    // ---- space -----------------------------------------------------------------------------------
    long GetAllocUnit() const { return m_nAllocUnit; }
    /// A negative unit counts as 0.
    void SetAllocUnit(long allocUnit) { m_nAllocUnit = allocUnit > 0 ? allocUnit : 0; }
    long GetSpaceSize() const { return m_nSpace; }
    /// Makes the space exactly `n`. False, and nothing done, if that is less than the length.
    bool SetSpaceSize(long n);
    /// Takes over a block of `length` elements; what was held is freed; the cursor is out.
    ///
    /// Ownership  `block` comes from `new T[]` and is the array's from now on.
    void Attach(long length, T* block);
    /// Hands the block out (null if there is none) and leaves the array empty.
    ///
    /// Ownership  The caller frees the block with `delete[]`.
    T* Detach();

protected:
    using Base::m_nCur;
    using Base::m_nLength;

    T* m_pData = nullptr;
    long m_nSpace = 0;
    long m_nAllocUnit = 10;

private:
    long m_nCapacity = 0;  ///< elements in the block, at least m_nSpace; those beyond m_nSpace were never in use

    static T* NewBlock(long n) { return n > 0 ? new T[static_cast<std::size_t>(n)]() : nullptr; }
    void Grow(long space);
    void Relocate(long capacity, long kept);
    void CopyBlock(const QnDynArray& other);
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnDynArray<T>::QnDynArray(long length, long allocUnit) {
    SetAllocUnit(allocUnit);
    if (length > 0) {
        m_pData = NewBlock(length);
        m_nCapacity = m_nSpace = m_nLength = length;
    }
}

template <class T>
QnDynArray<T>::QnDynArray(const QnDynArray& other) : Base(), m_nAllocUnit(other.m_nAllocUnit) {
    CopyBlock(other);
}

template <class T>
QnDynArray<T>& QnDynArray<T>::operator=(const QnDynArray& other) {
    if (&other != this) {
        SetLength(other.m_nLength, false);
        std::copy(other.m_pData, other.m_pData + other.m_nLength, m_pData);
        m_nCur = -1;
    }
    return *this;
}

template <class T>
QnDynArray<T>& QnDynArray<T>::operator=(const QnDynArrayBase<T>& other) {
    Base::DeepCopy(other);
    return *this;
}

template <class T>
void QnDynArray<T>::CopyBlock(const QnDynArray& other) {
    if (other.m_nLength < 1) {
        return;
    }
    m_pData = NewBlock(other.m_nLength);
    m_nCapacity = m_nSpace = m_nLength = other.m_nLength;
    std::copy(other.m_pData, other.m_pData + other.m_nLength, m_pData);
}

template <class T>
void QnDynArray<T>::ReAllocate(long length) {
    if (length < 0) {
        length = 0;
    }
    if (length > m_nSpace) {
        Grow(length + m_nAllocUnit);
    }
    m_nLength = length;
}

/// Raises the space to `space`. All beyond the length are default elements afterwards, as in a block made anew.
template <class T>
void QnDynArray<T>::Grow(long space) {
    if (space > m_nCapacity) {
        const long doubled = 2 * m_nCapacity;
        Relocate(space > doubled ? space : doubled, m_nLength);
        m_nSpace = m_nLength;  // the new block holds nothing used behind the length
    }
    // Elements that construct themselves are default ones until the space reaches them.
    const bool isRawBehindSpace = std::is_trivially_default_constructible_v<T>;
    std::fill(m_pData + m_nLength, m_pData + (isRawBehindSpace ? space : m_nSpace), T());
    m_nSpace = space;
}

/// Moves the first `kept` elements into a block of `capacity` elements. Those behind are default ones, or not set where
/// `T` has no constructor to run.
template <class T>
void QnDynArray<T>::Relocate(long capacity, long kept) {
    const auto size = static_cast<std::size_t>(capacity);
    T* block = nullptr;
    if constexpr (std::is_trivially_default_constructible_v<T>) {
        block = new T[size];
    } else {
        block = new T[size]();
    }
    std::move(m_pData, m_pData + kept, block);
    delete[] m_pData;
    m_pData = block;
    m_nCapacity = capacity;
}

template <class T>
void QnDynArray<T>::SetLength(long length, bool keep) {
    if (length < 0) {
        length = 0;
    }
    if (length != m_nSpace) {
        T* block = NewBlock(length);
        if (keep) {
            std::move(m_pData, m_pData + std::min(m_nLength, length), block);
        }
        delete[] m_pData;
        m_pData = block;
        m_nCapacity = m_nSpace = length;
    }
    m_nLength = length;
}

template <class T>
void QnDynArray<T>::Reset() {
    m_nLength = 0;
    m_nCur = -1;
}

template <class T>
const T* QnDynArray<T>::GetNext(const T* element) const {
    return element != nullptr && element < m_pData + (m_nLength - 1) ? element + 1 : nullptr;
}

template <class T>
const T* QnDynArray<T>::GetPre(const T* element) const {
    return element != nullptr && element > m_pData ? element - 1 : nullptr;
}

template <class T>
void QnDynArray<T>::InsertCur(const T& value) {
    const T inserted = value;  // `value` may be an element that is about to move
    const long place = this->IsOut() ? m_nLength : m_nCur;
    ReAllocate(m_nLength + 1);
    std::move_backward(m_pData + place, m_pData + (m_nLength - 1), m_pData + m_nLength);
    m_pData[place] = inserted;
    m_nCur = place;
}

template <class T>
long QnDynArray<T>::Append(const T& value) {
    if (m_nLength < m_nSpace) {
        m_pData[m_nLength] = value;
        m_nCur = m_nLength++;
        return m_nCur;
    }
    const T appended = value;
    ReAllocate(m_nLength + 1);
    m_nCur = m_nLength - 1;
    m_pData[m_nCur] = appended;
    return m_nCur;
}

template <class T>
void QnDynArray<T>::DelCur() {
    if (this->IsOut()) {
        return;
    }
    // The removed value ends in the place that falls off, so that an owner finds there nothing that it still holds.
    T* current = m_pData + m_nCur;
    T removed = std::move(*current);
    std::move(current + 1, m_pData + m_nLength, current);
    m_pData[m_nLength - 1] = std::move(removed);
    ReAllocate(m_nLength - 1);
    --m_nCur;
}

template <class T>
void QnDynArray<T>::Sort(int (*compare)(const T&, const T&)) {
    qn_detail::RankSort(m_pData, m_nLength, [compare](const T& a, const T& b) { return compare(a, b) > 0; });
}

template <class T>
void QnDynArray<T>::Sort(bool ascending) {
    qn_detail::SortByGreater(m_pData, m_nLength, ascending);
}

template <class T>
bool QnDynArray<T>::SetSpaceSize(long n) {
    const long length = m_nLength;
    if (n < length) {
        return false;
    }
    if (n != m_nSpace) {
        SetLength(n, true);
        m_nLength = length;
    } else if (n < m_nCapacity) {
        Relocate(n, n);  // gives back what the block holds beyond the space
    }
    return true;
}

template <class T>
void QnDynArray<T>::Attach(long length, T* block) {
    Reset();
    if (block != m_pData) {
        delete[] m_pData;
    }
    m_pData = block;
    m_nCapacity = m_nSpace = m_nLength = block != nullptr && length > 0 ? length : 0;
    m_nCur = -1;
}

template <class T>
T* QnDynArray<T>::Detach() {
    T* block = m_pData;
    m_pData = nullptr;
    m_nCapacity = m_nSpace = m_nLength = 0;
    m_nCur = -1;
    return block;
}
