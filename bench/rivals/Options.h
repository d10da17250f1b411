// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// What the command line asks for.
struct Options {
    bool isQuick = false;  ///< outlines of up to 10,000 vertices instead of 100,000
    bool doesBooleans = true;
    bool doesHits = true;
    bool doesMemory = true;
    std::vector<std::string> leftOut;  ///< names of rivals that do not take part

    long GetMostVertices() const { return isQuick ? 10000 : 100000; }
    bool IsLeftOut(const std::string& name) const;
};

/// Fails  Ends the program, with the usage, on what it does not understand.
Options ReadOptions(int argc, char** argv);
