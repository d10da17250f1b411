// SPDX-License-Identifier: Apache-2.0
// Which overload stands in which slot: the list of slots has names only. Follows the common binary interface for C++,
// where a pointer to a virtual member holds the offset in the table.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "QuarnGeo.h"

#if defined(__x86_64__)

namespace {

/// The slot of a virtual operation, counted from 1 with the destructor's two entries as one. `afterDestructor` says
/// whether the destructor stands before it.
template <class Member>
long SlotOf(Member member, bool afterDestructor = true) {
    std::intptr_t words[2] = {};
    static_assert(sizeof(member) == sizeof(words));
    std::memcpy(words, &member, sizeof words);
    EXPECT_EQ(words[0] % 2, 1) << "not virtual";
    const long entry = static_cast<long>((words[0] - 1) / static_cast<std::intptr_t>(sizeof(void*))) + 1;
    return afterDestructor ? entry - 1 : entry;
}

using Base = QnDynArrayBase<double>;
using List = QnPDList<QnGeObject>;
using Array = QnDynPArray<QnGeObject>;

}  // namespace

TEST(SlotOverloads, SortByFunctionStandsBeforeSortByDirection) {
    EXPECT_EQ(SlotOf(static_cast<void (Base::*)(int (*)(const double&, const double&))>(&Base::Sort)), 23);
    EXPECT_EQ(SlotOf(static_cast<void (Base::*)(bool)>(&Base::Sort)), 24);
}

TEST(SlotOverloads, OwningContainersKeepThePointerSortAndAppendTheirOwn) {
    using OnPointers = int (*)(QnGeObject* const&, QnGeObject* const&);
    using OnObjects = int (*)(const QnGeObject&, const QnGeObject&);
    using PointerList = QnDynArrayBase<QnGeObject*>;
    EXPECT_EQ(SlotOf(static_cast<void (PointerList::*)(OnPointers)>(&PointerList::Sort)), 23);
    EXPECT_EQ(SlotOf(static_cast<void (List::*)(OnObjects)>(&List::Sort)), 31);
    EXPECT_EQ(SlotOf(static_cast<void (Array::*)(OnObjects)>(&Array::Sort)), 28);
}

TEST(SlotOverloads, ListFormsOfClosestPointsAreTheVirtualOnes) {
    using Form = bool (QnGeObject::*)(const QnGePoint&, QnGePointList&) const;
    EXPECT_EQ(SlotOf(static_cast<Form>(&QnGeObject::GetClosestPoint2d)), 16);
    EXPECT_EQ(SlotOf(static_cast<Form>(&QnGeObject::GetClosestPoint)), 17);
}

TEST(SlotOverloads, ParameterFormsOfCurvesAreTheVirtualOnes) {
    EXPECT_EQ(SlotOf(static_cast<bool (QnGeCurve2d::*)(bool) const>(&QnGeCurve2d::IsFinite)), 24);
    EXPECT_EQ(SlotOf(static_cast<QnGeCurve2d* (QnGeCurve2d::*)(double, double) const>(&QnGeCurve2d::GetSubCurve)), 25);
    using SplitForm = void (QnGeCurve2d::*)(const QnDynArrayBase<double>&, QnGeObjList&) const;
    EXPECT_EQ(SlotOf(static_cast<SplitForm>(&QnGeCurve2d::Split)), 26);
}

TEST(SlotOverloads, RegionFormsOfBooleansAreTheVirtualOnes) {
    using Subtract = void (QnGePolygon2d::*)(const QnGeRegion2d&, QnGeObjList&) const;
    using Common = bool (QnGePolygon2d::*)(const QnGeRegion2d&, QnGeObjList&) const;
    using Unite = QnGeRegion2d* (QnGePolygon2d::*)(const QnGeRegion2d&) const;
    EXPECT_EQ(SlotOf(static_cast<Subtract>(&QnGePolygon2d::SubtractBy)), 24);
    EXPECT_EQ(SlotOf(static_cast<Common>(&QnGePolygon2d::Inter)), 27);
    EXPECT_EQ(SlotOf(static_cast<Unite>(&QnGePolygon2d::Union)), 28);
}

TEST(SlotOverloads, QueuesHaveTheirDestructorLast) {
    using Queue = QnListQuene<double>;
    EXPECT_EQ(SlotOf(&Queue::Reset, false), 1);
    EXPECT_EQ(SlotOf(&Queue::DeQuene, false), 7);
}

#endif
