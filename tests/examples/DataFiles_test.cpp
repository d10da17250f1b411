// SPDX-License-Identifier: Apache-2.0
#include "support/DataFiles.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "regions/QnGePolygon2d.h"

namespace {

using data_files::ArcShape;
using data_files::CsvTable;
using data_files::DataFileError;
using data_files::Polygon;
using data_files::ReadArcShapes;
using data_files::ReadPolygons;

const std::string DATA = std::string(QUARN_SOURCE_DIR) + "/examples/data";

/// A file with this text, gone at the end of the test.
class TextFile {
public:
    explicit TextFile(const std::string& text)
        : m_path(std::string(QUARN_TEST_OUTPUT_DIR) + "/" +
                 testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt") {
        std::ofstream(m_path, std::ios::binary) << text;
    }
    ~TextFile() { std::remove(m_path.c_str()); }
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;

    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

/// What `read` says about a file with this text, without the path: "17: expected ...". Empty if it says nothing.
template <class Read>
std::string ErrorOf(const std::string& text, Read read) {
    const TextFile file(text);
    try {
        read(file.Path());
    } catch (const DataFileError& error) {
        const std::string message = error.what();
        EXPECT_EQ(message.compare(0, file.Path().size() + 1, file.Path() + ":"), 0) << message;
        return message.substr(file.Path().size() + 1);
    }
    return "";
}

std::string PolygonError(const std::string& text) {
    return ErrorOf(text, [](const std::string& path) { ReadPolygons(path); });
}

std::string ShapeError(const std::string& text) {
    return ErrorOf(text, [](const std::string& path) { ReadArcShapes(path); });
}

std::string TableError(const std::string& text) {
    return ErrorOf(text, [](const std::string& path) { CsvTable table(path); });
}

// ---- polygons ------------------------------------------------------------------------------------

TEST(DataFiles, RingsOfAPolygonFollowEachOtherAndABlankLineEndsIt) {
    const TextFile file(
        "# a comment\n"
        "ring 4\n0 0\n9 0\n9 9\n0 9\n"
        "ring 3\n1 1\n# inside a ring\n1 2\n2 1.25\n"
        "\n"
        "ring 3\r\n-1 0\r\n-2e1\t0.5\r\n-1 1\r\n");
    const std::vector<Polygon> polygons = ReadPolygons(file.Path());
    ASSERT_EQ(polygons.size(), 2u);
    ASSERT_EQ(polygons[0].rings.size(), 2u);
    ASSERT_EQ(polygons[1].rings.size(), 1u);
    EXPECT_TRUE(polygons[0].rings[0].IsClosed());
    EXPECT_EQ(polygons[0].rings[0].GetVertexNum(), 4);
    EXPECT_EQ(polygons[0].rings[1][2].y, 1.25);
    EXPECT_EQ(polygons[1].rings[0][1].x, -20.0);
    EXPECT_EQ(polygons[1].rings[0][1].y, 0.5);
}

TEST(DataFiles, AMissingFileIsNamed) {
    try {
        ReadPolygons(DATA + "/polygons/atlantis.txt");
        FAIL() << "a missing file was read";
    } catch (const DataFileError& error) {
        EXPECT_EQ(std::string(error.what()),
                  DATA + "/polygons/atlantis.txt:1: cannot be opened: No such file or directory");
    }
    EXPECT_THROW(ReadArcShapes(DATA + "/arcs/atlantis.txt"), DataFileError);
    EXPECT_THROW(CsvTable(DATA + "/atlantis.csv"), DataFileError);
}

TEST(DataFiles, AnErrorNamesTheLineAndWhatStandsThere) {
    EXPECT_EQ(PolygonError("# one\n# two\nrnig 5\n"), "3: expected 'ring <n>', found 'rnig 5'");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 0\n1 1\n7 7\n"), "5: expected 'ring <n>', found '7 7'");
    EXPECT_EQ(PolygonError("ring\n"), "1: expected 'ring <n>', found 'ring'");
    EXPECT_EQ(PolygonError("ring -3\n"), "1: expected 'ring <n>', found 'ring -3'");
    EXPECT_EQ(PolygonError("ring 3.5\n"), "1: expected 'ring <n>', found 'ring 3.5'");
    EXPECT_EQ(PolygonError("ring 99999999999999999999\n"), "1: expected 'ring <n>', found 'ring 99999999999999999999'");
    EXPECT_EQ(PolygonError("ring 2\n0 0\n1 1\n"), "1: expected a ring of at least 3 vertices, found 'ring 2'");
}

TEST(DataFiles, AnErrorNamesTheVertexThatIsMissingOrBroken) {
    EXPECT_EQ(PolygonError("ring 4\n0 0\n1 0\n1 1\nring 3\n"), "5: expected 'x y' (vertex 4 of 4), found 'ring 3'");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 0\n\n"), "4: expected 'x y' (vertex 3 of 3), found a blank line");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 0\n"), "4: expected 'x y' (vertex 3 of 3), found the end of the file");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 O\n1 1\n"), "3: expected 'x y' (vertex 2 of 3), found '1 O'");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1\n1 1\n"), "3: expected 'x y' (vertex 2 of 3), found '1'");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 0 0\n1 1\n"), "3: expected 'x y' (vertex 2 of 3), found '1 0 0'");
    EXPECT_EQ(PolygonError("ring 3\n0 0\n1 0,5\n1 1\n"), "3: expected 'x y' (vertex 2 of 3), found '1 0,5'");
}

TEST(DataFiles, NumbersThatAreNotFiniteAreRefused) {
    EXPECT_EQ(PolygonError("ring 3\n0 nan\n1 0\n1 1\n"), "2: expected 'x y' (vertex 1 of 3), found '0 nan'");
    EXPECT_EQ(PolygonError("ring 3\n0 inf\n1 0\n1 1\n"), "2: expected 'x y' (vertex 1 of 3), found '0 inf'");
    EXPECT_EQ(PolygonError("ring 3\n0 1e999\n1 0\n1 1\n"), "2: expected 'x y' (vertex 1 of 3), found '0 1e999'");
}

TEST(DataFiles, AFileWithoutPolygonsIsBroken) {
    EXPECT_EQ(PolygonError(""), "1: expected 'ring <n>', found the end of the file");
    EXPECT_EQ(PolygonError("# nothing but a comment\n\n"), "3: expected 'ring <n>', found the end of the file");
}

TEST(DataFiles, ADamagedCountIsNotBelieved) {
    EXPECT_EQ(PolygonError("ring 99999999\n0 0\n"),
              "3: expected 'x y' (vertex 2 of 99999999), found the end of the file");
}

TEST(DataFiles, ALongLineIsQuotedInPart) {
    EXPECT_EQ(PolygonError(std::string(1000, 'x') + "\n"),
              "1: expected 'ring <n>', found '" + std::string(40, 'x') + "...'");
}

// ---- shapes with arcs ----------------------------------------------------------------------------

TEST(DataFiles, ShapesHaveNamesPolygonsAndBulges) {
    const TextFile file(
        "shape disc\nring 2\nvertex 0 0 3.141592653589793\nvertex 2 0 3.141592653589793\n"
        "\n"
        "shape pair\nring 3\nvertex 0 0 0\nvertex 1 0 -0.5\nvertex 0 1 0\n"
        "\n"
        "ring 3\nvertex 5 0 0\nvertex 6 0 0\nvertex 5 1 0\n");
    const std::vector<ArcShape> shapes = ReadArcShapes(file.Path());
    ASSERT_EQ(shapes.size(), 2u);
    EXPECT_EQ(shapes[0].name, "disc");
    ASSERT_EQ(shapes[0].polygons.size(), 1u);
    EXPECT_NEAR(shapes[0].polygons[0].rings[0].Area(), 3.14159265358979, 1e-12);
    EXPECT_EQ(shapes[1].name, "pair");
    ASSERT_EQ(shapes[1].polygons.size(), 2u);
    EXPECT_EQ(shapes[1].polygons[0].rings[0].GetBulge(1), -0.5);
    EXPECT_TRUE(shapes[1].polygons[1].rings[0].IsClosed());
}

TEST(DataFiles, BrokenShapesAreNamed) {
    EXPECT_EQ(ShapeError("ring 2\n"), "1: expected 'shape <name>', found 'ring 2'");
    EXPECT_EQ(ShapeError("shape\n"), "1: expected 'shape <name>', found 'shape'");
    EXPECT_EQ(ShapeError(""), "1: expected 'shape <name>', found the end of the file");
    EXPECT_EQ(ShapeError("shape a\nring 1\n"), "2: expected a ring of at least 2 vertices, found 'ring 1'");
    EXPECT_EQ(ShapeError("shape a\nring 2\nvertex 0 0 1\nvertex 1 0\n"),
              "4: expected 'vertex x y bulge' (vertex 2 of 2), found 'vertex 1 0'");
    EXPECT_EQ(ShapeError("shape a\nring 2\nvertex 0 0 1\nshape b\n"),
              "4: expected 'vertex x y bulge' (vertex 2 of 2), found 'shape b'");
    EXPECT_EQ(ShapeError("shape a\nblob 2\n"), "2: expected 'ring <n>', found 'blob 2'");
}

// ---- tables --------------------------------------------------------------------------------------

TEST(DataFiles, TablesAreReadByColumnName) {
    const TextFile file("name,area,note\n# a comment\na,1.5,plain\n\nb,-2e3,\"quoted, with a \"\"word\"\"\"\n");
    const CsvTable table(file.Path());
    ASSERT_EQ(table.GetRowNum(), 2u);
    EXPECT_EQ(table.Text(0, "name"), "a");
    EXPECT_EQ(table.Number(1, "area"), -2000.0);
    EXPECT_EQ(table.Text(1, "note"), "quoted, with a \"word\"");
    EXPECT_EQ(table.Find("name", "b"), 1u);
}

TEST(DataFiles, BrokenTablesAreNamed) {
    EXPECT_EQ(TableError(""), "1: expected a line of column names, found the end of the file");
    EXPECT_EQ(TableError("a,b\n1,2\n1\n"), "3: expected 2 cells, found 1");
    EXPECT_EQ(TableError("a,b\n1,2,3\n"), "2: expected 2 cells, found 3");
    EXPECT_EQ(TableError("a,b\n1,\"2\n"), "2: a quoted cell is not closed");
    EXPECT_EQ(ErrorOf("a,b\n1,x\n", [](const std::string& path) { CsvTable(path).Number(0, "b"); }),
              "2: expected a number in column 'b', found 'x'");
    EXPECT_EQ(ErrorOf("a,b\n1,x\n", [](const std::string& path) { CsvTable(path).Text(0, "c"); }),
              "2: the table has no column 'c'");
    EXPECT_EQ(ErrorOf("a,b\n1,x\n", [](const std::string& path) { CsvTable(path).Find("a", "2"); }),
              "1: no row has '2' in column 'a'");
}

// ---- linework, drawings, points, boxes -----------------------------------------------------------

TEST(DataFiles, LinesAreOpenAndKeepTheirOrder) {
    const TextFile file("line 2\n0 0\n3 4\n\nline 3\n1 1\n2 2\n1 1\n");
    const std::vector<QnGeMLine2d> lines = data_files::ReadLines(file.Path());
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].Length(), 5.0);
    EXPECT_EQ(lines[1].GetVertexNum(), 3);
    EXPECT_FALSE(lines[1].HasBit(OBJ_CLOSED));
    const auto read = [](const std::string& path) { data_files::ReadLines(path); };
    EXPECT_EQ(ErrorOf("ring 3\n", read), "1: expected 'line <n>', found 'ring 3'");
    EXPECT_EQ(ErrorOf("line 1\n0 0\n", read), "1: expected a line of at least 2 vertices, found 'line 1'");
    EXPECT_EQ(ErrorOf("# nothing\n", read), "2: expected 'line <n>', found the end of the file");
}

TEST(DataFiles, DrawingsHaveNamesAndCurves) {
    const TextFile file("drawing a\ncurve 2\nvertex 0 0 3.141592653589793\nvertex 2 0 0\n\ndrawing b\n");
    const std::vector<data_files::ArcDrawing> drawings = data_files::ReadArcDrawings(file.Path());
    ASSERT_EQ(drawings.size(), 2u);
    EXPECT_EQ(drawings[0].name, "a");
    ASSERT_EQ(drawings[0].curves.size(), 1u);
    EXPECT_NEAR(drawings[0].curves[0].Length(), 3.141592653589793, 1e-15);
    EXPECT_TRUE(drawings[1].curves.empty());
    const auto read = [](const std::string& path) { data_files::ReadArcDrawings(path); };
    EXPECT_EQ(ErrorOf("curve 2\n", read), "1: expected 'drawing <name>', found 'curve 2'");
    EXPECT_EQ(ErrorOf("drawing a\ncurv 2\n", read), "2: expected 'curve <n>', found 'curv 2'");
}

TEST(DataFiles, PointsHaveTwoOrThreeNumbersAndBoxesFour) {
    const TextFile pointFile("# comment\n1 2\n3 4 5\n");
    const std::vector<QnGePoint> points = data_files::ReadPoints(pointFile.Path());
    ASSERT_EQ(points.size(), 2u);
    EXPECT_EQ(points[0].z, 0.0);
    EXPECT_EQ(points[1].z, 5.0);
    const auto readPoints = [](const std::string& path) { data_files::ReadPoints(path); };
    EXPECT_EQ(ErrorOf("1\n", readPoints), "1: expected 'x y' or 'x y z', found '1'");
    EXPECT_EQ(ErrorOf("1 2 x\n", readPoints), "1: expected 'x y' or 'x y z', found '1 2 x'");
    const auto readBoxes = [](const std::string& path) { data_files::ReadBoxes(path); };
    EXPECT_EQ(ErrorOf("1 2 3 4\n1 2 3\n", readBoxes), "2: expected 'xmin ymin xmax ymax', found '1 2 3'");
}

TEST(DataFiles, BoxesGiveTheLowCornerFirst) {
    const TextFile file("1 2 3 5\n");
    const std::vector<QnGeExtent2d> boxes = data_files::ReadBoxes(file.Path());
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].GetLength(), 2.0);
    EXPECT_EQ(boxes[0].GetHeight(), 3.0);
}

// ---- the files themselves ------------------------------------------------------------------------

TEST(DataFiles, EveryPolygonFileHoldsWhatItsTableSays) {
    const CsvTable table(DATA + "/polygons/expected_polygons.csv");
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(DATA + "/polygons")) {
        files += entry.path().extension() == ".txt" ? 1 : 0;
    }
    EXPECT_EQ(table.GetRowNum(), files);
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        SCOPED_TRACE(table.Text(row, "file"));
        double holes = 0.0;
        double vertices = 0.0;
        double area = 0.0;
        double perimeter = 0.0;
        const std::vector<Polygon> polygons = ReadPolygons(DATA + "/" + table.Text(row, "file"));
        for (const Polygon& polygon : polygons) {
            holes += static_cast<double>(polygon.rings.size()) - 1.0;
            for (const QnGeMLine2d& ring : polygon.rings) {
                const bool isHole = &ring != &polygon.rings.front();
                EXPECT_EQ(ring.IsClockwise(), isHole);
                vertices += static_cast<double>(ring.GetVertexNum());
                area += isHole ? -ring.Area() : ring.Area();
                perimeter += ring.Length();
            }
        }
        EXPECT_EQ(static_cast<double>(polygons.size()), table.Number(row, "polygons"));
        EXPECT_EQ(holes, table.Number(row, "holes"));
        EXPECT_EQ(vertices, table.Number(row, "vertices"));
        EXPECT_NEAR(area, table.Number(row, "area"), 1e-12 * table.Number(row, "area"));
        EXPECT_NEAR(perimeter, table.Number(row, "perimeter"), 1e-12 * table.Number(row, "perimeter"));
    }
}

TEST(DataFiles, EveryFileOfLinesHoldsWhatItsTableSays) {
    const CsvTable table(DATA + "/linework/expected_linework.csv");
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        SCOPED_TRACE(table.Text(row, "file"));
        double vertices = 0.0;
        double length = 0.0;
        const std::vector<QnGeMLine2d> lines = data_files::ReadLines(DATA + "/" + table.Text(row, "file"));
        for (const QnGeMLine2d& line : lines) {
            vertices += static_cast<double>(line.GetVertexNum());
            length += line.Length();
        }
        EXPECT_EQ(static_cast<double>(lines.size()), table.Number(row, "polylines"));
        EXPECT_EQ(vertices, table.Number(row, "vertices"));
        EXPECT_NEAR(length, table.Number(row, "total_length"), 1e-12 * length);
    }
}

TEST(DataFiles, EveryFileOfBoxesAndPointsHoldsWhatItsTableSays) {
    const CsvTable boxes(DATA + "/boxes/expected_boxes.csv");
    const std::vector<QnGeExtent2d> features = data_files::ReadBoxes(DATA + "/boxes/features_world.txt");
    EXPECT_EQ(static_cast<double>(features.size()), boxes.Number(0, "records"));
    EXPECT_EQ(static_cast<double>(data_files::ReadPoints(DATA + "/boxes/populated_places.txt").size()),
              boxes.Number(1, "records"));
    QnGeExtent2d world = features.front();
    for (const QnGeExtent2d& box : features) {
        world += box;
    }
    EXPECT_EQ(world.x.min, boxes.Number(0, "xmin"));
    EXPECT_EQ(world.y.max, boxes.Number(0, "ymax"));
    const CsvTable terrain(DATA + "/terrain/expected_terrain.csv");
    for (std::size_t row = 0; row < terrain.GetRowNum(); ++row) {
        const std::vector<QnGePoint> points = data_files::ReadPoints(DATA + "/" + terrain.Text(row, "file"));
        EXPECT_EQ(static_cast<double>(points.size()), terrain.Number(row, "points")) << terrain.Text(row, "file");
    }
}

TEST(DataFiles, EveryFileSaysItsLicence) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(DATA)) {
        if (entry.path().extension() != ".txt") {
            continue;
        }
        std::ifstream file(entry.path());
        std::string licence;
        for (std::string line; std::getline(file, line) && !line.empty() && line[0] == '#';) {
            if (line.rfind("# licence: ", 0) == 0) {
                licence = line.substr(11);
            }
        }
        EXPECT_TRUE(licence == "MIT" || licence.rfind("public domain", 0) == 0) << entry.path() << ": " << licence;
    }
}

}  // namespace
