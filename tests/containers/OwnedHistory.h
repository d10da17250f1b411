// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "containers/Agreement.h"
#include "containers/KeepReachable.h"
#include "containers/SequenceModel.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

/// A random history of calls on a sequence that owns LiveObjects, told to a model of plain pointers at the same time.
/// After each call the pointers, the cursor and the answers must agree, the structure checker must be content, and
/// exactly the objects that the two sequences hold may be alive.
template <class Sequence, class Model>
class OwnedHistory {
public:
    OwnedHistory(unsigned seed, Sequence& sequence, Sequence& other)
        : m_random(seed), m_seed(seed), s(sequence), o(other) {}

    void Run(int steps) {
        const std::vector<Step> table = Steps();
        for (int i = 0; i < steps && !::testing::Test::HasFailure(); ++i) {
            if (m.Size() > MAX_LENGTH) {
                Shrink();
            }
            (this->*table[static_cast<std::size_t>(m_random.Long(0, static_cast<long>(table.size()) - 1))])();
            Verify(s, m, "this");
            Verify(o, om, "other");
            EXPECT_EQ(LiveObject::Alive() - m_aliveBefore, Filled(m) + Filled(om)) << "live objects";
        }
        if (::testing::Test::HasFailure()) {
            ADD_FAILURE() << "seed " << m_seed << ", calls so far:\n" << m_log.Text();
        }
    }

private:
    using History = OwnedHistory;
    using Step = void (History::*)();
    static constexpr long MAX_LENGTH = 16;
    static constexpr int MAX_KEY = 8;

    long m_aliveBefore = LiveObject::Alive();
    RandomSource m_random;
    unsigned m_seed;
    HistoryLog m_log;
    Sequence& s;
    Sequence& o;
    Model m;
    Model om;
    int m_made = 0;

    static std::vector<Step> Steps() {
        std::vector<Step> steps = {
            &History::MoveCursor, &History::MoveCursor, &History::Append,           &History::Append,
            &History::InsertHead, &History::Insert,     &History::InsertCur,        &History::DelCur,
            &History::Del,        &History::Release,    &History::ReleaseCur,       &History::PlaceIn,
            &History::TakeOff,    &History::TakeOffCur, &History::TakeOffEnd,       &History::FindData,
            &History::FindDataTo, &History::FindDel,    &History::FindDataDel,      &History::FindDataOrAppend,
            &History::Refill,     &History::Sort,       &History::FindDataOrInsert, &History::SortInto,
            &History::Move,       &History::Resize,     &History::Reverse,          &History::Access};
        if constexpr (Model::IS_LIST) {
            for (const Step step : {&History::InsertAfterCur, &History::Conbine, &History::Conbine, &History::SplitAt,
                                    &History::ReverseList, &History::Rotate, &History::Detach}) {
                steps.push_back(step);
            }
        }
        return steps;
    }

    // ---- agreement -------------------------------------------------------------------------------
    static long Filled(const Model& model) {
        return static_cast<long>(model.items.size()) - std::count(model.items.begin(), model.items.end(), nullptr);
    }

    void Verify(Sequence& real, const Model& model, const char* name) {
        ExpectAgreement<LiveObject*>(real, model, m_random, name);
        EXPECT_EQ(real.GetDataNum(), Filled(model)) << name;
        for (const LiveObject* p : model.items) {
            EXPECT_TRUE(p == nullptr || p->IsAlive()) << name;
        }
    }

    void AdoptCursor() { m.cur = s.GetCur(); }
    void ExpectOut() {
        EXPECT_TRUE(s.IsOut());
        AdoptCursor();
    }

    LiveObject* Object() { return new LiveObject(m_random.Int(0, MAX_KEY), ++m_made); }
    LiveObject* ObjectOrNull() { return m_random.OneIn(6) ? nullptr : Object(); }
    LiveObject Needle() { return LiveObject(m_random.Int(0, MAX_KEY)); }
    long Index() { return m_random.Long(0, m.Size() - 1); }
    long WildIndex() { return m_random.Long(-2, m.Size() + 1); }

    /// First entry at or after `first` that is filled and equal.
    long FindEqual(const LiveObject& needle, long first = 0) const {
        for (long i = first; i < m.Size(); ++i) {
            if (m.At(i) != nullptr && *m.At(i) == needle) {
                return i;
            }
        }
        return -1;
    }

    // ---- cursor and access -----------------------------------------------------------------------
    void MoveCursor() {
        const long i = WildIndex();
        switch (m_random.Int(0, 4)) {
            case 0:
                m_log.Note("MoveToFirst");
                s.MoveToFirst();
                return m.MoveToFirst();
            case 1:
                m_log.Note("MoveToNext");
                s.MoveToNext();
                return m.MoveToNext();
            case 2:
                m_log.Note("MoveToPre");
                s.MoveToPre();
                return m.MoveToPre();
            case 3:
                m_log.Note("MoveToLast");
                s.MoveToLast();
                return m.MoveToLast();
            default:
                m_log.Note("MoveTo", i);
                s.MoveTo(i);
                return m.MoveTo(i);
        }
    }
    void Access() {
        m_log.Note("access");
        EXPECT_EQ(s.IsCurEmpty(), m.IsOut() || m.At(m.cur) == nullptr);
        EXPECT_TRUE(s.IsEmptyData(-1) && s.IsEmptyData(m.Size()));
        if (!m.IsOut()) {
            EXPECT_EQ(s.GetCurPData(), m.At(m.cur));
        }
        for (long i = 0; i < m.Size(); ++i) {
            EXPECT_EQ(s.GetPData(i), m.At(i));
            EXPECT_EQ(s.IsEmptyData(i), m.At(i) == nullptr);
        }
        EXPECT_EQ(s.GetCur(), m.cur);
    }

    // ---- filling ---------------------------------------------------------------------------------
    void Append() {
        LiveObject* const p = ObjectOrNull();
        m_log.Note("Append", p);
        EXPECT_EQ(s.Append(p), m.Append(p));
    }
    void InsertHead() {
        LiveObject* const p = ObjectOrNull();
        m_log.Note("InsertHead", p);
        s.InsertHead(p);
        m.InsertHead(p);
    }
    void Insert() {
        LiveObject* const p = ObjectOrNull();
        const long i = WildIndex();
        m_log.Note("Insert", i, p);
        s.Insert(i, p);
        m.Insert(i, p);
    }
    void InsertCur() {
        LiveObject* const p = ObjectOrNull();
        m_log.Note("InsertCur", p);
        s.InsertCur(p);
        m.InsertCur(p);
    }
    void PlaceIn() {
        LiveObject* const p = Object();
        m_log.Note("PlaceIn", p);
        const long gap = m.Find(nullptr, 0, -1);
        if (gap >= 0) {
            m.At(gap) = p;
            EXPECT_EQ(s.PlaceIn(p), gap);
            AdoptCursor();
        } else {
            EXPECT_EQ(s.PlaceIn(p), m.Append(p));
        }
    }

    // ---- removing --------------------------------------------------------------------------------
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
    void ReleaseCur() {
        m_log.Note("ReleaseCur");
        s.ReleaseCur();
        if (!m.IsOut()) {
            m.At(m.cur) = nullptr;
        }
    }
    void Release() {
        const long i = WildIndex();
        m_log.Note("Release", i);
        s.Release(i);
        if (m.Valid(i)) {
            m.At(i) = nullptr;
        }
        AdoptCursor();
    }
    void TakeOffCur() {
        m_log.Note("TakeOffCur");
        const std::unique_ptr<LiveObject> taken(s.TakeOffCur());
        EXPECT_EQ(taken.get(), m.IsOut() ? nullptr : m.At(m.cur));
        m.DelCur();
    }
    void TakeOff() {
        const long i = WildIndex();
        m_log.Note("TakeOff", i);
        const std::unique_ptr<LiveObject> taken(s.TakeOff(i));
        EXPECT_EQ(taken.get(), m.Valid(i) ? m.At(i) : nullptr);
        m.Del(i);
    }
    void TakeOffEnd() {
        const bool head = m_random.Coin();
        m_log.Note(head ? "TakeOffHead" : "TakeOffTail");
        const std::unique_ptr<LiveObject> taken(head ? s.TakeOffHead() : s.TakeOffTail());
        const long i = head ? 0 : m.Size() - 1;
        EXPECT_EQ(taken.get(), m.Size() > 0 ? m.At(i) : nullptr);
        m.Del(i);
    }
    void Refill() {
        if (!m_random.OneIn(5)) {
            return;
        }
        const bool places = m_random.Coin();
        m_log.Note(places ? "Reset" : "ReleaseAll");
        if (places) {
            s.Reset();
            m.items.clear();
            m.cur = -1;
        } else {
            s.ReleaseAll();
            m.items.assign(m.items.size(), nullptr);
            AdoptCursor();
        }
    }

    // ---- size ------------------------------------------------------------------------------------
    void Shrink() {
        const long n = m_random.Long(0, MAX_LENGTH / 2);
        m_log.Note("SetLength", n, true);
        s.SetLength(n, true);
        m.items.resize(static_cast<std::size_t>(n));
        AdoptCursor();
    }
    void Resize() {
        const long n = m_random.Long(0, 3);
        m_log.Note("IncreaseSize", n);
        s.IncreaseSize(n);
        m.items.resize(m.items.size() + static_cast<std::size_t>(n), nullptr);
        if (!Model::IS_LIST && m_random.Coin()) {
            m_log.Note("DecreaseSize", n);
            s.DecreaseSize(n);
            m.items.resize(m.items.size() - static_cast<std::size_t>(n));
        }
    }

    // ---- searching -------------------------------------------------------------------------------
    void FindData() {
        const LiveObject needle = Needle();
        const long first = WildIndex();
        m_log.Note("FindData", needle.key, first);
        EXPECT_EQ(s.FindData(needle, first, -1), m.Valid(first) ? FindEqual(needle, first) : -1);
    }
    void FindDataTo() {
        const LiveObject needle = Needle();
        m_log.Note("FindDataTo", needle.key);
        const long hit = FindEqual(needle);
        EXPECT_EQ(s.FindDataTo(needle, 0, -1), hit >= 0);
        if (hit >= 0) {
            m.cur = hit;
        } else {
            ExpectOut();
        }
    }
    void FindDel() {
        if (m.Size() == 0 || Filled(m) == 0) {
            return;
        }
        long i = Index();
        while (m.At(i) == nullptr) {
            i = (i + 1) % m.Size();
        }
        m_log.Note("FindDel of entry", i);
        EXPECT_EQ(s.FindDel(m.At(i)), 1);
        m.EraseAt(i);
        AdoptCursor();
        LiveObject stranger(1);
        EXPECT_EQ(s.FindDel(&stranger), 0);
        AdoptCursor();
    }
    void FindDataDel() {
        m_log.Note("FindDataDel");
        const LiveObject needle = Needle();
        long count = 0;
        for (long i = FindEqual(needle); i >= 0; i = FindEqual(needle)) {
            m.EraseAt(i);
            ++count;
        }
        EXPECT_EQ(s.FindDataDel(needle), count);
        ExpectOut();
    }
    void FindDataOrAppend() {
        const LiveObject needle = Needle();
        m_log.Note("FindDataOrAppend", needle.key);
        const long hit = FindEqual(needle);
        const long index = s.FindDataOrAppend(needle);
        if (hit >= 0) {
            EXPECT_EQ(index, hit);
            AdoptCursor();
        } else {
            ASSERT_EQ(index, m.Size());
            ASSERT_TRUE(*s.GetPData(index) == needle);
            m.Append(s.GetPData(index));
        }
    }
    void FindDataOrInsert() {
        const LiveObject needle = Needle();
        m_log.Note("FindDataOrInsertHead", needle.key);
        const bool absent = FindEqual(needle) < 0;
        s.FindDataOrInsertHead(needle);
        if (absent) {
            ASSERT_TRUE(*s.GetPData(0) == needle);
            m.InsertHead(s.GetPData(0));
        }
        AdoptCursor();
    }

    // ---- order -----------------------------------------------------------------------------------
    void DropNulls() {
        for (s.MoveToFirst(); !s.IsOut(); s.MoveToNext()) {
            if (s.IsCurEmpty()) {
                s.DelCur();
            }
        }
        m.FindDel(nullptr);
        AdoptCursor();
    }
    /// Lists put the empty entries at the end, arrays leave them where they are.
    void SortModel(bool ascending) {
        std::vector<LiveObject*> filled;
        for (LiveObject* p : m.items) {
            if (p != nullptr) {
                filled.push_back(p);
            }
        }
        std::stable_sort(filled.begin(), filled.end(), [ascending](const LiveObject* a, const LiveObject* b) {
            return ascending ? *a < *b : *a > *b;
        });
        if (Model::IS_LIST) {
            filled.resize(m.items.size(), nullptr);
            m.items = filled;
            return;
        }
        std::size_t next = 0;
        for (LiveObject*& p : m.items) {
            if (p != nullptr) {
                p = filled[next++];
            }
        }
    }
    void Sort() {
        const bool ascending = m_random.Coin();
        const bool byRule = ascending && m_random.Coin();
        m_log.Note("Sort", byRule ? "by rule" : "by operators", ascending);
        if (byRule) {
            s.Sort(&CompareKeys);
        } else {
            s.Sort(ascending);
        }
        SortModel(ascending);
        AdoptCursor();
    }
    void SortInto() {
        DropNulls();
        s.Sort(true);
        SortModel(true);
        LiveObject* const p = Object();
        const bool allowDuplicate = m_random.Coin();
        m_log.Note("drop nulls, Sort, SortInto", p->key, allowDuplicate);
        const auto place = std::upper_bound(m.items.begin(), m.items.end(), p,
                                            [](const LiveObject* a, const LiveObject* b) { return *a < *b; });
        const bool fits = allowDuplicate || FindEqual(*p) < 0;
        EXPECT_EQ(s.BFindData(*p, 0, -1) >= 0, FindEqual(*p) >= 0);
        EXPECT_EQ(s.SortInto(p, allowDuplicate), fits);
        if (fits) {
            m.cur = static_cast<long>(place - m.items.begin());
            m.items.insert(place, p);
        } else {
            delete p;
            AdoptCursor();
        }
    }
    void Move() {
        if (m.Size() == 0) {
            return;
        }
        const long from = Index();
        const long to = m_random.Long(0, m.Size());
        m_log.Note("Move", from, to);
        EXPECT_EQ(s.Move(from, to), m.Move(from, to));
    }
    void Reverse() {
        m_log.Note("Reverse");
        s.Reverse();
        m.Reverse(0, -1);
    }

    // ---- lists only ------------------------------------------------------------------------------
    void InsertAfterCur() {
        LiveObject* const p = ObjectOrNull();
        m_log.Note("InsertAfterCur", p);
        s.InsertAfterCur(p);
        m.InsertAfterCur(p);
    }
    void Conbine() {
        const long first = m_random.Long(-1, om.Size());
        m_log.Note("Conbine", first);
        EXPECT_EQ(s.Conbine(o, first), m.Conbine(om, first));
    }
    void SplitAt() {
        const long i = WildIndex();
        m_log.Note("SplitAt", i);
        s.SplitAt(i, o);
        m.SplitAt(i, om);
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
    /// Detaching hands the objects to whoever remembers them.
    void Detach() {
        const long i = WildIndex();
        m_log.Note("DetachAfter", i);
        m.MoveTo(i);
        KeepReachable<LiveObject*>(s, m.cur + 1);
        s.DetachAfter(i);
        for (long k = m.cur + 1; k < m.Size(); ++k) {
            delete m.At(k);
        }
        m.DetachAfterCur();
    }
};
