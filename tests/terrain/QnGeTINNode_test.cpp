// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINNode.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGePoint.h"

TEST(QnGeTINNode, CountsOneValueAfterEveryConstruction) {
    EXPECT_EQ(QnGeTINNode().count, 1);
    EXPECT_EQ(QnGeTINNode(1.0, 2.0, 3.0).count, 1);
    EXPECT_EQ(QnGeTINNode(QnGePoint(1.0, 2.0, 3.0)).count, 1);
    const QnGeTINNode empty;
    EXPECT_EQ(empty.x, 0.0);
    EXPECT_EQ(empty.y, 0.0);
    EXPECT_EQ(empty.z, 0.0);
    const QnGeTINNode node(1.0, 2.0, 3.0);
    EXPECT_EQ(node.x, 1.0);
    EXPECT_EQ(node.y, 2.0);
    EXPECT_EQ(node.GetValue(), 3.0);
}

TEST(QnGeTINNode, ValueIsItsThirdCoordinate) {
    QnGeTINNode node(1.0, 2.0, 3.0);
    node.SetValue(7.5);
    EXPECT_EQ(node.z, 7.5);
    EXPECT_EQ(node.GetValue(), 7.5);
    EXPECT_EQ(node.count, 1);
}

TEST(QnGeTINNode, AppendedValuesMakeARunningMean) {
    QnGeTINNode node(0.0, 0.0, 2.0);
    node.AppendValue(4.0);
    EXPECT_EQ(node.z, 3.0);
    EXPECT_EQ(node.count, 2);
    node.AppendValue(9.0);
    EXPECT_EQ(node.z, 5.0);
    EXPECT_EQ(node.count, 3);
}

TEST(QnGeTINNode, CopyBeginsANewMeanAndAssignmentTakesTheCountAlong) {
    QnGeTINNode node(1.0, 2.0, 2.0);
    node.AppendValue(4.0);
    const QnGeTINNode copy(node);
    EXPECT_EQ(copy.count, 1);
    EXPECT_EQ(copy.x, 1.0);
    EXPECT_EQ(copy.y, 2.0);
    EXPECT_EQ(copy.z, 3.0);
    QnGeTINNode assigned;
    assigned = node;
    EXPECT_EQ(assigned.count, 2);
    EXPECT_EQ(assigned.x, 1.0);
    EXPECT_EQ(assigned.y, 2.0);
    EXPECT_EQ(assigned.z, 3.0);
}

TEST(QnGeTINNode, EqualityIsThatOfThePlan) {
    const QnGeTINNode node(1.0, 2.0, 3.0);
    EXPECT_TRUE(node == QnGeTINNode(1.0, 2.0, 900.0));
    EXPECT_FALSE(node != QnGeTINNode(1.0, 2.0, 900.0));
    EXPECT_FALSE(node == QnGeTINNode(1.0, 2.1, 3.0));
    EXPECT_TRUE(node != QnGeTINNode(1.0, 2.1, 3.0));
}

TEST(QnGeTINNode, EqualityCountsTheToleranceItself) {
    const QnPushVar<double> tolerance(g_distZero, 5.0);
    const QnGeTINNode node(0.0, 0.0);
    EXPECT_TRUE(node == QnGeTINNode(3.0, 4.0));
    EXPECT_FALSE(node == QnGeTINNode(3.0, 4.0 + 1e-9));
    EXPECT_TRUE(node != QnGeTINNode(-3.0 - 1e-9, 4.0));
}

TEST(QnGeTINNode, IsFoundBehindAPlainPoint) {
    EXPECT_TRUE(std::has_virtual_destructor<QnGeTINNode>::value);
    const std::unique_ptr<QnGeTINNode> node = std::make_unique<QnGeTINNode>(1.0, 2.0, 3.0);
    QnGePoint* const point = node.get();
    EXPECT_EQ(static_cast<QnGeTINNode*>(point), node.get());
}
