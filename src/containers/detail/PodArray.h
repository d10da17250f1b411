// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstring>
#include <memory>
#include <type_traits>
#include <utility>

namespace qn_detail {

/// A growing block of plain records for the inner loops of an algorithm: no cursor, no virtual call, no initialisation.
///
/// Fails  Indexes are the caller's duty; a new record's contents are undefined until they are written.
template <class T>
class PodArray {
    static_assert(std::is_trivially_copyable<T>::value, "records are moved as bytes");

public:
    PodArray() = default;
    explicit PodArray(long length) : m_block(new T[Size(length)]), m_length(length), m_space(length) {}

    long GetLength() const { return m_length; }
    bool IsEmpty() const { return m_length == 0; }
    T& operator[](long i) { return m_block.get()[i]; }
    const T& operator[](long i) const { return m_block.get()[i]; }
    T* begin() { return m_block.get(); }
    T* end() { return m_block.get() + m_length; }
    const T* begin() const { return m_block.get(); }
    const T* end() const { return m_block.get() + m_length; }

    void Clear() { m_length = 0; }

    /// Bytes of the block.
    long GetMemory() const { return m_space * static_cast<long>(sizeof(T)); }

    /// Appends a record and gives its index. The block at least doubles when it is full.
    long Append(const T& record) {
        if (m_length == m_space) {
            const T copy = record;  // it may stand in the block that goes
            SetSpace(m_space < 8 ? 16 : 2 * m_space);
            m_block.get()[m_length] = copy;
        } else {
            m_block.get()[m_length] = record;
        }
        return m_length++;
    }

    void SetSpace(long space) {
        std::unique_ptr<T[]> block(new T[Size(space)]);
        if (m_length > 0) {
            std::memcpy(static_cast<void*>(block.get()), m_block.get(), Size(m_length) * sizeof(T));
        }
        m_block = std::move(block);
        m_space = space;
    }

private:
    static std::size_t Size(long n) { return static_cast<std::size_t>(n); }

    std::unique_ptr<T[]> m_block;
    long m_length = 0;
    long m_space = 0;
};

}  // namespace qn_detail
