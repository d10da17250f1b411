// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "containers/Agreement.h"
#include "containers/KeepReachable.h"
#include "containers/QnQuene.h"
#include "containers/SequenceModel.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

/// A random history of calls on a sequence of int, told to a model at the same time. After each call the elements, the
/// cursor and the answers must agree, and the structure checker must be content.
///
/// `Sequence` is the container; `Model` is ListModel<int> or ArrayModel<int>.
template <class Sequence, class Model>
class ValueHistory {
public:
    ValueHistory(unsigned seed, Sequence& sequence, Sequence& other)
        : m_random(seed), m_seed(seed), s(sequence), o(other) {}

    void Run(int steps) {
        const std::vector<Step> table = Steps();
        for (int i = 0; i < steps && !::testing::Test::HasFailure(); ++i) {
            if (m.Size() > MAX_LENGTH) {
                Shrink();
            }
            (this->*table[static_cast<std::size_t>(m_random.Long(0, static_cast<long>(table.size()) - 1))])();
            ExpectAgreement<int>(s, m, m_random, "this");
            ExpectAgreement<int>(o, om, m_random, "other");
        }
        if (::testing::Test::HasFailure()) {
            ADD_FAILURE() << "seed " << m_seed << ", calls so far:\n" << m_log.Text();
        }
    }

private:
    using History = ValueHistory;
    using Step = void (History::*)();
    static constexpr long MAX_LENGTH = 20;
    static constexpr int MAX_VALUE = 12;

    RandomSource m_random;
    unsigned m_seed;
    HistoryLog m_log;
    Sequence& s;
    Sequence& o;
    Model m;
    Model om;

    static std::vector<Step> Steps() {
        std::vector<Step> steps = {&History::MoveToEnd,  &History::MoveToNext,   &History::MoveToPre,
                                   &History::MoveTo,     &History::Append,       &History::Append,
                                   &History::InsertHead, &History::Insert,       &History::Insert,
                                   &History::InsertCur,  &History::InsertCur,    &History::DelCur,
                                   &History::DelCur,     &History::Del,          &History::DelEnd,
                                   &History::DelEnd,     &History::SetCurData,   &History::AssignAt,
                                   &History::Move,       &History::Exchange,     &History::Reverse,
                                   &History::Find,       &History::FindHits,     &History::FindTo,
                                   &History::FindDel,    &History::FindOrAppend, &History::FindOrInsertHead,
                                   &History::Sort,       &History::SortByRule,   &History::SortInto,
                                   &History::BFind,      &History::AppendAll,    &History::DeepCopy,
                                   &History::Parts,      &History::Resize,       &History::Compare,
                                   &History::Refill,     &History::Swap};
        if constexpr (Model::IS_LIST) {
            for (const Step step :
                 {&History::InsertAfterCur, &History::InsertAfterCur, &History::Conbine, &History::Conbine,
                  &History::SplitAt, &History::SplitAtCur, &History::ReverseList, &History::Rotate, &History::Detach}) {
                steps.push_back(step);
            }
        }
        return steps;
    }

    // ---- agreement -------------------------------------------------------------------------------
    /// For calls that promise no place of the cursor; the checker still looks at it.
    void AdoptCursor() { m.cur = s.GetCur(); }
    void ExpectOut() {
        EXPECT_TRUE(s.IsOut());
        AdoptCursor();
    }

    int Value() { return m_random.Int(0, MAX_VALUE); }
    long Index() { return m_random.Long(0, m.Size() - 1); }
    long WildIndex() { return m_random.Long(-2, m.Size() + 1); }

    // ---- cursor ----------------------------------------------------------------------------------
    void MoveToEnd() {
        const bool first = m_random.Coin();
        m_log.Note(first ? "MoveToFirst" : "MoveToLast");
        first ? s.MoveToFirst() : s.MoveToLast();
        first ? m.MoveToFirst() : m.MoveToLast();
    }
    void MoveToNext() {
        m_log.Note("MoveToNext");
        s.MoveToNext();
        m.MoveToNext();
    }
    void MoveToPre() {
        m_log.Note("MoveToPre");
        s.MoveToPre();
        m.MoveToPre();
    }
    void MoveTo() {
        const long i = WildIndex();
        m_log.Note("MoveTo", i);
        s.MoveTo(i);
        m.MoveTo(i);
    }

    // ---- inserting and deleting ------------------------------------------------------------------
    void Append() {
        const int v = Value();
        m_log.Note("Append", v);
        EXPECT_EQ(s.Append(v), m.Append(v));
    }
    void InsertHead() {
        const int v = Value();
        m_log.Note("InsertHead", v);
        s.InsertHead(v);
        m.InsertHead(v);
    }
    void Insert() {
        const long i = WildIndex();
        const int v = Value();
        m_log.Note("Insert", i, v);
        s.Insert(i, v);
        m.Insert(i, v);
    }
    void InsertCur() {
        const int v = Value();
        m_log.Note("InsertCur", v);
        s.InsertCur(v);
        m.InsertCur(v);
    }
    void DelCur() {
        m_log.Note("DelCur");
        s.DelCur();
        m.DelCur();
    }
    void Del() {
        const long i = WildIndex();
        m_log.Note("Del", i);
        s.Del(i);
        m.Del(i);
    }
    void DelEnd() {
        const bool head = m_random.Coin();
        m_log.Note(head ? "DelHead" : "DelTail");
        head ? s.DelHead() : s.DelTail();
        m.Del(head ? 0 : m.Size() - 1);
    }
    void SetCurData() {
        const int v = Value();
        m_log.Note("SetCurData", v);
        if (!m.IsOut()) {
            m.At(m.cur) = v;
            s.SetCurData(v);
        } else if (Model::IS_LIST) {
            s.SetCurData(v);  // the sentinel's data, no element
        }
    }
    void AssignAt() {
        const long i = m_random.Long(0, m.Size() + 2);
        const int v = Value();
        m_log.Note("AssignAt", i, v);
        const long adoptFrom = GrowModel(i + 1);
        s[i] = v;
        m.MoveTo(i);
        m.At(i) = v;
        AdoptFrom(adoptFrom);
    }
    void Refill() {
        if (!m_random.OneIn(5)) {
            return;
        }
        const int v = Value();
        m_log.Note("SetAll", v);
        s.SetAll(v);
        m.items.assign(m.items.size(), v);
        ExpectOut();
        if (m_random.OneIn(3)) {
            m_log.Note("Reset");
            s.Reset();
            m.items.clear();
            m.cur = -1;
        }
    }

    // ---- size ------------------------------------------------------------------------------------
    /// New elements are default ones, except that an array shows what stood in its spare space: -1 or the first index
    /// whose value is the array's to tell.
    long GrowModel(long length) {
        const long before = m.Size();
        if (length <= before) {
            return -1;
        }
        m.items.resize(static_cast<std::size_t>(length), 0);
        if constexpr (!Model::IS_LIST) {
            return length <= s.GetSpaceSize() ? before : -1;
        }
        return -1;
    }
    void AdoptFrom(long from) {
        for (long i = from; i >= 0 && i < m.Size(); ++i) {
            m.At(i) = s.GetAt(i);
        }
    }
    void Shrink() {
        const long n = m_random.Long(0, MAX_LENGTH / 2);
        m_log.Note("SetLength", n, true);
        s.SetLength(n, true);
        m.items.resize(static_cast<std::size_t>(n));
        if (Model::IS_LIST) {
            m.MoveToLast();
        } else {
            AdoptCursor();
        }
    }
    void Resize() {
        const long n = m_random.Long(0, 3);
        if (m_random.Coin()) {
            m_log.Note("IncreaseSize", n);
            const long adoptFrom = GrowModel(m.Size() + n);
            s.IncreaseSize(n);
            AdoptFrom(adoptFrom);
        } else if (n <= m.Size()) {
            m_log.Note("DecreaseSize", n);
            s.DecreaseSize(n);
            if (!Model::IS_LIST) {
                m.items.resize(static_cast<std::size_t>(m.Size() - n));
            }
        }
    }

    // ---- order -----------------------------------------------------------------------------------
    void Move() {
        if (m.Size() == 0) {
            return;
        }
        const long from = Index();
        const long to = m_random.Long(0, m.Size());
        m_log.Note("Move", from, to);
        EXPECT_EQ(s.Move(from, to), m.Move(from, to));
    }
    void Exchange() {
        if (m.Size() == 0) {
            return;
        }
        const long i = Index();
        const long j = Index();
        m_log.Note("Exchange", i, j);
        s.Exchange(i, j);
        m.Exchange(i, j);
    }
    void Reverse() {
        if (m.Size() == 0) {
            return;
        }
        const long first = Index();
        const long last = m_random.Coin() ? -1 : m_random.Long(first, m.Size() - 1);
        m_log.Note("Reverse", first, last);
        s.Reverse(first, last);
        m.Reverse(first, last);
    }
    void AfterSort() {
        if (Model::IS_LIST && m.Size() > 1) {
            m.cur = -1;
        }
    }
    void Sort() {
        const bool ascending = m_random.Coin();
        m_log.Note("Sort", ascending);
        s.Sort(ascending);
        m.Sort(ascending);
        AfterSort();
    }
    void SortByRule() {
        m_log.Note("Sort", "last digit");
        s.Sort(&CompareLastDigits);
        m.Sort(&CompareLastDigits);
        AfterSort();
    }
    void SortInto() {
        s.Sort(true);
        m.Sort(true);
        const int v = Value();
        const bool allowDuplicate = m_random.Coin();
        m_log.Note("Sort, SortInto", v, allowDuplicate);
        const long place = m.PlaceFor(v, allowDuplicate);
        EXPECT_EQ(s.SortInto(v, allowDuplicate), place >= 0);
        if (place >= 0) {
            m.InsertAt(place, v);
            m.cur = place;
        } else {
            EXPECT_EQ(s.GetCurData(), v);
            AdoptCursor();
        }
    }
    void BFind() {
        s.Sort(true);
        m.Sort(true);
        AfterSort();
        if (m.Size() == 0) {
            return;
        }
        const int v = Value();
        const long first = Index();
        const long last = m_random.Long(first, m.Size() - 1);
        m_log.Note("Sort, BFind", v, first, last);
        const long hit = s.BFind(v, first, last);
        if (m.Find(v, first, last) < 0) {
            EXPECT_EQ(hit, -1);
        } else {
            ASSERT_TRUE(hit >= first && hit <= last);
            EXPECT_EQ(m.At(hit), v);
        }
    }

    // ---- searching -------------------------------------------------------------------------------
    void Find() {
        const int v = Value();
        const long first = WildIndex();
        const long last = WildIndex();
        m_log.Note("Find", v, first, last);
        EXPECT_EQ(s.Find(v, first, last), m.Find(v, first, last));
    }
    void FindHits() {
        const int v = Value();
        m_log.Note("Find with hits", v);
        QnListQuene<long> hits;
        EXPECT_EQ(s.Find(v, hits, 0, -1), std::count(m.items.begin(), m.items.end(), v));
        for (long i = 0; i < m.Size(); ++i) {
            long hit = -1;
            if (m.At(i) == v) {
                EXPECT_TRUE(hits.DeQuene(hit));
                EXPECT_EQ(hit, i);
            }
        }
    }
    void FindTo() {
        const int v = Value();
        m_log.Note("FindTo", v);
        const long expected = m.Find(v, 0, -1);
        EXPECT_EQ(s.FindTo(v), expected >= 0);
        if (expected >= 0) {
            m.cur = expected;
        } else {
            ExpectOut();
        }
    }
    void FindDel() {
        const int v = Value();
        m_log.Note("FindDel", v);
        EXPECT_EQ(s.FindDel(v), m.FindDel(v));
        ExpectOut();
    }
    void FindOrAppend() {
        const int v = Value();
        m_log.Note("FindOrAppend", v);
        const long found = m.Find(v, 0, -1);
        EXPECT_EQ(s.FindOrAppend(v), found >= 0 ? found : m.Append(v));
    }
    void FindOrInsertHead() {
        const int v = Value();
        m_log.Note("FindOrInsertHead", v);
        s.FindOrInsertHead(v);
        if (m.Find(v, 0, -1) < 0) {
            m.InsertHead(v);
        }
    }

    // ---- two sequences ---------------------------------------------------------------------------
    void Swap() {
        m_log.Note("change roles: the steps now go to the other's content");
        const Sequence copy(s);
        const std::vector<int> items = m.items;
        s = o;
        o = copy;
        m.items = om.items;
        om.items = items;
        EXPECT_TRUE(s.IsOut() && o.IsOut());
        m.cur = s.GetCur();
        om.cur = o.GetCur();
    }
    void AppendAll() {
        const bool itself = m_random.OneIn(4);
        m_log.Note("<<", itself ? "itself" : "other");
        const std::vector<int> added = itself ? m.items : om.items;
        const QnDynArrayBase<int>& source = itself ? s : o;
        s << source;
        for (const int v : added) {
            m.Append(v);
        }
    }
    void DeepCopy() {
        m_log.Note("DeepCopy");
        s.DeepCopy(o);
        m.items = om.items;
        ExpectOut();
    }
    void Parts() {
        const long n = m_random.Long(0, m.Size());
        const bool left = m_random.Coin();
        m_log.Note(left ? "Left" : "Right", n);
        if (left) {
            s.Left(n, o);
            om.items.assign(m.items.begin(), m.items.begin() + n);
        } else {
            s.Right(n, o);
            om.items.assign(m.items.end() - n, m.items.end());
        }
        if (m.Size() > 0 && m_random.Coin()) {
            const long first = Index();
            const long last = m_random.Long(first, m.Size() - 1);
            m_log.Note("Mid", first, last);
            s.Mid(first, last, o);
            om.items.assign(m.items.begin() + first, m.items.begin() + last + 1);
        }
        EXPECT_TRUE(o.IsOut());
        om.cur = o.GetCur();
    }
    void Compare() {
        EXPECT_EQ(s == o, m.items == om.items);
        EXPECT_EQ(s != o, m.items != om.items);
        EXPECT_EQ(s < o, m.Size() < om.Size());
        EXPECT_EQ(s > o, m.Size() > om.Size());
    }

    // ---- lists only ------------------------------------------------------------------------------
    void InsertAfterCur() {
        const int v = Value();
        m_log.Note("InsertAfterCur", v);
        s.InsertAfterCur(v);
        m.InsertAfterCur(v);
    }
    void Conbine() {
        const long first = m_random.Coin() ? 0 : m_random.Long(-1, om.Size());
        m_log.Note("Conbine", first);
        EXPECT_EQ(s.Conbine(o, first), m.Conbine(om, first));
    }
    void SplitAt() {
        const long i = WildIndex();
        m_log.Note("SplitAt", i);
        s.SplitAt(i, o);
        m.SplitAt(i, om);
    }
    void SplitAtCur() {
        m_log.Note("SplitAtCur");
        s.SplitAtCur(o);
        om.Conbine(m, m.cur);
    }
    void ReverseList() {
        m_log.Note("ReverseList");
        s.ReverseList();
        m.ReverseList();
    }
    void Rotate() {
        if (m.Size() == 0) {
            return;
        }
        const long from = Index();
        const long to = Index();
        m_log.Note("Rotate", from, to);
        s.Rotate(from, to);
        m.Rotate(from, to);
    }
    void Detach() {
        if (!m_random.OneIn(4)) {
            return;
        }
        const long i = WildIndex();
        m_log.Note("DetachAfter", i);
        m.MoveTo(i);
        KeepReachable<int>(s, m.cur + 1);
        s.DetachAfter(i);
        m.DetachAfterCur();
    }
};
