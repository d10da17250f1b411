// SPDX-License-Identifier: Apache-2.0
// A chain of line, arc and line as one curve: its parameter, distances along it, a stretch of it, its extension.
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

#include "Example.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "frame/QnGeObjList.h"
#include "support/SvgPicture.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePoint2d.h"
#include "values/QnGeVector2d.h"

// The chain:                     + (9,5)     a line of length 6, a quarter of a circle of radius 3 that turns left,
//                                |           a line of length 2. Each takes a third of the parameter.
//                                + (9,3)
//                               /
//     +-------------------+ - '
//   (0,0)               (6,0)

namespace {

constexpr double TOLERANCE = 1e-12;
constexpr double PI = 3.14159265358979323846;
constexpr double RADIUS = 3.0;
constexpr double FIRST_LENGTH = 6.0;
constexpr double LAST_LENGTH = 2.0;
constexpr double ARC_LENGTH = RADIUS * PI / 2.0;
constexpr double LENGTH = FIRST_LENGTH + ARC_LENGTH + LAST_LENGTH;
constexpr double LABEL_GAP = 0.45;      // between a dot and the middle of its text
constexpr double LABEL_WIDENING = 1.8;  // of that gap for texts at the side, which are wider than high

std::unique_ptr<QnGeMCurve2d> MakeChain() {
    auto chain = std::make_unique<QnGeMCurve2d>();
    chain->List().Append(new QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(6.0, 0.0)));
    chain->List().Append(new QnGeArc2d(QnGePoint(6.0, 3.0), RADIUS, 1.5 * PI, 0.5 * PI));
    chain->List().Append(new QnGeLineSeg2d(QnGePoint(9.0, 3.0), QnGePoint(9.0, 5.0)));
    return chain;
}

/// The point of the chain that `share` of 0..1 along its arc has.
QnGePoint OnArc(double share) {
    const double angle = 1.5 * PI + share * 0.5 * PI;
    return QnGePoint(6.0 + RADIUS * std::cos(angle), 3.0 + RADIUS * std::sin(angle));
}

void RequirePoint(const QnGePoint& found, const QnGePoint& expected, const std::string& what) {
    Require(GetDistance2d(found, expected) <= TOLERANCE, what);
}

void RequireNumber(double found, double expected, const std::string& what) {
    Require(std::fabs(found - expected) <= TOLERANCE, what);
}

std::string Digits(double value, int digits) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.*f", digits, value);
    return buffer;
}

/// The parts of a curve, each in the colour of its kind, so that the joints show.
void DrawParts(const QnGeCurve2d& curve, SvgPicture& picture) {
    QnGeObjList parts;
    curve.FullExplode(parts);
    for (long i = 0; i < parts.GetLength(); ++i) {
        const QnGeObject& part = *parts.GetAt(i);
        const bool isArc = part.GetCI() == &QnGeArc2d::s_classInfo;
        const bool isRay = part.GetCI() == &QnGeLineRay2d::s_classInfo;
        picture.Draw(part, isArc ? SvgRole::B : (isRay ? SvgRole::Result : SvgRole::A));
    }
}

/// A dot on the curve and its text beside it, on the right of travel.
void MarkPa(const QnGeCurve2d& curve, double pa, SvgRole role, const std::string& text, SvgPicture& picture) {
    QnGePoint pt;
    QnGeBaseLine2d tangent;
    Require(curve.GetPtFromPa(pa, pt), "a parameter has a point");
    curve.GetTangent(pa, tangent);
    picture.Dot(pt, role);
    const QnGePoint beside(pt.x + LABEL_GAP * tangent.y * LABEL_WIDENING, pt.y - LABEL_GAP * tangent.x);
    picture.Label(beside, text);
}

/// The part of the plan from 1.2 beyond the chain on either side, and more for what goes on.
void ShowFrame(double more, SvgPicture& picture) {
    QnGeExtent2d box;
    box.x.min = -1.2 - more;
    box.x.max = 10.2 + more;
    box.y.min = -1.2;
    box.y.max = 5.8 + more;
    picture.Focus(box);
}

/// Steps of a twelfth in the parameter: four on each child, whatever its length.
void ShowParameter(const QnGeMCurve2d& chain, SvgPicture& picture) {
    picture.Panel("parameter: every child takes a third of 0..1");
    ShowFrame(0.0, picture);
    DrawParts(chain, picture);
    std::printf("%-10s%10s%10s%12s%12s\n", "parameter", "x", "y", "distance", "by hand");
    const int steps = 12;
    for (int i = 0; i <= steps; ++i) {
        const double pa = static_cast<double>(i) / steps;
        const double share = (i % 4) / 4.0;
        QnGePoint expected(6.0 * share, 0.0);
        double expectedDist = FIRST_LENGTH * share;
        if (i >= 4 && i < 8) {
            expected = OnArc(share);
            expectedDist = FIRST_LENGTH + ARC_LENGTH * share;
        } else if (i >= 8) {
            const double lastShare = i == steps ? 1.0 : share;
            expected = QnGePoint(9.0, 3.0 + 2.0 * lastShare);
            expectedDist = FIRST_LENGTH + ARC_LENGTH + LAST_LENGTH * lastShare;
        }
        QnGePoint pt;
        double dist = 0.0;
        double back = 0.0;
        Require(chain.GetPtFromPa(pa, pt) && chain.GetDistFromPa(pa, dist), "a parameter has a point and a distance");
        Require(chain.GetPaFromPt(pt, back), "a point of the chain has a parameter");
        RequirePoint(pt, expected, "the point at " + Digits(pa, 4));
        RequireNumber(dist, expectedDist, "the distance at " + Digits(pa, 4));
        RequireNumber(back, pa, "the parameter of the point at " + Digits(pa, 4));
        std::printf("%-10.4f%10.4f%10.4f%12.6f%12.6f\n", pa, pt.x, pt.y, dist, expectedDist);
        const std::string twelfths = i == 0 || i == steps ? std::to_string(i / steps) : std::to_string(i) + "/12";
        MarkPa(chain, pa, i % 4 == 0 ? SvgRole::Mark : SvgRole::Plain, twelfths, picture);
    }
}

/// Points every unit of length along the chain.
void ShowDistances(const QnGeMCurve2d& chain, SvgPicture& picture) {
    picture.Panel("distance: a dot every unit of length");
    ShowFrame(0.0, picture);
    DrawParts(chain, picture);
    RequireNumber(chain.Length(), LENGTH, "the length");
    for (int dist = 0; dist <= static_cast<int>(LENGTH); ++dist) {
        QnGePoint pt;
        double back = 0.0;
        Require(chain.GetPtFromDist(dist, pt) && chain.GetDistFromPt(pt, back), "a distance has a point");
        RequireNumber(back, dist, "the distance of the point at " + std::to_string(dist));
        double pa = 0.0;
        Require(chain.GetPaFromDist(dist, pa), "a distance has a parameter");
        MarkPa(chain, pa, SvgRole::Mark, std::to_string(dist), picture);
    }
    double pa = 0.0;
    Require(chain.GetPaFromDist(FIRST_LENGTH + ARC_LENGTH / 2.0, pa), "a distance has a parameter");
    RequireNumber(pa, 0.5, "half way along the arc");
    std::printf("length %.6f, by hand %.6f\n", chain.Length(), LENGTH);
}

/// From the middle of the first child to the middle of the last, and the tangent half way.
void ShowStretch(const QnGeMCurve2d& chain, SvgPicture& picture) {
    picture.Panel("the stretch from 1/6 to 5/6, and the tangent at 1/2");
    ShowFrame(0.0, picture);
    DrawParts(chain, picture);
    const std::unique_ptr<QnGeCurve2d> stretch(chain.GetSubCurve(1.0 / 6.0, 5.0 / 6.0));
    Require(stretch != nullptr, "a chain has stretches");
    const double expected = FIRST_LENGTH / 2.0 + ARC_LENGTH + LAST_LENGTH / 2.0;
    RequireNumber(stretch->Length(), expected, "the length of the stretch");
    picture.Arrows(true).Draw(*stretch, SvgRole::Result).Arrows(false);

    QnGeBaseLine2d tangent;
    chain.GetTangent(0.5, tangent);
    RequirePoint(tangent.basePoint, OnArc(0.5), "the base of the tangent");
    RequirePoint(tangent.GetVector(), QnGePoint(std::sqrt(0.5), std::sqrt(0.5)), "the direction of the tangent");
    picture.Draw(QnGeLine2d(tangent), SvgRole::Mark);
    MarkPa(chain, 0.5, SvgRole::Mark, "1/2", picture);
    MarkPa(chain, 1.0 / 6.0, SvgRole::Result, "1/6", picture);
    MarkPa(chain, 5.0 / 6.0, SvgRole::Result, "5/6", picture);
    std::printf("stretch %.6f, by hand %.6f; tangent (%.6f, %.6f)\n", stretch->Length(), expected, tangent.x,
                tangent.y);
}

/// The extension is a chain as well: a ray that comes in, the chain, a ray that goes out.
void ShowExtension(const QnGeMCurve2d& chain, SvgPicture& picture) {
    picture.Panel("the extension: a ray at each end; of its parameter, too, each part has a third");
    ShowFrame(2.2, picture);
    const std::unique_ptr<QnGeCurve2d> extension(chain.GetExtendCurve());
    Require(extension != nullptr && extension->IsInfinite(), "an open chain has an endless extension");
    picture.Draw(QnGeLineSeg2d(QnGePoint(-2.0, -0.2), QnGePoint(-2.0, 1.2)), SvgRole::Plain);
    picture.Draw(QnGeLineSeg2d(QnGePoint(7.8, 7.0), QnGePoint(9.2, 7.0)), SvgRole::Plain);
    DrawParts(*extension, picture);

    // A third for each of its three children; the rays count the distance from the ends of the chain beyond 0 and 1.
    const QnGeLine2d before(QnGeVector2d(0.0, 1.0), QnGePoint(-2.0, 0.0));
    const QnGeLine2d behind(QnGeVector2d(1.0, 0.0), QnGePoint(0.0, 7.0));
    QnGeObjList hits;
    Require(extension->IntersectWith(before, hits) && extension->IntersectWith(behind, hits) && hits.GetLength() == 2,
            "the extension meets both lines");
    MarkPa(*extension, 1.0 / 3.0, SvgRole::Plain, "1/3", picture);
    MarkPa(*extension, 2.0 / 3.0, SvgRole::Plain, "2/3", picture);
    const QnGePoint expectedPoints[] = {QnGePoint(-2.0, 0.0), QnGePoint(9.0, 7.0)};
    const double expectedPas[] = {-1.0 / 3.0, 4.0 / 3.0};
    for (long i = 0; i < 2; ++i) {
        const auto* hit = dynamic_cast<const QnGePoint2d*>(hits.GetAt(i));
        Require(hit != nullptr, "a crossing is a point");
        double pa = 0.0;
        Require(extension->GetPaFromPt(*hit, pa), "a point of the extension has a parameter");
        RequirePoint(*hit, expectedPoints[i], "where the extension meets a line");
        RequireNumber(pa, expectedPas[i], "the parameter there");
        MarkPa(*extension, pa, SvgRole::Mark, i == 0 ? "-1/3" : "4/3", picture);
        std::printf("the extension passes (%.0f, %.0f) at %.6f, by hand %.6f\n", hit->x, hit->y, pa, expectedPas[i]);
    }
}

void Run(const std::string& /*data*/, const std::string& out) {
    SvgPicture picture("A chain of line, arc and line",
                       "One curve for all that curves can do, whatever its children are.");
    picture.Columns(2).PanelShape(0.6);
    picture.Legend(SvgRole::A, "line").Legend(SvgRole::B, "arc").Legend(SvgRole::Result, "stretch, rays");
    const std::unique_ptr<QnGeMCurve2d> chain = MakeChain();
    Require(chain->IsValid(), "each child starts where the one before ends");
    ShowParameter(*chain, picture);
    ShowDistances(*chain, picture);
    ShowStretch(*chain, picture);
    ShowExtension(*chain, picture);
    picture.Save(out + "/08_chain_and_parameter.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
