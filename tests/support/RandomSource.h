// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

/// The seed of a random test: QUARN_TEST_SEED from the environment, otherwise always the same.
inline unsigned BaseSeed() {
    constexpr unsigned DEFAULT_SEED = 20240611U;
    const char* const given = std::getenv("QUARN_TEST_SEED");
    return given == nullptr ? DEFAULT_SEED : static_cast<unsigned>(std::strtoul(given, nullptr, 10));
}

/// Random numbers of one test case, made from a seed that a failure can print.
class RandomSource {
public:
    explicit RandomSource(unsigned seed) : m_engine(seed) {}

    /// Uniform in [first, last], both included.
    long Long(long first, long last) { return std::uniform_int_distribution<long>(first, last)(m_engine); }
    int Int(int first, int last) { return std::uniform_int_distribution<int>(first, last)(m_engine); }
    double Double(double first, double last) { return std::uniform_real_distribution<double>(first, last)(m_engine); }
    bool OneIn(long n) { return Long(1, n) == 1; }
    bool Coin() { return OneIn(2); }

private:
    std::mt19937 m_engine;
};

/// What a random history did so far, one call a line, ready to be read after a failure.
class HistoryLog {
public:
    template <class... Args>
    void Note(const char* operation, const Args&... args) {
        m_text << operation << '(';
        ((m_text << ' ' << args), ...);
        m_text << " )\n";
    }
    std::string Text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
};
