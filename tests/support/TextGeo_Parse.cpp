// SPDX-License-Identifier: Apache-2.0
#include <cctype>
#include <cstdlib>
#include <utility>
#include <vector>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/TextGeo.h"
#include "values/QnGePoint2d.h"

namespace {

/// One walk over a text, from left to right.
class TextReader {
public:
    explicit TextReader(const std::string& text) : m_text(text) {}

    [[noreturn]] void Fail(const std::string& what) const {
        throw std::invalid_argument("geometry text '" + m_text + "' at " + std::to_string(m_at) + ": " + what);
    }

    bool AtEnd() {
        SkipSpace();
        return m_at == m_text.size();
    }

    /// Takes `word` if it stands here as a whole word.
    bool TakeWord(const std::string& word) {
        SkipSpace();
        const std::size_t end = m_at + word.size();
        if (m_text.compare(m_at, word.size(), word) != 0 || (end < m_text.size() && IsLetter(m_text[end]))) {
            return false;
        }
        m_at = end;
        return true;
    }

    bool TakeSign(char sign) {
        SkipSpace();
        return TakeAtOnce(sign);
    }

    void NeedWord(const std::string& word) {
        if (!TakeWord(word)) {
            Fail("expected '" + word + "'");
        }
    }

    bool IsListSeparatorNext() {
        SkipSpace();
        return m_at < m_text.size() && m_text[m_at] == ';';
    }

    bool IsPointNext() {
        SkipSpace();
        return m_at < m_text.size() && (IsNumberStart(m_text[m_at]) || TextAt("pi"));
    }

    double NeedNumber() {
        SkipSpace();
        double value = ReadFactor();
        if (TakeAtOnce('/')) {
            value /= ReadPlain();
        }
        return value;
    }

    QnGePoint NeedPoint() {
        QnGePoint point;
        point.x = NeedNumber();
        if (!TakeAtOnce(',')) {
            Fail("expected ',' and y");
        }
        point.y = NeedNumber();
        if (TakeAtOnce(',')) {
            point.z = NeedNumber();
        }
        return point;
    }

    double NeedRadius() {
        if (!TakeSign('r')) {
            Fail("expected 'r' and the radius");
        }
        return NeedNumber();
    }

    bool TakeAtOnce(char sign) {
        if (m_at < m_text.size() && m_text[m_at] == sign) {
            ++m_at;
            return true;
        }
        return false;
    }

private:
    static bool IsLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
    static bool IsNumberStart(char c) {
        return std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '+' || c == '.';
    }
    bool TextAt(const char* what) const { return m_text.compare(m_at, std::string(what).size(), what) == 0; }

    void SkipSpace() {
        while (m_at < m_text.size() && std::isspace(static_cast<unsigned char>(m_text[m_at])) != 0) {
            ++m_at;
        }
    }

    double ReadPlain() {
        if (m_at == m_text.size() || !IsNumberStart(m_text[m_at])) {
            Fail("expected a number");
        }
        const char* const begin = m_text.c_str() + m_at;
        char* end = nullptr;
        const double value = std::strtod(begin, &end);
        if (end == begin) {
            Fail("expected a number");
        }
        m_at += static_cast<std::size_t>(end - begin);
        return value;
    }

    /// A number, or a number times pi with the number 1 left out if wished.
    double ReadFactor() {
        double factor = 1.0;
        if (TextAt("-pi")) {
            ++m_at;
            factor = -1.0;
        } else if (!TextAt("pi")) {
            factor = ReadPlain();
        }
        if (!TextAt("pi")) {
            return factor;
        }
        m_at += 2;
        return factor == 2.0 ? QN_TWO_PI : factor * QN_PI;
    }

    const std::string& m_text;
    std::size_t m_at = 0;
};

template <class LineClass>
std::unique_ptr<LineClass> ReadByDirection(TextReader& reader) {
    const QnGePoint base = reader.NeedPoint();
    const QnGePoint direction = reader.NeedPoint();
    return std::make_unique<LineClass>(QnGeVector2d(direction), base);
}

std::unique_ptr<QnGeObject> ReadRay(TextReader& reader) {
    const bool reversed = reader.TakeWord("reversed");
    std::unique_ptr<QnGeLineRay2d> ray = ReadByDirection<QnGeLineRay2d>(reader);
    ray->SetReverseRay(reversed);
    return ray;
}

std::unique_ptr<QnGeObject> ReadSegment(TextReader& reader) {
    const QnGePoint start = reader.NeedPoint();
    const QnGePoint end = reader.NeedPoint();
    return std::make_unique<QnGeLineSeg2d>(start, end);
}

std::unique_ptr<QnGeObject> ReadCircle(TextReader& reader) {
    const QnGePoint centre = reader.NeedPoint();
    const double radius = reader.NeedRadius();
    const bool clockwise = reader.TakeWord("cw");
    return std::make_unique<QnGeCircle2d>(centre, radius, !clockwise);
}

std::unique_ptr<QnGeObject> ReadArc(TextReader& reader) {
    const QnGePoint centre = reader.NeedPoint();
    const double radius = reader.NeedRadius();
    reader.NeedWord("from");
    const double start = reader.NeedNumber();
    reader.NeedWord("sweep");
    const double sweep = reader.NeedNumber();
    const bool clockwise = reader.TakeWord("cw");
    return std::make_unique<QnGeArc2d>(centre, radius, start, sweep, !clockwise);
}

std::unique_ptr<QnGeMLine2d> ReadMLine(TextReader& reader) {
    auto line = std::make_unique<QnGeMLine2d>();
    while (reader.IsPointNext()) {
        line->AppendVertex(reader.NeedPoint());
    }
    line->SetClosed(reader.TakeWord("close"));
    return line;
}

std::unique_ptr<QnGeObject> ReadPolyline(TextReader& reader) {
    auto line = std::make_unique<QnGePolyline2d>();
    std::vector<double> bulges;
    while (reader.IsPointNext()) {
        const QnGePoint vertex = reader.NeedPoint();
        bulges.push_back(reader.TakeAtOnce('@') ? reader.NeedNumber() : 0.0);
        line->AppendVertex(vertex);
    }
    // The closed bit first: closing through the polyline itself would write over the last bulge.
    line->QnGeMLine2d::SetClosed(reader.TakeWord("close"));
    for (std::size_t i = 0; i < bulges.size(); ++i) {
        line->SetBulge(static_cast<long>(i), bulges[i]);
    }
    return line;
}

std::unique_ptr<QnGeObject> ReadObject(TextReader& reader);

std::unique_ptr<QnGeCurve2d> ReadCurve(TextReader& reader, const char* expected) {
    std::unique_ptr<QnGeObject> object = ReadObject(reader);
    QnGeCurve2d* const curve = dynamic_cast<QnGeCurve2d*>(object.get());
    if (curve == nullptr) {
        reader.Fail(expected);
    }
    object.release();
    return std::unique_ptr<QnGeCurve2d>(curve);
}

std::unique_ptr<QnGeObject> ReadChain(TextReader& reader) {
    auto chain = std::make_unique<QnGeMCurve2d>();
    if (reader.AtEnd() || reader.IsListSeparatorNext()) {
        return chain;
    }
    do {
        chain->Append(ReadCurve(reader, "expected a curve as child").release());
    } while (reader.TakeSign('|'));
    return chain;
}

/// A boundary of a region: a curve, or bare points, which are a closed ring.
std::unique_ptr<QnGeCurve2d> ReadBoundary(TextReader& reader) {
    if (reader.IsPointNext()) {
        std::unique_ptr<QnGeMLine2d> ring = ReadMLine(reader);
        ring->SetClosed(true);
        return ring;
    }
    return ReadCurve(reader, "expected a curve as boundary");
}

bool IsStraightRing(const QnGeCurve2d& curve) {
    return curve.GetCI() == &QnGeMLine2d::s_classInfo;
}

std::unique_ptr<QnGeObject> MakePolygon(std::vector<std::unique_ptr<QnGeCurve2d>>& boundaries) {
    for (const auto& boundary : boundaries) {
        static_cast<QnGeMLine2d&>(*boundary).SetClosed(true);
    }
    const QnGeMLine2d& outline = static_cast<const QnGeMLine2d&>(*boundaries.front());
    if (boundaries.size() == 1) {
        return std::make_unique<QnGePolygon2d>(outline, false);
    }
    auto polygon = std::make_unique<QnGeGeneralPolygon2d>(outline, false);
    for (std::size_t i = 1; i < boundaries.size(); ++i) {
        polygon->AppendHole(static_cast<QnGeMLine2d*>(boundaries[i].release()), false);
    }
    return polygon;
}

std::unique_ptr<QnGeObject> MakeGeneralRegion(std::vector<std::unique_ptr<QnGeCurve2d>>& boundaries) {
    QnGeObjList curves;
    for (auto& boundary : boundaries) {
        curves.Append(boundary.release());
    }
    return std::make_unique<QnGeGeneralRegion2d>(curves, false);
}

std::unique_ptr<QnGeObject> ReadRegion(TextReader& reader, bool general) {
    std::vector<std::unique_ptr<QnGeCurve2d>> boundaries;
    bool straight = true;
    do {
        boundaries.push_back(ReadBoundary(reader));
        straight = straight && IsStraightRing(*boundaries.back());
    } while (reader.TakeSign('|'));
    return straight && !general ? MakePolygon(boundaries) : MakeGeneralRegion(boundaries);
}

std::unique_ptr<QnGeObject> ReadObject(TextReader& reader) {
    if (reader.TakeWord("point")) {
        return std::make_unique<QnGePoint2d>(reader.NeedPoint());
    }
    if (reader.TakeWord("line")) {
        return ReadByDirection<QnGeLine2d>(reader);
    }
    if (reader.TakeWord("ray")) {
        return ReadRay(reader);
    }
    if (reader.TakeWord("seg")) {
        return ReadSegment(reader);
    }
    if (reader.TakeWord("circle")) {
        return ReadCircle(reader);
    }
    if (reader.TakeWord("arc")) {
        return ReadArc(reader);
    }
    if (reader.TakeWord("mline")) {
        return ReadMLine(reader);
    }
    if (reader.TakeWord("pline")) {
        return ReadPolyline(reader);
    }
    if (reader.TakeWord("chain")) {
        return ReadChain(reader);
    }
    const bool general = reader.TakeWord("general");
    if (reader.TakeWord("region")) {
        return ReadRegion(reader, general);
    }
    reader.Fail("expected the word of a shape");
}

void NeedEnd(TextReader& reader) {
    if (!reader.AtEnd()) {
        reader.Fail("expected the end of the text");
    }
}

}  // namespace

std::unique_ptr<QnGeObject> ParseGeo(const std::string& text) {
    TextReader reader(text);
    std::unique_ptr<QnGeObject> object = ReadObject(reader);
    NeedEnd(reader);
    return object;
}

void ParseGeoList(const std::string& text, QnGeObjList& list) {
    TextReader reader(text);
    if (reader.AtEnd()) {
        return;
    }
    QnGeObjList found;
    do {
        found.Append(ReadObject(reader).release());
    } while (reader.TakeSign(';'));
    NeedEnd(reader);
    list.Conbine(found, 0);
}

QnGePoint ParsePoint(const std::string& text) {
    TextReader reader(text);
    const QnGePoint point = reader.NeedPoint();
    NeedEnd(reader);
    return point;
}
