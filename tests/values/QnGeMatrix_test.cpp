// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeMatrix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeCoordSys.h"

using namespace value_testing;

static_assert(!std::is_polymorphic_v<QnGeMatrix>, "sixteen numbers");
static_assert(sizeof(QnGeMatrix) == 16 * sizeof(double), "sixteen numbers");

namespace {

/// Entry (i, j) is 10 i + j + 1, none of them what an operation would write by itself.
QnGeMatrix Numbered() {
    QnGeMatrix matrix;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            matrix[i][j] = 10.0 * i + j + 1.0;
        }
    }
    return matrix;
}

QnGeMatrix RandomMatrix(Random& random) {
    QnGeMatrix matrix;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            matrix[i][j] = random.Real(-2.0, 2.0);
        }
    }
    return matrix;
}

::testing::AssertionResult SameEntries(const QnGeMatrix& actual, const QnGeMatrix& expected, double tol) {
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            if (!(std::fabs(actual[i][j] - expected[i][j]) <= tol)) {
                return ::testing::AssertionFailure()
                       << "entry " << i << "," << j << " is " << actual[i][j] << " instead of " << expected[i][j];
            }
        }
    }
    return ::testing::AssertionSuccess();
}

/// Elimination with row pivots: independent of any expansion.
double DeterminantByElimination(const QnGeMatrix& matrix) {
    double rows[4][4];
    for (int i = 0; i < 4; ++i) {
        std::copy(matrix[i], matrix[i] + 4, rows[i]);
    }
    double determinant = 1.0;
    for (int k = 0; k < 4; ++k) {
        int pivot = k;
        for (int i = k + 1; i < 4; ++i) {
            pivot = std::fabs(rows[i][k]) > std::fabs(rows[pivot][k]) ? i : pivot;
        }
        if (rows[pivot][k] == 0.0) {
            return 0.0;
        }
        if (pivot != k) {
            std::swap_ranges(rows[k], rows[k] + 4, rows[pivot]);
            determinant = -determinant;
        }
        determinant *= rows[k][k];
        for (int i = k + 1; i < 4; ++i) {
            const double factor = rows[i][k] / rows[k][k];
            for (int j = k; j < 4; ++j) {
                rows[i][j] -= factor * rows[k][j];
            }
        }
    }
    return determinant;
}

QnGeMatrix ProductByDefinition(const QnGeMatrix& a, const QnGeMatrix& b) {
    QnGeMatrix product;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            product[i][j] = 0.0;
            for (int k = 0; k < 4; ++k) {
                product[i][j] += a[i][k] * b[k][j];
            }
        }
    }
    return product;
}

}  // namespace

TEST(QnGeMatrix, IsTheIdentityAtFirst) {
    const QnGeMatrix matrix;
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(matrix[i][j], i == j ? 1.0 : 0.0);
        }
    }
}

TEST(QnGeMatrix, InitIdentityResets) {
    QnGeMatrix matrix = Numbered();
    matrix.InitIdentity();
    EXPECT_TRUE(SameEntries(matrix, QnGeMatrix(), 0.0));
}

TEST(QnGeMatrix, LiesRowByRow) {
    QnGeMatrix matrix = Numbered();
    EXPECT_EQ(matrix.m[2][3], 24.0);
    EXPECT_EQ(matrix[2][3], 24.0);
    EXPECT_EQ(&matrix[1][0], &matrix.m[0][0] + 4);
    matrix[0][3] = -5.0;
    EXPECT_EQ(matrix.m[0][3], -5.0);
}

TEST(QnGeMatrix, PointsAreColumnVectors) {
    QnGePoint p(2.0, 3.0, 5.0);
    Numbered().Transform(p);
    const double w = 31.0 * 2 + 32.0 * 3 + 33.0 * 5 + 34.0;
    EXPECT_TRUE(IsNear(
        p, QnGePoint((2.0 + 6.0 + 15.0 + 4.0) / w, (22.0 + 36.0 + 65.0 + 14.0) / w, (42.0 + 66.0 + 115.0 + 24.0) / w)));
}

TEST(QnGeMatrix, SpaceVectorsLeaveOutTheLastColumnButNotW) {
    QnGeVector3d v(2.0, 3.0, 5.0);
    Numbered().Transform(v);
    const double w = 31.0 * 2 + 32.0 * 3 + 33.0 * 5 + 34.0;
    EXPECT_TRUE(IsNear(v, QnGePoint((2.0 + 6.0 + 15.0) / w, (22.0 + 36.0 + 65.0) / w, (42.0 + 66.0 + 115.0) / w)));
}

TEST(QnGeMatrix, PlanVectorsKeepZ) {
    QnGeVector2d v(QnGePoint(2.0, 3.0, 5.0));
    Numbered().Transform(v);
    const double w = 31.0 * 2 + 32.0 * 3 + 34.0;
    EXPECT_TRUE(IsNear(v, QnGePoint((2.0 + 6.0) / w, (22.0 + 36.0) / w, 5.0)));
}

TEST(QnGeMatrix, Transform2DKeepsZ) {
    QnGePoint p(2.0, 3.0, 5.0);
    Numbered().Transform2D(p);
    const double w = 31.0 * 2 + 32.0 * 3 + 34.0;
    EXPECT_TRUE(IsNear(p, QnGePoint((2.0 + 6.0 + 4.0) / w, (22.0 + 36.0 + 14.0) / w, 5.0)));
}

TEST(QnGeMatrix, MovesPointsAndNotVectors) {
    QnGeMatrix move;
    move.CreateMoveMatrix(1.0, 2.0, 3.0);
    QnGePoint p;
    move.Transform(p);
    EXPECT_TRUE(IsExactly(p, 1.0, 2.0, 3.0));
    QnGeVector3d v(4.0, 5.0, 6.0);
    move.Transform(v);
    EXPECT_TRUE(IsExactly(v, 4.0, 5.0, 6.0));
}

TEST(QnGeMatrix, PostMultiByActsFirst) {
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(EXACT_PI / 2.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(1.0, 0.0, 0.0);
    matrix.PostMultiBy(move);
    QnGePoint p;
    matrix.Transform(p);
    EXPECT_TRUE(IsNear(p, QnGePoint(0.0, 1.0, 0.0)));
}

TEST(QnGeMatrix, PreMultiByActsLast) {
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(EXACT_PI / 2.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(1.0, 0.0, 0.0);
    matrix.PreMultiBy(move);
    QnGePoint p(1.0, 0.0, 0.0);
    matrix.Transform(p);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 1.0, 0.0)));
}

TEST(QnGeMatrix, AllProductsAgreeWithTheDefinition) {
    Random random(2301);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMatrix a = RandomMatrix(random);
        const QnGeMatrix b = RandomMatrix(random);
        const QnGeMatrix expected = ProductByDefinition(a, b);
        ASSERT_TRUE(SameEntries(a * b, expected, 1e-13));
        QnGeMatrix post(a);
        post.PostMultiBy(b);
        ASSERT_TRUE(SameEntries(post, expected, 1e-13));
        QnGeMatrix pre(b);
        pre.PreMultiBy(a);
        ASSERT_TRUE(SameEntries(pre, expected, 1e-13));
        QnGeMatrix assigned(a);
        assigned *= b;
        ASSERT_TRUE(SameEntries(assigned, expected, 1e-13));
    }
}

TEST(QnGeMatrix, MayBeMultipliedByItself) {
    const QnGeMatrix original = Numbered();
    const QnGeMatrix expected = ProductByDefinition(original, original);
    QnGeMatrix matrix = original;
    const QnGeMatrix& self = matrix;
    matrix *= self;
    EXPECT_TRUE(SameEntries(matrix, expected, 0.0));
    matrix = original;
    matrix.PostMultiBy(self);
    EXPECT_TRUE(SameEntries(matrix, expected, 0.0));
    matrix = original;
    matrix.PreMultiBy(self);
    EXPECT_TRUE(SameEntries(matrix, expected, 0.0));
}

TEST(QnGeMatrix, RankIsTheDeterminant) {
    EXPECT_EQ(QnGeMatrix().Rank(), 1.0);
    QnGeMatrix scale;
    scale.CreateScaleMatrix(2.0, 3.0, 4.0);
    EXPECT_EQ(scale.Rank(), 24.0);
    EXPECT_NEAR(Numbered().Rank(), 0.0, 1e-9);
    Random random(2302);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMatrix matrix = RandomMatrix(random);
        ASSERT_NEAR(matrix.Rank(), DeterminantByElimination(matrix), 1e-11);
    }
}

TEST(QnGeMatrix, CanReverseComparesTheDeterminant) {
    QnGeMatrix matrix;
    matrix[0][0] = 1e-9;
    EXPECT_FALSE(matrix.CanReverse());
    matrix[0][0] = -1e-9;
    EXPECT_FALSE(matrix.CanReverse());
    matrix[0][0] = 1.0000001e-9;
    EXPECT_TRUE(matrix.CanReverse());
    EXPECT_TRUE(matrix.Reverse());
}

TEST(QnGeMatrix, ReverseOfASingularMatrixFailsAndChangesNothing) {
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(1.0, 2.0, 3.0);
    matrix.CreateScaleMatrix(1.0, 0.0, 1.0);
    matrix[1][3] = 0.0;
    const QnGeMatrix before = matrix;
    EXPECT_FALSE(matrix.CanReverse());
    EXPECT_FALSE(matrix.Reverse());
    EXPECT_TRUE(SameEntries(matrix, before, 0.0));
}

TEST(QnGeMatrix, ReverseOfAMoveIsTheMoveBack) {
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(1.0, 2.0, 3.0);
    ASSERT_TRUE(matrix.Reverse());
    QnGeMatrix back;
    back.CreateMoveMatrix(-1.0, -2.0, -3.0);
    EXPECT_TRUE(SameEntries(matrix, back, 0.0));
}

TEST(QnGeMatrix, ReverseComposesToTheIdentity) {
    Random random(2303);
    int tried = 0;
    while (tried < PROPERTY_CASES) {
        const QnGeMatrix matrix = RandomMatrix(random);
        if (std::fabs(DeterminantByElimination(matrix)) < 0.05) {
            continue;
        }
        ++tried;
        QnGeMatrix inverse = matrix;
        ASSERT_TRUE(inverse.Reverse());
        ASSERT_TRUE(SameEntries(ProductByDefinition(matrix, inverse), QnGeMatrix(), 1e-10));
        ASSERT_TRUE(SameEntries(ProductByDefinition(inverse, matrix), QnGeMatrix(), 1e-10));
    }
}

TEST(QnGeMatrix, SwapTransposes) {
    QnGeMatrix matrix = Numbered();
    matrix.Swap();
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(matrix[i][j], 10.0 * j + i + 1.0);
        }
    }
}

TEST(QnGeMatrix, ExportsAndTakesSixteenFloats) {
    float floats[16] = {};
    Numbered().Export(floats);
    for (int k = 0; k < 16; ++k) {
        EXPECT_EQ(floats[k], static_cast<float>(10 * (k / 4) + k % 4 + 1));
    }
    QnGeMatrix matrix;
    matrix = static_cast<const float*>(floats);
    EXPECT_TRUE(SameEntries(matrix, Numbered(), 0.0));
}

TEST(QnGeMatrix, GetCoordSysMapsTheWorldSystem) {
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(EXACT_PI / 2.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(5.0, 6.0, 7.0);
    matrix.PreMultiBy(move);
    QnGeCoordSys cs(QnGePoint(9.0, 9.0, 9.0), QnGeVector3d(0.0, 0.0, 1.0), false);
    matrix.GetCoordSys(cs);
    EXPECT_TRUE(IsNear(cs.GetOrigin(), QnGePoint(5.0, 6.0, 7.0)));
    EXPECT_TRUE(IsNear(cs.GetXAxis(), QnGePoint(0.0, 1.0, 0.0)));
    EXPECT_TRUE(IsNear(cs.GetYAxis(), QnGePoint(-1.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(cs.GetZAxis(), QnGePoint(0.0, 0.0, 1.0)));
}

TEST(QnGeMatrix, KeptOddSetToWorldToPlaneMapsThePlaneToTheWorld) {
    QnGeMatrix matrix;
    matrix.SetToWorldToPlane(QnGeVector3d(0.0, 0.0, -1.0));
    QnGePoint up(0.0, 0.0, 1.0);
    matrix.Transform(up);
    EXPECT_TRUE(IsNear(up, QnGePoint(0.0, 0.0, -1.0)));
    QnGePoint right(1.0, 0.0, 0.0);
    matrix.Transform(right);
    EXPECT_TRUE(IsNear(right, QnGePoint(-1.0, 0.0, 0.0)));
    matrix.SetToWorldToPlane(QnGeVector3d(3.0, 0.0, 4.0));
    up.SetPoint(0.0, 0.0, 1.0);
    matrix.Transform(up);
    EXPECT_TRUE(IsNear(up, QnGePoint(0.6, 0.0, 0.8)));
}

TEST(QnGeMatrix, SetToPlaneToWorldIsTheInverse) {
    const QnGeVector3d z(1.0, 2.0, 2.0);
    QnGeMatrix there;
    there.SetToWorldToPlane(z);
    QnGeMatrix back;
    back.SetToPlaneToWorld(z);
    EXPECT_TRUE(SameEntries(there * back, QnGeMatrix(), 1e-12));
    QnGePoint normal(1.0 / 3.0, 2.0 / 3.0, 2.0 / 3.0);
    back.Transform(normal);
    EXPECT_TRUE(IsNear(normal, QnGePoint(0.0, 0.0, 1.0)));
}

TEST(QnGeMatrix, ConvertToPlaneSandwiches) {
    const QnGeVector3d z(1.0, 2.0, 2.0);
    QnGeMatrix there;
    there.SetToWorldToPlane(z);
    QnGeMatrix back;
    back.SetToPlaneToWorld(z);
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(1.0, 2.0, 3.0);
    const QnGeMatrix expected = there * matrix * back;
    matrix.ConvertToPlane(z);
    EXPECT_TRUE(SameEntries(matrix, expected, 1e-12));
}
