// SPDX-License-Identifier: Apache-2.0
// Random histories of both lists of owned pointers; their single rules stand in AnyPointerList_test.cpp.
#include "containers/QnPDList.h"

#include <gtest/gtest.h>

#include "containers/OwnedHistory.h"
#include "containers/QnPXList.h"
#include "support/LiveObject.h"

namespace {

/// Counts as any object, and dies through the base's virtual destructor.
class DerivedObject : public LiveObject {
public:
    explicit DerivedObject(int k) : LiveObject(k) {}

private:
    LiveObject m_part;
};

}  // namespace

TEST(QnPDList, ObjectsDieByTheirOwnDestructor) {
    LiveScope scope;
    {
        QnPDList<LiveObject> list;
        list.Append(new DerivedObject(1));
        list.Append(new DerivedObject(2));
        EXPECT_EQ(scope.Count(), 4);
        list.DelHead();
        EXPECT_EQ(scope.Count(), 2);
    }
}

TEST(QnPDList, RandomHistoriesAgreeWithTheModelAndLeakNothing) {
    constexpr unsigned HISTORIES = 10000;
    LiveScope scope;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        QnPDList<LiveObject> a;
        QnPDList<LiveObject> b;
        OwnedHistory<QnPDList<LiveObject>, ListModel<LiveObject*>>(BaseSeed() + k, a, b).Run(40);
    }
}

TEST(QnPXList, RandomHistoriesAgreeWithTheModelAndLeakNothing) {
    constexpr unsigned HISTORIES_PER_SIZE = 2000;
    constexpr long INDEX_UNIT = 10;
    LiveScope scope;
    for (const long group : {1L, 2L, 3L, 4L, 25L}) {
        for (unsigned k = 0; k < HISTORIES_PER_SIZE && !HasFailure(); ++k) {
            QnPXList<LiveObject> a(0, group, INDEX_UNIT);
            QnPXList<LiveObject> b(0, k % 2 == 0 ? group : 2, INDEX_UNIT);
            SCOPED_TRACE("group size " + std::to_string(group));
            OwnedHistory<QnPXList<LiveObject>, ListModel<LiveObject*>>(BaseSeed() + k, a, b).Run(40);
        }
    }
}
