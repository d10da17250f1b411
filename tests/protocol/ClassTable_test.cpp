// SPDX-License-Identifier: Apache-2.0
// The table of classes: names, ids, parents. Ids stand in streams, so a row never changes.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

#include "QuarnGeo.h"
#include "protocol/Samples.h"

namespace {

struct Row {
    long id;
    const char* name;
    const QnRxClassInfo* record;
    const QnRxClassInfo* accessor;
    const QnRxClassInfo* parent;
    bool hasFactory;
};

template <class T, class Parent>
Row MakeRow(long id, const char* name, bool hasFactory) {
    return {id, name, &T::s_classInfo, &T::GetStaticCI(), &Parent::s_classInfo, hasFactory};
}

const std::vector<Row>& Table() {
    static const std::vector<Row> rows = {
        MakeRow<QnGeObject, QnRxRunTimeClass>(100, "QnGeObject", false),
        MakeRow<QnGeObject2d, QnGeObject>(101, "QnGeObject2d", false),
        MakeRow<QnGePoint2d, QnGeObject2d>(102, "QnGePoint2d", true),
        MakeRow<QnGeCurve2d, QnGeObject2d>(110, "QnGeCurve2d", false),
        MakeRow<QnGeLine2d, QnGeCurve2d>(111, "QnGeLine2d", true),
        MakeRow<QnGeLineRay2d, QnGeLine2d>(112, "QnGeLineRay2d", true),
        MakeRow<QnGeLineSeg2d, QnGeLine2d>(113, "QnGeLineSeg2d", true),
        MakeRow<QnGeCircle2d, QnGeCurve2d>(114, "QnGeCircle2d", true),
        MakeRow<QnGeArc2d, QnGeCurve2d>(115, "QnGeArc2d", true),
        MakeRow<QnGeMLine2d, QnGeCurve2d>(116, "QnGeMLine2d", true),
        MakeRow<QnGePolyline2d, QnGeMLine2d>(117, "QnGePolyline2d", true),
        MakeRow<QnGeMCurve2d, QnGeCurve2d>(118, "QnGeMCurve2d", true),
        MakeRow<QnGeEllipse2d, QnGeCurve2d>(119, "QnGeEllipse2d", false),
        MakeRow<QnGeEArc2d, QnGeCurve2d>(120, "QnGeEArc2d", false),
        MakeRow<QnGeSpline2d, QnGeCurve2d>(121, "QnGeSpline2d", false),
        MakeRow<QnGeRegion2d, QnGeObject2d>(300, "QnGeRegion2d", false),
        MakeRow<QnGePolygon2d, QnGeRegion2d>(301, "QnGePolygon2d", true),
        MakeRow<QnGeGeneralPolygon2d, QnGePolygon2d>(302, "QnGeGeneralPolygon2d", true),
        MakeRow<QnGeGeneralRegion2d, QnGeRegion2d>(303, "QnGeGeneralRegion2d", true),
        MakeRow<QnGeObject3d, QnGeObject>(1001, "QnGeObject3d", false),
        MakeRow<QnGePoint3d, QnGeObject3d>(1002, "QnGePoint3d", true),
        MakeRow<QnGeCurve3d, QnGeObject3d>(1100, "QnGeCurve3d", false),
        MakeRow<QnGeLine3d, QnGeCurve3d>(1101, "QnGeLine3d", false),
        MakeRow<QnGeLineRay3d, QnGeLine3d>(1102, "QnGeLineRay3d", false),
        MakeRow<QnGeLineSeg3d, QnGeLine3d>(1103, "QnGeLineSeg3d", false),
        MakeRow<QnGePlane3d, QnGeFace3d>(1104, "QnGePlane3d", false),
        MakeRow<QnGePlaneCurve3d, QnGeCurve3d>(1105, "QnGePlaneCurve3d", false),
        MakeRow<QnGeMLine3d, QnGeCurve3d>(1106, "QnGeMLine3d", false),
        MakeRow<QnGeMCurve3d, QnGeCurve3d>(1107, "QnGeMCurve3d", false),
        MakeRow<QnGePolyline3d, QnGePlaneCurve3d>(1108, "QnGePolyline3d", false),
        MakeRow<QnGeFace3d, QnGeObject3d>(1300, "QnGeFace3d", false),
        MakeRow<QnGeSolid3d, QnGeObject3d>(1600, "QnGeSolid3d", false),
    };
    return rows;
}

}  // namespace

TEST(ClassTable, EveryRecordHasItsNameIdAndParent) {
    for (const Row& row : Table()) {
        EXPECT_STREQ(row.record->GetName(), row.name);
        EXPECT_EQ(row.record->GetClassID(), row.id) << row.name;
        EXPECT_EQ(row.record->GetParent(), row.parent) << row.name;
        EXPECT_EQ(row.accessor, row.record) << row.name;
        for (int i = 1; i < 5; ++i) {
            EXPECT_EQ(row.record->GetParent(i), nullptr) << row.name;
        }
    }
}

TEST(ClassTable, RecordsAreToldApartByAddressAndId) {
    std::set<const QnRxClassInfo*> records;
    std::set<long> ids;
    for (const Row& row : Table()) {
        EXPECT_TRUE(records.insert(row.record).second) << row.name;
        EXPECT_TRUE(ids.insert(row.id).second) << row.name;
    }
    EXPECT_EQ(records.size(), 32U);
}

TEST(ClassTable, TheFactoryMakesExactlyTheClassesMarked) {
    for (const Row& row : Table()) {
        const std::unique_ptr<QnGeObject> made(DynCreateGeObject(static_cast<int>(row.id)));
        EXPECT_EQ(made != nullptr, row.hasFactory) << row.name;
        if (made != nullptr) {
            EXPECT_EQ(made->GetCI(), row.record) << row.name;
        }
    }
}

TEST(ClassTable, EachRowHasASample) {
    std::set<const QnRxClassInfo*> sampled;
    for (const protocol::Sample& sample : protocol::AllSamples()) {
        sampled.insert(sample.Make()->GetCI());
    }
    for (const Row& row : Table()) {
        EXPECT_EQ(sampled.count(row.record), 1U) << row.name;
    }
}

TEST(ClassTable, IsClassOfIsTrueAlongTheParentsAndNowhereElse) {
    for (const protocol::Sample& sample : protocol::AllSamples()) {
        const std::unique_ptr<QnGeObject> object = sample.Make();
        std::set<const QnRxClassInfo*> chain;
        for (const QnRxClassInfo* record = object->GetCI(); record != nullptr; record = record->GetParent()) {
            chain.insert(record);
        }
        EXPECT_EQ(chain.count(&QnRxRunTimeClass::s_classInfo), 1U) << sample;
        for (const Row& row : Table()) {
            EXPECT_EQ(object->IsClassOf(row.record), chain.count(row.record) == 1) << sample << ' ' << row.name;
        }
    }
}

TEST(ClassTable, ASegmentIsALineACurveAPlanarObjectAndNoRay) {
    const QnGeLineSeg2d seg;
    EXPECT_TRUE(seg.IsClassOf(&QnGeLineSeg2d::s_classInfo));
    EXPECT_TRUE(seg.IsClassOf(&QnGeLine2d::s_classInfo));
    EXPECT_TRUE(seg.IsClassOf(&QnGeCurve2d::s_classInfo));
    EXPECT_TRUE(seg.IsClassOf(&QnGeObject2d::s_classInfo));
    EXPECT_TRUE(seg.IsClassOf(&QnGeObject::s_classInfo));
    EXPECT_FALSE(seg.IsClassOf(&QnGeLineRay2d::s_classInfo));
    EXPECT_FALSE(seg.IsClassOf(&QnGeObject3d::s_classInfo));
}

TEST(ClassTable, OrderOfObjectsIsThatOfTheIds) {
    for (const protocol::Sample& first : protocol::AllSamples()) {
        const std::unique_ptr<QnGeObject> a = first.Make();
        for (const protocol::Sample& second : protocol::AllSamples()) {
            const std::unique_ptr<QnGeObject> b = second.Make();
            EXPECT_EQ(*a < *b, a->GetClassID() < b->GetClassID());
            EXPECT_EQ(*a > *b, a->GetClassID() > b->GetClassID());
        }
    }
}
