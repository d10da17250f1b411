// SPDX-License-Identifier: Apache-2.0
// The walls of a floor plan as they were drafted, too short and too long, and what makes rooms of them.
#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Example.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/SvgPicture.h"
#include "values/QnGePoint.h"

// The plan in metres:
//
//   (0,8)------------(4,8)---------(8,8)---------(12,8)
//     |                |             |              |         The front wall has a bay: a part of a circle of radius
//     |                |             |              |         2.5 round (6,1.5), which meets the front line in (4,0)
//   (0,5)------------(4,5)---------(8,5)--(9,5)--(12,5)       and (8,0): 2.5, 2 and 1.5 are the sides of a right
//     |           .                  |       \      |         triangle.
//     |       .                      |         `.   |
//   (0,2)                            |          (12,2)        The stair wall is a quarter of a circle of radius 3
//     |                              |              |         round (12,5).
//   (0,0)------------(4,0)         (8,0)---------(12,0)
//                        `-(6,-1)-`

namespace {

constexpr double TOLERANCE = 1e-9;
constexpr double PI = 3.14159265358979323846;
constexpr double WIDTH = 12.0;
constexpr double DEPTH = 8.0;
constexpr double BAY_RADIUS = 2.5;
constexpr double BAY_SETBACK = 1.5;  // of its centre from the front line
constexpr double HALF_THICKNESS = 0.15;

constexpr auto DONE = QnGeCurve2d::ETR_DONE;
constexpr bool START = true;
constexpr bool END = false;
constexpr bool NEAREST = true;
constexpr bool FARTHEST = false;

struct Wall {
    std::string name;
    std::unique_ptr<QnGeCurve2d> curve;
    double length;  ///< that it must have in the end
    SvgRole role;
};

std::unique_ptr<QnGeCurve2d> Straight(double x1, double y1, double x2, double y2) {
    return std::make_unique<QnGeLineSeg2d>(QnGePoint(x1, y1), QnGePoint(x2, y2));
}

std::unique_ptr<QnGeCurve2d> Round(double x, double y, double radius, double from, double to) {
    return std::make_unique<QnGeArc2d>(QnGePoint(x, y), radius, from, to - from);
}

/// The outer walls, counter-clockwise. None of them ends where the next one starts.
std::vector<Wall> DraftOuterWalls() {
    const double bayTurn = PI - 2.0 * std::atan2(3.0, 4.0);
    std::vector<Wall> walls;
    walls.push_back({"front, left", Straight(0.7, 0.0, 3.4, 0.0), 4.0, SvgRole::Result});
    walls.push_back({"bay", Round(6.0, BAY_SETBACK, BAY_RADIUS, 3.5, 5.4), BAY_RADIUS * bayTurn, SvgRole::Result});
    walls.push_back({"front, right", Straight(7.3, 0.0, 12.6, 0.0), 4.0, SvgRole::Result});
    walls.push_back({"right", Straight(WIDTH, -0.6, WIDTH, 8.5), DEPTH, SvgRole::Result});
    walls.push_back({"back", Straight(11.1, DEPTH, 0.9, DEPTH), WIDTH, SvgRole::Result});
    walls.push_back({"left", Straight(0.0, 8.7, 0.0, 0.9), DEPTH, SvgRole::Result});
    return walls;
}

enum InnerWall { CORRIDOR, PARTITION, LONG_PARTITION, STAIRS, SLANTED };

std::vector<Wall> DraftInnerWalls() {
    std::vector<Wall> walls;
    walls.push_back({"corridor", Straight(1.2, 5.0, 10.6, 5.0), WIDTH, SvgRole::A});
    walls.push_back({"partition", Straight(4.0, 4.1, 4.0, 9.1), 3.0, SvgRole::B});
    walls.push_back({"long partition", Straight(8.0, 6.2, 8.0, 7.2), DEPTH, SvgRole::A});
    walls.push_back({"stairs", Round(12.0, 5.0, 3.0, PI + 0.35, 1.5 * PI - 0.3), 1.5 * PI, SvgRole::A});
    walls.push_back({"slanted", Straight(1.2, 2.9, 6.0, 6.5), 5.0, SvgRole::B});
    return walls;
}

void DrawWalls(const std::vector<Wall>& walls, SvgRole role, SvgPicture& picture) {
    for (const Wall& wall : walls) {
        picture.Draw(*wall.curve, role);
    }
}

/// Brings the end of each wall and the start of the next to where the two meet, whether they are too short or too long.
void ConnectCorners(std::vector<Wall>& walls) {
    for (std::size_t i = 0; i < walls.size(); ++i) {
        Wall& next = walls[(i + 1) % walls.size()];
        Require(walls[i].curve->ConnectWith(*next.curve), "the corner of " + walls[i].name + " and " + next.name);
    }
}

/// Lets the inner walls end at the outer ones and at each other.
void FitInnerWalls(const std::vector<Wall>& outer, std::vector<Wall>& inner) {
    QnGeObjList shell;
    for (const Wall& wall : outer) {
        shell.Append(wall.curve->Clone());
    }
    QnGeCurve2d& corridor = *inner[CORRIDOR].curve;
    Require(corridor.Extend(shell, START, NEAREST) == DONE, "the corridor reaches the left wall");
    Require(corridor.Extend(shell, END, NEAREST) == DONE, "the corridor reaches the right wall");

    QnGeCurve2d& partition = *inner[PARTITION].curve;
    Require(partition.Trim(corridor, START) == DONE, "the partition starts at the corridor");
    Require(partition.Trim(shell, END) == DONE, "the partition ends at the back wall");

    // Down from here it would meet the corridor first and the front corner of the bay last.
    QnGeCurve2d& longPartition = *inner[LONG_PARTITION].curve;
    QnGeObjList inTheWay(shell);
    inTheWay.Append(corridor.Clone());
    Require(longPartition.Extend(inTheWay, START, FARTHEST) == DONE, "the long partition passes the corridor");
    Require(longPartition.Extend(shell, END, NEAREST) == DONE, "the long partition reaches the back wall");

    QnGeCurve2d& stairs = *inner[STAIRS].curve;
    Require(stairs.Extend(corridor, START, NEAREST) == DONE, "the stairs start at the corridor");
    Require(stairs.Extend(shell, END, NEAREST) == DONE, "the stairs end at the right wall");

    QnGeCurve2d& slanted = *inner[SLANTED].curve;
    Require(slanted.Extend(shell, START, NEAREST) == DONE, "the slanted wall starts at the left wall");
    Require(slanted.Trim(corridor, END) == DONE, "the slanted wall ends at the corridor");

    Require(slanted.Extend(*inner[PARTITION].curve, END, NEAREST) == QnGeCurve2d::ETR_NO_VALID_POINT,
            "the partition starts where the slanted wall ends");
}

void CheckLengths(const std::vector<Wall>& walls, const std::vector<double>& drafted) {
    for (std::size_t i = 0; i < walls.size(); ++i) {
        const double length = walls[i].curve->Length();
        const double error = RelativeError(length, walls[i].length, walls[i].length);
        std::printf("%-16s%12.6f%12.6f%12.6f%10.1e\n", walls[i].name.c_str(), drafted[i], length, walls[i].length,
                    error);
        Require(error <= TOLERANCE, "the length of " + walls[i].name);
    }
}

std::vector<double> LengthsOf(const std::vector<Wall>& walls) {
    std::vector<double> lengths;
    for (const Wall& wall : walls) {
        lengths.push_back(wall.curve->Length());
    }
    return lengths;
}

/// The area inside the outer walls moved outward by `out`: a rectangle and the part of the bay's disc in front of it.
double ExpectedArea(double out) {
    const double radius = BAY_RADIUS + out;
    const double setback = BAY_SETBACK + out;
    const double bay =
        radius * radius * std::acos(setback / radius) - setback * std::sqrt(radius * radius - setback * setback);
    return (WIDTH + 2.0 * out) * (DEPTH + 2.0 * out) + bay;
}

/// The outer walls as one closed chain, moved outward by `out` with its corners kept.
std::unique_ptr<QnGeCurve2d> MakeFace(const std::vector<Wall>& outer, double out) {
    QnGeMCurve2d chain;
    for (const Wall& wall : outer) {
        chain.List().Append(static_cast<QnGeCurve2d*>(wall.curve->Clone()));
    }
    Require(chain.IsValid() && chain.IsClosed(), "the outer walls are a closed chain");
    Require(chain.Offset(out), "the outer walls have a face");
    const double error = RelativeError(chain.Area(), ExpectedArea(out), ExpectedArea(out));
    std::printf("inside of the outer walls moved out by %5.2f: %12.6f m2, expected %12.6f\n", out, chain.Area(),
                ExpectedArea(out));
    Require(error <= TOLERANCE, "the area of a face");
    return std::unique_ptr<QnGeCurve2d>(chain.PLinearize(0.0));
}

/// Both faces of the outer walls as one filled region, the inner walls as lines, and a dot where an end has moved to.
void DrawResult(const std::vector<Wall>& outer, const std::vector<Wall>& inner, SvgPicture& picture) {
    QnGeGeneralRegion2d shell(*MakeFace(outer, HALF_THICKNESS), false);
    std::unique_ptr<QnGeCurve2d> inside = MakeFace(outer, -HALF_THICKNESS);
    inside->Reverse();
    shell.AppendHole(inside.release(), false);
    MakeFace(outer, 0.0);
    picture.Draw(shell, SvgRole::Plain);
    DrawWalls(outer, SvgRole::Result, picture);
    for (const Wall& wall : inner) {
        picture.Draw(*wall.curve, wall.role);
    }
    for (const std::vector<Wall>* walls : {&outer, &inner}) {
        for (const Wall& wall : *walls) {
            QnGePoint end;
            wall.curve->GetStartPoint(end);
            picture.Dot(end, SvgRole::Mark);
            wall.curve->GetEndPoint(end);
            picture.Dot(end, SvgRole::Mark);
        }
    }
}

void Run(const std::string& /*data*/, const std::string& out) {
    SvgPicture picture("Trimmed, extended and connected walls",
                       "A floor plan in metres; dots are the ends that have moved, the grey outer wall is drawn by "
                       "offsetting its centre line both ways.");
    picture.Columns(2).ScaleBar(2.0, "2 m");
    picture.Legend(SvgRole::Result, "connected").Legend(SvgRole::A, "extended").Legend(SvgRole::B, "trimmed");

    std::vector<Wall> outer = DraftOuterWalls();
    std::vector<Wall> inner = DraftInnerWalls();
    const std::vector<double> draftedOuter = LengthsOf(outer);
    const std::vector<double> draftedInner = LengthsOf(inner);
    picture.Panel("as drafted");
    DrawWalls(outer, SvgRole::Plain, picture);
    DrawWalls(inner, SvgRole::Plain, picture);

    ConnectCorners(outer);
    FitInnerWalls(outer, inner);
    std::printf("%-16s%12s%12s%12s%10s\n", "wall", "drafted, m", "length, m", "by hand, m", "error");
    CheckLengths(outer, draftedOuter);
    CheckLengths(inner, draftedInner);
    picture.Panel("trimmed, extended and connected");
    DrawResult(outer, inner, picture);
    picture.Save(out + "/07_trim_and_extend_walls.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
