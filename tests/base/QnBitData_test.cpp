// SPDX-License-Identifier: Apache-2.0
#include "base/QnBitData.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <type_traits>

static_assert(std::is_polymorphic_v<QnBitData> && std::has_virtual_destructor_v<QnBitData>, "made to be derived from");
static_assert(std::is_same_v<decltype(QnBitData::m_nBits), std::uint32_t>, "32 bits, unsigned");
static_assert(!std::is_convertible_v<QnBitData, std::uint32_t>, "a conversion would make `hit == 9` ambiguous");

namespace {

QnBitData ByValue(std::uint32_t bits) {
    return QnBitData(bits);
}

/// A record with marks of its own, beside which the word stands.
class Marked : public QnBitData {
public:
    explicit Marked(bool& died) : m_died(died) {}
    Marked(const Marked&) = delete;
    Marked& operator=(const Marked&) = delete;
    ~Marked() override { m_died = true; }

private:
    bool& m_died;
};

}  // namespace

TEST(QnBitData, IsZeroWhenNew) {
    EXPECT_EQ(QnBitData().GetBits(), 0U);
    EXPECT_EQ(QnBitData().m_nBits, 0U);
}

TEST(QnBitData, KeepsTheInitialWordWithAll32Bits) {
    EXPECT_EQ(QnBitData(0xFFFFFFFFU).GetBits(), 0xFFFFFFFFU);
    EXPECT_EQ(QnBitData(0x80000000U).m_nBits, 0x80000000U);
}

TEST(QnBitData, ReturnedByValueKeepsItsWord) {
    const QnBitData hit = ByValue(HIT_ON | HIT_BOUNDARY | HIT_HOLE);
    EXPECT_EQ(hit.GetBits(), 25U);
}

TEST(QnBitData, CopiesAndAssignmentsShareTheWordAndNothingElse) {
    QnBitData first(6);
    QnBitData copy(first);
    QnBitData assigned;
    assigned = first;
    first.SetBits(1);
    EXPECT_EQ(copy.GetBits(), 6U);
    EXPECT_EQ(assigned.GetBits(), 6U);
}

TEST(QnBitData, CopyThroughTheBaseTakesTheWordOfADerivedRecord) {
    bool died = false;
    {
        Marked marked(died);
        marked.SetBits(12);
        const QnBitData copy(marked);
        EXPECT_EQ(copy.GetBits(), 12U);
    }
    EXPECT_TRUE(died);
}

TEST(QnBitData, DestructorIsVirtual) {
    bool died = false;
    std::unique_ptr<QnBitData> data = std::make_unique<Marked>(died);
    data.reset();
    EXPECT_TRUE(died);
}

TEST(QnBitData, EqualityIsThatOfTheWord) {
    bool died = false;
    Marked marked(died);
    marked.SetBits(9);
    EXPECT_TRUE(marked == QnBitData(9));
    EXPECT_FALSE(marked != QnBitData(9));
    EXPECT_TRUE(marked != QnBitData(8));
    EXPECT_FALSE(marked == QnBitData(8));
}

TEST(QnBitData, ComparesWithNumbersAndNamesOfBits) {
    EXPECT_TRUE(ByValue(9) == 9);
    EXPECT_TRUE(ByValue(HIT_ON) == HIT_ON);
    EXPECT_TRUE(ByValue(0) == 0);
    EXPECT_TRUE(ByValue(HIT_IN) != HIT_OUT);
    EXPECT_TRUE((ByValue(HIT_ON | HIT_HOLE).m_nBits & HIT_HOLE) != 0);
}

TEST(QnBitData, HasBitWantsAllBitsOfTheMask) {
    const QnBitData hit(HIT_ON | HIT_HOLE);
    EXPECT_TRUE(hit.HasBit(HIT_ON));
    EXPECT_TRUE(hit.HasBit(HIT_ON | HIT_HOLE));
    EXPECT_FALSE(hit.HasBit(HIT_ON | HIT_BOUNDARY));
}

TEST(QnBitData, SetsAndClearsSingleBits) {
    QnBitData data(0x80000001U);
    data.SetBit(0x10);
    EXPECT_EQ(data.GetBits(), 0x80000011U);
    data.SetBit(0x01, false);
    EXPECT_EQ(data.GetBits(), 0x80000010U);
    data.ClearBit(0x80000000U);
    EXPECT_EQ(data.GetBits(), 0x10U);
    data.ClearBit(0x08);
    EXPECT_EQ(data.GetBits(), 0x10U);
}

TEST(QnBitData, BitsHaveTheirValues) {
    EXPECT_EQ(HIT_ON, 1U);
    EXPECT_EQ(HIT_IN, 2U);
    EXPECT_EQ(HIT_OUT, 4U);
    EXPECT_EQ(HIT_BOUNDARY, 8U);
    EXPECT_EQ(HIT_HOLE, 16U);
    EXPECT_EQ(OBJ_CLOSED, 0x10U);
    EXPECT_EQ(OBJ_NO_BOUNDARY_INTER, 0x10U);
    EXPECT_EQ(OBJ_CLOCKWISE, 0x20U);
}
