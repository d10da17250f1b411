// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePointList.h"

#include <gtest/gtest.h>

#include "ValueTesting.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointArray.h"

using namespace value_testing;

namespace {

template <class Points>
void FillWithTwo(Points& points) {
    points.Append(QnGePoint(1.0, 2.0, 3.0));
    points.Append(QnGePoint(4.0, 5.0, 6.0));
}

template <class Points>
void ExpectBothMoved(const Points& points) {
    ASSERT_EQ(points.GetLength(), 2);
    EXPECT_TRUE(IsExactly(points.GetAt(0), 11.0, 2.0, 2.0));
    EXPECT_TRUE(IsExactly(points.GetAt(1), 14.0, 5.0, 5.0));
}

QnGeMatrix MoveByTenAndBack() {
    QnGeMatrix move;
    move.CreateMoveMatrix(10.0, 0.0, -1.0);
    return move;
}

}  // namespace

TEST(QnGePointList, TransformsEveryPointInPlace) {
    QnGePointList list;
    FillWithTwo(list);
    list.TransformBy(MoveByTenAndBack());
    ExpectBothMoved(list);
    EXPECT_TRUE(list.IsOut());
}

TEST(QnGePointArray, TransformsEveryPointInPlace) {
    QnGePointArray array;
    FillWithTwo(array);
    array.TransformBy(MoveByTenAndBack());
    ExpectBothMoved(array);
    EXPECT_TRUE(array.IsOut());
}

TEST(QnGePointList, ConstructorsMakeAndCopyPoints) {
    const QnGePointList three(3);
    EXPECT_EQ(three.GetLength(), 3);
    EXPECT_TRUE(IsExactly(three.GetAt(2), 0.0, 0.0, 0.0));
    QnGePointList list;
    FillWithTwo(list);
    QnGePointList copy(list);
    copy[0] = QnGePoint(9.0, 9.0, 9.0);
    EXPECT_TRUE(IsExactly(list.GetAt(0), 1.0, 2.0, 3.0));
    const QnGePointArray array(list);
    ASSERT_EQ(array.GetLength(), 2);
    EXPECT_TRUE(IsExactly(array.GetAt(1), 4.0, 5.0, 6.0));
    const QnGePointList back(array);
    ASSERT_EQ(back.GetLength(), 2);
    EXPECT_TRUE(IsExactly(back.GetAt(0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(back.GetAt(1), 4.0, 5.0, 6.0));
    EXPECT_EQ(QnGePointList().GetLength(), 0);
}

TEST(QnGePointArray, ConstructorsMakeAndCopyPoints) {
    EXPECT_EQ(QnGePointArray().GetLength(), 0);
    const QnGePointArray three(3, 2);
    ASSERT_EQ(three.GetLength(), 3);
    EXPECT_TRUE(IsExactly(three.GetAt(2), 0.0, 0.0, 0.0));
    QnGePointArray array;
    FillWithTwo(array);
    QnGePointArray copy(array);
    copy[0] = QnGePoint(9.0, 9.0, 9.0);
    EXPECT_TRUE(IsExactly(array.GetAt(0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(copy.GetAt(1), 4.0, 5.0, 6.0));
    QnGePointArray assigned(7);
    assigned = array;
    ASSERT_EQ(assigned.GetLength(), 2);
    assigned[1] = QnGePoint(9.0, 9.0, 9.0);
    EXPECT_TRUE(IsExactly(array.GetAt(1), 4.0, 5.0, 6.0));
}

TEST(QnGePointList, AssignsPoints) {
    QnGePointList list;
    FillWithTwo(list);
    QnGePointList assigned(7);
    assigned = list;
    ASSERT_EQ(assigned.GetLength(), 2);
    assigned[1] = QnGePoint(9.0, 9.0, 9.0);
    EXPECT_TRUE(IsExactly(list.GetAt(1), 4.0, 5.0, 6.0));
}

TEST(QnGePointList, TransformingNoPointsIsNothing) {
    QnGePointList list;
    list.TransformBy(MoveByTenAndBack());
    EXPECT_EQ(list.GetLength(), 0);
    QnGePointArray array;
    array.TransformBy(MoveByTenAndBack());
    EXPECT_EQ(array.GetLength(), 0);
}

TEST(QnGePointList, FindsPointsUnderTheTolerance) {
    QnGePointList list;
    FillWithTwo(list);
    EXPECT_EQ(list.FindOrAppend(QnGePoint(4.0, 5.0, 6.0 + 5e-7)), 1);
    EXPECT_EQ(list.GetLength(), 2);
    EXPECT_EQ(list.FindOrAppend(QnGePoint(4.0, 5.0, 6.1)), 2);
    EXPECT_EQ(list.GetLength(), 3);
}
