// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBaseApi.h"

class QnRxDynCreateClass;

/// The run-time record of one class: its name, its id and the record of its parent.
///
/// Records are statics that are built in any order when the library loads, so the constructor only keeps addresses and
/// the destructor does nothing: an object may outlive the record of its class at exit.
class QUARNBASE_API QnRxClassInfo {
public:
    /// `creator` and the parents after the first are part of the interface and null in every record of the library;
    /// nothing ever asks for the creator.
    ///
    /// Ownership  `name` must live as long as the record; a string literal does.
    QnRxClassInfo(const char* name, long classId, QnRxDynCreateClass* (*creator)(), QnRxClassInfo* parent1,
                  QnRxClassInfo* parent2, QnRxClassInfo* parent3, QnRxClassInfo* parent4, QnRxClassInfo* parent5);
    virtual ~QnRxClassInfo();

    QnRxClassInfo(const QnRxClassInfo&) = delete;
    QnRxClassInfo& operator=(const QnRxClassInfo&) = delete;

    const char* GetName() const { return m_name; }
    long GetClassID() const { return m_classId; }

    static constexpr int PARENT_COUNT = 5;

    /// The record of parent `i`, counted from 0.
    ///
    /// Fails  Null where there is no such parent.
    const QnRxClassInfo* GetParent(int i = 0) const;

private:
    const char* m_name;
    long m_classId;
    QnRxClassInfo* m_parents[PARENT_COUNT];
};
