// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

class QnGeExtent2d;
class QnGeMLine2d;
class QnGeObjList;
class QnGeObject;
class QnGePoint;

/// What an object is in its picture; each role has its colour.
enum class SvgRole {
    A,       ///< first operand: blue
    B,       ///< second operand: orange
    Result,  ///< green
    Mark,    ///< what to look at: red
    Plain    ///< context: grey
};

/// A picture of geometry as an SVG file, for tests and examples.
///
///     SvgPicture("Union").Draw(a, SvgRole::A).Draw(b, SvgRole::B).Draw(*result, SvgRole::Result).Save("union.svg");
///
/// Arcs are drawn as arcs, y points up, regions are filled with their holes left open, lines and rays run to the edge
/// of their panel. A picture may have several panels, each with its own scale.
///
/// Order      Later objects lie on top of earlier ones.
/// Ownership  Nothing is kept of what is drawn: objects are copied into the picture as outlines.
/// Fails      Objects without a form in the plan are left out.
class SvgPicture {
public:
    explicit SvgPicture(const std::string& title, const std::string& note = "");

    // ---- page ------------------------------------------------------------------------------------

    /// Panels side by side; 1 until set.
    SvgPicture& Columns(int count);
    /// Height of the panels as a part of their width. Until set it is that of the tallest contents, at most 1.
    SvgPicture& PanelShape(double heightByWidth);
    SvgPicture& Legend(SvgRole role, const std::string& text);
    /// A bar of `length` model units in the lower left corner of every panel.
    SvgPicture& ScaleBar(double length, const std::string& text);
    /// What is drawn from here on goes to a new panel. A picture without panels is one panel without caption.
    SvgPicture& Panel(const std::string& caption);
    /// The part of the model that the current panel shows; all of its contents until set.
    SvgPicture& Focus(const QnGeExtent2d& box);

    // ---- contents --------------------------------------------------------------------------------

    /// Regions are filled, curves drawn as lines, points as dots.
    SvgPicture& Draw(const QnGeObject& object, SvgRole role);
    SvgPicture& Draw(const QnGeObjList& objects, SvgRole role);
    SvgPicture& Dot(const QnGePoint& point, SvgRole role, const std::string& label = "");
    /// A face in a colour of its own, such as `#88aa77`, with an edge in another; no edge colour gives its own.
    SvgPicture& Face(const std::vector<QnGePoint>& corners, const std::string& colour, const std::string& edge = "");
    SvgPicture& Label(const QnGePoint& centre, const std::string& text);
    /// Whether the curves and outlines drawn from here on show their direction of travel.
    SvgPicture& Arrows(bool on);

    // ---- result ----------------------------------------------------------------------------------

    /// The whole SVG document.
    std::string Text() const;

    /// Fails  std::runtime_error if the file cannot be written.
    void Save(const std::string& path) const;

private:
    friend class SvgPage;

    struct Node {
        double x;
        double y;
        double bulge;  ///< of the piece that starts here
    };

    /// An outline or curve. An endless one has two nodes and runs on through that end which is marked.
    struct Path {
        std::vector<Node> nodes;
        bool closed = false;
        bool endlessStart = false;
        bool endlessEnd = false;
    };

    enum class Kind { Area, Curve, Dot, Label, Face };

    struct Item {
        Kind kind;
        SvgRole role;
        bool arrows;
        std::vector<Path> paths;
        std::string text;  ///< of a face, its colour
        std::string edge;  ///< colour of a face's edge
    };

    struct PanelData {
        std::string caption;
        std::vector<Item> items;
        std::vector<Node> focus;  ///< two corners, or nothing
    };

    struct LegendEntry {
        SvgRole role;
        std::string text;
    };

    PanelData& CurrentPanel();
    void AddPoint(Kind kind, SvgRole role, const QnGePoint& point, const std::string& text);
    static Path MakePath(const QnGeMLine2d& line);
    static bool AppendPaths(const QnGeObject& object, std::vector<Path>& paths);

    std::string m_title;
    std::string m_note;
    int m_columns = 1;
    double m_panelShape = 0.0;
    double m_barLength = 0.0;
    std::string m_barText;
    bool m_arrows = false;
    std::vector<LegendEntry> m_legend;
    std::vector<PanelData> m_panels;
};
