// SPDX-License-Identifier: Apache-2.0
#include "support/SvgPicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "support/TextGeo.h"
#include "values/QnGeExtent2d.h"

namespace {

constexpr double PAGE_WIDTH = 1000.0;

/// The picture of one object.
std::string TextOf(const std::string& geometry) {
    return SvgPicture("test").Draw(*ParseGeo(geometry), SvgRole::A).Text();
}

/// All values of an attribute, in order.
std::vector<std::string> Attributes(const std::string& svg, const std::string& name) {
    const std::string start = " " + name + "=\"";
    std::vector<std::string> values;
    for (std::size_t at = svg.find(start); at != std::string::npos; at = svg.find(start, at)) {
        at += start.size();
        values.push_back(svg.substr(at, svg.find('"', at) - at));
    }
    return values;
}

/// The drawn outline of a picture with one object.
std::string PathOf(const std::string& geometry) {
    const std::vector<std::string> paths = Attributes(TextOf(geometry), "d");
    EXPECT_EQ(paths.size(), 1u) << geometry;
    return paths.empty() ? "" : paths[0];
}

long CountOf(const std::string& text, const std::string& part) {
    long count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// Whether every element that is opened is closed, in the right order, and no text holds a bare bracket.
bool IsWellFormed(const std::string& svg) {
    std::vector<std::string> open;
    std::size_t at = 0;
    while (at < svg.size()) {
        const std::size_t start = svg.find_first_of("<>", at);
        if (start == std::string::npos) {
            break;
        }
        const std::size_t end = svg.find_first_of("<>", start + 1);
        if (svg[start] != '<' || end == std::string::npos || svg[end] != '>') {
            return false;
        }
        const std::string tag = svg.substr(start + 1, end - start - 1);
        if (tag[0] == '/') {
            if (open.empty() || open.back() != tag.substr(1)) {
                return false;
            }
            open.pop_back();
        } else if (tag.back() != '/') {
            open.push_back(tag.substr(0, tag.find(' ')));
        }
        at = end + 1;
    }
    return open.empty();
}

TEST(SvgPicture, ArcsAreDrawnAsArcsAndTurnAsTheBulgeSays) {
    // Half a turn over the whole width of the panel's contents: 0.91 of 940 units.
    const std::string counterClockwise = "A427.7 427.7 0 0 0 ";
    const std::string clockwise = "A427.7 427.7 0 0 1 ";
    EXPECT_EQ(CountOf(PathOf("pline 0,0@pi 2,0"), counterClockwise), 1) << PathOf("pline 0,0@pi 2,0");
    EXPECT_EQ(CountOf(PathOf("pline 0,0@-pi 2,0"), clockwise), 1) << PathOf("pline 0,0@-pi 2,0");
    EXPECT_EQ(CountOf(PathOf("arc 1,0 r1 from pi sweep pi"), counterClockwise), 1);
    EXPECT_EQ(CountOf(PathOf("arc 1,0 r1 from pi sweep pi"), "L"), 0);
}

TEST(SvgPicture, AnArcBeyondHalfATurnGoesInTwoHalves) {
    EXPECT_EQ(CountOf(PathOf("pline 0,0@3.5 2,0"), "A"), 2);
    EXPECT_EQ(CountOf(PathOf("circle 5,5 r2"), "A"), 2);
    EXPECT_EQ(CountOf(PathOf("pline 0,0@6.28 0.001,0"), "A"), 2);
}

TEST(SvgPicture, ABowCountsForTheExtent) {
    // The contents are half as high as wide, with the same padding: (0.5 * 0.91 + 0.09) * 940.
    const std::string svg = TextOf("pline 0,0@pi 2,0");
    const std::vector<std::string> heights = Attributes(svg, "height");
    EXPECT_NE(std::find(heights.begin(), heights.end(), "512.3"), heights.end()) << svg;
}

TEST(SvgPicture, YPointsUp) {
    const std::string svg =
        SvgPicture("test").Dot(QnGePoint(0.0, 0.0), SvgRole::A).Dot(QnGePoint(0.0, 1.0), SvgRole::B).Text();
    const std::vector<std::string> y = Attributes(svg, "cy");
    ASSERT_EQ(y.size(), 2u);
    EXPECT_GT(std::stod(y[0]), std::stod(y[1]));
}

TEST(SvgPicture, HolesAreLeftOpen) {
    const std::string svg = TextOf("region 0,0 4,0 4,4 0,4 | 1,1 1,2 2,2 | 3,1 2,1 3,2");
    EXPECT_EQ(Attributes(svg, "fill-rule"), std::vector<std::string>{"evenodd"});
    ASSERT_EQ(Attributes(svg, "d").size(), 1u);
    EXPECT_EQ(CountOf(Attributes(svg, "d")[0], "M"), 3);
    EXPECT_EQ(CountOf(Attributes(svg, "d")[0], "Z"), 3);
}

TEST(SvgPicture, CurvesAreNotFilled) {
    EXPECT_TRUE(Attributes(TextOf("mline 0,0 4,0 4,4 close"), "fill-rule").empty());
    EXPECT_NE(TextOf("mline 0,0 4,0 4,4 close").find("fill=\"none\""), std::string::npos);
}

TEST(SvgPicture, EachRoleHasItsColour) {
    std::vector<std::string> strokes;
    for (const SvgRole role : {SvgRole::A, SvgRole::B, SvgRole::Result, SvgRole::Mark, SvgRole::Plain}) {
        const std::string svg = SvgPicture("test").Draw(*ParseGeo("seg 0,0 4,1"), role).Text();
        strokes.push_back(Attributes(svg, "stroke").back());
    }
    const std::vector<std::string> colours = {"#1f5fa8", "#b86a00", "#00694c", "#c22a1c", "#7d8590"};
    EXPECT_EQ(strokes, colours);
}

TEST(SvgPicture, LinesRunThroughTheWholePanel) {
    const std::string svg = SvgPicture("test")
                                .Draw(*ParseGeo("mline 0,0 4,0 4,4 0,4 close"), SvgRole::A)
                                .Draw(*ParseGeo("line 1,1 1,0"), SvgRole::B)
                                .Text();
    std::istringstream in(Attributes(svg, "d")[1]);
    char letter = ' ';
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    in >> letter >> x1 >> y1 >> letter >> x2 >> y2;
    EXPECT_LT(x1, 0.0);
    EXPECT_GT(x2, PAGE_WIDTH);
    EXPECT_EQ(y1, y2);
}

TEST(SvgPicture, RaysBeginOrEndAtTheirBase) {
    // The base stands in the middle of a square, hence of the panel.
    const auto ends = [](const std::string& ray) {
        const std::string svg = SvgPicture("test")
                                    .Draw(*ParseGeo("mline 0,0 4,0 4,4 0,4 close"), SvgRole::A)
                                    .Draw(*ParseGeo(ray), SvgRole::B)
                                    .Text();
        const std::string path = Attributes(svg, "d")[1];
        return std::make_pair(std::stod(path.substr(1)), std::stod(path.substr(path.find('L') + 1)));
    };
    EXPECT_EQ(ends("ray 2,2 1,0").first, PAGE_WIDTH / 2.0);
    EXPECT_GT(ends("ray 2,2 1,0").second, PAGE_WIDTH);
    EXPECT_GT(ends("ray reversed 2,2 1,0").first, PAGE_WIDTH);
    EXPECT_EQ(ends("ray reversed 2,2 1,0").second, PAGE_WIDTH / 2.0);
}

TEST(SvgPicture, ArrowsStandOnTheBowOfAnArcAndPointAlongIt) {
    const auto arrow = [](const std::string& geometry) {
        const std::string svg = SvgPicture("test").Arrows(true).Draw(*ParseGeo(geometry), SvgRole::A).Text();
        EXPECT_EQ(CountOf(svg, "class=\"arrow\""), 1) << geometry;
        std::istringstream in(Attributes(svg, "d").back());
        char letter = ' ';
        double tipX = 0.0;
        double tipY = 0.0;
        double backX = 0.0;
        in >> letter >> tipX >> tipY >> letter >> backX;
        return std::make_pair(tipX - backX, tipY);
    };
    EXPECT_GT(arrow("seg 0,0 4,0").first, 0.0);
    EXPECT_LT(arrow("seg 4,0 0,0").first, 0.0);
    // A counter-clockwise half turn to the right goes below its chord, a clockwise one above it.
    EXPECT_GT(arrow("pline 0,0@pi 4,0").first, 0.0);
    EXPECT_GT(arrow("pline 0,0@pi 4,0").second, arrow("pline 0,0@-pi 4,0").second);
}

TEST(SvgPicture, PanelsHaveTheirOwnScale) {
    const std::string svg = SvgPicture("test")
                                .Columns(2)
                                .Panel("small")
                                .Draw(*ParseGeo("seg 0,0 1,1"), SvgRole::A)
                                .Panel("large")
                                .Draw(*ParseGeo("seg 1e6,0 3e6,2e6"), SvgRole::A)
                                .Text();
    const std::vector<std::string> paths = Attributes(svg, "d");
    ASSERT_EQ(paths.size(), 2u);
    // The second panel stands half a page to the right of the first.
    EXPECT_NEAR(std::stod(paths[1].substr(1)) - std::stod(paths[0].substr(1)), 477.0, 0.02);
    EXPECT_NE(svg.find(">small</text>"), std::string::npos);
    EXPECT_NE(svg.find(">large</text>"), std::string::npos);
}

TEST(SvgPicture, AFocusedPanelShowsThatPart) {
    // The focus is as wide as high, so the panel is a square and the middle of the focus lies in its middle.
    const std::string svg =
        SvgPicture("test").Focus(QnGeExtent2d(1.0, 3.0, 1.0, 3.0)).Draw(*ParseGeo("seg 2,2 100,2"), SvgRole::A).Text();
    const std::string path = Attributes(svg, "d")[0];
    EXPECT_EQ(std::stod(path.substr(1)), PAGE_WIDTH / 2.0);
    EXPECT_GT(std::stod(path.substr(path.find('L') + 1)), PAGE_WIDTH);
}

TEST(SvgPicture, FineOutlinesStayShort) {
    constexpr long COUNT = 100000;
    QnGeMLine2d outline(COUNT, true);
    for (long i = 0; i < COUNT; ++i) {
        const double angle = 2.0 * 3.14159265358979 * static_cast<double>(i) / static_cast<double>(COUNT);
        outline.SetVertex(i, QnGePoint(4e6 + 1e5 * std::cos(angle), 3e6 + 1e5 * std::sin(angle)));
    }
    const std::string svg = SvgPicture("test").Draw(outline, SvgRole::A).Text();
    EXPECT_LT(svg.size(), 200000u);
    EXPECT_GT(svg.size(), 50000u);
}

TEST(SvgPicture, TextIsEscapedAndTheDocumentIsWellFormed) {
    const std::string svg = SvgPicture("A < B & \"C\"", "one line\nanother > line")
                                .Legend(SvgRole::A, "a & b")
                                .ScaleBar(1.0, "1 < 2")
                                .Panel("<caption>")
                                .Arrows(true)
                                .Draw(*ParseGeo("region circle 0,0 r5 | mline 0,0 0,1 1,1 close"), SvgRole::A)
                                .Dot(QnGePoint(1.0, 1.0), SvgRole::Mark, "dot & label")
                                .Label(QnGePoint(2.0, 1.0), "<label>")
                                .Text();
    EXPECT_NE(svg.find("A &lt; B &amp; &quot;C&quot;"), std::string::npos);
    EXPECT_NE(svg.find("&lt;caption&gt;"), std::string::npos);
    EXPECT_TRUE(IsWellFormed(svg)) << svg;
}

TEST(SvgPicture, PicturesWithoutContentsArePicturesToo) {
    EXPECT_TRUE(IsWellFormed(SvgPicture("empty").Text()));
    EXPECT_TRUE(IsWellFormed(SvgPicture("empty").Panel("empty").Text()));
    EXPECT_TRUE(IsWellFormed(TextOf("point 3,4")));
    EXPECT_TRUE(IsWellFormed(TextOf("line 3,4 1,0")));
    EXPECT_TRUE(IsWellFormed(TextOf("seg 3,4 3,9")));
    QnGeObjList withGap;
    withGap.Append(nullptr);
    EXPECT_TRUE(IsWellFormed(SvgPicture("gap").Draw(withGap, SvgRole::A).Text()));
    EXPECT_TRUE(IsWellFormed(SvgPicture("gap").Draw(QnGeMLine2d(), SvgRole::A).Text()));
    EXPECT_EQ(TextOf("point 3,4").find("nan"), std::string::npos);
    EXPECT_EQ(TextOf("line 3,4 1,0").find("inf"), std::string::npos);
}

TEST(SvgPicture, SavedFilesHoldTheText) {
    const std::string path = std::string(QUARN_TEST_OUTPUT_DIR) + "/SvgPicture_SavedFilesHoldTheText.svg";
    const SvgPicture picture = SvgPicture("test").Draw(*ParseGeo("circle 0,0 r1"), SvgRole::A);
    picture.Save(path);
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    EXPECT_EQ(text.str(), picture.Text());
    file.close();
    std::filesystem::remove(path);
}

TEST(SvgPicture, AFileThatCannotBeWrittenIsNamed) {
    const std::string path = std::string(QUARN_TEST_OUTPUT_DIR) + "/no-such-folder/picture.svg";
    try {
        SvgPicture("test").Save(path);
        FAIL() << "a picture was written into a folder that is not there";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()), path + ": the picture cannot be written");
    }
}

}  // namespace
