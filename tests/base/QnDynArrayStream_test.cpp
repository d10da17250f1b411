// SPDX-License-Identifier: Apache-2.0
#include "base/QnDynArrayStream.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "support/RandomSource.h"

static_assert(!std::is_copy_constructible_v<QnDynArrayStream>, "the block is owned");
static_assert(!std::is_copy_assignable_v<QnDynArrayStream>, "the block is owned");
static_assert(std::is_abstract_v<QnStream>, "the stream is an interface");

namespace {

template <class Stream, class Value, class = void>
struct CanWrite : std::false_type {};
template <class Stream, class Value>
struct CanWrite<Stream, Value, std::void_t<decltype(std::declval<Stream&>() << std::declval<Value>())>>
    : std::true_type {};

static_assert(CanWrite<QnDynArrayStream, long>::value && CanWrite<QnDynArrayStream, int>::value);
static_assert(CanWrite<QnDynArrayStream, double>::value && CanWrite<QnDynArrayStream, bool>::value);
static_assert(!CanWrite<QnDynArrayStream, const char*>::value, "text would be written as a bool");
static_assert(!CanWrite<QnDynArrayStream, int*>::value && !CanWrite<QnStream, int*>::value);

std::uint64_t BitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double FromBits(std::uint64_t bits) {
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double RoundTrip(double value) {
    QnDynArrayStream stream(16, 16);
    stream << value;
    stream.MoveToFirst();
    double read = 1.0;
    stream >> read;
    return read;
}

long RoundTrip(long value) {
    QnDynArrayStream stream(16, 16);
    stream << value;
    stream.MoveToFirst();
    long read = 77;
    stream >> read;
    return read;
}

std::vector<unsigned> Bytes(const QnDynArrayStream& stream) {
    return std::vector<unsigned>(stream.GetBytes(), stream.GetBytes() + stream.GetLength());
}

}  // namespace

TEST(QnDynArrayStream, DoublesComeBackBitForBit) {
    const std::vector<double> values = {
        0.0,
        -0.0,
        1.0 / 3.0,
        -1e300,
        std::numeric_limits<double>::denorm_min(),
        std::numeric_limits<double>::max(),
        std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(),
    };
    for (const double value : values) {
        EXPECT_EQ(BitsOf(RoundTrip(value)), BitsOf(value)) << value;
    }
}

TEST(QnDynArrayStream, NotANumberKeepsSignAndPayload) {
    for (const std::uint64_t bits : {0x7FF8000000000001ULL, 0xFFF8DEADBEEF0123ULL, 0x7FFFFFFFFFFFFFFFULL}) {
        EXPECT_EQ(BitsOf(RoundTrip(FromBits(bits))), bits);
    }
}

TEST(QnDynArrayStream, LongsOf32BitsComeBackWithTheirSign) {
    for (const long value : {0L, 1L, -1L, 2147483647L, -2147483647L - 1L, 123456789L, -123456789L}) {
        EXPECT_EQ(RoundTrip(value), value);
    }
}

TEST(QnDynArrayStream, LongsBeyond32BitsLoseTheirUpperPart) {
    if (sizeof(long) > 4) {
        EXPECT_EQ(RoundTrip(static_cast<long>(0x100000005LL)), 5L);
        EXPECT_EQ(RoundTrip(static_cast<long>(0x80000000LL)), -2147483647L - 1L);
    }
}

TEST(QnDynArrayStream, BytesAreLittleEndianOfFixedWidths) {
    QnDynArrayStream stream(0, 1);
    stream << 0x01020304L << true << false << 1.0;
    const std::vector<unsigned> expected = {4, 3, 2, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F};
    EXPECT_EQ(Bytes(stream), expected);
}

TEST(QnDynArrayStream, IntegerLiteralsAreWrittenAsLongs) {
    QnDynArrayStream stream(8, 8);
    stream << 5;
    EXPECT_EQ(stream.GetLength(), 4);
    stream.MoveToFirst();
    long read = 0;
    stream >> read;
    EXPECT_EQ(read, 5);
}

TEST(QnDynArrayStream, ChainsThroughTheInterface) {
    QnDynArrayStream memory(8, 8);
    QnStream& stream = memory;
    stream << 7L << 2.5 << true << 8;
    stream.MoveToFirst();
    long first = 0;
    double second = 0.0;
    bool third = false;
    long fourth = 0;
    stream >> first >> second >> third >> fourth;
    EXPECT_EQ(first, 7);
    EXPECT_EQ(second, 2.5);
    EXPECT_TRUE(third);
    EXPECT_EQ(fourth, 8);
}

TEST(QnDynArrayStream, RewindingReadsTheSameValuesAgain) {
    QnDynArrayStream stream(16, 16);
    stream << 3L << 0.125;
    for (int round = 0; round < 3; ++round) {
        stream.MoveToFirst();
        long number = 0;
        double value = 0.0;
        stream >> number >> value;
        EXPECT_EQ(number, 3);
        EXPECT_EQ(value, 0.125);
    }
    EXPECT_EQ(stream.GetLength(), 12);
}

TEST(QnDynArrayStream, WritingInsideOverwritesAndKeepsTheRest) {
    QnDynArrayStream stream(64, 64);
    stream << 1L << 2L << 3L;
    stream.MoveToFirst();
    stream << 9L;
    EXPECT_EQ(stream.GetLength(), 12);
    long second = 0;
    long third = 0;
    stream >> second >> third;
    EXPECT_EQ(second, 2);
    EXPECT_EQ(third, 3);
    stream.MoveToFirst();
    long first = 0;
    stream >> first;
    EXPECT_EQ(first, 9);
}

TEST(QnDynArrayStream, WritingAcrossTheEndLengthensByTheRest) {
    QnDynArrayStream stream(6, 1);
    stream << 1L << true;
    stream.MoveToFirst();
    stream << 0.5;
    EXPECT_EQ(stream.GetLength(), 8);
    stream.MoveToFirst();
    double value = 0.0;
    stream >> value;
    EXPECT_EQ(value, 0.5);
}

TEST(QnDynArrayStream, ReadingBetweenWritesAppendsAtThePosition) {
    QnDynArrayStream stream(16, 16);
    stream << 1L << 2L;
    stream.MoveToFirst();
    long first = 0;
    stream >> first;
    stream << 5L;
    EXPECT_EQ(stream.GetLength(), 8);
    stream.MoveToFirst();
    long a = 0;
    long b = 0;
    stream >> a >> b;
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 5);
}

TEST(QnDynArrayStream, ReadingPastTheEndGivesZeroValues) {
    QnDynArrayStream stream(16, 16);
    long number = 5;
    double value = 5.0;
    bool flag = true;
    stream >> number >> value >> flag;
    EXPECT_EQ(number, 0);
    EXPECT_EQ(BitsOf(value), 0U);
    EXPECT_FALSE(flag);
    EXPECT_EQ(stream.GetLength(), 0);
}

TEST(QnDynArrayStream, ReadingMoreThanRemainsGivesZeroAndGoesToTheEnd) {
    QnDynArrayStream stream(16, 16);
    stream << true << true << true;
    stream.MoveToFirst();
    double value = 5.0;
    stream >> value;
    EXPECT_EQ(value, 0.0);
    bool flag = true;
    stream >> flag;
    EXPECT_FALSE(flag) << "the position is at the end";
    stream << 4L;
    EXPECT_EQ(stream.GetLength(), 7) << "and a write appends there";
}

TEST(QnDynArrayStream, KeepsWhatIsWrittenBeyondTheInitialSize) {
    for (const long growSize : {1024L, 1L, 0L, -5L, 7L}) {
        QnDynArrayStream stream(10, growSize);
        for (long i = 0; i < 5000; ++i) {
            stream << i << static_cast<double>(i) / 7.0 << (i % 3 == 0);
        }
        EXPECT_EQ(stream.GetLength(), 5000 * 13);
        stream.MoveToFirst();
        for (long i = 0; i < 5000; ++i) {
            long number = -1;
            double value = -1.0;
            bool flag = false;
            stream >> number >> value >> flag;
            ASSERT_EQ(number, i);
            ASSERT_EQ(BitsOf(value), BitsOf(static_cast<double>(i) / 7.0));
            ASSERT_EQ(flag, i % 3 == 0);
        }
    }
}

TEST(QnDynArrayStream, WorksWithoutAnInitialBlock) {
    for (const long initialSize : {0L, -1L}) {
        QnDynArrayStream stream(initialSize, 0);
        stream.MoveToFirst();
        stream << 1.5;
        stream.MoveToFirst();
        double value = 0.0;
        stream >> value;
        EXPECT_EQ(value, 1.5);
    }
}

TEST(QnDynArrayStream, WritingAMillionValuesDoesNotCopyTheBlockEachTime) {
    constexpr long VALUES = 1000000;
    QnDynArrayStream stream(1024, 1024);
    for (long i = 0; i < VALUES; ++i) {
        stream << static_cast<double>(i);
    }
    EXPECT_EQ(stream.GetLength(), 8 * VALUES);
}

TEST(QnDynArrayStream, RandomSequencesOfTypesComeBack) {
    using Item = std::variant<long, double, bool>;
    RandomSource random(BaseSeed());
    for (int round = 0; round < 300; ++round) {
        std::vector<Item> items;
        QnDynArrayStream stream(random.Long(0, 40), random.Long(0, 40));
        for (long i = random.Long(0, 60); i > 0; --i) {
            switch (random.Int(0, 2)) {
                case 0:
                    items.emplace_back(random.Long(-2147483647L, 2147483647L));
                    break;
                case 1:
                    items.emplace_back(FromBits(static_cast<std::uint64_t>(random.Long(0, 2147483647L)) << 32U));
                    break;
                default:
                    items.emplace_back(random.Coin());
            }
            std::visit([&stream](auto value) { stream << value; }, items.back());
        }
        stream.MoveToFirst();
        for (const Item& item : items) {
            if (const long* const number = std::get_if<long>(&item)) {
                long read = 0;
                stream >> read;
                ASSERT_EQ(read, *number);
            } else if (const double* const value = std::get_if<double>(&item)) {
                double read = 0.0;
                stream >> read;
                ASSERT_EQ(BitsOf(read), BitsOf(*value));
            } else {
                bool read = false;
                stream >> read;
                ASSERT_EQ(read, std::get<bool>(item));
            }
        }
    }
}
