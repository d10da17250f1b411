// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <limits>

/// The exponent of the growth of a time from one size to another. Not a number before both are known.
class Growth {
public:
    Growth(long from, long to) : m_from(from), m_to(to) {}

    void Note(long n, double seconds) {
        if (n == m_from) {
            m_secondsFrom = seconds;
        }
        if (n == m_to) {
            m_secondsTo = seconds;
        }
    }

    double GetExponent() const {
        return std::log(m_secondsTo / m_secondsFrom) /
               std::log(static_cast<double>(m_to) / static_cast<double>(m_from));
    }

private:
    long m_from;
    long m_to;
    double m_secondsFrom = std::numeric_limits<double>::quiet_NaN();
    double m_secondsTo = std::numeric_limits<double>::quiet_NaN();
};
