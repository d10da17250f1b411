// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <map>
#include <utility>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGeMatrix.h"

using namespace value_testing;

namespace {

using Entries = std::map<std::pair<int, int>, double>;

/// Runs `create` on a matrix full of marks and expects the named entries, and the marks everywhere else.
void ExpectWrites(const std::function<void(QnGeMatrix&)>& create, const Entries& entries) {
    QnGeMatrix matrix;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            matrix[i][j] = UNTOUCHED - 4 * i - j;
        }
    }
    create(matrix);
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            const auto entry = entries.find({i, j});
            if (entry == entries.end()) {
                EXPECT_EQ(matrix[i][j], UNTOUCHED - 4 * i - j) << "entry " << i << "," << j;
            } else {
                EXPECT_NEAR(matrix[i][j], entry->second, 1e-15) << "entry " << i << "," << j;
            }
        }
    }
}

QnGePoint Mapped(const QnGeMatrix& matrix, const QnGePoint& p) {
    QnGePoint image(p);
    matrix.Transform(image);
    return image;
}

bool IsIdentity(const QnGeMatrix& matrix) {
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            if (matrix[i][j] != (i == j ? 1.0 : 0.0)) {
                return false;
            }
        }
    }
    return true;
}

double Dot(const QnGePoint& a, const QnGePoint& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
QnGePoint Cross(const QnGePoint& a, const QnGePoint& b) {
    return QnGePoint(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

QnGePoint RandomUnit(Random& random) {
    for (;;) {
        const QnGePoint p = random.Point(1.0);
        const double length = std::sqrt(Dot(p, p));
        if (length > 0.1) {
            return p / length;
        }
    }
}

/// The turn of `p` about the line through `base` along the unit vector `d`, by Rodrigues' formula.
QnGePoint Turned(const QnGePoint& p, const QnGePoint& base, const QnGePoint& d, double angle) {
    const QnGePoint v = p - base;
    return base + v * std::cos(angle) + Cross(d, v) * std::sin(angle) + d * (Dot(d, v) * (1.0 - std::cos(angle)));
}

constexpr double A = 0.7;

}  // namespace

TEST(QnGeMatrixCreate, MoveWritesTheLastColumn) {
    ExpectWrites([](QnGeMatrix& m) { m.CreateMoveMatrix(1.0, 2.0, 3.0); },
                 {{{0, 3}, 1.0}, {{1, 3}, 2.0}, {{2, 3}, 3.0}});
    ExpectWrites([](QnGeMatrix& m) { m.CreateMoveMatrix(QnGeVector3d(1.0, 2.0, 3.0)); },
                 {{{0, 3}, 1.0}, {{1, 3}, 2.0}, {{2, 3}, 3.0}});
}

TEST(QnGeMatrixCreate, MoveInThePlan) {
    QnGeMatrix numbers;
    numbers.CreateMoveMatrix(1.0, 2.0);
    EXPECT_TRUE(IsExactly(Mapped(numbers, QnGePoint(10.0, 10.0, 10.0)), 11.0, 12.0, 10.0));
    QnGeMatrix vector;
    vector.CreateMoveMatrix(QnGeVector2d(1.0, 2.0));
    EXPECT_TRUE(IsExactly(Mapped(vector, QnGePoint(10.0, 10.0, 10.0)), 11.0, 12.0, 10.0));
}

TEST(QnGeMatrixCreate, ScaleWritesTheDiagonal) {
    ExpectWrites([](QnGeMatrix& m) { m.CreateScaleMatrix(2.0, 3.0, 4.0); },
                 {{{0, 0}, 2.0}, {{1, 1}, 3.0}, {{2, 2}, 4.0}});
    QnGeMatrix plan;
    plan.CreateScaleMatrix(2.0, 3.0);
    EXPECT_TRUE(IsExactly(Mapped(plan, QnGePoint(1.0, 1.0, 1.0)), 2.0, 3.0, 1.0));
}

TEST(QnGeMatrixCreate, ScaleAboutAPointKeepsIt) {
    const QnGePoint base(10.0, 20.0, 30.0);
    ExpectWrites([&](QnGeMatrix& m) { m.CreateScaleMatrix(2.0, 3.0, base); },
                 {{{0, 0}, 2.0}, {{1, 1}, 3.0}, {{0, 3}, -10.0}, {{1, 3}, -40.0}});
    ExpectWrites([&](QnGeMatrix& m) { m.CreateScaleMatrix(2.0, 3.0, 4.0, base); },
                 {{{0, 0}, 2.0}, {{1, 1}, 3.0}, {{2, 2}, 4.0}, {{0, 3}, -10.0}, {{1, 3}, -40.0}, {{2, 3}, -90.0}});
    QnGeMatrix scale;
    scale.CreateScaleMatrix(2.0, 3.0, 4.0, base);
    EXPECT_TRUE(IsExactly(Mapped(scale, base), 10.0, 20.0, 30.0));
    EXPECT_TRUE(IsExactly(Mapped(scale, QnGePoint(11.0, 21.0, 31.0)), 12.0, 23.0, 34.0));
}

TEST(QnGeMatrixCreate, RotationsAboutTheAxes) {
    const double s = std::sin(A);
    const double c = std::cos(A);
    ExpectWrites([](QnGeMatrix& m) { m.CreateZRotateMatrix(A); },
                 {{{0, 0}, c}, {{1, 1}, c}, {{1, 0}, s}, {{0, 1}, -s}});
    ExpectWrites([](QnGeMatrix& m) { m.CreateXRotateMatrix(A); },
                 {{{1, 1}, c}, {{2, 2}, c}, {{2, 1}, s}, {{1, 2}, -s}});
    ExpectWrites([](QnGeMatrix& m) { m.CreateYRotateMatrix(A); },
                 {{{0, 0}, c}, {{2, 2}, c}, {{0, 2}, s}, {{2, 0}, -s}});
}

TEST(QnGeMatrixCreate, RotationAboutAPlanPoint) {
    const double s = std::sin(A);
    const double c = std::cos(A);
    const QnGePoint b(10.0, 20.0, 30.0);
    ExpectWrites([&](QnGeMatrix& m) { m.CreateRotateMatrix(A, b); }, {{{0, 0}, c},
                                                                      {{1, 1}, c},
                                                                      {{1, 0}, s},
                                                                      {{0, 1}, -s},
                                                                      {{0, 3}, 20.0 * s + (1.0 - c) * 10.0},
                                                                      {{1, 3}, (1.0 - c) * 20.0 - 10.0 * s}});
    QnGeMatrix half;
    half.CreateRotateMatrix(EXACT_PI, QnGePoint(1.0, 0.0));
    EXPECT_TRUE(IsNear(Mapped(half, QnGePoint()), QnGePoint(2.0, 0.0, 0.0)));
}

TEST(QnGeMatrixCreate, RotationAboutALineFollowsTheRightHand) {
    QnGeMatrix quarter;
    quarter.CreateRotateMatrix(EXACT_PI / 2.0, QnGeBaseLine3d(QnGeVector3d(0.0, 0.0, 5.0), QnGePoint(1.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(Mapped(quarter, QnGePoint(2.0, 0.0, 7.0)), QnGePoint(1.0, 1.0, 7.0)));
    QnGeMatrix aboutY;
    aboutY.CreateRotateMatrix(EXACT_PI / 2.0, QnGeBaseLine3d(QnGeVector3d(0.0, 1.0, 0.0), QnGePoint()));
    EXPECT_TRUE(IsNear(Mapped(aboutY, QnGePoint(0.0, 0.0, 1.0)), QnGePoint(1.0, 0.0, 0.0)));
}

TEST(QnGeMatrixCreate, RotationAboutALineAgreesWithRodrigues) {
    Random random(2304);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint unit = RandomUnit(random);
        if (std::hypot(unit.y, unit.z) < 1e-3) {
            continue;
        }
        const QnGePoint base = random.Point(5.0);
        const QnGePoint p = random.Point(5.0);
        const double angle = random.Real(-7.0, 7.0);
        QnGeMatrix turn;
        turn.CreateRotateMatrix(angle, QnGeBaseLine3d(QnGeVector3d(unit * random.Real(0.1, 9.0)), base));
        ASSERT_TRUE(IsNear(Mapped(turn, p), Turned(p, base, unit, angle), 1e-9)) << PointText(unit) << angle;
    }
}

TEST(QnGeMatrixCreate, RotationAboutALineWithoutDirectionDoesNothing) {
    QnGeMatrix turn;
    turn.CreateRotateMatrix(1.0, QnGeBaseLine3d(QnGeVector3d(0.0, 1e-9, 0.0), QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(IsIdentity(turn));
}

TEST(QnGeMatrixCreate, KeptOddRotationAboutALineAlongXIsNotANumber) {
    QnGeMatrix turn;
    turn.CreateRotateMatrix(1.0, QnGeBaseLine3d(QnGeVector3d(2.0, 0.0, 0.0), QnGePoint()));
    EXPECT_TRUE(std::isnan(Mapped(turn, QnGePoint(1.0, 2.0, 3.0)).y));
}

TEST(QnGeMatrixCreate, PlanProjectionDropsZ) {
    ExpectWrites([](QnGeMatrix& m) { m.CreateXYProjectMatrix(); },
                 {{{0, 2}, 0.0}, {{1, 2}, 0.0}, {{2, 2}, 0.0}, {{3, 2}, 0.0}});
    QnGeMatrix project;
    project.CreateXYProjectMatrix();
    EXPECT_TRUE(IsExactly(Mapped(project, QnGePoint(1.0, 2.0, 3.0)), 1.0, 2.0, 0.0));
}

TEST(QnGeMatrixCreate, PlanProjectionAlongADirection) {
    ExpectWrites([](QnGeMatrix& m) { EXPECT_TRUE(m.CreateXYProjectMatrix(QnGePoint(1.0, 2.0, 4.0), true)); },
                 {{{0, 2}, -0.25}, {{1, 2}, -0.5}, {{2, 2}, 0.0}, {{3, 2}, 0.0}});
    QnGeMatrix project;
    EXPECT_TRUE(project.CreateXYProjectMatrix(QnGePoint(1.0, 2.0, 4.0), true));
    EXPECT_TRUE(IsNear(Mapped(project, QnGePoint(1.0, 2.0, 4.0)), QnGePoint()));
}

TEST(QnGeMatrixCreate, PlanProjectionFromAnEye) {
    ExpectWrites([](QnGeMatrix& m) { EXPECT_TRUE(m.CreateXYProjectMatrix(QnGePoint(1.0, 2.0, 4.0), false)); },
                 {{{0, 2}, -0.25}, {{1, 2}, -0.5}, {{2, 2}, 0.0}, {{3, 2}, -0.25}});
    QnGeMatrix project;
    EXPECT_TRUE(project.CreateXYProjectMatrix(QnGePoint(0.0, 0.0, 10.0), false));
    EXPECT_TRUE(IsNear(Mapped(project, QnGePoint(1.0, 0.0, 5.0)), QnGePoint(2.0, 0.0, 0.0)));
}

TEST(QnGeMatrixCreate, PlanProjectionAlongThePlanFailsAndChangesNothing) {
    for (const double z : {0.0, 1e-6, -1e-6}) {
        for (const bool parallel : {false, true}) {
            ExpectWrites(
                [&](QnGeMatrix& m) { EXPECT_FALSE(m.CreateXYProjectMatrix(QnGePoint(1.0, 1.0, z), parallel)); }, {});
        }
    }
    QnGeMatrix project;
    EXPECT_TRUE(project.CreateXYProjectMatrix(QnGePoint(1.0, 1.0, 1.0000001e-6), true));
}

TEST(QnGeMatrixCreate, ProjectionFromAnEyeOntoAPlane) {
    const QnGeBasePlane plane(QnGeVector3d(0.0, 0.0, 1.0), QnGePoint(0.0, 0.0, 5.0));
    QnGeMatrix project;
    ASSERT_TRUE(project.CreateProjectMatrix(plane, QnGePoint(0.0, 0.0, 10.0), false));
    EXPECT_TRUE(IsNear(Mapped(project, QnGePoint(1.0, 0.0, 0.0)), QnGePoint(0.5, 0.0, 5.0)));
}

TEST(QnGeMatrixCreate, ProjectionFromAnEyeOnThePlaneFailsAndChangesNothing) {
    const QnGeBasePlane plane(QnGeVector3d(0.0, 0.0, 1.0), QnGePoint(0.0, 0.0, 5.0));
    QnGeMatrix project;
    EXPECT_FALSE(project.CreateProjectMatrix(plane, QnGePoint(7.0, 8.0, 5.0), false));
    EXPECT_TRUE(IsIdentity(project));
}

TEST(QnGeMatrixCreate, ProjectionMeasuresTheEyeOnTheNormalizedPlane) {
    const QnGeBasePlane plane(QnGeVector3d(0.0, 0.0, 1e-3), QnGePoint(0.0, 0.0, 5.0));
    QnGeMatrix project;
    ASSERT_TRUE(project.CreateProjectMatrix(plane, QnGePoint(0.0, 0.0, 5.5), false));
    EXPECT_TRUE(IsNear(Mapped(project, QnGePoint(1.0, 0.0, 4.5)), QnGePoint(0.5, 0.0, 5.0)));
}

TEST(QnGeMatrixCreate, ProjectionAlongThePlaneFailsAndChangesNothing) {
    const QnGeBasePlane plane(QnGeVector3d(0.0, 0.0, 1.0), QnGePoint(0.0, 0.0, 5.0));
    QnGeMatrix project;
    EXPECT_FALSE(project.CreateProjectMatrix(plane, QnGePoint(7.0, 8.0, 0.0), true));
    EXPECT_TRUE(IsIdentity(project));
}

TEST(QnGeMatrixCreate, ProjectionsLandOnThePlaneInLineWithTheRay) {
    Random random(2305);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint normal = RandomUnit(random);
        const QnGePoint base = random.Point(3.0);
        const QnGeBasePlane plane{QnGeVector3d(normal), base};
        const bool parallel = random.Coin();
        const QnGePoint dir = random.Point(9.0);
        const QnGePoint p = random.Point(3.0);
        const QnGePoint ray = parallel ? dir : p - dir;
        if (std::fabs(Dot(normal, ray)) < 0.3 || std::fabs(Dot(normal, dir)) < 0.3 ||
            std::fabs(Dot(normal, dir - base)) < 0.3) {
            continue;
        }
        QnGeMatrix project;
        ASSERT_TRUE(project.CreateProjectMatrix(plane, dir, parallel));
        const QnGePoint expected = p + ray * (Dot(normal, base - p) / Dot(normal, ray));
        ASSERT_TRUE(IsNear(Mapped(project, p), expected, 1e-8)) << PointText(normal) << PointText(dir) << parallel;
    }
}

TEST(QnGeMatrixCreate, MirrorInAPoint) {
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGePoint(1.0, 2.0, 3.0));
    EXPECT_TRUE(IsNear(Mapped(mirror, QnGePoint(10.0, 20.0, 30.0)), QnGePoint(-8.0, -16.0, -24.0)));
    EXPECT_EQ(mirror[3][3], -1.0);  // the reflection goes through w
}

TEST(QnGeMatrixCreate, MirrorInAPlane) {
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBasePlane(QnGeVector3d(4.0, 0.0, 0.0), QnGePoint(1.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(Mapped(mirror, QnGePoint(5.0, 6.0, 7.0)), QnGePoint(-3.0, 6.0, 7.0)));
    EXPECT_NEAR(mirror[3][3], 1.0, 1e-15);
}

TEST(QnGeMatrixCreate, MirrorAboutASpaceLineIsAHalfTurn) {
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBaseLine3d(QnGeVector3d(0.0, 0.0, 3.0), QnGePoint(1.0, 1.0, 1.0)));
    EXPECT_TRUE(IsNear(Mapped(mirror, QnGePoint(5.0, 6.0, 7.0)), QnGePoint(-3.0, -4.0, 7.0)));
}

TEST(QnGeMatrixCreate, MirrorInAPlanLineNegatesZAboutItsBase) {
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBaseLine2d(QnGeVector2d(0.0, 3.0), QnGePoint(1.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(Mapped(mirror, QnGePoint(5.0, 6.0, 7.0)), QnGePoint(-3.0, 6.0, -7.0)));
    QnGeMatrix raised;
    raised.CreateMirrorMatrix(QnGeBaseLine2d(QnGeVector2d(0.0, 3.0), QnGePoint(1.0, 0.0, 10.0)));
    EXPECT_TRUE(IsNear(Mapped(raised, QnGePoint(5.0, 6.0, 7.0)), QnGePoint(-3.0, 6.0, 13.0)));
}

TEST(QnGeMatrixCreate, MirrorsAgreeWithTheirFormulas) {
    Random random(2306);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint u = RandomUnit(random);
        const QnGePoint base = random.Point(5.0);
        const QnGePoint p = random.Point(5.0);
        const double length = random.Real(0.1, 9.0);

        QnGeMatrix inPlane;
        inPlane.CreateMirrorMatrix(QnGeBasePlane(QnGeVector3d(u * length), base));
        ASSERT_TRUE(IsNear(Mapped(inPlane, p), p - u * (2.0 * Dot(u, p - base)), 1e-9));

        QnGeMatrix aboutLine;
        aboutLine.CreateMirrorMatrix(QnGeBaseLine3d(QnGeVector3d(u * length), base));
        ASSERT_TRUE(IsNear(Mapped(aboutLine, p), Turned(p, base, u, EXACT_PI), 1e-9));

        const double angle = random.Real(0.0, 6.0);
        const QnGePoint flat(std::cos(angle), std::sin(angle));
        QnGeMatrix inLine;
        inLine.CreateMirrorMatrix(QnGeBaseLine2d(QnGeVector2d(flat * length), base));
        const QnGePoint foot = base + flat * Dot(flat, p - base);
        ASSERT_TRUE(IsNear(Mapped(inLine, p), QnGePoint(2 * foot.x - p.x, 2 * foot.y - p.y, 2 * base.z - p.z), 1e-9));

        QnGeMatrix inPoint;
        inPoint.CreateMirrorMatrix(base);
        ASSERT_TRUE(IsNear(Mapped(inPoint, p), base * 2.0 - p, 1e-9));
    }
}

TEST(QnGeMatrixCreate, IsMirrorMatOfPlaneMirrorsAndPlanTurns) {
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBasePlane(QnGeVector3d(1.0, 0.0, 0.0), QnGePoint()));
    EXPECT_TRUE(mirror.IsMirrorMat());
    for (const double angle : {0.1, 1.5707963267948966, 3.0, 3.141592653589793, 5.0}) {
        QnGeMatrix turn;
        turn.CreateZRotateMatrix(angle);
        EXPECT_FALSE(turn.IsMirrorMat()) << angle;
    }
    EXPECT_FALSE(QnGeMatrix().IsMirrorMat());
}

TEST(QnGeMatrixCreate, IsMirrorMatLiesBelowItsLimit) {
    QnGeMatrix matrix;
    matrix[0][0] = -1e-6;
    EXPECT_FALSE(matrix.IsMirrorMat());
    matrix[0][0] = -1.0000001e-6;
    EXPECT_TRUE(matrix.IsMirrorMat());
}

TEST(QnGeMatrixCreate, KeptOddIsMirrorMatOfAHalfTurnAboutX) {
    QnGeMatrix turn;
    turn.CreateXRotateMatrix(EXACT_PI);
    EXPECT_TRUE(turn.IsMirrorMat());
}

TEST(QnGeMatrixCreate, KeptOddIsMirrorMatOfASmallMirroredScale) {
    QnGeMatrix small;
    small.CreateScaleMatrix(-5e-4, 5e-4, 5e-4);
    EXPECT_FALSE(small.IsMirrorMat());
    QnGeMatrix larger;
    larger.CreateScaleMatrix(-2e-3, 2e-3, 2e-3);
    EXPECT_TRUE(larger.IsMirrorMat());
}
