// SPDX-License-Identifier: Apache-2.0
#include "support/DataFiles.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <fstream>
#include <optional>

#include "values/QnGePoint.h"

namespace data_files {

namespace {

constexpr std::size_t MIN_STRAIGHT_RING = 3;
constexpr std::size_t MIN_BULGED_RING = 2;  // two half circles
constexpr std::size_t MIN_LINE = 2;
constexpr std::size_t MAX_RING = 100000000;  // a larger count is a damaged number, not a ring
constexpr std::size_t QUOTED_LENGTH = 40;

std::vector<std::string> SplitWords(const std::string& text) {
    std::vector<std::string> words;
    std::size_t at = 0;
    while ((at = text.find_first_not_of(" \t", at)) != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(" \t", at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end;
    }
    return words;
}

std::optional<double> ParseNumber(const std::string& text) {
    double value = 0.0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::size_t> ParseCount(const std::string& text) {
    std::size_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || value > MAX_RING) {
        return std::nullopt;
    }
    return value;
}

/// The lines of a file without its comments, and the errors that name them.
class LineReader {
public:
    explicit LineReader(const std::string& path) : m_path(path), m_file(path) {
        if (!m_file) {
            throw DataFileError(path, 1, std::string("cannot be opened: ") + std::strerror(errno));
        }
    }

    /// Moves to the next line that is no comment; false at the end of the file.
    bool Next() {
        while (std::getline(m_file, m_text)) {
            ++m_line;
            if (!m_text.empty() && m_text.back() == '\r') {
                m_text.pop_back();
            }
            if (m_text.empty() || m_text[0] != '#') {
                return true;
            }
        }
        ++m_line;
        m_atEnd = true;
        return false;
    }

    const std::string& Text() const { return m_text; }
    const std::string& Path() const { return m_path; }
    long Line() const { return m_line; }

    [[noreturn]] void Fail(const std::string& message) const { throw DataFileError(m_path, m_line, message); }

    [[noreturn]] void FailExpected(const std::string& wanted) const {
        std::string found = "the end of the file";
        if (!m_atEnd) {
            const bool isLong = m_text.size() > QUOTED_LENGTH;
            found = m_text.empty() ? "a blank line" : "'" + m_text.substr(0, QUOTED_LENGTH) + (isLong ? "...'" : "'");
        }
        Fail("expected " + wanted + ", found " + found);
    }

private:
    std::string m_path;
    std::ifstream m_file;
    std::string m_text;
    long m_line = 0;
    bool m_atEnd = false;
};

/// The `n` of the line `<keyword> <n>` on which the reader stands.
std::size_t ParseCountLine(const LineReader& reader, const std::string& keyword, std::size_t least) {
    const std::vector<std::string> words = SplitWords(reader.Text());
    const std::optional<std::size_t> count = words.size() == 2 ? ParseCount(words[1]) : std::nullopt;
    if (words.empty() || words[0] != keyword || !count) {
        reader.FailExpected("'" + keyword + " <n>'");
    }
    if (*count < least) {
        reader.FailExpected("a " + keyword + " of at least " + std::to_string(least) + " vertices");
    }
    return *count;
}

/// The next line's numbers, behind `keyword` if that is not empty.
std::vector<double> ReadVertex(LineReader& reader, const std::string& keyword, const std::string& form,
                               std::size_t numbers, std::size_t index, std::size_t count) {
    const bool isThere = reader.Next();
    const std::vector<std::string> words = isThere ? SplitWords(reader.Text()) : std::vector<std::string>();
    const std::size_t first = keyword.empty() ? 0 : 1;
    bool isGood = words.size() == first + numbers && (keyword.empty() || words[0] == keyword);
    std::vector<double> values;
    for (std::size_t i = first; isGood && i < words.size(); ++i) {
        const std::optional<double> value = ParseNumber(words[i]);
        isGood = value.has_value();
        values.push_back(value.value_or(0.0));
    }
    if (!isGood) {
        reader.FailExpected("'" + form + "' (vertex " + std::to_string(index + 1) + " of " + std::to_string(count) +
                            ")");
    }
    return values;
}

// The count of a damaged file is not believed before its vertices are there: rings grow vertex by vertex.

QnGeMLine2d ReadStraightLine(LineReader& reader, const std::string& keyword, bool closed) {
    const std::size_t count = ParseCountLine(reader, keyword, closed ? MIN_STRAIGHT_RING : MIN_LINE);
    std::vector<QnGePoint> points;
    for (std::size_t i = 0; i < count; ++i) {
        const std::vector<double> xy = ReadVertex(reader, "", "x y", 2, i, count);
        points.emplace_back(xy[0], xy[1]);
    }
    QnGeMLine2d line(static_cast<long>(count), closed);
    for (std::size_t i = 0; i < count; ++i) {
        line.SetVertex(static_cast<long>(i), points[i]);
    }
    return line;
}

QnGePolyline2d ReadBulgedLine(LineReader& reader, const std::string& keyword, bool closed) {
    const std::size_t count = ParseCountLine(reader, keyword, closed ? MIN_BULGED_RING : MIN_LINE);
    QnGePolyline2d line(0, closed);
    for (std::size_t i = 0; i < count; ++i) {
        const std::vector<double> vertex = ReadVertex(reader, "vertex", "vertex x y bulge", 3, i, count);
        line.AppendVertex(QnGePoint(vertex[0], vertex[1]), vertex[2]);
    }
    return line;
}

/// The numbers of the line on which the reader stands; their count must be from `least` to `most`.
std::vector<double> ParseNumbers(const LineReader& reader, const std::string& form, std::size_t least,
                                 std::size_t most) {
    const std::vector<std::string> words = SplitWords(reader.Text());
    std::vector<double> values;
    for (const std::string& word : words) {
        const std::optional<double> value = ParseNumber(word);
        if (!value) {
            reader.FailExpected("'" + form + "'");
        }
        values.push_back(*value);
    }
    if (values.size() < least || values.size() > most) {
        reader.FailExpected("'" + form + "'");
    }
    return values;
}

/// The cells of one line of a table; none if a quote is not closed.
std::optional<std::vector<std::string>> SplitCells(const std::string& text) {
    std::vector<std::string> cells(1);
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') {
            if (isQuoted && i + 1 < text.size() && text[i + 1] == '"') {
                cells.back() += text[++i];
            } else {
                isQuoted = !isQuoted;
            }
        } else if (text[i] == ',' && !isQuoted) {
            cells.emplace_back();
        } else {
            cells.back() += text[i];
        }
    }
    if (isQuoted) {
        return std::nullopt;
    }
    return cells;
}

}  // namespace

DataFileError::DataFileError(const std::string& path, long line, const std::string& message)
    : std::runtime_error(path + ":" + std::to_string(line) + ": " + message) {}

std::vector<Polygon> ReadPolygons(const std::string& path) {
    LineReader reader(path);
    std::vector<Polygon> polygons;
    bool startsPolygon = true;
    while (reader.Next()) {
        if (reader.Text().empty()) {
            startsPolygon = true;
            continue;
        }
        QnGeMLine2d ring = ReadStraightLine(reader, "ring", true);
        if (startsPolygon) {
            polygons.emplace_back();
            startsPolygon = false;
        }
        polygons.back().rings.push_back(ring);
    }
    if (polygons.empty()) {
        reader.FailExpected("'ring <n>'");
    }
    return polygons;
}

std::vector<ArcShape> ReadArcShapes(const std::string& path) {
    LineReader reader(path);
    std::vector<ArcShape> shapes;
    bool startsPolygon = true;
    while (reader.Next()) {
        const std::vector<std::string> words = SplitWords(reader.Text());
        if (words.empty()) {
            startsPolygon = true;
        } else if (words[0] == "shape") {
            if (words.size() != 2) {
                reader.FailExpected("'shape <name>'");
            }
            shapes.push_back({words[1], {}});
            startsPolygon = true;
        } else {
            if (shapes.empty()) {
                reader.FailExpected("'shape <name>'");
            }
            QnGePolyline2d ring = ReadBulgedLine(reader, "ring", true);
            if (startsPolygon) {
                shapes.back().polygons.emplace_back();
                startsPolygon = false;
            }
            shapes.back().polygons.back().rings.push_back(ring);
        }
    }
    if (shapes.empty()) {
        reader.FailExpected("'shape <name>'");
    }
    return shapes;
}

std::vector<QnGeMLine2d> ReadLines(const std::string& path) {
    LineReader reader(path);
    std::vector<QnGeMLine2d> lines;
    while (reader.Next()) {
        if (!reader.Text().empty()) {
            lines.push_back(ReadStraightLine(reader, "line", false));
        }
    }
    if (lines.empty()) {
        reader.FailExpected("'line <n>'");
    }
    return lines;
}

std::vector<ArcDrawing> ReadArcDrawings(const std::string& path) {
    LineReader reader(path);
    std::vector<ArcDrawing> drawings;
    while (reader.Next()) {
        const std::vector<std::string> words = SplitWords(reader.Text());
        if (words.size() == 2 && words[0] == "drawing") {
            drawings.push_back({words[1], {}});
        } else if (!words.empty()) {
            if (drawings.empty()) {
                reader.FailExpected("'drawing <name>'");
            }
            drawings.back().curves.push_back(ReadBulgedLine(reader, "curve", false));
        }
    }
    if (drawings.empty()) {
        reader.FailExpected("'drawing <name>'");
    }
    return drawings;
}

std::vector<QnGePoint> ReadPoints(const std::string& path) {
    LineReader reader(path);
    std::vector<QnGePoint> points;
    while (reader.Next()) {
        if (!reader.Text().empty()) {
            const std::vector<double> xyz = ParseNumbers(reader, "x y' or 'x y z", 2, 3);
            points.emplace_back(xyz[0], xyz[1], xyz.size() == 3 ? xyz[2] : 0.0);
        }
    }
    if (points.empty()) {
        reader.FailExpected("'x y' or 'x y z'");
    }
    return points;
}

std::vector<QnGeExtent2d> ReadBoxes(const std::string& path) {
    LineReader reader(path);
    std::vector<QnGeExtent2d> boxes;
    while (reader.Next()) {
        if (!reader.Text().empty()) {
            const std::vector<double> ends = ParseNumbers(reader, "xmin ymin xmax ymax", 4, 4);
            boxes.emplace_back(ends[0], ends[2], ends[1], ends[3]);
        }
    }
    if (boxes.empty()) {
        reader.FailExpected("'xmin ymin xmax ymax'");
    }
    return boxes;
}

CsvTable::CsvTable(const std::string& path) : m_path(path) {
    LineReader reader(path);
    while (reader.Next()) {
        if (reader.Text().empty()) {
            continue;
        }
        const std::optional<std::vector<std::string>> cells = SplitCells(reader.Text());
        if (!cells) {
            reader.Fail("a quoted cell is not closed");
        }
        if (m_columns.empty()) {
            for (std::size_t i = 0; i < cells->size(); ++i) {
                m_columns.emplace((*cells)[i], i);
            }
            continue;
        }
        if (cells->size() != m_columns.size()) {
            reader.Fail("expected " + std::to_string(m_columns.size()) + " cells, found " +
                        std::to_string(cells->size()));
        }
        m_rows.push_back({reader.Line(), *cells});
    }
    if (m_columns.empty()) {
        reader.FailExpected("a line of column names");
    }
}

std::size_t CsvTable::ColumnIndex(const std::string& column, long line) const {
    const auto found = m_columns.find(column);
    if (found == m_columns.end()) {
        throw DataFileError(m_path, line, "the table has no column '" + column + "'");
    }
    return found->second;
}

const std::string& CsvTable::Text(std::size_t row, const std::string& column) const {
    const Row& found = m_rows.at(row);
    return found.cells[ColumnIndex(column, found.line)];
}

double CsvTable::Number(std::size_t row, const std::string& column) const {
    const std::string& text = Text(row, column);
    const std::optional<double> value = ParseNumber(text);
    if (!value) {
        throw DataFileError(m_path, m_rows[row].line,
                            "expected a number in column '" + column + "', found '" + text + "'");
    }
    return *value;
}

std::size_t CsvTable::Find(const std::string& column, const std::string& value) const {
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (Text(row, column) == value) {
            return row;
        }
    }
    throw DataFileError(m_path, 1, "no row has '" + value + "' in column '" + column + "'");
}

}  // namespace data_files
