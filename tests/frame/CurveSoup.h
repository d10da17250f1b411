// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <memory>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeEArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGePolygon2d.h"
#include "support/RandomSource.h"
#include "values/QnGePoint2d.h"

/// Random objects of every planar class, thrown over each other.
class CurveSoup {
public:
    /// On a `lattice` ends, overlaps and tangents coincide; off it nothing does.
    CurveSoup(RandomSource& random, bool lattice) : m_random(random), m_lattice(lattice) {}

    QnGePoint Point() {
        const double x = Coordinate();
        const double y = Coordinate();
        return QnGePoint(x, y, m_random.OneIn(4) ? Coordinate() : 0.0);
    }

    /// Not null, but for one in eight on a lattice, where the library has to live with it.
    QnGeVector2d Vector() {
        for (;;) {
            const QnGeVector2d vector(Coordinate() - MIDDLE, Coordinate() - MIDDLE);
            if (vector.IsValid() || (m_lattice && m_random.OneIn(8))) {
                return vector;
            }
        }
    }

    QnGeLineSeg2d Segment() { return QnGeLineSeg2d(Vector(), Point()); }
    QnGeCircle2d Circle() {
        const QnGePoint centre = Point();
        return QnGeCircle2d(centre, m_lattice ? m_random.Int(1, 3) : m_random.Double(0.3, 3.0), m_random.Coin());
    }
    QnGeArc2d Arc() {
        const QnGePoint centre = Point();
        const double radius = m_lattice ? m_random.Int(1, 3) : m_random.Double(0.3, 3.0);
        const double start = m_lattice ? m_random.Int(0, 3) * QN_HALF_PI : m_random.Double(0.0, 6.0);
        const double sweep = m_lattice ? m_random.Int(1, 4) * QN_HALF_PI : m_random.Double(0.1, 6.0);
        return QnGeArc2d(centre, radius, start, sweep, m_random.Coin());
    }
    QnGeMLine2d MLine() {
        QnGeMLine2d line(m_random.Long(0, 6), m_random.OneIn(3));
        for (long i = 0; i < line.GetVertexNum(); ++i) {
            line.SetVertex(i, Point());
        }
        return line;
    }
    QnGePolyline2d Polyline() {
        QnGePolyline2d line(MLine());
        for (long i = 0; i < line.GetVertexNum(); ++i) {
            if (m_random.Coin()) {
                line.SetBulge(i, m_lattice ? m_random.Int(-2, 2) * QN_HALF_PI : m_random.Double(-3.0, 3.0));
            }
        }
        return line;
    }

    /// Any object of a list of curves, now and then what is no curve, and null.
    QnGeObject* Any() {
        switch (m_random.Int(0, 23)) {
            case 0:
                return new QnGeLine2d(Vector(), Point());
            case 1:
            case 2:
                return Ray();
            case 3:
            case 4:
            case 5:
                return new QnGeCircle2d(Circle());
            case 6:
            case 7:
            case 8:
                return new QnGeArc2d(Arc());
            case 9:
            case 10:
                return new QnGeMLine2d(MLine());
            case 11:
            case 12:
                return new QnGePolyline2d(Polyline());
            case 13:
            case 14:
                return Chain();
            case 15:
                return Odd();
            default:
                return new QnGeLineSeg2d(Segment());
        }
    }

private:
    static constexpr double MIDDLE = 4.0;

    double Coordinate() { return m_lattice ? m_random.Int(0, 8) : m_random.Double(0.0, 8.0); }

    QnGeObject* Ray() {
        auto ray = std::make_unique<QnGeLineRay2d>(Vector(), Point());
        if (m_random.Coin()) {
            ray->Reverse();
        }
        return ray.release();
    }

    QnGeObject* Chain() {
        auto chain = std::make_unique<QnGeMCurve2d>();
        QnGePoint end = Point();
        for (long i = m_random.Long(0, 3); i > 0; --i) {
            const QnGePoint next = Point();
            if (m_random.Coin()) {
                chain->Append(new QnGeLineSeg2d(end, next));
            } else {
                chain->Append(new QnGeArc2d(end, next, m_random.Double(0.5, 3.0)));
            }
            end = next;
        }
        return chain.release();
    }

    QnGeObject* Odd() {
        switch (m_random.Int(0, 5)) {
            case 0:
                return new QnGePoint2d(Point());
            case 1:
                return new QnGePolygon2d(4);
            case 2:
                return new QnGeEllipse2d();
            case 3:
                return new QnGeEArc2d();
            case 4:
                return new QnGeSpline2d();
            default:
                return nullptr;
        }
    }

    RandomSource& m_random;
    bool m_lattice;
};
