// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// What the command line asks for.
struct Options {
    bool isQuick = false;  ///< sets of a tenth of the largest size
    bool doesBooleans = true;
    bool doesHits = true;
    bool doesMemory = true;
    bool doesNoding = true;
    bool doesNetworks = true;
    bool doesBoxes = true;
    std::vector<std::string> leftOut;  ///< names of rivals that do not take part

    long GetMostVertices() const { return isQuick ? 10000 : 100000; }
    bool IsLeftOut(const std::string& name) const;
};

/// Fails  Ends the program, with the usage, on what it does not understand.
Options ReadOptions(int argc, char** argv);
