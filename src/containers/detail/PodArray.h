// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "containers/detail/WorkBlocks.h"

namespace qn_detail {

/// A growing block of plain records for the inner loops of an algorithm: no cursor, no virtual call, no initialisation.
///
/// Fails  Indexes are the caller's duty; a new record's contents are undefined until they are written.
/// See    WorkBlocks.cpp for where the memory comes from.
template <class T>
class PodArray {
    static_assert(std::is_trivially_copyable<T>::value, "records are moved as bytes");

public:
    PodArray() = default;
    explicit PodArray(long length) {
        SetSpace(length);
        m_length = length;
    }
    PodArray(PodArray&& other) noexcept { Swap(other); }
    PodArray& operator=(PodArray&& other) noexcept {
        Swap(other);
        return *this;
    }
    PodArray(const PodArray&) = delete;
    PodArray& operator=(const PodArray&) = delete;
    ~PodArray() { GiveBack(); }

    long GetLength() const { return m_length; }
    bool IsEmpty() const { return m_length == 0; }
    T& operator[](long i) { return m_block[i]; }
    const T& operator[](long i) const { return m_block[i]; }
    T* begin() { return m_block; }
    T* end() { return m_block + m_length; }
    const T* begin() const { return m_block; }
    const T* end() const { return m_block + m_length; }

    void Clear() { m_length = 0; }
    /// Drops the records from `length` on, which is at most the number of records.
    void Shorten(long length) { m_length = length; }

    /// Bytes of the block.
    long GetMemory() const { return static_cast<long>(m_bytes); }

    /// Appends a record and gives its index. The block at least doubles when it is full.
    long Append(const T& record) {
        if (m_length == m_space) {
            const T copy = record;  // it may stand in the block that goes
            SetSpace(m_space < SMALLEST_SPACE ? SMALLEST_SPACE : 2 * m_space);
            m_block[m_length] = copy;
        } else {
            m_block[m_length] = record;
        }
        return m_length++;
    }

    /// Appends a record with undefined contents, to be written where it stands.
    T& AppendUnset() {
        if (m_length == m_space) {
            SetSpace(m_space < SMALLEST_SPACE ? SMALLEST_SPACE : 2 * m_space);
        }
        return m_block[m_length++];
    }

    /// Makes room for `space` records, at least as many as there are.
    void SetSpace(long space) {
        std::size_t bytes = Size(space) * sizeof(T);
        T* const block = bytes == 0 ? nullptr : static_cast<T*>(TakeWorkBlock(bytes));
        if (m_length > 0) {
            std::memcpy(static_cast<void*>(block), m_block, Size(m_length) * sizeof(T));
        }
        GiveBack();
        m_block = block;
        m_bytes = bytes;
        m_space = static_cast<long>(bytes / sizeof(T));
    }

private:
    static constexpr long SMALLEST_SPACE = 16;
    static std::size_t Size(long n) { return static_cast<std::size_t>(n); }

    void GiveBack() {
        if (m_block != nullptr) {
            GiveWorkBlock(m_block, m_bytes);
        }
    }
    void Swap(PodArray& other) noexcept {
        std::swap(m_block, other.m_block);
        std::swap(m_bytes, other.m_bytes);
        std::swap(m_length, other.m_length);
        std::swap(m_space, other.m_space);
    }

    T* m_block = nullptr;
    std::size_t m_bytes = 0;
    long m_length = 0;
    long m_space = 0;
};

}  // namespace qn_detail
