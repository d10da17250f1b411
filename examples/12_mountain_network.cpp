// SPDX-License-Identifier: Apache-2.0
// A mountain from survey points: the points become a network of triangles, which is measured and drawn by height.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "Example.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "terrain/QnGeTINGraph.h"
#include "values/QnGeVector3d.h"

namespace {

constexpr double TOLERANCE = 1e-9;  // of the value expected

/// What a network of heights measures.
struct Ground {
    double planArea = 0.0;
    double surface = 0.0;
    double volume = 0.0;  // above level zero
    double lowest = HUGE_VAL;
    double highest = -HUGE_VAL;
};

/// Twice the surface of a triangle as a vector that stands on it.
QnGeVector3d NormalOf(const QnGeTINTriangle& triangle) {
    const QnGeVector3d ab(*triangle.Node[0], *triangle.Node[1]);
    const QnGeVector3d ac(*triangle.Node[0], *triangle.Node[2]);
    return ab * ac;
}

Ground Measure(const QnGeTINGraph& network) {
    Ground ground;
    for (QnGeTINTriangle* const* entry = network.TrgList.GetFirst(); entry != nullptr;
         entry = network.TrgList.GetNext(entry)) {
        const QnGeTINTriangle& triangle = **entry;
        const QnGeVector3d normal = NormalOf(triangle);
        const double planArea = normal.z / 2.0;
        double sum = 0.0;
        for (const QnGeTINNode* node : triangle.Node) {
            sum += node->GetValue();
            ground.lowest = std::min(ground.lowest, node->GetValue());
            ground.highest = std::max(ground.highest, node->GetValue());
        }
        ground.planArea += planArea;
        ground.surface += normal.Length3d() / 2.0;
        ground.volume += planArea * sum / 3.0;
    }
    return ground;
}

// ---- colours: by height, darker away from a light in the north-west -------------------------------------

struct Colour {
    double red, green, blue;
};

/// From river green over sand and rock to snow.
Colour ColourOf(double height) {
    constexpr Colour STEPS[] = {{96, 142, 104}, {158, 177, 116}, {214, 190, 133},
                                {186, 130, 96}, {148, 104, 90},  {238, 236, 232}};
    constexpr int LAST = 5;
    const double place = std::clamp(height, 0.0, 1.0) * LAST;
    const int below = std::min(static_cast<int>(place), LAST - 1);
    const double share = place - below;
    const Colour& from = STEPS[below];
    const Colour& to = STEPS[below + 1];
    return {from.red + share * (to.red - from.red), from.green + share * (to.green - from.green),
            from.blue + share * (to.blue - from.blue)};
}

/// How much light a triangle gets.
double LightOn(const QnGeTINTriangle& triangle) {
    constexpr double EXAGGERATION = 2.0;  // of the slopes
    QnGeVector3d normal = NormalOf(triangle);
    normal.x *= EXAGGERATION;
    normal.y *= EXAGGERATION;
    const QnGeVector3d light(-0.5, 0.5, std::sqrt(0.5));
    const double cosine = (normal & light) / normal.Length3d();
    return std::clamp(0.45 + 0.8 * cosine, 0.35, 1.12);
}

std::string ColourText(const Colour& colour, double light) {
    char text[16];
    const auto byte = [light](double part) { return static_cast<unsigned>(std::clamp(part * light, 0.0, 255.0)); };
    std::snprintf(text, sizeof text, "#%02x%02x%02x", byte(colour.red), byte(colour.green), byte(colour.blue));
    return text;
}

void Draw(const QnGeTINGraph& network, const Ground& ground, const std::string& edges, SvgPicture& picture) {
    for (QnGeTINTriangle* const* entry = network.TrgList.GetFirst(); entry != nullptr;
         entry = network.TrgList.GetNext(entry)) {
        const QnGeTINTriangle& triangle = **entry;
        std::vector<QnGePoint> corners;
        double height = 0.0;
        for (const QnGeTINNode* node : triangle.Node) {
            corners.push_back(*node);
            height += node->GetValue() / 3.0;
        }
        const Colour colour = ColourOf((height - ground.lowest) / (ground.highest - ground.lowest));
        picture.Face(corners, ColourText(colour, LightOn(triangle)), edges);
    }
}

void Run(const std::string& data, const std::string& out) {
    const data_files::CsvTable table(data + "/terrain/expected_terrain.csv");
    SvgPicture picture("A mountain as a network of triangles",
                       "Survey points around Zion National Park, 1033 to 2892 m: no point lies within the circle of a "
                       "triangle.\nThe colour is the height, the light comes from the north-west.");
    picture.Columns(2).ScaleBar(10000.0, "10 km");

    std::printf("%-30s%8s%11s%14s%14s%16s\n", "file", "points", "triangles", "plan km2", "surface km2", "volume km3");
    for (const char* name : {"terrain/zion_survey_500.txt", "terrain/zion_survey_25000.txt"}) {
        const std::vector<QnGePoint> points = data_files::ReadPoints(data + "/" + name);
        QnGeTINGraph network;
        for (const QnGePoint& point : points) {
            network.NodeList.Append(new QnGeTINNode(point));
        }
        network.MakeTIN();
        const Ground ground = Measure(network);

        const std::size_t row = table.Find("file", name);
        const auto check = [&](double found, const char* column) {
            const double expected = table.Number(row, column);
            Require(RelativeError(found, expected, expected) <= TOLERANCE, std::string(name) + ": " + column);
        };
        Require(network.NodeList.GetLength() == static_cast<long>(points.size()), "every point is a node");
        check(static_cast<double>(network.TrgList.GetLength()), "delaunay_triangles");
        check(ground.planArea, "hull_area");
        check(ground.surface, "surface_area");
        check(ground.volume, "volume_above_zero");

        std::printf("%-30s%8zu%11ld%14.3f%14.3f%16.3f\n", name, points.size(), network.TrgList.GetLength(),
                    ground.planArea * 1e-6, ground.surface * 1e-6, ground.volume * 1e-9);
        const bool isCoarse = points.size() < 1000;
        picture.Panel(std::to_string(points.size()) + " points, " + std::to_string(network.TrgList.GetLength()) +
                      " triangles");
        Draw(network, ground, isCoarse ? "#4a4038" : "", picture);
    }
    picture.Save(out + "/12_mountain_network.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
