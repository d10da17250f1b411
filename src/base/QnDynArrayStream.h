// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "base/QnStream.h"

/// A stream in memory: one growing block of bytes with one position for reading and writing.
///
/// The bytes are little-endian: 4 for a long, 8 for a double, 1 for a bool. A write inside the contents overwrites and
/// keeps what follows. A read that needs more bytes than remain gives a zero value and leaves the position at the end.
class QUARNBASE_API QnDynArrayStream : public QnStream {
public:
    /// `initialSize` bytes are taken at once; a full block grows by at least `growSize` bytes and at least doubles.
    QnDynArrayStream(long initialSize, long growSize);
    ~QnDynArrayStream() override;

    QnDynArrayStream(const QnDynArrayStream&) = delete;
    QnDynArrayStream& operator=(const QnDynArrayStream&) = delete;

    using QnStream::operator<<;
    QnStream& operator<<(long value) override;
    QnStream& operator<<(double value) override;
    QnStream& operator<<(bool value) override;
    QnStream& operator>>(long& value) override;
    QnStream& operator>>(double& value) override;
    QnStream& operator>>(bool& value) override;
    void MoveToFirst() override;

    /// Bytes written so far.
    long GetLength() const { return m_length; }

    /// The bytes themselves, for a caller that keeps them elsewhere. Valid until the next write.
    const unsigned char* GetBytes() const { return m_block.get(); }

private:
    void Reserve(long needed);
    void WriteBytes(const unsigned char* bytes, long count);
    bool ReadBytes(unsigned char* bytes, long count);

    std::unique_ptr<unsigned char[]> m_block;
    long m_capacity;
    long m_length;
    long m_position;
    long m_growSize;
};
