// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// A table in Markdown, its columns padded so that it also reads well as plain text.
class Table {
public:
    /// The first `textColumns` columns are words and stand left, the others are numbers and stand right.
    Table(std::vector<std::string> heads, std::size_t textColumns)
        : m_rows{std::move(heads)}, m_textColumns(textColumns) {}

    void AddRow(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }
    void Print() const;

private:
    std::vector<std::vector<std::string>> m_rows;
    std::size_t m_textColumns;
};

/// "12,345", "1.23 ms", "3.7".
std::string FormatCount(long count);
std::string FormatTime(double seconds);
std::string FormatNumber(double number);
