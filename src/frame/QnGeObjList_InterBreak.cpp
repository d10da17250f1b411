// SPDX-License-Identifier: Apache-2.0
// QnGeObjList_InterBreak.cpp: the curves of a list broken where they meet.
//
// InterBreakCurve2d looks at every pair of members once and notes where they meet on either, then splits.
//
// Phases     1  Members      the planar curves of the list and their boxes, each asked for once; an index over these
//            2  FindPairs    for each member, neighbours after neighbours, those before it whose boxes meet its own;
//                            two segments, of which long lists mostly consist, are met at once
//            3  CollectPas   from the last member to the first: its pairs that are left are met by IntersectWith, and
//                            the parameters of all entered
//            4  SplitAll     the parameters of each member in ascending order to its own Split
// Why so     Curves are asked, and parameters arrive, in the order of the plain double loop: where a parameter is no
//            number, what SortInto makes of the others depends on it. Segments meet by the operations of their
//            IntersectWith in their order, but without an object for a point; multi-lines by those of their segments
//            that are near, and a point's parameter on one is asked of the segments near the point.
// Cost       n log n for the index; then by the pairs whose boxes meet.
//
// InterBreakCurveEx2d cuts the pieces of each member by every other member as the knife, in the order of the list. A
// cut replaces a piece where it stands, so the pieces of a member stay together and each member can be done by itself.
//
// Kept odd   Of curves that overlap the last one keeps the common stretch: where a later knife cuts the piece of an
//            earlier member, what lies on the knife is dropped.

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <typeinfo>
#include <utility>

#include "containers/QnDynArray.h"
#include "containers/detail/PodArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/SegmentOnLine.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/detail/SegmentTable.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"
#include "values/detail/BoxSearch.h"

namespace {

using qn_detail::BoxSearch;
using qn_detail::PlanBox;
using qn_detail::PodArray;
using qn_detail::SegmentMeeting;
using qn_detail::SegmentOnLine;
using qn_detail::SegmentTable;
using qn_detail::SegmentView;
using Indexes = PodArray<std::int32_t>;

constexpr long PA_ALLOC_UNIT = 10;
constexpr double ENDLESS = std::numeric_limits<double>::infinity();
constexpr PlanBox PLANE = {-ENDLESS, ENDLESS, -ENDLESS, ENDLESS};
constexpr PlanBox NOWHERE = {ENDLESS, -ENDLESS, ENDLESS, -ENDLESS};
// By how many gaps pieces may reach beyond what they were cut from before their knives are searched again.
constexpr double PIECE_ROUNDING = 4.0;

// ---- boxes -------------------------------------------------------------------------------------------

/// The extent of a curve as a box.
struct Reach {
    explicit Reach(const QnGeObject& object) {
        QnGeExtent2d extent;
        hasExtent = object.GetExtent2d(extent);
        box = hasExtent ? PlanBox{extent.x.min, extent.x.max, extent.y.min, extent.y.max} : PLANE;
    }

    bool hasExtent;
    PlanBox box;
};

/// QnGeObject::IsExtentInter, on the boxes of both.
bool IsExtentInter(const Reach& a, const Reach& b) {
    if (!a.hasExtent || !b.hasExtent) {
        return true;
    }
    return QnGeExtent(a.box.xMin, a.box.xMax).IsInsersectWith(QnGeExtent(b.box.xMin, b.box.xMax)) &&
           QnGeExtent(a.box.yMin, a.box.yMax).IsInsersectWith(QnGeExtent(b.box.yMin, b.box.yMax));
}

/// By how much a box is widened to find all that its extent meets; twice the tolerance, so that rounding is covered.
double GetSearchGap() {
    return g_distZero > 0.0 ? 2.0 * g_distZero : 0.0;
}

// ---- members -----------------------------------------------------------------------------------------

/// One entry of the list, with all that its pairs ask of it side by side.
struct Member {
    explicit Member(const QnGeObject& entry) : object(&entry), reach(entry) {
        if (entry.IsClassOf(&QnGeCurve2d::s_classInfo)) {
            curve = static_cast<const QnGeCurve2d*>(&entry);
        }
        if (typeid(entry) == typeid(QnGeLineSeg2d)) {
            isSegment = true;
            segment = SegmentOnLine(static_cast<const QnGeLineSeg2d&>(entry));
        }
    }

    const QnGeObject* object;
    const QnGeCurve2d* curve = nullptr;  ///< null if it is no planar curve: it then takes no part and stays whole
    Reach reach;
    bool isSegment = false;
    SegmentOnLine segment;
};

using Members = PodArray<Member>;

/// The entries of a list that are objects, in order.
Members MembersOf(const QnGeObjList& list) {
    Members members;
    members.SetSpace(list.GetLength());
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry != nullptr) {
            members.Append(Member(**entry));
        }
    }
    return members;
}

/// An index over the boxes of all members.
BoxSearch SearchOf(const Members& members) {
    PodArray<PlanBox> boxes(members.GetLength());
    for (long i = 0; i < members.GetLength(); ++i) {
        boxes[i] = members[i].reach.box;
    }
    return BoxSearch(boxes.begin(), boxes.GetLength());
}

// ---- breaking at all crossings -----------------------------------------------------------------------

/// InterBreakCurve2d.
class CurveBreaker {
public:
    explicit CurveBreaker(const QnGeObjList& list);

    void FindPairs();
    void CollectPas();
    void SplitAll(QnGeObjList& out);

private:
    /// What is known of a member and one before it whose box meets its own. Two segments are met already, at these
    /// parameters; other pairs are still to be asked.
    struct Pair {
        std::int32_t other;
        bool isPoint;
        double pa;
        double otherPa;
    };
    struct PairRange {
        std::int32_t first;
        std::int32_t end;
    };
    struct MemberPa {
        std::int32_t member;
        double pa;
    };

    bool HasSegments(long i) const;
    void FindPairsOf(long i);
    void MeetPair(const Member& member, const Member& other, std::int32_t j);
    void MeetObjects(long i, long j);
    void MeetStraight(long i, long j);
    void EnterHits(long i, long j);
    void EnterPoint(const QnGePoint& pt, long i, long j);
    void EnterPa(const QnGePoint& pt, long i);
    void GroupByMember(PodArray<double>& pas, PodArray<std::int32_t>& starts) const;

    Members m_members;
    BoxSearch m_search;
    Indexes m_candidates;
    PodArray<Pair> m_pairs;
    PodArray<PairRange> m_pairsOf;  ///< by member
    PodArray<MemberPa> m_pas;
    QnGeObjList m_hits;

    SegmentTable m_segments;  ///< of segments and multi-lines, where there is a multi-line
    bool m_hasSegments = false;
    PodArray<SegmentTable::Range> m_segmentsOf;  ///< by member; NO_SEGMENTS for other classes
    Indexes m_nearOther;
};

constexpr SegmentTable::Range NO_SEGMENTS = {-1, -1, NOWHERE};

CurveBreaker::CurveBreaker(const QnGeObjList& list) : m_members(MembersOf(list)), m_search(SearchOf(m_members)) {
    m_hasSegments = std::any_of(m_members.begin(), m_members.end(), [](const Member& member) {
        return member.curve != nullptr && !member.isSegment && SegmentTable::IsStraight(*member.curve);
    });
    if (!m_hasSegments) {
        return;
    }
    m_segmentsOf.SetSpace(m_members.GetLength());
    for (const Member& member : m_members) {
        const bool isStraight = member.curve != nullptr && SegmentTable::IsStraight(*member.curve);
        m_segmentsOf.Append(isStraight ? m_segments.Append(*member.curve) : NO_SEGMENTS);
    }
    m_segments.MakeSearch();
}

bool CurveBreaker::HasSegments(long i) const {
    return m_hasSegments && m_segmentsOf[i].first >= 0;
}

void CurveBreaker::FindPairs() {
    Indexes order;
    m_search.ListByPlace(order);
    m_pairsOf = PodArray<PairRange>(m_members.GetLength());
    for (const std::int32_t i : order) {
        const auto first = static_cast<std::int32_t>(m_pairs.GetLength());
        if (m_members[i].curve != nullptr) {
            FindPairsOf(i);
        }
        m_pairsOf[i] = {first, static_cast<std::int32_t>(m_pairs.GetLength())};
    }
}

void CurveBreaker::FindPairsOf(long i) {
    const Member& member = m_members[i];
    m_search.Find(member.reach.box.Widened(GetSearchGap()), 0, i, m_candidates);
    for (const std::int32_t j : m_candidates) {
        const Member& other = m_members[j];
        if (other.curve != nullptr && IsExtentInter(member.reach, other.reach)) {
            MeetPair(member, other, j);
        }
    }
}

void CurveBreaker::MeetPair(const Member& member, const Member& other, std::int32_t j) {
    Pair pair = {j, false, 0.0, 0.0};
    if (member.isSegment && other.isSegment) {
        double x = 0.0;
        double y = 0.0;
        const SegmentMeeting meeting = member.segment.Meet(other.segment, x, y);
        if (meeting == SegmentMeeting::NONE) {
            return;
        }
        if (meeting == SegmentMeeting::POINT) {
            pair = {j, true, member.segment.GetPa(x, y), other.segment.GetPa(x, y)};
        }
    }
    m_pairs.Append(pair);
}

void CurveBreaker::CollectPas() {
    for (auto i = static_cast<std::int32_t>(m_members.GetLength()); i-- > 0;) {
        for (std::int32_t k = m_pairsOf[i].first; k < m_pairsOf[i].end; ++k) {
            const Pair& pair = m_pairs[k];
            if (pair.isPoint) {
                m_pas.Append({i, pair.pa});
                m_pas.Append({pair.other, pair.otherPa});
            } else {
                MeetObjects(i, pair.other);
            }
        }
    }
}

void CurveBreaker::MeetObjects(long i, long j) {
    if (HasSegments(i) && HasSegments(j)) {
        MeetStraight(i, j);
        return;
    }
    m_members[i].curve->IntersectWith(*m_members[j].curve, m_hits);
    EnterHits(i, j);
}

/// What IntersectWith comes to where both are segments or multi-lines: the pairs of their segments in order. A
/// multi-line as the argument is asked for its segments at the end of all handing over, so these receive.
void CurveBreaker::MeetStraight(long i, long j) {
    const bool otherReceives = !m_members[j].isSegment;
    SegmentView view;
    SegmentView otherView;
    m_segments.FindNearRange(m_segmentsOf[i], m_segmentsOf[j], m_candidates);
    for (const std::int32_t a : m_candidates) {
        m_segments.FindNear(m_segmentsOf[j], a, m_nearOther);
        for (const std::int32_t b : m_nearOther) {
            const std::int32_t receiver = otherReceives ? b : a;
            const std::int32_t argument = otherReceives ? a : b;
            QnGePoint pt;
            const SegmentMeeting meeting = m_segments[receiver].Meet(m_segments[argument], pt.x, pt.y);
            if (meeting == SegmentMeeting::POINT) {
                EnterPoint(pt, i, j);
            } else if (meeting == SegmentMeeting::ON_ONE_LINE) {
                const QnGeLineSeg2d& segment = m_segments.GetSegment(receiver, view);
                segment.IntersectWith(m_segments.GetSegment(argument, otherView), m_hits);
                EnterHits(i, j);
            }
        }
    }
}

/// Enters what the two have in common, and forgets it.
void CurveBreaker::EnterHits(long i, long j) {
    for (auto entry = m_hits.GetFirst(); entry != nullptr; entry = m_hits.GetNext(entry)) {
        const QnGeObject* const hit = *entry;
        if (hit == nullptr) {
            continue;
        }
        if (hit->IsClassOf(&QnGePoint2d::s_classInfo)) {
            EnterPoint(static_cast<const QnGePoint2d&>(*hit), i, j);
        } else if (hit->IsClassOf(&QnGeCurve2d::s_classInfo)) {
            const auto& overlap = static_cast<const QnGeCurve2d&>(*hit);
            QnGePoint end;
            if (overlap.GetStartPoint(end)) {
                EnterPoint(end, i, j);
            }
            if (overlap.GetEndPoint(end)) {
                EnterPoint(end, i, j);
            }
        }
    }
    m_hits.Reset();
}

void CurveBreaker::EnterPoint(const QnGePoint& pt, long i, long j) {
    EnterPa(pt, i);
    EnterPa(pt, j);
}

/// A point of which the curve knows no parameter does not break it.
void CurveBreaker::EnterPa(const QnGePoint& pt, long i) {
    double pa = 0.0;
    const bool isKnown =
        HasSegments(i) ? m_segments.GetPaFromPt(m_segmentsOf[i], pt, pa) : m_members[i].curve->GetPaFromPt(pt, pa);
    if (isKnown) {
        m_pas.Append({static_cast<std::int32_t>(i), pa});
    }
}

/// The parameters of member i, as they arrived, are those from starts[i] to before starts[i + 1].
void CurveBreaker::GroupByMember(PodArray<double>& pas, PodArray<std::int32_t>& starts) const {
    const long count = m_members.GetLength();
    starts = PodArray<std::int32_t>(count + 1);
    std::fill(starts.begin(), starts.end(), 0);
    for (const MemberPa& entry : m_pas) {
        ++starts[entry.member + 1];
    }
    for (long i = 0; i < count; ++i) {
        starts[i + 1] += starts[i];
    }
    pas = PodArray<double>(m_pas.GetLength());
    for (long k = m_pas.GetLength() - 1; k >= 0; --k) {
        pas[--starts[m_pas[k].member + 1]] = m_pas[k].pa;
    }
    // now starts[i + 1] is where member i begins
    std::copy(starts.begin() + 1, starts.end(), starts.begin());
    starts[count] = static_cast<std::int32_t>(m_pas.GetLength());
}

/// std::stable_sort, without its buffer for the few numbers that most members have.
void StableSort(double* first, double* last) {
    constexpr long FEW = 24;
    if (last - first > FEW) {
        std::stable_sort(first, last);
        return;
    }
    for (double* next = first; next != last; ++next) {
        std::rotate(std::upper_bound(first, next, *next), next, next + 1);
    }
}

/// What SortInto makes of the parameters one by one: ascending, of exactly equal ones the first.
void SortExactly(double* first, double* last, QnDynArray<double>& sorted) {
    sorted.Reset();
    if (std::any_of(first, last, [](double pa) { return std::isnan(pa); })) {
        for (; first != last; ++first) {
            sorted.SortInto(*first, false);
        }
        return;
    }
    StableSort(first, last);
    last = std::unique(first, last);
    for (; first != last; ++first) {
        sorted.Append(*first);
    }
}

void AppendClone(const QnGeObject& object, QnGeObjList& out) {
    QnGeObject* const clone = object.Clone();
    if (clone != nullptr) {
        out.Append(clone);
    }
}

/// Moves what is there to the end of `out`.
void HandOverPieces(QnGeObjList& pieces, QnGeObjList& out) {
    for (pieces.MoveToFirst(); !pieces.IsOut(); pieces.MoveToNext()) {
        if (pieces.IsCurEmpty()) {
            pieces.DelCur();
        }
    }
    out.Conbine(pieces, 0);
}

void CurveBreaker::SplitAll(QnGeObjList& out) {
    PodArray<double> pas;
    PodArray<std::int32_t> starts;
    GroupByMember(pas, starts);
    QnDynArray<double> sorted(0, PA_ALLOC_UNIT);
    QnGeObjList pieces;
    for (long i = 0; i < m_members.GetLength(); ++i) {
        if (starts[i] == starts[i + 1]) {
            AppendClone(*m_members[i].object, out);
            continue;
        }
        SortExactly(pas.begin() + starts[i], pas.begin() + starts[i + 1], sorted);
        m_members[i].curve->Split(sorted, pieces);
        HandOverPieces(pieces, out);
    }
}

// ---- breaking with overlaps kept once ----------------------------------------------------------------

/// InterBreakCurveEx2d for one member at a time.
///
/// Invariant  The box searched holds the boxes of all pieces: where rounding lets a piece reach beyond it, the knives
///            that are left are searched again.
class MemberCutter {
public:
    explicit MemberCutter(const QnGeObjList& list) : m_members(MembersOf(list)), m_search(SearchOf(m_members)) {}

    long GetCount() const { return m_members.GetLength(); }

    /// Appends the pieces of a member to `out`.
    void Cut(long member, QnGeObjList& out);

private:
    void FindKnives(long first);
    bool MeetsAPiece(const Reach& knife) const;
    void CutBy(long knife);
    void AddPiece(std::unique_ptr<QnGeObject> piece, const Reach& reach);

    Members m_members;
    BoxSearch m_search;
    Indexes m_knives;
    long m_member = 0;
    QnGeObjList m_pieces;
    PodArray<Reach> m_reaches;  ///< of the pieces
    PlanBox m_searched = NOWHERE;
    bool m_reachesOut = false;
};

bool IsWithin(const PlanBox& inner, const PlanBox& outer) {
    return !(inner.xMin < outer.xMin || inner.xMax > outer.xMax || inner.yMin < outer.yMin || inner.yMax > outer.yMax);
}

void GrowOver(const PlanBox& box, PlanBox& hull) {
    hull.xMin = box.xMin < hull.xMin ? box.xMin : hull.xMin;
    hull.xMax = box.xMax > hull.xMax ? box.xMax : hull.xMax;
    hull.yMin = box.yMin < hull.yMin ? box.yMin : hull.yMin;
    hull.yMax = box.yMax > hull.yMax ? box.yMax : hull.yMax;
}

void MemberCutter::AddPiece(std::unique_ptr<QnGeObject> piece, const Reach& reach) {
    m_reachesOut = m_reachesOut || !IsWithin(reach.box, m_searched);
    m_reaches.Append(reach);
    m_pieces.Append(piece.release());
}

/// The members from `first` on that may meet a piece as it is now.
void MemberCutter::FindKnives(long first) {
    PlanBox hull = NOWHERE;
    for (const Reach& reach : m_reaches) {
        GrowOver(reach.box, hull);
    }
    const double gap = GetSearchGap();
    m_searched = hull.Widened(PIECE_ROUNDING * gap);
    m_reachesOut = false;
    m_search.Find(m_searched.Widened(gap), first, m_members.GetLength(), m_knives);
}

void MemberCutter::Cut(long member, QnGeObjList& out) {
    m_member = member;
    std::unique_ptr<QnGeObject> whole(m_members[member].object->Clone());
    if (whole == nullptr) {
        return;
    }
    m_reaches.Clear();
    AddPiece(std::move(whole), m_members[member].reach);
    m_reachesOut = m_members[member].curve != nullptr;
    for (long next = 0; m_reachesOut;) {
        FindKnives(next);
        for (const std::int32_t knife : m_knives) {
            if (knife != member && m_members[knife].curve != nullptr) {
                CutBy(knife);
            }
            if (m_reachesOut) {
                next = knife + 1;
                break;
            }
        }
    }
    out.Conbine(m_pieces, 0);
}

bool MemberCutter::MeetsAPiece(const Reach& knife) const {
    return std::any_of(m_reaches.begin(), m_reaches.end(),
                       [&knife](const Reach& reach) { return IsExtentInter(knife, reach); });
}

/// Replaces each piece that the knife may meet by what the knife makes of it.
void MemberCutter::CutBy(long knife) {
    const Reach& knifeReach = m_members[knife].reach;
    if (!MeetsAPiece(knifeReach)) {
        return;
    }
    QnGeObjList before;
    before.Conbine(m_pieces, 0);
    const PodArray<Reach> reaches = std::move(m_reaches);
    for (const Reach& reach : reaches) {
        std::unique_ptr<QnGeObject> piece(before.TakeOffHead());
        if (!IsExtentInter(knifeReach, reach)) {
            AddPiece(std::move(piece), reach);
            continue;
        }
        QnGeObjList kept;
        QnGeObjList dropped;
        m_members[knife].curve->Cut(*piece, kept, kept, m_member < knife ? dropped : kept);
        while (!kept.IsEmpty()) {
            std::unique_ptr<QnGeObject> part(kept.TakeOffHead());
            if (part != nullptr) {
                const Reach partReach(*part);
                AddPiece(std::move(part), partReach);
            }
        }
    }
}

}  // namespace

void QnGeObjList::InterBreakCurve2d(QnGeObjList& out) const {
    CurveBreaker breaker(*this);
    breaker.FindPairs();
    breaker.CollectPas();
    QnGeObjList broken;
    breaker.SplitAll(broken);
    out.Conbine(broken, 0);
}

void QnGeObjList::InterBreakCurveEx2d(QnGeObjList& out) const {
    MemberCutter cutter(*this);
    QnGeObjList broken;
    for (long member = 0; member < cutter.GetCount(); ++member) {
        cutter.Cut(member, broken);
    }
    out.Conbine(broken, 0);
}
