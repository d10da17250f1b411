// SPDX-License-Identifier: Apache-2.0
// Laws of multi-lines and polylines over random shapes.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"

using namespace polyline_testing;

namespace {

/// A random line of either class, seen as its base; the seed is printed with a failure.
struct RandomCase {
    unsigned seed;
    RandomSource random;
    QnGePolyline2d bulged;
    QnGeMLine2d straight;
    const QnGeMLine2d& line;

    RandomCase(int test, int i)
        : seed(CaseSeed(test, i)),
          random(seed),
          bulged(RandomPolyline(random, random.Int(2, 10), random.Coin(), 0.5)),
          straight(bulged),
          line(i % 2 == 0 ? bulged : straight) {}
    RandomCase(const RandomCase&) = delete;
    RandomCase& operator=(const RandomCase&) = delete;
    std::string About() const { return "seed " + std::to_string(seed) + '\n' + Text(line); }
};

}  // namespace

TEST(PolylineLaws, AParameterComesBackFromItsPoint) {
    std::printf("seed %u\n", BaseSeed());
    long same = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(100, i);
        const double t = InnerPa(c.random, c.line);
        QnGePoint p;
        ASSERT_TRUE(c.line.GetPtFromPa(t, p));
        double back = UNTOUCHED;
        ASSERT_TRUE(c.line.GetPaFromPt(p, back)) << t << ' ' << c.About();
        // Where another segment passes, the first one answers.
        QnGePoint q;
        c.line.GetPtFromPa(back, q);
        ASSERT_LT(GetDistance2d(p, q), 2e-6) << t << ' ' << c.About();
        ASSERT_LE(back, t + 1e-6) << c.About();
        same += std::fabs(back - t) < 1e-6;
    }
    // The second segment of a closed line of two vertices lies on the first.
    EXPECT_GT(same, PROPERTY_CASES * 97 / 100);
}

TEST(PolylineLaws, DistanceAndParameterAreInverse) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(101, i);
        const double t = InnerPa(c.random, c.line);
        double dist = UNTOUCHED;
        ASSERT_TRUE(c.line.GetDistFromPa(t, dist));
        ASSERT_GE(dist, 0.0) << c.About();
        ASSERT_LE(dist, c.line.Length() * (1.0 + 1e-12)) << c.About();
        double back = UNTOUCHED;
        ASSERT_TRUE(c.line.GetPaFromDist(dist, back)) << c.About();
        ASSERT_NEAR(back, t, 1e-6) << c.About();

        const double along = c.random.Double(0.0, c.line.Length());
        double pa = UNTOUCHED;
        ASSERT_TRUE(c.line.GetPaFromDist(along, pa)) << along << ' ' << c.About();
        ASSERT_TRUE(c.line.GetDistFromPa(pa, dist));
        // Angles within g_angleZero of a vertex snap to it, and the radius may be ten times the length.
        ASSERT_NEAR(dist, along, 1e-5 + 20.0 * g_angleZero * c.line.Length()) << c.About();
    }
}

TEST(PolylineLaws, DistancesRiseWithTheParameter) {
    for (int i = 0; i < 1000; ++i) {
        RandomCase c(102, i);
        double before = 0.0;
        for (int k = 1; k <= 20; ++k) {
            double dist = UNTOUCHED;
            ASSERT_TRUE(c.line.GetDistFromPa(k / 20.0, dist));
            ASSERT_GE(dist, before - 1e-9) << c.About();
            before = dist;
        }
        ASSERT_EQ(before, c.line.Length()) << c.About();
    }
}

TEST(PolylineLaws, ReversingTwiceGivesTheLineBackToTheBit) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(103, i);
        const std::unique_ptr<QnGeObject> clone(c.line.Clone());
        QnGeMLine2d& turned = static_cast<QnGeMLine2d&>(*clone);
        turned.Reverse();
        QnGePoint p;
        QnGePoint q;
        const double t = c.random.Double(0.0, 1.0);
        c.line.GetPtFromPa(t, p);
        turned.GetPtFromPa(1.0 - t, q);
        ASSERT_TRUE(IsNear(q, p, 1e-6)) << t << ' ' << c.About();
        ASSERT_NEAR(turned.Length(), c.line.Length(), 1e-9 * (1.0 + c.line.Length())) << c.About();
        turned.Reverse();
        ASSERT_EQ(Record(turned), Record(c.line)) << c.About();
    }
}

TEST(PolylineLaws, StreamsGiveBackTheSameBits) {
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(104, i);
        const std::unique_ptr<QnGeObject> back(c.line.CloneNew());
        ASSERT_EQ(back->GetCI(), c.line.GetCI());
        ASSERT_EQ(Record(*back), Record(c.line)) << c.About();
    }
}

TEST(PolylineLaws, LengthAndIntegralAreTheSumsOfThePieces) {
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(105, i);
        QnGeObjList parts;
        ASSERT_TRUE(c.line.Explode(parts));
        ASSERT_EQ(parts.GetLength(), c.line.GetSegNum());
        double length = 0.0;
        double integral = 0.0;
        for (parts.MoveToFirst(); !parts.IsOut(); parts.MoveToNext()) {
            length += parts.GetCurCurve2D().Length();
            integral += parts.GetCurCurve2D().TotalIntegration();
        }
        // Summed in order, so to the last bit.
        ASSERT_EQ(c.line.Length(), length) << c.About();
        ASSERT_EQ(c.line.TotalIntegration(), integral) << c.About();
    }
}

TEST(PolylineLaws, TangentsPointAlongTravel) {
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(106, i);
        const double t = InnerPa(c.random, c.line);
        QnGeBaseLine2d tangent;
        c.line.GetTangent(t, tangent);
        QnGePoint p;
        QnGePoint q;
        c.line.GetPtFromPa(t - 1e-5, p);
        c.line.GetPtFromPa(t + 1e-5, q);
        const double step = GetDistance2d(p, q);
        ASSERT_NEAR(tangent.dx * tangent.dx + tangent.dy * tangent.dy, 1.0, 1e-9) << c.About();
        ASSERT_NEAR(tangent.dx, (q.x - p.x) / step, 1e-4) << t << ' ' << c.About();
        ASSERT_NEAR(tangent.dy, (q.y - p.y) / step, 1e-4) << t << ' ' << c.About();
    }
}

TEST(PolylineLaws, EveryPointLiesInTheExtent) {
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomCase c(107, i);
        QnGeExtent2d box;
        ASSERT_TRUE(c.line.GetExtent2d(box));
        for (int k = 0; k < 5; ++k) {
            QnGePoint p;
            c.line.GetPtFromPa(c.random.Double(0.0, 1.0), p);
            ASSERT_TRUE(p.x >= box.x.min - 1e-6 && p.x <= box.x.max + 1e-6) << c.About();
            ASSERT_TRUE(p.y >= box.y.min - 1e-6 && p.y <= box.y.max + 1e-6) << c.About();
        }
    }
}

TEST(PolylineLaws, ANodeOnTheLineChangesNeitherLengthNorArea) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(108, i);
        RandomSource random(seed);
        const QnGePolyline2d line = ConvexBulged(random, random.Int(3, 8), random.Coin());
        QnGePolyline2d divided(line);
        const double count = static_cast<double>(line.GetSegNum());
        const long segment = random.Long(0, line.GetSegNum() - 1);
        QnGePoint p;
        ASSERT_TRUE(line.GetPtFromPa((static_cast<double>(segment) + random.Double(0.05, 0.95)) / count, p));
        ASSERT_EQ(divided.InsertNode(p, true), segment + 1) << "seed " << seed << '\n' << Text(line);
        ASSERT_NEAR(divided.Length(), line.Length(), 1e-6) << "seed " << seed << '\n' << Text(line);
        ASSERT_NEAR(divided.Area(), line.Area(), 1e-5) << "seed " << seed << '\n' << Text(line);
        ASSERT_EQ(divided.DelNode(p), segment + 1) << "seed " << seed;
        ASSERT_EQ(divided.GetVertexNum(), line.GetVertexNum());
    }
}

TEST(PolylineLaws, RemovedRepeatsLeaveAValidLineOfTheSameShape) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(109, i);
        RandomSource random(seed);
        const QnGePolyline2d line = ConvexBulged(random, random.Int(2, 8), random.Coin());
        QnGePolyline2d repeated(0, line.IsClosed());
        for (long k = 0; k < line.GetVertexNum(); ++k) {
            while (random.OneIn(3)) {
                repeated.AppendVertex(line.GetVertex(k), random.Double(-1.0, 1.0));
            }
            repeated.AppendVertex(line.GetVertex(k), line.GetBulge(k));
        }
        ASSERT_TRUE(repeated.RemoveDupPoint()) << "seed " << seed;
        ASSERT_TRUE(repeated.IsValid()) << "seed " << seed;
        ASSERT_EQ(Record(repeated), Record(line)) << "seed " << seed << '\n' << Text(repeated) << '\n' << Text(line);
    }
}
