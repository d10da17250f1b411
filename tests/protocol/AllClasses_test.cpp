// SPDX-License-Identifier: Apache-2.0
// The promises that every class keeps, shown on the samples of all of them.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <string>

#include "QuarnGeo.h"
#include "protocol/Samples.h"
#include "support/StreamBytes.h"
#include "support/TextGeo.h"

namespace {

using protocol::Sample;

/// Classes that copy from their own kind.
const std::set<long> COPYING = {102, 111, 112, 113, 114, 115, 116, 117, 1002};

/// Classes without factory that clone all the same.
const std::set<long> CLONING_WITHOUT_FACTORY = {119};

/// What can be said of an object: its class, its flags and its record, and its text where the class has one.
std::string Description(const QnGeObject& object) {
    const StreamBytes record = RecordOf(object);
    return std::string(object.GetCI()->GetName()) + ' ' + std::to_string(object.GetBits()) + ' ' + ToText(object) +
           ' ' + std::string(record.begin(), record.end());
}

/// Another object of the sample's class: of its factory where it has one, else another such sample.
std::unique_ptr<QnGeObject> Another(const Sample& sample) {
    const std::unique_ptr<QnGeObject> object = sample.Make();
    std::unique_ptr<QnGeObject> other(DynCreateGeObject(static_cast<int>(object->GetClassID())));
    return other != nullptr ? std::move(other) : sample.Make();
}

void ExpectEqual(const QnGeObject* object, const QnGeObject& expected) {
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->GetCI(), expected.GetCI());
    EXPECT_TRUE(Description(*object) == Description(expected)) << ToText(*object) << "\n  instead of\n"
                                                               << ToText(expected);
}

class AllClasses : public ::testing::TestWithParam<Sample> {
protected:
    std::unique_ptr<QnGeObject> object = GetParam().Make();

    bool HasFactory() const {
        return std::unique_ptr<QnGeObject>(DynCreateGeObject(static_cast<int>(object->GetClassID()))) != nullptr;
    }
};

}  // namespace

TEST_P(AllClasses, CloneIsEqualAndIndependent) {
    std::unique_ptr<QnGeObject> clone(object->Clone());
    if (!HasFactory() && CLONING_WITHOUT_FACTORY.count(object->GetClassID()) == 0) {
        EXPECT_EQ(clone, nullptr);
        return;
    }
    ExpectEqual(clone.get(), *object);
    const std::string before = Description(*clone);
    object.reset();
    EXPECT_TRUE(Description(*clone) == before);
}

TEST_P(AllClasses, CloneNewIsEqualWhereTheClassHasAFactory) {
    const std::unique_ptr<QnGeObject> clone(object->CloneNew());
    if (!HasFactory()) {
        EXPECT_EQ(clone, nullptr);
        return;
    }
    ExpectEqual(clone.get(), *object);
}

TEST_P(AllClasses, RecordIsTheSameAfterWritingAndReading) {
    const StreamBytes record = RecordOf(*object);
    QnDynArrayStream stream(16, 16);
    object->StreamOut(stream);
    stream << 4711L;
    stream.MoveToFirst();
    const std::unique_ptr<QnGeObject> read = Another(GetParam());
    read->StreamIn(stream);
    long behind = 0;
    stream >> behind;
    EXPECT_EQ(behind, 4711) << "not exactly the record was read";
    EXPECT_TRUE(RecordOf(*read) == record);
    EXPECT_EQ(read->GetBits(), object->GetBits());
}

TEST_P(AllClasses, ReadingForgetsWhatTheObjectWas) {
    const StreamBytes record = RecordOf(*object);
    for (const Sample& sample : protocol::AllSamples()) {
        const std::unique_ptr<QnGeObject> filled = sample.Make();
        if (filled->GetCI() == object->GetCI()) {
            QnDynArrayStream stream(16, 16);
            FillStream(stream, record, record.size());
            filled->StreamIn(stream);
            EXPECT_TRUE(RecordOf(*filled) == record) << sample;
        }
    }
}

TEST_P(AllClasses, CopyFromItsOwnKindIsEqual) {
    const std::unique_ptr<QnGeObject> copy = Another(GetParam());
    const bool copied = copy->CopyFrom(object.get());
    EXPECT_EQ(copied, COPYING.count(object->GetClassID()) == 1);
    if (copied) {
        ExpectEqual(copy.get(), *object);
    }
}

TEST_P(AllClasses, CopyFromNullIsRefusedAndChangesNothing) {
    const std::string before = Description(*object);
    EXPECT_FALSE(object->CopyFrom(nullptr));
    EXPECT_TRUE(Description(*object) == before);
}

TEST_P(AllClasses, ARefusedCopyChangesNothing) {
    for (const Sample& sample : protocol::AllSamples()) {
        const std::unique_ptr<QnGeObject> source = sample.Make();
        const std::unique_ptr<QnGeObject> target = GetParam().Make();
        const std::string before = Description(*target);
        if (!target->CopyFrom(source.get())) {
            EXPECT_TRUE(Description(*target) == before) << sample;
        }
    }
}

TEST_P(AllClasses, ReverseTwiceGivesTheCurveBack) {
    auto* const curve = dynamic_cast<QnGeCurve2d*>(object.get());
    if (curve == nullptr || !GetParam().ordinary) {
        return;
    }
    const std::unique_ptr<QnGeObject> before = GetParam().Make();
    curve->Reverse();
    curve->Reverse();
    EXPECT_EQ(curve->GetBits(), before->GetBits());
    if (RecordOf(*curve) != RecordOf(*before)) {
        EXPECT_TRUE(IsNearGeo(*curve, *before, 1e-12)) << ToText(*curve) << "\n  instead of\n" << ToText(*before);
    }
}

TEST_P(AllClasses, FlagWordTravelsInTheRecordWithAllItsBits) {
    object->SetBits(0xA5A5A5A5U);
    QnDynArrayStream stream(16, 16);
    object->StreamOut(stream);
    stream.MoveToFirst();
    long flags = 0;
    stream >> flags;
    EXPECT_EQ(static_cast<std::uint32_t>(flags), 0xA5A5A5A5U);
    stream.MoveToFirst();
    const std::unique_ptr<QnGeObject> read = Another(GetParam());
    read->StreamIn(stream);
    EXPECT_EQ(read->GetBits(), 0xA5A5A5A5U);
}

TEST_P(AllClasses, TruncatedRecordsAreReadWithoutHarm) {
    const StreamBytes record = RecordOf(*object);
    for (std::size_t length = 0; length < record.size(); ++length) {
        QnDynArrayStream stream(16, 16);
        FillStream(stream, record, length);
        const std::unique_ptr<QnGeObject> read = Another(GetParam());
        read->StreamIn(stream);
        const std::unique_ptr<QnGeObject> clone(read->Clone());
        read->HitTest(QnGePoint(1.0, 1.0));
        long behind = 7;
        stream >> behind;
        EXPECT_EQ(behind, 0) << "the position is at the end";
    }
}

TEST_P(AllClasses, NoOperationFailsBadly) {
    protocol::CallEverything(*object);
}

TEST_P(AllClasses, NoOperationOnAPairFailsBadly) {
    for (const Sample& sample : protocol::AllSamples()) {
        protocol::CallWith(*object, *sample.Make());
    }
    protocol::CallWith(*object, *object);
}

TEST(Chain, EntriesWithoutACurveDoNoHarm) {
    QnGeMCurve2d onlyGaps;
    onlyGaps.Append(nullptr);
    protocol::CallEverything(onlyGaps);
    QnGeMCurve2d chain;
    chain.Append(nullptr);
    chain.Append(ParseGeoAs<QnGeCurve2d>("seg 0,0 4,0").release());
    chain.Append(nullptr);
    EXPECT_FALSE(chain.IsValid());
    protocol::CallEverything(chain);
}

TEST(CopyFrom, AcceptsTheClassesOfTheTableAndRefusesAllOthers) {
    const std::map<long, std::set<long>> accepted = {
        {102, {102}},   {111, {111, 112, 113}}, {112, {112}},           {113, {113}},
        {114, {114}},   {115, {115}},           {116, {113, 116, 117}}, {117, {113, 114, 115, 116, 117}},
        {1002, {1002}},
    };
    for (const Sample& first : protocol::AllSamples()) {
        for (const Sample& second : protocol::AllSamples()) {
            const std::unique_ptr<QnGeObject> target = first.Make();
            const std::unique_ptr<QnGeObject> source = second.Make();
            const auto row = accepted.find(target->GetClassID());
            if (row != accepted.end() && row->first == 117 && !second.ordinary) {
                continue;  // whether a polyline takes a degenerate curve depends on its linearisation
            }
            if (row != accepted.end() && row->first == 117 && source->GetClassID() == 118) {
                continue;  // likewise that of a chain
            }
            const bool expected = row != accepted.end() && row->second.count(source->GetClassID()) == 1;
            EXPECT_EQ(target->CopyFrom(source.get()), expected) << first << " from " << second;
        }
    }
}

TEST(Reverse, KeptOddASlopingSegmentReversedTwiceIsRaised) {
    QnGeLineSeg2d seg(QnGePoint(0.0, 0.0, 1.0), QnGePoint(4.0, 0.0, 3.0));
    seg.Reverse();
    seg.Reverse();
    EXPECT_EQ(ToText(seg), "seg 0,0,5 4,0,7") << "the direction is turned in plan only";
}

INSTANTIATE_TEST_SUITE_P(Samples, AllClasses, ::testing::ValuesIn(protocol::AllSamples()),
                         [](const auto& sample) { return sample.param.name; });
