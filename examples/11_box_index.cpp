// SPDX-License-Identifier: Apache-2.0
// An index of boxes: the lands, lakes, rivers and reefs of the world, asked by windows for what meets them.
#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Example.h"
#include "containers/QnDynArray.h"
#include "polylines/QnGeMLine2d.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGePointArray.h"

namespace {

using Boxes = std::vector<QnGeExtent2d>;
using Found = QnDynArray<QnGeExtent2d*>;

constexpr double LARGEST_DRAWN = 1e6;  // metres: boxes of oceans and continents would hide all others

const QnGeExtent2d EUROPE(-1.9e6, 4.4e6, 3.9e6, 7.1e6);
const QnGeExtent2d WINDOW(0.95e6, 2.2e6, 5.75e6, 6.45e6);  // about the Baltic Sea

QnGeMLine2d OutlineOf(const QnGeExtent2d& box) {
    QnGePointArray corners;
    corners.Append(QnGePoint(box.x.min, box.y.min));
    corners.Append(QnGePoint(box.x.max, box.y.min));
    corners.Append(QnGePoint(box.x.max, box.y.max));
    corners.Append(QnGePoint(box.x.min, box.y.max));
    return QnGeMLine2d(corners, true);
}

/// What the windows of one kind came to.
struct Sums {
    long windows = 0;
    long found = 0;
    long mostFound = 0;
};

/// Asks all windows of the table and compares count and numbers of what they meet.
std::map<std::string, Sums> CheckWindows(const QnGeQuadTree2d& tree, const Boxes& boxes,
                                         const data_files::CsvTable& table) {
    std::map<std::string, Sums> kinds;
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        const QnGeExtent2d window(table.Number(row, "xmin"), table.Number(row, "xmax"), table.Number(row, "ymin"),
                                  table.Number(row, "ymax"));
        Found found;
        tree.HitTest(window, found);
        double numberSum = 0.0;
        for (QnGeExtent2d* const* box = found.GetFirst(); box != nullptr; box = found.GetNext(box)) {
            numberSum += static_cast<double>(*box - boxes.data());
        }
        const std::string query = "query " + table.Text(row, "query");
        Require(static_cast<double>(found.GetLength()) == table.Number(row, "boxes_intersecting_closed"),
                query + ": how many boxes it meets");
        Require(numberSum == table.Number(row, "number_sum_closed"), query + ": which boxes it meets");

        Sums& sums = kinds[table.Text(row, "kind")];
        ++sums.windows;
        sums.found += found.GetLength();
        sums.mostFound = std::max(sums.mostFound, found.GetLength());
    }
    return kinds;
}

/// Boxes leave and come back: the index forgets them, and knows them again.
void CheckLeaving(QnGeQuadTree2d& tree, Boxes& boxes) {
    for (std::size_t i = 0; i < boxes.size(); i += 2) {
        Require(tree.Delete(&boxes[i], false), "a box that is there can be taken out");
    }
    Found left;
    tree.GetAllExtent(left);
    Require(left.GetLength() == static_cast<long>(boxes.size() / 2), "half of the boxes are left");
    for (std::size_t i = 0; i < boxes.size(); i += 2) {
        tree += &boxes[i];
    }
    Found all;
    tree.GetAllExtent(all);
    Require(all.GetLength() == static_cast<long>(boxes.size()), "all boxes are back");
}

void DrawEurope(const QnGeQuadTree2d& tree, SvgPicture& picture) {
    Found met;
    tree.HitTest(WINDOW, met);
    std::set<const QnGeExtent2d*> isMet;
    for (QnGeExtent2d* const* box = met.GetFirst(); box != nullptr; box = met.GetNext(box)) {
        isMet.insert(*box);
    }
    Found inView;
    tree.HitTest(EUROPE, inView);
    for (const SvgRole role : {SvgRole::Plain, SvgRole::Result}) {
        for (QnGeExtent2d* const* box = inView.GetFirst(); box != nullptr; box = inView.GetNext(box)) {
            const bool isShown = (*box)->GetLength() < LARGEST_DRAWN && (*box)->GetHeight() < LARGEST_DRAWN;
            const bool isOfRole = (isMet.count(*box) > 0) == (role == SvgRole::Result);
            if (isShown && isOfRole) {
                picture.Draw(OutlineOf(**box), role);
            }
        }
    }
    picture.Draw(OutlineOf(WINDOW), SvgRole::Mark);
    picture.Focus(EUROPE);
    std::printf("the picture's window meets %ld of the %ld boxes in view\n", met.GetLength(), inView.GetLength());
}

void Run(const std::string& data, const std::string& out) {
    Boxes boxes = data_files::ReadBoxes(data + "/boxes/features_world.txt");
    const data_files::CsvTable table(data + "/boxes/expected_box_queries.csv");

    QnGeQuadTree2d tree;
    for (QnGeExtent2d& box : boxes) {
        tree += &box;  // the range grows with what comes
    }
    std::printf("%zu boxes in a tree of %.0f by %.0f km\n\n", boxes.size(), tree.GetLength() / 1000.0,
                tree.GetHeight() / 1000.0);
    std::printf("%-10s%10s%14s%14s\n", "windows", "asked", "boxes found", "most at once");
    for (const auto& [kind, sums] : CheckWindows(tree, boxes, table)) {
        std::printf("%-10s%10ld%14ld%14ld\n", kind.c_str(), sums.windows, sums.found, sums.mostFound);
    }
    std::printf("\n");
    CheckLeaving(tree, boxes);
    CheckWindows(tree, boxes, table);

    SvgPicture picture("Boxes of Europe's lands, lakes, rivers and reefs",
                       "What meets the window is found without a look at the rest of the world. Boxes of 1000 km and "
                       "more are not drawn.");
    picture.Legend(SvgRole::Mark, "window")
        .Legend(SvgRole::Result, "boxes that meet it")
        .Legend(SvgRole::Plain, "other boxes")
        .ScaleBar(500000.0, "500 km");
    DrawEurope(tree, picture);
    picture.Save(out + "/11_box_index.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
