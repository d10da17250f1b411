// SPDX-License-Identifier: Apache-2.0
#include "rivals/Table.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace {

/// Three significant digits.
std::string FormatShort(double number) {
    const int decimals = number < 9.995 ? 2 : (number < 99.95 ? 1 : 0);
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, number);
    return text;
}

}  // namespace

void Table::Print() const {
    std::vector<std::size_t> widths(m_rows.front().size(), 0);
    for (const auto& row : m_rows) {
        for (std::size_t i = 0; i < row.size(); i++) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    for (std::size_t r = 0; r < m_rows.size(); r++) {
        for (std::size_t i = 0; i < widths.size(); i++) {
            const int width = static_cast<int>(widths[i]);
            std::printf(i < m_textColumns ? "| %-*s " : "| %*s ", width, m_rows[r][i].c_str());
        }
        std::printf("|\n");
        if (r == 0) {
            for (std::size_t i = 0; i < widths.size(); i++) {
                const std::string rule(widths[i], '-');
                std::printf(i < m_textColumns ? "|-%s-" : "|-%s:", rule.c_str());
            }
            std::printf("|\n");
        }
    }
    std::fflush(stdout);
}

std::string FormatCount(long count) {
    std::string text = std::to_string(count);
    for (std::ptrdiff_t at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
        text.insert(static_cast<std::size_t>(at), ",");
    }
    return text;
}

std::string FormatTime(double seconds) {
    constexpr double MILLI = 1e-3;
    constexpr double MICRO = 1e-6;
    constexpr double NANO = 1e-9;
    if (seconds >= 1.0) {
        return FormatShort(seconds) + " s";
    }
    if (seconds >= MILLI) {
        return FormatShort(seconds / MILLI) + " ms";
    }
    if (seconds >= MICRO) {
        return FormatShort(seconds / MICRO) + " us";
    }
    return FormatShort(seconds / NANO) + " ns";
}

std::string FormatNumber(double number) {
    return FormatShort(number);
}
