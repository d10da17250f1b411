// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>
#include <set>
#include <string>

#include "frame/QnGeObjList.h"
#include "frame/QnGeObject2d.h"
#include "support/LiveObject.h"

/// An object with a name, which includes exactly the objects whose names it is told. It counts its likes that are
/// alive, so that a test can prove who deleted whom.
class ProbeObject : public QnGeObject2d {
public:
    explicit ProbeObject(char name, const std::string& covered = "") : m_name(name) {
        for (const char other : covered) {
            m_covered.insert(other);
        }
    }

    char Name() const { return m_name; }

    QnGeObject* Clone() const override { return m_clonable ? new ProbeObject(*this) : nullptr; }
    bool IsInclude(const QnGeObject& other) const override {
        return m_covered.count(static_cast<const ProbeObject&>(other).m_name) == 1;
    }

    /// From now on Clone answers null.
    void Seal() { m_clonable = false; }

private:
    char m_name;
    bool m_clonable = true;
    std::set<char> m_covered;
    LiveObject m_live;
};

/// The names of the entries in order, a dot for an empty one. All objects must be probes.
inline std::string Names(const QnGeObjList& list) {
    std::string names;
    for (QnGeObject* const* p = list.GetFirst(); p != nullptr; p = list.GetNext(p)) {
        names += *p == nullptr ? '.' : static_cast<const ProbeObject*>(*p)->Name();
    }
    return names;
}

/// A probe for each letter, an empty entry for each dot; none covers another.
inline void Fill(QnGeObjList& list, const std::string& names) {
    for (const char name : names) {
        list.Append(name == '.' ? nullptr : new ProbeObject(name));
    }
}
