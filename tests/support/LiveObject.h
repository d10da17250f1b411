// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

/// An element that counts how many of its kind are alive, so that a test can prove that nothing leaks or dies twice.
///
/// Equality and order look at `key` alone; `tag` tells equal objects apart (who arrived first).
class LiveObject {
public:
    int key = 0;
    int tag = 0;

    LiveObject() { ++s_alive; }
    explicit LiveObject(int k, int t = 0) : key(k), tag(t) { ++s_alive; }
    LiveObject(const LiveObject& other) : key(other.key), tag(other.tag) {
        other.Verify();
        ++s_alive;
    }
    LiveObject& operator=(const LiveObject& other) {
        Verify();
        other.Verify();
        key = other.key;
        tag = other.tag;
        return *this;
    }
    virtual ~LiveObject() {
        Verify();
        m_mark = DEAD;
        --s_alive;
    }

    bool operator==(const LiveObject& other) const { return key == other.key; }
    bool operator!=(const LiveObject& other) const { return key != other.key; }
    bool operator<(const LiveObject& other) const { return key < other.key; }
    bool operator>(const LiveObject& other) const { return key > other.key; }

    bool IsAlive() const { return m_mark == ALIVE; }
    static long Alive() { return s_alive; }
    static long Errors() { return s_errors; }

private:
    static constexpr unsigned ALIVE = 0x11FEB0DUL;
    static constexpr unsigned DEAD = 0xDEADB0DUL;

    void Verify() const {
        if (m_mark != ALIVE) {
            ++s_errors;
        }
    }

    unsigned m_mark = ALIVE;
    inline static long s_alive = 0;
    inline static long s_errors = 0;
};

/// By key, for the `Sort` forms that take a function; downward when negated by the caller.
inline int CompareKeys(const LiveObject& a, const LiveObject& b) {
    return a.key < b.key ? -1 : (a.key > b.key ? 1 : 0);
}

/// The last digit decides: many values are equal under it, which shows whether a sort is stable.
inline int CompareLastDigits(const int& a, const int& b) {
    return a % 10 - b % 10;
}

/// Holds when the scope ends with as many live objects as it began, none of them touched after its death.
class LiveScope {
public:
    LiveScope() : m_aliveBefore(LiveObject::Alive()), m_errorsBefore(LiveObject::Errors()) {}
    LiveScope(const LiveScope&) = delete;
    LiveScope& operator=(const LiveScope&) = delete;
    ~LiveScope() {
        EXPECT_EQ(LiveObject::Alive(), m_aliveBefore) << "objects leaked, or were freed twice";
        EXPECT_EQ(LiveObject::Errors(), m_errorsBefore) << "an object was used after its death";
    }

    /// Objects made in this scope and not yet freed.
    long Count() const { return LiveObject::Alive() - m_aliveBefore; }

private:
    long m_aliveBefore;
    long m_errorsBefore;
};
