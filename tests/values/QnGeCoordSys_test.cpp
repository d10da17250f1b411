// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeCoordSys.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGeMatrix.h"

using namespace value_testing;

static_assert(std::has_virtual_destructor_v<QnGeCoordSys>, "deleted through its base");

namespace {

::testing::AssertionResult HasFrame(const QnGeCoordSys& cs, const QnGePoint& origin, const QnGePoint& x,
                                    const QnGePoint& y, const QnGePoint& z, double tol = 1e-12) {
    const ::testing::AssertionResult checks[] = {IsNear(cs.origin, origin, tol), IsNear(cs.xAxis, x, tol),
                                                 IsNear(cs.yAxis, y, tol), IsNear(cs.zAxis, z, tol)};
    const char* names[] = {"origin ", "x axis ", "y axis ", "z axis "};
    for (int i = 0; i < 4; ++i) {
        if (!checks[i]) {
            return ::testing::AssertionFailure() << names[i] << checks[i].message();
        }
    }
    return ::testing::AssertionSuccess();
}

const QnGePoint ORIGIN(0.0, 0.0, 0.0);
const QnGePoint X(1.0, 0.0, 0.0);
const QnGePoint Y(0.0, 1.0, 0.0);
const QnGePoint Z(0.0, 0.0, 1.0);
const QnGePoint BASE(5.0, 6.0, 7.0);

QnGeCoordSys RandomSystem(Random& random) {
    for (;;) {
        const QnGeVector3d z(random.Point(1.0));
        if (z.Length() > 0.1) {
            return QnGeCoordSys(random.Point(9.0), z, random.Coin());
        }
    }
}

}  // namespace

TEST(QnGeCoordSys, DefaultIsTheWorld) {
    EXPECT_TRUE(HasFrame(QnGeCoordSys(), ORIGIN, X, Y, Z, 0.0));
    EXPECT_TRUE(HasFrame(QnGeCoordSys::WCS, ORIGIN, X, Y, Z, 0.0));
    EXPECT_TRUE(QnGeCoordSys::WCS.IsValid());
}

TEST(QnGeCoordSys, AccessorsReadTheFields) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(0.0, 2.0, 0.0), QnGeVector3d(0.0, 0.0, 3.0), QnGeVector3d(4.0, 0.0, 0.0));
    EXPECT_TRUE(IsNear(cs.GetOrigin(), BASE));
    EXPECT_TRUE(IsNear(cs.GetXAxis(), Y));
    EXPECT_TRUE(IsNear(cs.GetYAxis(), Z));
    EXPECT_TRUE(IsNear(cs.GetZAxis(), X));
}

TEST(QnGeCoordSys, SetFromAxesNormalizes) {
    QnGeCoordSys cs;
    cs.Set(BASE, QnGeVector3d(0.0, 2.0, 0.0), QnGeVector3d(0.0, 0.0, 3.0), QnGeVector3d(4.0, 0.0, 0.0));
    EXPECT_TRUE(HasFrame(cs, BASE, Y, Z, X));
}

TEST(QnGeCoordSys, SetFromTwoVectors) {
    QnGeCoordSys cs;
    cs.Set(ORIGIN, QnGeVector3d(X), QnGeVector3d(Y), true);
    EXPECT_TRUE(HasFrame(cs, ORIGIN, X, Y, Z));
    cs.Set(ORIGIN, QnGeVector3d(X), QnGeVector3d(Y), false);
    EXPECT_TRUE(HasFrame(cs, ORIGIN, X, Y, -Z));
}

TEST(QnGeCoordSys, SetFromTwoVectorsMakesTheSecondPerpendicular) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(3.0, 0.0, 0.0), QnGeVector3d(5.0, 4.0, 0.0), true);
    EXPECT_TRUE(HasFrame(cs, BASE, X, Y, Z));
    const QnGeCoordSys left(BASE, QnGeVector3d(3.0, 0.0, 0.0), QnGeVector3d(5.0, 4.0, 0.0), false);
    EXPECT_TRUE(HasFrame(left, BASE, X, Y, -Z));
}

TEST(QnGeCoordSys, SetFromTwoPoints) {
    const QnGePoint p1 = BASE + QnGePoint(2.0, 0.0, 0.0);
    const QnGePoint p2 = BASE + QnGePoint(1.0, 3.0, 0.0);
    EXPECT_TRUE(HasFrame(QnGeCoordSys(BASE, p1, p2, true), BASE, X, Y, Z));
    QnGeCoordSys cs;
    cs.Set(BASE, p1, p2, false);
    EXPECT_TRUE(HasFrame(cs, BASE, X, Y, -Z));
}

TEST(QnGeCoordSys, SetFromTheZAxis) {
    QnGeCoordSys cs;
    cs.Set(BASE, QnGeVector3d(0.0, 0.0, 2.0), true);
    EXPECT_TRUE(HasFrame(cs, BASE, X, Y, Z));
    cs.Set(BASE, QnGeVector3d(0.0, 0.0, 2.0), false);
    EXPECT_TRUE(HasFrame(cs, BASE, X, -Y, Z));
    const QnGeCoordSys down(BASE, QnGeVector3d(0.0, 0.0, -2.0), true);
    EXPECT_TRUE(HasFrame(down, BASE, -X, Y, -Z));
    const QnGeCoordSys side(BASE, QnGeVector3d(3.0, 0.0, 0.0), true);
    EXPECT_TRUE(HasFrame(side, BASE, Y, Z, X));
}

TEST(QnGeCoordSys, SetFromAPlane) {
    const QnGeBasePlane plane(QnGeVector3d(0.0, 0.0, 2.0), QnGePoint(9.0, 9.0, 5.0));
    EXPECT_TRUE(HasFrame(QnGeCoordSys(plane, true), QnGePoint(0.0, 0.0, 5.0), X, Y, Z));
    QnGeCoordSys cs;
    cs.Set(plane, false);
    EXPECT_TRUE(HasFrame(cs, QnGePoint(0.0, 0.0, 5.0), X, -Y, Z));
}

TEST(QnGeCoordSys, ResetGoesBackToTheWorld) {
    QnGeCoordSys cs(BASE, QnGeVector3d(1.0, 1.0, 1.0), true);
    cs.Reset();
    EXPECT_TRUE(HasFrame(cs, ORIGIN, X, Y, Z, 0.0));
}

TEST(QnGeCoordSys, NormalizeMakesUnitAxes) {
    QnGeCoordSys cs;
    cs.xAxis = QnGeVector3d(2.0, 0.0, 0.0);
    cs.yAxis = QnGeVector3d(0.0, 3.0, 0.0);
    cs.zAxis = QnGeVector3d(0.0, 0.0, 4.0);
    EXPECT_FALSE(cs.IsValid());
    cs.Normalize();
    EXPECT_TRUE(HasFrame(cs, ORIGIN, X, Y, Z));
    EXPECT_TRUE(cs.IsValid());
}

TEST(QnGeCoordSys, IsValidNeedsThreeUnitAxesOfWhichNoTwoAreParallel) {
    QnGeCoordSys cs;
    cs.yAxis = QnGeVector3d(0.6, 0.8, 0.0);
    EXPECT_TRUE(cs.IsValid());  // skewed axes are allowed
    cs.yAxis = QnGeVector3d(-1.0, 0.0, 0.0);
    EXPECT_FALSE(cs.IsValid());
    cs.yAxis = QnGeVector3d(0.0, 0.0, 1.0);
    EXPECT_FALSE(cs.IsValid());
    cs.yAxis = QnGeVector3d(0.0, 1.0, 0.0);
    cs.zAxis = QnGeVector3d(1.0, 0.0, 0.0);
    EXPECT_FALSE(cs.IsValid());
    cs.zAxis = QnGeVector3d(0.0, 0.0, 1.0 + 2e-6);
    EXPECT_FALSE(cs.IsValid());
    cs.zAxis = QnGeVector3d(0.0, 0.0, 0.0);
    EXPECT_FALSE(cs.IsValid());
}

TEST(QnGeCoordSys, GetMatrixToHasTheAxesInItsColumns) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(Y), QnGeVector3d(Z), QnGeVector3d(X));
    QnGeMatrix matrix;
    matrix[3][0] = 9.0;  // all entries are written
    matrix[3][3] = 9.0;
    cs.GetMatrixTo(matrix);
    const double expected[4][4] = {{0, 0, 1, 5}, {1, 0, 0, 6}, {0, 1, 0, 7}, {0, 0, 0, 1}};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(matrix[i][j], expected[i][j]) << i << "," << j;
        }
    }
}

TEST(QnGeCoordSys, MatrixToAndFromComposeToTheIdentity) {
    Random random(2307);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeCoordSys cs = RandomSystem(random);
        ASSERT_TRUE(cs.IsValid());
        QnGeMatrix to;
        QnGeMatrix from;
        cs.GetMatrixTo(to);
        cs.GetMatrixFrom(from);
        const QnGePoint p = random.Point(9.0);
        QnGePoint image(p);
        to.Transform(image);
        from.Transform(image);
        ASSERT_TRUE(IsNear(image, p, 1e-11));
        const QnGePoint direct = cs.origin + cs.xAxis * p.x + cs.yAxis * p.y + cs.zAxis * p.z;
        image = p;
        to.Transform(image);
        ASSERT_TRUE(IsNear(image, direct, 1e-11));
    }
}

TEST(QnGeCoordSys, TransUcsAndTransToWcsAreInverse) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(0.0, 0.0, 2.0), QnGeVector3d(X), true);
    EXPECT_TRUE(HasFrame(cs, BASE, Z, X, Y));
    QnGePoint p(1.0, 2.0, 3.0);
    cs.TransUcs(p);
    EXPECT_TRUE(IsNear(p, QnGePoint(7.0, 9.0, 8.0)));
    cs.TransToWcs(p);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 2.0, 3.0)));
    QnGeVector3d v(1.0, 2.0, 3.0);
    cs.TransUcs(v);
    EXPECT_TRUE(IsNear(v, QnGePoint(2.0, 3.0, 1.0)));
    cs.TransToWcs(v);
    EXPECT_TRUE(IsNear(v, QnGePoint(1.0, 2.0, 3.0)));
}

TEST(QnGeCoordSys, TransformByMovesTheOriginAndTurnsTheAxes) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(2.0, 2.0, 2.0);
    QnGeMatrix turn;
    turn.CreateZRotateMatrix(EXACT_PI / 2.0);
    matrix.PreMultiBy(turn);
    QnGeCoordSys cs(QnGePoint(1.0, 0.0, 3.0), QnGeVector3d(X), QnGeVector3d(Y), QnGeVector3d(Z));
    cs.TransformBy(matrix);
    EXPECT_TRUE(HasFrame(cs, QnGePoint(0.0, 2.0, 6.0), Y, -X, Z));
}

TEST(QnGeCoordSys, GetWcsIsTheWorldSeenFromHere) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(Y), QnGeVector3d(Z), QnGeVector3d(X));
    QnGeCoordSys world(BASE, QnGeVector3d(1.0, 1.0, 1.0), true);
    cs.GetWcs(world);
    // the world's origin is at -BASE; along y, z, x of this system these are -6, -7, -5
    EXPECT_TRUE(HasFrame(world, QnGePoint(-6.0, -7.0, -5.0), Z, X, Y));
}

TEST(QnGeCoordSys, MayBeItsOwnArgument) {
    QnGeCoordSys cs(BASE, QnGeVector3d(Y), QnGeVector3d(Z), QnGeVector3d(X));
    cs.Set(cs.origin, cs.zAxis, cs.xAxis, cs.yAxis);
    EXPECT_TRUE(HasFrame(cs, BASE, X, Y, Z));
    cs.Set(cs.origin, cs.yAxis, cs.zAxis, true);
    EXPECT_TRUE(HasFrame(cs, BASE, Y, Z, X));
    cs.GetWcs(cs);
    EXPECT_TRUE(HasFrame(cs, QnGePoint(-6.0, -7.0, -5.0), Z, X, Y));
}

TEST(QnGeCoordSys, SetFromANullZAxisHasNoAxes) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(), true);
    EXPECT_TRUE(HasFrame(cs, BASE, ORIGIN, ORIGIN, ORIGIN, 0.0));
    EXPECT_FALSE(cs.IsValid());
}

TEST(QnGeCoordSys, MatrixFromOfASystemWithoutInverseIsMatrixTo) {
    const QnGeCoordSys flat(BASE, QnGeVector3d(X), QnGeVector3d(Y), QnGeVector3d(X));
    QnGePoint p(1.0, 2.0, 3.0);
    flat.TransToWcs(p);
    EXPECT_TRUE(IsNear(p, QnGePoint(9.0, 8.0, 7.0)));
}

TEST(QnGeCoordSys, CoordinatePlanesPassThroughTheOrigin) {
    const QnGeCoordSys cs(BASE, QnGeVector3d(X), QnGeVector3d(Y), QnGeVector3d(Z));
    QnGeBasePlane plane;
    cs.GetXYPlane(plane);
    EXPECT_TRUE(IsNear(plane.GetNormal(), Z));
    EXPECT_EQ(plane.GetD(), -7.0);
    cs.GetZXPlane(plane);
    EXPECT_TRUE(IsNear(plane.GetNormal(), Y));
    EXPECT_EQ(plane.GetD(), -6.0);
    cs.GetYZPlane(plane);
    EXPECT_TRUE(IsNear(plane.GetNormal(), X));
    EXPECT_EQ(plane.GetD(), -5.0);
}

TEST(QnGeCoordSys, MatrixSetCoordSysIsGetMatrixToInAllForms) {
    const QnGeVector3d v1(3.0, 0.0, 0.0);
    const QnGeVector3d v2(5.0, 4.0, 0.0);
    const QnGeVector3d v3(0.0, 0.0, 2.0);
    const QnGeBasePlane plane(QnGeVector3d(0.0, 3.0, 4.0), BASE);
    const QnGePoint p1 = BASE + v1;
    const QnGePoint p2 = BASE + v2;
    QnGeMatrix set[5];
    set[0].SetCoordSys(BASE, v1, v2, v3);
    set[1].SetCoordSys(BASE, v1, v2, false);
    set[2].SetCoordSys(BASE, p1, p2, true);
    set[3].SetCoordSys(BASE, v2, true);
    set[4].SetCoordSys(plane, false);
    const QnGeCoordSys systems[5] = {QnGeCoordSys(BASE, v1, v2, v3), QnGeCoordSys(BASE, v1, v2, false),
                                     QnGeCoordSys(BASE, p1, p2, true), QnGeCoordSys(BASE, v2, true),
                                     QnGeCoordSys(plane, false)};
    for (int k = 0; k < 5; ++k) {
        QnGeMatrix expected;
        systems[k].GetMatrixTo(expected);
        for (int i = 0; i < 4; ++i) {
            for (int j = 0; j < 4; ++j) {
                EXPECT_EQ(set[k][i][j], expected[i][j]) << "form " << k << " entry " << i << "," << j;
            }
        }
    }
}
