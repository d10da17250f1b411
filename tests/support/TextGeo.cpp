// SPDX-License-Identifier: Apache-2.0
#include "support/TextGeo.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "values/QnGePoint2d.h"

namespace {

/// The shortest of the usual forms that reads back to the same double.
std::string NumberText(double value) {
    constexpr int LEAST_DIGITS = 6;
    constexpr int MOST_DIGITS = 17;
    char buffer[40];
    for (int digits = LEAST_DIGITS; digits <= MOST_DIGITS; ++digits) {
        std::snprintf(buffer, sizeof(buffer), "%.*g", digits, value);
        if (std::strtod(buffer, nullptr) == value) {
            break;
        }
    }
    return buffer;
}

/// What an object says about itself: words that name class and direction, and numbers between them.
class ShapeText {
public:
    void Word(const std::string& word) {
        m_text += m_text.empty() || word == ";" ? word : " " + word;
        m_words += word + ' ';
    }
    void Number(const std::string& before, double value) {
        m_text += before + NumberText(value);
        m_words += before + '#';
        m_numbers.push_back(value);
    }
    /// A number that is not shown where it is 0.
    void Detail(const std::string& before, double value) {
        m_text += value != 0.0 ? before + NumberText(value) : "";
        m_words += before + '#';
        m_numbers.push_back(value);
    }
    void Point(const QnGePoint& p) {
        m_text += m_text.empty() ? "" : " ";
        m_text += NumberText(p.x) + ',' + NumberText(p.y);
        if (p.z != 0.0) {
            m_text += ',' + NumberText(p.z);
        }
        m_words += "p ";
        m_numbers.insert(m_numbers.end(), {p.x, p.y, p.z});
    }

    const std::string& Text() const { return m_text; }

    bool IsNear(const ShapeText& other, double tolerance) const {
        if (m_words != other.m_words) {
            return false;
        }
        for (std::size_t i = 0; i < m_numbers.size(); ++i) {
            const double gap = std::fabs(m_numbers[i] - other.m_numbers[i]);
            if (!(gap <= tolerance) && m_numbers[i] != other.m_numbers[i]) {
                return false;
            }
        }
        return true;
    }

private:
    std::string m_text;
    std::string m_words;
    std::vector<double> m_numbers;
};

void WriteLine(const QnGeLine2d& line, const char* word, ShapeText& text) {
    text.Word(word);
    text.Point(line.basePoint);
    text.Point(line.GetVector());
}

void WriteSegment(const QnGeLineSeg2d& seg, ShapeText& text) {
    text.Word("seg");
    text.Point(seg.basePoint);
    text.Point(seg.GetEndPoint());
}

void WriteCircle(const QnGeCircle2d& circle, ShapeText& text) {
    text.Word("circle");
    text.Point(circle.center);
    text.Number(" r", circle.radius);
    if (circle.HasBit(OBJ_CLOCKWISE)) {
        text.Word("cw");
    }
}

void WriteArc(const QnGeArc2d& arc, ShapeText& text) {
    text.Word("arc");
    text.Point(arc.GetCenter());
    text.Number(" r", arc.GetRadius());
    text.Number(" from ", arc.GetStartAngle());
    text.Number(" sweep ", arc.GetCentralAngle());
    if (arc.GetCircle().HasBit(OBJ_CLOCKWISE)) {
        text.Word("cw");
    }
}

void WriteRing(const QnGeMLine2d& line, ShapeText& text) {
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        text.Point(line.GetVertex(i));
    }
}

void WriteMLine(const QnGeMLine2d& line, ShapeText& text) {
    text.Word("mline");
    WriteRing(line, text);
    if (line.IsClosed()) {
        text.Word("close");
    }
}

void WritePolyline(const QnGePolyline2d& line, ShapeText& text) {
    text.Word("pline");
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        text.Point(line.GetVertex(i));
        text.Detail("@", line.GetBulge(i));
    }
    if (line.IsClosed()) {
        text.Word("close");
    }
}

void WriteObject(const QnGeObject* object, ShapeText& text);

void WriteChain(const QnGeMCurve2d& chain, ShapeText& text) {
    text.Word("chain");
    for (QnGeCurve2d* const* child = chain.GetFirst(); child != nullptr; child = chain.GetNext(child)) {
        if (child != chain.GetFirst()) {
            text.Word("|");
        }
        WriteObject(*child, text);
    }
}

void WritePolygon(const QnGePolygon2d& polygon, ShapeText& text) {
    text.Word("region");
    WriteRing(polygon.Outline(), text);
    for (long i = 1; i < polygon.GetBoundaryNum(); ++i) {
        text.Word("|");
        WriteRing(*polygon.GetBoundary(i), text);
    }
}

void WriteGeneralRegion(const QnGeGeneralRegion2d& region, ShapeText& text) {
    text.Word("general");
    text.Word("region");
    for (long i = 0; i < region.GetBoundaryNum(); ++i) {
        if (i > 0) {
            text.Word("|");
        }
        WriteObject(region.GetBoundary(i), text);
    }
}

void WriteFilled(const QnGeObject& object, ShapeText& text) {
    const QnRxClassInfo* const info = object.GetCI();
    if (info == &QnGePoint2d::s_classInfo) {
        text.Word("point");
        text.Point(static_cast<const QnGePoint2d&>(object));
    } else if (info == &QnGeLine2d::s_classInfo) {
        WriteLine(static_cast<const QnGeLine2d&>(object), "line", text);
    } else if (info == &QnGeLineRay2d::s_classInfo) {
        const QnGeLineRay2d& ray = static_cast<const QnGeLineRay2d&>(object);
        WriteLine(ray, ray.IsReverseRay() ? "ray reversed" : "ray", text);
    } else if (info == &QnGeLineSeg2d::s_classInfo) {
        WriteSegment(static_cast<const QnGeLineSeg2d&>(object), text);
    } else if (info == &QnGeCircle2d::s_classInfo) {
        WriteCircle(static_cast<const QnGeCircle2d&>(object), text);
    } else if (info == &QnGeArc2d::s_classInfo) {
        WriteArc(static_cast<const QnGeArc2d&>(object), text);
    } else if (info == &QnGeMLine2d::s_classInfo) {
        WriteMLine(static_cast<const QnGeMLine2d&>(object), text);
    } else if (info == &QnGePolyline2d::s_classInfo) {
        WritePolyline(static_cast<const QnGePolyline2d&>(object), text);
    } else if (info == &QnGeMCurve2d::s_classInfo) {
        WriteChain(static_cast<const QnGeMCurve2d&>(object), text);
    } else if (object.IsClassOf(&QnGePolygon2d::s_classInfo)) {
        WritePolygon(static_cast<const QnGePolygon2d&>(object), text);
    } else if (info == &QnGeGeneralRegion2d::s_classInfo) {
        WriteGeneralRegion(static_cast<const QnGeGeneralRegion2d&>(object), text);
    } else {
        text.Word(std::string("<") + info->GetName() + ">");
    }
}

void WriteObject(const QnGeObject* object, ShapeText& text) {
    if (object == nullptr) {
        text.Word("null");
    } else {
        WriteFilled(*object, text);
    }
}

ShapeText ListText(const QnGeObjList& list) {
    ShapeText text;
    for (long i = 0; i < list.GetLength(); ++i) {
        if (i > 0) {
            text.Word(";");
        }
        WriteObject(list.GetPData(i), text);
    }
    return text;
}

ShapeText ObjectText(const QnGeObject& object) {
    ShapeText text;
    WriteFilled(object, text);
    return text;
}

}  // namespace

std::string ToText(const QnGeObject& object) {
    return ObjectText(object).Text();
}

std::string ToText(const QnGeObject* object) {
    return object == nullptr ? "null" : ToText(*object);
}

std::string PointToText(const QnGePoint& point) {
    ShapeText text;
    text.Point(point);
    return text.Text();
}

std::string ToText(const QnGeObjList& list) {
    return ListText(list).Text();
}

bool IsNearGeo(const QnGeObject& a, const QnGeObject& b, double tolerance) {
    return ObjectText(a).IsNear(ObjectText(b), tolerance);
}

bool IsNearGeo(const QnGeObjList& a, const QnGeObjList& b, double tolerance) {
    return ListText(a).IsNear(ListText(b), tolerance);
}
