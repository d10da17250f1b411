// SPDX-License-Identifier: Apache-2.0
// SvgPicture.cpp: objects become outlines here; SvgPicture_Page.cpp lays them out and writes them.
#include "support/SvgPicture.h"

#include <fstream>
#include <memory>
#include <stdexcept>
#include <utility>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"

SvgPicture::SvgPicture(const std::string& title, const std::string& note) : m_title(title), m_note(note) {}

SvgPicture& SvgPicture::Columns(int count) {
    m_columns = count;
    return *this;
}

SvgPicture& SvgPicture::PanelShape(double heightByWidth) {
    m_panelShape = heightByWidth;
    return *this;
}

SvgPicture& SvgPicture::Legend(SvgRole role, const std::string& text) {
    m_legend.push_back({role, text});
    return *this;
}

SvgPicture& SvgPicture::ScaleBar(double length, const std::string& text) {
    m_barLength = length;
    m_barText = text;
    return *this;
}

SvgPicture& SvgPicture::Panel(const std::string& caption) {
    m_panels.push_back({caption, {}, {}});
    return *this;
}

SvgPicture& SvgPicture::Focus(const QnGeExtent2d& box) {
    CurrentPanel().focus = {{box.x.min, box.y.min, 0.0}, {box.x.max, box.y.max, 0.0}};
    return *this;
}

SvgPicture& SvgPicture::Draw(const QnGeObject& object, SvgRole role) {
    if (const auto* point = dynamic_cast<const QnGePoint2d*>(&object)) {
        return Dot(*point, role);
    }
    const bool isArea = dynamic_cast<const QnGeRegion2d*>(&object) != nullptr;
    Item item{isArea ? Kind::Area : Kind::Curve, role, m_arrows, {}, "", ""};
    if (AppendPaths(object, item.paths)) {
        CurrentPanel().items.push_back(item);
    }
    return *this;
}

SvgPicture& SvgPicture::Draw(const QnGeObjList& objects, SvgRole role) {
    for (long i = 0; i < objects.GetLength(); ++i) {
        if (const QnGeObject* object = objects.GetAt(i)) {
            Draw(*object, role);
        }
    }
    return *this;
}

SvgPicture& SvgPicture::Dot(const QnGePoint& point, SvgRole role, const std::string& label) {
    AddPoint(Kind::Dot, role, point, label);
    return *this;
}

SvgPicture& SvgPicture::Face(const std::vector<QnGePoint>& corners, const std::string& colour,
                             const std::string& edge) {
    Path path;
    path.closed = true;
    for (const QnGePoint& corner : corners) {
        path.nodes.push_back({corner.x, corner.y, 0.0});
    }
    CurrentPanel().items.push_back({Kind::Face, SvgRole::Plain, false, {path}, colour, edge.empty() ? colour : edge});
    return *this;
}

SvgPicture& SvgPicture::Label(const QnGePoint& centre, const std::string& text) {
    AddPoint(Kind::Label, SvgRole::Plain, centre, text);
    return *this;
}

SvgPicture& SvgPicture::Arrows(bool on) {
    m_arrows = on;
    return *this;
}

void SvgPicture::Save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary);
    file << Text();
    file.close();
    if (!file) {
        throw std::runtime_error(path + ": the picture cannot be written");
    }
}

SvgPicture::PanelData& SvgPicture::CurrentPanel() {
    if (m_panels.empty()) {
        m_panels.emplace_back();
    }
    return m_panels.back();
}

void SvgPicture::AddPoint(Kind kind, SvgRole role, const QnGePoint& point, const std::string& text) {
    Path path;
    path.nodes.push_back({point.x, point.y, 0.0});
    CurrentPanel().items.push_back({kind, role, false, {path}, text, ""});
}

SvgPicture::Path SvgPicture::MakePath(const QnGeMLine2d& line) {
    const auto* bulged = dynamic_cast<const QnGePolyline2d*>(&line);
    Path path;
    path.closed = line.IsClosed();
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        const bool isArc = bulged != nullptr && bulged->IsArcSeg(i);
        path.nodes.push_back({line[i].x, line[i].y, isArc ? bulged->GetBulge(i) : 0.0});
    }
    return path;
}

/// Appends the outlines of `object`; false if it has none.
bool SvgPicture::AppendPaths(const QnGeObject& object, std::vector<Path>& paths) {
    if (const auto* region = dynamic_cast<const QnGeRegion2d*>(&object)) {
        for (long i = 0; i < region->GetBoundaryNum(); ++i) {
            if (const QnGeCurve2d* boundary = region->GetBoundary(i)) {
                AppendPaths(*boundary, paths);
            }
        }
        return !paths.empty();
    }
    if (const auto* line = dynamic_cast<const QnGeMLine2d*>(&object)) {
        paths.push_back(MakePath(*line));
        return true;
    }
    if (const auto* arc = dynamic_cast<const QnGeArc2d*>(&object)) {
        paths.push_back(MakePath(QnGePolyline2d(*arc)));
        return true;
    }
    if (const auto* circle = dynamic_cast<const QnGeCircle2d*>(&object)) {
        paths.push_back(MakePath(QnGePolyline2d(*circle)));
        return true;
    }
    if (const auto* line = dynamic_cast<const QnGeLine2d*>(&object)) {
        const QnGePoint& base = line->basePoint;
        Path path;
        path.nodes = {{base.x, base.y, 0.0}, {base.x + line->GetVector().x, base.y + line->GetVector().y, 0.0}};
        path.endlessStart = !line->IsFinite(true);
        path.endlessEnd = !line->IsFinite(false);
        if (path.endlessStart && !path.endlessEnd) {
            std::swap(path.nodes[0], path.nodes[1]);  // a reversed ray comes along its vector to its base
        }
        paths.push_back(path);
        return true;
    }
    if (const auto* curve = dynamic_cast<const QnGeCurve2d*>(&object)) {
        const std::unique_ptr<QnGeMLine2d> chords(curve->MLinearize(0.0));
        if (chords != nullptr) {
            paths.push_back(MakePath(*chords));
            return true;
        }
    }
    return false;
}
