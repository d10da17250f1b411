// SPDX-License-Identifier: Apache-2.0
#include "base/QnDynArrayStream.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace {

template <class Word>
void Encode(Word word, unsigned char* bytes) {
    for (unsigned i = 0; i < sizeof(Word); ++i) {
        bytes[i] = static_cast<unsigned char>(word >> (8 * i));
    }
}

template <class Word>
Word Decode(const unsigned char* bytes) {
    Word word = 0;
    for (unsigned i = 0; i < sizeof(Word); ++i) {
        word |= static_cast<Word>(bytes[i]) << (8 * i);
    }
    return word;
}

}  // namespace

QnDynArrayStream::QnDynArrayStream(long initialSize, long growSize)
    : m_capacity(std::max(initialSize, 0L)), m_length(0), m_position(0), m_growSize(std::max(growSize, 1L)) {
    m_block.reset(new unsigned char[static_cast<std::size_t>(m_capacity)]);
}

QnDynArrayStream::~QnDynArrayStream() = default;

QnStream& QnDynArrayStream::operator<<(long value) {
    unsigned char bytes[sizeof(std::uint32_t)];
    Encode(static_cast<std::uint32_t>(value), bytes);
    WriteBytes(bytes, sizeof bytes);
    return *this;
}

QnStream& QnDynArrayStream::operator<<(double value) {
    std::uint64_t word;
    std::memcpy(&word, &value, sizeof word);
    unsigned char bytes[sizeof word];
    Encode(word, bytes);
    WriteBytes(bytes, sizeof bytes);
    return *this;
}

QnStream& QnDynArrayStream::operator<<(bool value) {
    const unsigned char byte = value ? 1 : 0;
    WriteBytes(&byte, 1);
    return *this;
}

QnStream& QnDynArrayStream::operator>>(long& value) {
    unsigned char bytes[sizeof(std::uint32_t)] = {};
    ReadBytes(bytes, sizeof bytes);
    value = static_cast<std::int32_t>(Decode<std::uint32_t>(bytes));
    return *this;
}

QnStream& QnDynArrayStream::operator>>(double& value) {
    unsigned char bytes[sizeof(std::uint64_t)] = {};
    ReadBytes(bytes, sizeof bytes);
    const std::uint64_t word = Decode<std::uint64_t>(bytes);
    std::memcpy(&value, &word, sizeof value);
    return *this;
}

QnStream& QnDynArrayStream::operator>>(bool& value) {
    unsigned char byte = 0;
    ReadBytes(&byte, 1);
    value = byte != 0;
    return *this;
}

void QnDynArrayStream::MoveToFirst() {
    m_position = 0;
}

void QnDynArrayStream::Reserve(long needed) {
    if (needed <= m_capacity) {
        return;
    }
    const long capacity = std::max({needed, m_capacity + m_growSize, 2 * m_capacity});
    std::unique_ptr<unsigned char[]> block(new unsigned char[static_cast<std::size_t>(capacity)]);
    if (m_length > 0) {
        std::memcpy(block.get(), m_block.get(), static_cast<std::size_t>(m_length));
    }
    m_block = std::move(block);
    m_capacity = capacity;
}

void QnDynArrayStream::WriteBytes(const unsigned char* bytes, long count) {
    Reserve(m_position + count);
    std::memcpy(m_block.get() + m_position, bytes, static_cast<std::size_t>(count));
    m_position += count;
    m_length = std::max(m_length, m_position);
}

bool QnDynArrayStream::ReadBytes(unsigned char* bytes, long count) {
    if (m_length - m_position < count) {
        m_position = m_length;
        return false;
    }
    std::memcpy(bytes, m_block.get() + m_position, static_cast<std::size_t>(count));
    m_position += count;
    return true;
}
