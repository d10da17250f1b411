// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/QnDynArrayStream.h"

/// Streams as plain bytes, to compare records and to read damaged ones.
using StreamBytes = std::vector<unsigned char>;

inline StreamBytes BytesOf(const QnDynArrayStream& stream) {
    if (stream.GetLength() == 0) {
        return StreamBytes();
    }
    return StreamBytes(stream.GetBytes(), stream.GetBytes() + stream.GetLength());
}

/// The bytes that `object` writes.
template <class T>
StreamBytes RecordOf(const T& object) {
    QnDynArrayStream stream(256, 256);
    object.StreamOut(stream);
    return BytesOf(stream);
}

/// Makes an empty `stream` hold exactly the first `count` bytes and stand at the start.
inline void FillStream(QnDynArrayStream& stream, const StreamBytes& bytes, std::size_t count) {
    constexpr std::size_t WORD = 4;
    const auto word = [&bytes](std::size_t first) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < WORD; ++i) {
            value |= static_cast<std::uint32_t>(bytes[first + i]) << (8U * i);
        }
        return static_cast<long>(static_cast<std::int32_t>(value));
    };
    for (std::size_t i = 0; i < count; ++i) {
        stream << false;  // single bytes of 0 make the room; the words that overwrite them may overlap
    }
    stream.MoveToFirst();
    for (std::size_t first = 0; first + WORD <= count; first += WORD) {
        stream << word(first);
    }
    if (count > WORD) {
        stream.MoveToFirst();
        for (std::size_t i = 0; i + WORD < count; ++i) {
            bool skipped = false;
            stream >> skipped;
        }
        stream << word(count - WORD);
    }
    stream.MoveToFirst();
}
