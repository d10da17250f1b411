// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// A table in Markdown, its columns padded so that it also reads well as plain text.
class Table {
public:
    explicit Table(std::vector<std::string> heads) : m_rows{std::move(heads)} {}

    void AddRow(std::vector<std::string> cells) { m_rows.push_back(std::move(cells)); }
    void Print() const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

/// "12,345", "1.23 ms", "3.7".
std::string FormatCount(long count);
std::string FormatTime(double seconds);
std::string FormatNumber(double number);
