// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

/// Readers of the plain text files in examples/data. Lines that begin with '#' are comments.
///
/// Fails  Every reader throws DataFileError for a file that is missing or does not keep to its form. A number is read
///        whole or not at all; one that is not finite is refused.
namespace data_files {

/// What is wrong with a file, as `examples/data/x.txt:17: expected 'ring <n>', found 'rnig 5'`.
class DataFileError : public std::runtime_error {
public:
    DataFileError(const std::string& path, long line, const std::string& message);
};

/// One polygon: ring 0 is the outline, counter-clockwise; the others are its holes, clockwise. All are closed.
struct Polygon {
    std::vector<QnGeMLine2d> rings;
};

/// The polygons of a file of outlines: `ring <n>`, then n lines `x y`; a blank line stands between polygons.
std::vector<Polygon> ReadPolygons(const std::string& path);

/// One polygon of straight pieces and arcs; rings as in Polygon.
struct ArcPolygon {
    std::vector<QnGePolyline2d> rings;
};

struct ArcShape {
    std::string name;
    std::vector<ArcPolygon> polygons;
};

/// The shapes of a file of bulged outlines: `shape <name>`, then per ring `ring <n>` and n lines `vertex x y bulge`; a
/// blank line stands between the polygons of a shape and between shapes.
///
/// Units  Bulges as in QnGePolyline2d: the signed central angle in radians.
std::vector<ArcShape> ReadArcShapes(const std::string& path);

/// The open lines of a file of linework: `line <n>`, then n lines `x y`. A line that closes repeats its first point.
std::vector<QnGeMLine2d> ReadLines(const std::string& path);

struct ArcDrawing {
    std::string name;
    std::vector<QnGePolyline2d> curves;  ///< open; a curve that closes repeats its first point
};

/// The drawings of a file of loose curves: `drawing <name>`, then per curve `curve <n>` and n lines `vertex x y bulge`.
std::vector<ArcDrawing> ReadArcDrawings(const std::string& path);

/// The points of a file of places or of survey points: `x y` or `x y z` on each line.
std::vector<QnGePoint> ReadPoints(const std::string& path);

/// The boxes of a file: `xmin ymin xmax ymax` on each line.
std::vector<QnGeExtent2d> ReadBoxes(const std::string& path);

/// A table with a line of column names. A cell in double quotes may hold commas; a doubled quote in it is one quote.
class CsvTable {
public:
    explicit CsvTable(const std::string& path);

    std::size_t GetRowNum() const { return m_rows.size(); }

    /// The cell of a row, as it stands or as a number.
    ///
    /// Fails  DataFileError with the row's line for a column that is not there and a cell that is no number.
    const std::string& Text(std::size_t row, const std::string& column) const;
    double Number(std::size_t row, const std::string& column) const;

    /// The first row with `value` in `column`.
    ///
    /// Fails  DataFileError if there is none.
    std::size_t Find(const std::string& column, const std::string& value) const;

private:
    struct Row {
        long line;
        std::vector<std::string> cells;
    };

    std::size_t ColumnIndex(const std::string& column, long line) const;

    std::string m_path;
    std::map<std::string, std::size_t> m_columns;
    std::vector<Row> m_rows;
};

}  // namespace data_files
