// SPDX-License-Identifier: Apache-2.0
// SvgPicture_Page.cpp: the layout of a picture and its SVG text.
//
// Phases     1  Measure   the box of each panel's contents or focus; lines without ends do not count.
//            2  Arrange   panels of one size, row by row; each scales its contents to fit, the same in x and y.
//            3  Write     title, legend, then per panel: frame, contents clipped to it, scale bar, caption.
// Why so     Coordinates are written in page units with two digits, y turned round here and not by a transform, so that
//            strokes, arrows and letters keep their size at any scale of the contents.
// Cost       Straight vertices closer than THINNING page units to the one before are left out, and outlines that are
//            smaller than that altogether: an outline of 100,000 vertices is a few kilobytes in a small panel.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <sstream>

#include "support/SvgPicture.h"

namespace {

constexpr double PAGE_WIDTH = 1000.0;
constexpr double MARGIN = 30.0;
constexpr double PANEL_GAP = 14.0;
constexpr double PANEL_PADDING = 0.045;  // of the panel's width
constexpr double TITLE_HEIGHT = 34.0;
constexpr double NOTE_HEIGHT = 20.0;
constexpr double LEGEND_HEIGHT = 26.0;
constexpr double CAPTION_LINE_HEIGHT = 14.5;
constexpr double LETTER_WIDTH = 7.6;  // a generous mean at 13 units
constexpr double THINNING = 0.3;
constexpr double MIN_PANEL_SHAPE = 0.3;
constexpr double PI = 3.14159265358979323846;
constexpr int EXTENT_STEPS = 32;
constexpr int ARROWS_PER_PATH = 6;

struct RoleStyle {
    const char* stroke;
    const char* fill;
    const char* opacity;
};

/// Colours that also people with one of the common colour blindnesses tell apart.
RoleStyle StyleOf(SvgRole role) {
    switch (role) {
        case SvgRole::A:
            return {"#1f5fa8", "#4a90d9", "0.38"};
        case SvgRole::B:
            return {"#b86a00", "#f0a030", "0.42"};
        case SvgRole::Result:
            return {"#00694c", "#19a67c", "0.62"};
        case SvgRole::Mark:
            return {"#c22a1c", "#e4572e", "0.75"};
        default:
            return {"#7d8590", "#c9ced6", "0.45"};
    }
}

std::string Escape(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

/// At most two digits behind the point, none that say nothing.
std::string Number(double value) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.2f", value);
    std::string text = buffer;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string Pair(double x, double y) {
    return Number(x) + " " + Number(y);
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

struct Box {
    double xmin = std::numeric_limits<double>::infinity();
    double ymin = std::numeric_limits<double>::infinity();
    double xmax = -std::numeric_limits<double>::infinity();
    double ymax = -std::numeric_limits<double>::infinity();

    void Add(double x, double y) {
        xmin = std::min(xmin, x);
        ymin = std::min(ymin, y);
        xmax = std::max(xmax, x);
        ymax = std::max(ymax, y);
    }
    bool IsEmpty() const { return !(xmin <= xmax && ymin <= ymax); }
    double Width() const { return xmax - xmin; }
    double Height() const { return ymax - ymin; }
};

}  // namespace

/// Lays a picture out and writes it.
class SvgPage {
public:
    explicit SvgPage(const SvgPicture& picture) : m_picture(picture) {}

    std::string Write();

private:
    using Node = SvgPicture::Node;
    using Path = SvgPicture::Path;
    using Item = SvgPicture::Item;
    using Kind = SvgPicture::Kind;
    using PanelData = SvgPicture::PanelData;

    /// From model to page coordinates, and the panel's place on the page.
    struct View {
        double left, top, width, height;
        double scale, centreX, centreY;

        double X(double x) const { return left + width / 2.0 + (x - centreX) * scale; }
        double Y(double y) const { return top + height / 2.0 - (y - centreY) * scale; }
    };

    static Box Measure(const PanelData& panel);
    static void AddPiece(const Node& from, const Node& to, Box& box);
    void Arrange();
    View MakeView(const PanelData& panel, std::size_t index) const;

    void WriteHead();
    void WriteLegend(double y);
    void WritePanel(const PanelData& panel, std::size_t index);
    void WriteItem(const Item& item, const View& view);
    void WriteArrows(const Path& path, SvgRole role, const View& view);
    void WriteDot(const Item& item, const View& view);
    void WriteScaleBar(const View& view);
    void WriteText(double x, double y, const std::string& text, const std::string& attributes);
    static std::string PathData(const Path& path, const View& view);
    static void AppendPiece(const Node& from, const Node& to, const View& view, std::string& data);
    static void Prolong(const Path& path, const View& view, Node& from, Node& to);

    const SvgPicture& m_picture;
    std::ostringstream m_out;
    std::size_t m_columns = 1;
    double m_panelWidth = 0.0;
    double m_panelHeight = 0.0;
    double m_captionHeight = 0.0;
    double m_top = 0.0;     ///< where the panels begin
    double m_height = 0.0;  ///< of the page
};

std::string SvgPicture::Text() const {
    return SvgPage(*this).Write();
}

// ---- measure and arrange -------------------------------------------------------------------------

void SvgPage::AddPiece(const Node& from, const Node& to, Box& box) {
    box.Add(from.x, from.y);
    box.Add(to.x, to.y);
    if (from.bulge == 0.0) {
        return;
    }
    // Walk round the centre, which lies on the left of the chord for a counter-clockwise arc below half a turn.
    const double half = from.bulge / 2.0;
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double offset = 0.5 / std::tan(half);
    const double centreX = from.x + dx / 2.0 - dy * offset;
    const double centreY = from.y + dy / 2.0 + dx * offset;
    for (int i = 1; i < EXTENT_STEPS; ++i) {
        const double angle = from.bulge * i / EXTENT_STEPS;
        const double rx = from.x - centreX;
        const double ry = from.y - centreY;
        box.Add(centreX + rx * std::cos(angle) - ry * std::sin(angle),
                centreY + rx * std::sin(angle) + ry * std::cos(angle));
    }
}

Box SvgPage::Measure(const PanelData& panel) {
    Box box;
    for (const Node& corner : panel.focus) {
        box.Add(corner.x, corner.y);
    }
    if (!panel.focus.empty()) {
        return box;
    }
    for (const Item& item : panel.items) {
        for (const Path& path : item.paths) {
            const std::size_t count = path.endlessStart || path.endlessEnd ? 0 : path.nodes.size();
            for (std::size_t i = 0; i < count; ++i) {
                const bool hasNext = i + 1 < count || path.closed;
                AddPiece(hasNext ? path.nodes[i] : Node{path.nodes[i].x, path.nodes[i].y, 0.0},
                         hasNext ? path.nodes[(i + 1) % count] : path.nodes[i], box);
            }
        }
    }
    return box;
}

void SvgPage::Arrange() {
    double shape = m_picture.m_panelShape;
    std::size_t captionLines = 0;
    for (const PanelData& panel : m_picture.m_panels) {
        const Box box = Measure(panel);
        if (m_picture.m_panelShape <= 0.0 && !box.IsEmpty() && box.Width() > 0.0) {
            shape = std::max(shape, box.Height() / box.Width());
        }
        captionLines = std::max(captionLines, SplitLines(panel.caption).size());
    }
    if (m_picture.m_panelShape <= 0.0) {
        shape = std::clamp(shape * (1.0 - 2.0 * PANEL_PADDING) + 2.0 * PANEL_PADDING, MIN_PANEL_SHAPE, 1.0);
    }
    m_columns = static_cast<std::size_t>(std::max(1, m_picture.m_columns));
    const double columns = static_cast<double>(m_columns);
    m_panelWidth = (PAGE_WIDTH - 2.0 * MARGIN - (columns - 1.0) * PANEL_GAP) / columns;
    m_panelHeight = m_panelWidth * shape;
    m_captionHeight = captionLines == 0 ? 0.0 : 5.0 + static_cast<double>(captionLines) * CAPTION_LINE_HEIGHT;

    m_top = MARGIN + TITLE_HEIGHT + static_cast<double>(SplitLines(m_picture.m_note).size()) * NOTE_HEIGHT;
    m_top += m_picture.m_legend.empty() ? 0.0 : LEGEND_HEIGHT;
    const std::size_t rows = (std::max<std::size_t>(1, m_picture.m_panels.size()) + m_columns - 1) / m_columns;
    m_height = m_top + static_cast<double>(rows) * (m_panelHeight + m_captionHeight + PANEL_GAP) - PANEL_GAP + MARGIN;
}

SvgPage::View SvgPage::MakeView(const PanelData& panel, std::size_t index) const {
    View view{};
    view.left = MARGIN + static_cast<double>(index % m_columns) * (m_panelWidth + PANEL_GAP);
    view.top = m_top + static_cast<double>(index / m_columns) * (m_panelHeight + m_captionHeight + PANEL_GAP);
    view.width = m_panelWidth;
    view.height = m_panelHeight;
    view.scale = 1.0;
    const Box box = Measure(panel);
    if (box.IsEmpty()) {
        return view;
    }
    const double padding = 2.0 * PANEL_PADDING * m_panelWidth;
    const double scaleX = (m_panelWidth - padding) / std::max(box.Width(), 1e-300);
    const double scaleY = (m_panelHeight - padding) / std::max(box.Height(), 1e-300);
    const bool isPoint = box.Width() <= 0.0 && box.Height() <= 0.0;
    view.scale = isPoint ? 1.0 : std::min(scaleX, scaleY);
    view.centreX = (box.xmin + box.xmax) / 2.0;
    view.centreY = (box.ymin + box.ymax) / 2.0;
    return view;
}

// ---- write ---------------------------------------------------------------------------------------

std::string SvgPage::Write() {
    Arrange();
    WriteHead();
    for (std::size_t i = 0; i < m_picture.m_panels.size(); ++i) {
        WritePanel(m_picture.m_panels[i], i);
    }
    m_out << "</svg>\n";
    return m_out.str();
}

void SvgPage::WriteText(double x, double y, const std::string& text, const std::string& attributes) {
    m_out << "<text x=\"" << Number(x) << "\" y=\"" << Number(y) << "\" " << attributes << ">" << Escape(text)
          << "</text>\n";
}

void SvgPage::WriteHead() {
    m_out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << Number(PAGE_WIDTH) << "\" height=\""
          << Number(m_height) << "\" viewBox=\"0 0 " << Number(PAGE_WIDTH) << " " << Number(m_height)
          << "\" font-family=\"DejaVu Sans, Verdana, sans-serif\">\n";
    m_out << "<title>" << Escape(m_picture.m_title) << "</title>\n";
    m_out << "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
    WriteText(MARGIN, MARGIN + 16.0, m_picture.m_title, "font-size=\"22\" font-weight=\"bold\" fill=\"#22262b\"");
    double y = MARGIN + TITLE_HEIGHT + 6.0;
    for (const std::string& line : SplitLines(m_picture.m_note)) {
        WriteText(MARGIN, y, line, "font-size=\"13\" fill=\"#5c646e\"");
        y += NOTE_HEIGHT;
    }
    WriteLegend(y);
}

void SvgPage::WriteLegend(double y) {
    double x = MARGIN;
    for (const SvgPicture::LegendEntry& entry : m_picture.m_legend) {
        const RoleStyle style = StyleOf(entry.role);
        m_out << "<rect x=\"" << Number(x) << "\" y=\"" << Number(y - 11.0)
              << "\" width=\"20\" height=\"13\" rx=\"2.5\" fill=\"" << style.fill << "\" fill-opacity=\""
              << style.opacity << "\" stroke=\"" << style.stroke << "\"/>\n";
        WriteText(x + 27.0, y, entry.text, "font-size=\"13\" fill=\"#363c44\"");
        x += 27.0 + LETTER_WIDTH * static_cast<double>(entry.text.size()) + 22.0;
    }
}

void SvgPage::WritePanel(const PanelData& panel, std::size_t index) {
    const View view = MakeView(panel, index);
    const std::string frame = "x=\"" + Number(view.left) + "\" y=\"" + Number(view.top) + "\" width=\"" +
                              Number(view.width) + "\" height=\"" + Number(view.height) + "\" rx=\"4\"";
    m_out << "<clipPath id=\"panel" << index << "\"><rect " << frame << "/></clipPath>\n";
    m_out << "<rect " << frame << " fill=\"#f7f8fa\" stroke=\"#dfe3e8\"/>\n";
    m_out << "<g clip-path=\"url(#panel" << index << ")\" stroke-linejoin=\"round\" stroke-linecap=\"round\">\n";
    for (const Item& item : panel.items) {
        WriteItem(item, view);
    }
    WriteScaleBar(view);
    m_out << "</g>\n";
    double y = view.top + view.height + 5.0;
    for (const std::string& line : SplitLines(panel.caption)) {
        y += CAPTION_LINE_HEIGHT;
        WriteText(view.left + 2.0, y - 3.0, line, "font-size=\"11\" fill=\"#363c44\"");
    }
}

void SvgPage::WriteItem(const Item& item, const View& view) {
    const RoleStyle style = StyleOf(item.role);
    const double strokeWidth = m_columns == 1 ? 1.3 : (m_columns < 4 ? 1.0 : 0.7);
    if (item.kind == Kind::Dot) {
        WriteDot(item, view);
        return;
    }
    if (item.kind == Kind::Label) {
        WriteText(view.X(item.paths[0].nodes[0].x), view.Y(item.paths[0].nodes[0].y) + 5.0, item.text,
                  "font-size=\"14\" text-anchor=\"middle\" fill=\"#22262b\" stroke=\"#ffffff\" stroke-width=\"3\" "
                  "stroke-opacity=\"0.75\" paint-order=\"stroke\"");
        return;
    }
    std::string data;
    for (const Path& path : item.paths) {
        data += PathData(path, view);
    }
    if (item.kind == Kind::Face) {
        if (!data.empty()) {
            m_out << "<path d=\"" << data << "\" fill=\"" << item.text << "\" stroke=\"" << item.edge
                  << "\" stroke-width=\"0.5\"/>\n";
        }
        return;
    }
    if (!data.empty()) {
        m_out << "<path d=\"" << data << "\" stroke=\"" << style.stroke << "\" stroke-width=\"" << Number(strokeWidth)
              << "\" ";
        if (item.kind == Kind::Area) {
            m_out << "fill=\"" << style.fill << "\" fill-opacity=\"" << style.opacity << "\" fill-rule=\"evenodd\"/>\n";
        } else {
            m_out << "fill=\"none\"/>\n";
        }
    }
    if (item.arrows) {
        for (const Path& path : item.paths) {
            WriteArrows(path, item.role, view);
        }
    }
}

/// Moves those ends that are marked as endless along the line to beyond the panel.
void SvgPage::Prolong(const Path& path, const View& view, Node& from, Node& to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::hypot(dx, dy);
    if (!(path.endlessStart || path.endlessEnd) || length <= 0.0) {
        return;
    }
    const double toCentre = std::hypot(view.centreX - from.x, view.centreY - from.y);
    const double reach = (toCentre + length + (view.width + view.height) / view.scale) / length;
    const Node base = from;
    if (path.endlessStart) {
        from = {base.x - dx * reach, base.y - dy * reach, 0.0};
    }
    if (path.endlessEnd) {
        to = {base.x + dx * reach, base.y + dy * reach, 0.0};
    }
}

std::string SvgPage::PathData(const Path& path, const View& view) {
    std::vector<Node> nodes = path.nodes;
    const std::size_t count = nodes.size();
    if (count < 2) {
        return "";
    }
    Prolong(path, view, nodes[0], nodes[1]);
    if (path.closed) {
        nodes.push_back(nodes[0]);
    }
    std::string data = "M" + Pair(view.X(nodes[0].x), view.Y(nodes[0].y));
    const std::string start = data;
    Node last = nodes[0];
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const bool isStraight = nodes[i - 1].bulge == 0.0;
        const double step = std::max(std::fabs(nodes[i].x - last.x), std::fabs(nodes[i].y - last.y)) * view.scale;
        const bool isEnd = i + 1 == nodes.size();
        const bool isThin = isStraight && step < THINNING && (isEnd ? path.closed : nodes[i].bulge == 0.0);
        if (isThin) {
            continue;
        }
        if (isStraight && path.closed && isEnd) {
            break;  // Z draws it
        }
        AppendPiece(nodes[i - 1], nodes[i], view, data);
        last = nodes[i];
    }
    if (data == start) {
        return "";
    }
    return path.closed ? data + "Z" : data;
}

/// A line or arc to `to`. An arc beyond half a turn goes in two halves: a short chord says too little about its circle.
void SvgPage::AppendPiece(const Node& from, const Node& to, const View& view, std::string& data) {
    if (from.bulge == 0.0) {
        data += "L" + Pair(view.X(to.x), view.Y(to.y));
        return;
    }
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    if (std::fabs(from.bulge) > PI) {
        const double bow = std::tan(from.bulge / 4.0) / 2.0;
        const Node middle{from.x + dx / 2.0 + dy * bow, from.y + dy / 2.0 - dx * bow, from.bulge / 2.0};
        AppendPiece({from.x, from.y, from.bulge / 2.0}, middle, view, data);
        AppendPiece(middle, to, view, data);
        return;
    }
    const double radius = std::hypot(dx, dy) / 2.0 / std::sin(std::fabs(from.bulge) / 2.0) * view.scale;
    // y points down on the page: counter-clockwise is the direction of falling angles there.
    data += "A" + Number(radius) + " " + Number(radius) + " 0 0 " + (from.bulge > 0.0 ? "0 " : "1 ") +
            Pair(view.X(to.x), view.Y(to.y));
}

void SvgPage::WriteArrows(const Path& path, SvgRole role, const View& view) {
    const std::size_t count = path.nodes.size();
    const std::size_t pieces = path.closed ? count : (count == 0 ? 0 : count - 1);
    const std::size_t step = std::max<std::size_t>(1, pieces / ARROWS_PER_PATH);
    for (std::size_t i = step / 2; i < pieces; i += step) {
        const Node& from = path.nodes[i];
        const Node& to = path.nodes[(i + 1) % count];
        const double dx = to.x - from.x;
        const double dy = to.y - from.y;
        const double length = std::hypot(dx, dy);
        if (length <= 0.0) {
            continue;
        }
        const double bow = std::tan(from.bulge / 4.0) / 2.0;
        const double x = view.X(from.x + dx / 2.0 + dy * bow);
        const double y = view.Y(from.y + dy / 2.0 - dx * bow);
        const double ux = dx / length;
        const double uy = -dy / length;
        const double size = m_columns == 1 ? 6.0 : 4.0;
        m_out << "<path class=\"arrow\" d=\"M" << Pair(x + ux * size, y + uy * size) << "L"
              << Pair(x - (ux - uy * 0.6) * size, y - (uy + ux * 0.6) * size) << "L"
              << Pair(x - (ux + uy * 0.6) * size, y - (uy - ux * 0.6) * size) << "Z\" fill=\"" << StyleOf(role).stroke
              << "\"/>\n";
    }
}

void SvgPage::WriteDot(const Item& item, const View& view) {
    const RoleStyle style = StyleOf(item.role);
    const double x = view.X(item.paths[0].nodes[0].x);
    const double y = view.Y(item.paths[0].nodes[0].y);
    const double radius = m_columns == 1 ? 4.2 : (m_columns < 4 ? 3.0 : 2.0);
    m_out << "<circle cx=\"" << Number(x) << "\" cy=\"" << Number(y) << "\" r=\"" << Number(radius) << "\" fill=\""
          << style.stroke << "\" stroke=\"#ffffff\" stroke-width=\"1\"/>\n";
    if (!item.text.empty()) {
        // On the side that has room.
        const bool isRight = x > view.left + view.width * 0.75;
        WriteText(x + (isRight ? -8.0 : 8.0), y + 4.5, item.text,
                  std::string("font-size=\"13\" text-anchor=\"") + (isRight ? "end" : "start") +
                      "\" fill=\"#22262b\" stroke=\"#ffffff\" stroke-width=\"3\" stroke-opacity=\"0.75\" "
                      "paint-order=\"stroke\"");
    }
}

void SvgPage::WriteScaleBar(const View& view) {
    const double length = m_picture.m_barLength * view.scale;
    if (length <= 0.0) {
        return;
    }
    const double x = view.left + 16.0;
    const double y = view.top + view.height - 16.0;
    m_out << "<path d=\"M" << Pair(x, y - 4.0) << "L" << Pair(x, y) << "L" << Pair(x + length, y) << "L"
          << Pair(x + length, y - 4.0) << "\" stroke=\"#363c44\" stroke-width=\"1.4\" fill=\"none\"/>\n";
    WriteText(x + length + 8.0, y + 1.0, m_picture.m_barText, "font-size=\"12\" fill=\"#363c44\"");
}
