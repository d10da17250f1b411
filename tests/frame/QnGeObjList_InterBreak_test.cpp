// SPDX-License-Identifier: Apache-2.0
// Breaking a list's curves where they meet: what is cut, what is not, who is asked in which order.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "curves2d/QnGeEArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "support/ContainerCheckers.h"
#include "support/ExpectGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"

namespace {

void ExpectBroken(const std::string& text, const std::string& expected) {
    QnGeObjList list;
    ParseGeoList(text, list);
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, expected);
    EXPECT_EQ(CheckList<QnGeObject*>(out), "");
    ExpectGeoList(list, text, 0.0);
}

void ExpectBrokenOnce(const std::string& text, const std::string& expected) {
    QnGeObjList list;
    ParseGeoList(text, list);
    QnGeObjList out;
    list.InterBreakCurveEx2d(out);
    ExpectGeoList(out, expected);
    EXPECT_EQ(CheckList<QnGeObject*>(out), "");
    ExpectGeoList(list, text, 0.0);
}

/// A segment that notes what it is asked for.
class Witness : public QnGeLineSeg2d {
public:
    Witness(std::vector<std::string>& notes, const std::string& name, const std::string& seg)
        : QnGeLineSeg2d(*ParseGeoAs<QnGeLineSeg2d>(seg)), m_notes(notes), m_name(name) {}

    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override {
        const auto* const witness = dynamic_cast<const Witness*>(&other);
        m_notes.push_back(m_name + " meets " + (witness == nullptr ? "another" : witness->m_name));
        return QnGeLineSeg2d::IntersectWith(other, out);
    }
    bool GetExtent2d(QnGeExtent2d& extent) const override {
        m_notes.push_back("extent of " + m_name);
        return m_hasExtent && QnGeLineSeg2d::GetExtent2d(extent);
    }
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override {
        return m_knowsPoints && QnGeLineSeg2d::GetPaFromPt(pt, pa);
    }
    void Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const override {
        out.Append(nullptr);
        QnGeLineSeg2d::Split(pas, out);
        out.Append(nullptr);
    }

    bool m_hasExtent = true;
    bool m_knowsPoints = true;

private:
    std::vector<std::string>& m_notes;
    std::string m_name;
};

/// A multi-line that knows no parameter of a point.
class DeafLine : public QnGeMLine2d {
public:
    explicit DeafLine(const std::string& text) : QnGeMLine2d(*ParseGeoAs<QnGeMLine2d>(text)) {}
    bool GetPaFromPt(const QnGePoint& /*pt*/, double& /*pa*/) const override { return false; }
};

/// A segment of which no copy can be had.
class Uncopied : public QnGeLineSeg2d {
public:
    using QnGeLineSeg2d::QnGeLineSeg2d;
    QnGeObject* Clone() const override { return nullptr; }
};

}  // namespace

// ---- all crossings -----------------------------------------------------------------------------------

TEST(InterBreak, TwoCrossingSegmentsGiveFourPieces) {
    ExpectBroken("seg 0,0 4,4; seg 0,4 4,0", "seg 0,0 2,2; seg 2,2 4,4; seg 0,4 2,2; seg 2,2 4,0");
}

TEST(InterBreak, SegmentsThatTouchEndToEndStayWhole) {
    ExpectBroken("seg 0,0 2,0; seg 2,0 4,3", "seg 0,0 2,0; seg 2,0 4,3");
}

TEST(InterBreak, ASegmentThatEndsOnAnotherBreaksThatOne) {
    ExpectBroken("seg 0,0 4,0; seg 1,0 1,3", "seg 0,0 1,0; seg 1,0 4,0; seg 1,0 1,3");
}

TEST(InterBreak, CollinearSegmentsAreBrokenAtTheEndsOfTheirOverlap) {
    ExpectBroken("seg 0,0 4,0; seg 6,0 2,0", "seg 0,0 2,0; seg 2,0 4,0; seg 6,0 4,0; seg 4,0 2,0");
}

TEST(InterBreak, CollinearSegmentsApartStayWhole) {
    ExpectBroken("seg 0,0 1,0; seg 2,0 3,0", "seg 0,0 1,0; seg 2,0 3,0");
}

TEST(InterBreak, AnInfiniteLineIsBrokenAgainstAllOthers) {
    ExpectBroken("line 0,0 1,0; seg 100,-1 100,1; seg -50,-2 -50,2",
                 "ray -50,0 -1,0; seg -50,0 100,0; ray 100,0 1,0; seg 100,-1 100,0; seg 100,0 100,1; "
                 "seg -50,-2 -50,0; seg -50,0 -50,2");
}

TEST(InterBreak, ALineBehindTheOthersIsBrokenAgainstAllOfThemToo) {
    ExpectBroken("seg 100,-1 100,1; line 0,0 1,0", "seg 100,-1 100,0; seg 100,0 100,1; ray 100,0 -1,0; ray 100,0 1,0");
}

TEST(InterBreak, ACircleOpensAtItsOneTouch) {
    QnGeObjList list;
    ParseGeoList("circle 0,0 r2; seg 2,-3 2,3", list);
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "arc 0,0 r2 from 0 sweep 2pi; seg 2,-3 2,0; seg 2,0 2,3");
}

TEST(InterBreak, CirclesThatCrossAreTwoArcsEach) {
    QnGeObjList list;
    ParseGeoList("circle 0,0 r5; circle 8,0 r5", list);
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ASSERT_EQ(out.GetLength(), 4);
    double length = 0.0;
    for (out.MoveToFirst(); !out.IsOut(); out.MoveToNext()) {
        EXPECT_EQ(out.GetCurPData()->GetClassID(), CLASS_ID_ARC2D);
        length += out.GetCurCurve2D().Length();
    }
    EXPECT_NEAR(length, 2.0 * 2.0 * QN_PI * 5.0, 1e-9);
}

TEST(InterBreak, AnOverlapWithoutEndsBreaksNothing) {
    ExpectBroken("circle 0,0 r2; circle 0,0 r2", "circle 0,0 r2; circle 0,0 r2");
}

TEST(InterBreak, AnArcOnACircleBreaksItAtItsEnds) {
    ExpectBroken("circle 0,0 r2; arc 0,0 r2 from pi/2 sweep pi/2",
                 "arc 0,0 r2 from pi/2 sweep pi/2; arc 0,0 r2 from pi sweep 3pi/2; arc 0,0 r2 from pi/2 sweep pi/2");
}

TEST(InterBreak, ManyThroughOnePointGiveTwoPiecesEach) {
    ExpectBroken("seg -1,0 1,0; seg 0,-1 0,1; seg -1,-1 1,1",
                 "seg -1,0 0,0; seg 0,0 1,0; seg 0,-1 0,0; seg 0,0 0,1; seg -1,-1 0,0; seg 0,0 1,1");
}

TEST(InterBreak, AMultiLineIsBrokenWhereOthersCrossIt) {
    ExpectBroken(
        "mline 0,0 4,0 4,4; seg 2,-1 2,1; seg 3,2 5,2",
        "mline 0,0 2,0; mline 2,0 4,0 4,2; mline 4,2 4,4; seg 2,-1 2,0; seg 2,0 2,1; seg 3,2 4,2; seg 4,2 5,2");
}

/// Kept odd: pairs are of different members.
TEST(InterBreak, AMultiLineThatCrossesItselfStaysWhole) {
    ExpectBroken("mline 0,0 4,0 4,2 2,2 2,-2", "mline 0,0 4,0 4,2 2,2 2,-2");
}

/// Kept odd: a point that a line passes twice has one parameter there, that of the first pass.
TEST(InterBreak, WhereALinePassesTwiceTheFirstPassIsCut) {
    ExpectBroken("mline 0,0 4,0 4,2 2,2 2,-2; seg 1,-1 3,1",
                 "mline 0,0 2,0; mline 2,0 4,0 4,2 2,2 2,-2; seg 1,-1 2,0; seg 2,0 3,1");
}

TEST(InterBreak, OfNothingIsNothing) {
    ExpectBroken("", "");
    ExpectBroken("seg 0,0 1,0", "seg 0,0 1,0");
    ExpectBrokenOnce("", "");
    ExpectBrokenOnce("seg 0,0 1,0", "seg 0,0 1,0");
}

TEST(InterBreak, WhatIsNoCurveIsClonedAndCutsNothing) {
    const std::string text = "seg 0,0 4,0; point 2,0; region 1,-1 3,-1 3,1 1,1";
    ExpectBroken(text, text);
    ExpectBrokenOnce(text, text);
}

TEST(InterBreak, EmptyEntriesAreLeftOut) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(ParseGeo("seg 0,0 4,0").release());
    list.Append(nullptr);
    list.Append(ParseGeo("seg 2,-1 2,1").release());
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "seg 0,0 2,0; seg 2,0 4,0; seg 2,-1 2,0; seg 2,0 2,1");
    QnGeObjList once;
    list.InterBreakCurveEx2d(once);
    ExpectGeoList(once, "seg 0,0 2,0; seg 2,0 4,0; seg 2,-1 2,0; seg 2,0 2,1");
}

TEST(InterBreak, WhatCannotBeClonedIsLeftOut) {
    QnGeObjList list;
    list.Append(new QnGeSpline2d());
    list.Append(new QnGeEArc2d());
    list.Append(new Uncopied(QnGePoint(0.0, 5.0), QnGePoint(1.0, 5.0)));
    list.Append(ParseGeo("seg 0,0 4,0").release());
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "seg 0,0 4,0");
    QnGeObjList once;
    list.InterBreakCurveEx2d(once);
    ExpectGeoList(once, "seg 0,0 4,0");
}

TEST(InterBreak, AppendsToWhatIsThere) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 2,-1 2,1", list);
    QnGeObjList out;
    ParseGeoList("point 9,9", out);
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "point 9,9; seg 0,0 2,0; seg 2,0 4,0; seg 2,-1 2,0; seg 2,0 2,1");
}

TEST(InterBreak, AListMayBeBrokenIntoItself) {
    const std::string members = "seg 0,0 4,0; seg 2,-1 2,1";
    const std::string pieces = "seg 0,0 2,0; seg 2,0 4,0; seg 2,-1 2,0; seg 2,0 2,1";
    QnGeObjList list;
    ParseGeoList(members, list);
    list.InterBreakCurve2d(list);
    ExpectGeoList(list, members + "; " + pieces);
    QnGeObjList other;
    ParseGeoList(members, other);
    other.InterBreakCurveEx2d(other);
    ExpectGeoList(other, members + "; " + pieces);
}

TEST(InterBreak, TheCursorOfTheListStays) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 2,-1 2,1; seg 9,9 8,8", list);
    list.MoveTo(1);
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    list.InterBreakCurveEx2d(out);
    EXPECT_EQ(list.GetCur(), 1);
}

// ---- who is asked ------------------------------------------------------------------------------------

TEST(InterBreak, TheLaterMemberReceivesAndExtentsAreAskedOnce) {
    std::vector<std::string> notes;
    QnGeObjList list;
    list.Append(new Witness(notes, "a", "seg 0,0 4,0"));
    list.Append(new Witness(notes, "b", "seg 2,-1 2,1"));
    list.Append(new Witness(notes, "c", "seg 3,-1 3,1"));
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    EXPECT_EQ(notes, (std::vector<std::string>{"extent of a", "extent of b", "extent of c", "c meets a", "b meets a"}));
    ExpectGeoList(out, "seg 0,0 2,0; seg 2,0 3,0; seg 3,0 4,0; seg 2,-1 2,0; seg 2,0 2,1; seg 3,-1 3,0; seg 3,0 3,1");
}

TEST(InterBreak, AMemberWithoutExtentMeetsAll) {
    std::vector<std::string> notes;
    QnGeObjList list;
    auto* const first = new Witness(notes, "a", "seg 0,0 4,0");
    auto* const last = new Witness(notes, "c", "seg 30,-1 30,1");
    first->m_hasExtent = false;
    list.Append(first);
    list.Append(new Witness(notes, "b", "seg 20,-1 20,1"));
    list.Append(last);
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    notes.erase(notes.begin(), notes.begin() + 3);
    EXPECT_EQ(notes, (std::vector<std::string>{"c meets a", "b meets a"}));
    first->m_hasExtent = true;
    last->m_hasExtent = false;
    notes.clear();
    list.InterBreakCurve2d(out);
    notes.erase(notes.begin(), notes.begin() + 3);
    EXPECT_EQ(notes, (std::vector<std::string>{"c meets a", "c meets b"}));
}

TEST(InterBreak, BoxesThatTouchWithinTheToleranceAreLookedAt) {
    std::vector<std::string> notes;
    QnGeObjList list;
    list.Append(new Witness(notes, "a", "seg 0,0 1,0"));
    list.Append(new Witness(notes, "b", "seg 1.0000009,0 2,0"));
    list.Append(new Witness(notes, "c", "seg 2.0000011,0 3,0"));
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    notes.erase(notes.begin(), notes.begin() + 3);
    EXPECT_EQ(notes, (std::vector<std::string>{"b meets a"}));
}

TEST(InterBreak, APointWithoutParameterBreaksTheOtherCurveOnly) {
    std::vector<std::string> notes;
    QnGeObjList list;
    auto* const deaf = new Witness(notes, "a", "seg 0,0 4,0");
    deaf->m_knowsPoints = false;
    list.Append(deaf);
    list.Append(ParseGeo("seg 2,-1 2,1").release());
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "seg 0,0 4,0; seg 2,-1 2,0; seg 2,0 2,1");
}

TEST(InterBreak, AMultiLineOfTheCallersIsAskedItself) {
    QnGeObjList list;
    list.Append(new DeafLine("mline 0,0 4,0 4,4"));
    list.Append(ParseGeo("mline 2,-1 2,1 5,1").release());
    QnGeObjList out;
    list.InterBreakCurve2d(out);
    ExpectGeoList(out, "mline 0,0 4,0 4,4; mline 2,-1 2,0; mline 2,0 2,1 4,1; mline 4,1 5,1");
}

/// An exact repeat is dropped, what differs by little stays, and Split makes no piece between the two.
TEST(InterBreak, CutsNearerThanTheToleranceAreOne) {
    ExpectBroken("seg 0,0 4,0; seg 2,-1 2,0; seg 2.000000001,0 2,1",
                 "seg 0,0 2,0; seg 2,0 4,0; seg 2,-1 2,0; seg 2.000000001,0 2,1");
}

// ---- overlaps kept once ------------------------------------------------------------------------------

TEST(InterBreakEx, CrossingSegmentsGiveFourPieces) {
    ExpectBrokenOnce("seg 0,0 4,4; seg 0,4 4,0", "seg 0,0 2,2; seg 2,2 4,4; seg 0,4 2,2; seg 2,2 4,0");
}

TEST(InterBreakEx, AnOverlapIsKeptOnceByTheLaterCurve) {
    ExpectBrokenOnce("seg 0,0 4,0; seg 6,0 2,0", "seg 0,0 2,0; seg 6,0 4,0; seg 4,0 2,0");
}

TEST(InterBreakEx, OfEqualCurvesTheLastRemains) {
    ExpectBrokenOnce("seg 0,0 4,0; seg 4,0 0,0; seg 0,0 4,0", "seg 0,0 4,0");
    ExpectBrokenOnce("circle 0,0 r2; circle 0,0 r2", "circle 0,0 r2");
}

TEST(InterBreakEx, ACoveredCurveDisappears) {
    ExpectBrokenOnce("seg 1,0 2,0; seg 0,0 4,0", "seg 0,0 1,0; seg 1,0 2,0; seg 2,0 4,0");
    ExpectBrokenOnce("seg 0,0 4,0; seg 1,0 2,0", "seg 0,0 1,0; seg 2,0 4,0; seg 1,0 2,0");
}

TEST(InterBreakEx, ThreeThatOverlapCoverTheirUnionOnce) {
    ExpectBrokenOnce("seg 0,0 4,0; seg 2,0 6,0; seg 3,0 9,0",
                     "seg 0,0 2,0; seg 2,0 3,0; seg 3,0 4,0; seg 4,0 6,0; seg 6,0 9,0");
}

TEST(InterBreakEx, CurvesThatDoNotMeetAreCloned) {
    ExpectBrokenOnce("seg 0,0 1,0; circle 5,5 r1; arc 9,0 r1 from 0 sweep 1",
                     "seg 0,0 1,0; circle 5,5 r1; arc 9,0 r1 from 0 sweep 1");
}

TEST(InterBreakEx, AnArcOnACircleIsKeptByTheLater) {
    ExpectBrokenOnce("circle 0,0 r2; arc 0,0 r2 from pi/2 sweep pi/2",
                     "arc 0,0 r2 from pi sweep 3pi/2; arc 0,0 r2 from pi/2 sweep pi/2");
}

TEST(InterBreakEx, AnInfiniteLineIsCutByAll) {
    ExpectBrokenOnce("line 0,0 1,0; seg 100,-1 100,1",
                     "ray 100,0 -1,0; ray 100,0 1,0; seg 100,-1 100,0; seg 100,0 100,1");
}

TEST(InterBreakEx, PiecesWhoseBoxIsApartAreNotCut) {
    std::vector<std::string> notes;
    QnGeObjList list;
    list.Append(new Witness(notes, "a", "seg 0,0 4,0"));
    list.Append(new Witness(notes, "b", "seg 1,-1 1,1"));
    list.Append(new Witness(notes, "c", "seg 9,-1 9,1"));
    QnGeObjList out;
    list.InterBreakCurveEx2d(out);
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "c meets a"), 0);
    EXPECT_EQ(std::count(notes.begin(), notes.end(), "a meets c"), 0);
    ExpectGeoList(out, "seg 0,0 1,0; seg 1,0 4,0; seg 1,-1 1,0; seg 1,0 1,1; seg 9,-1 9,1");
}
