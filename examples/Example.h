// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

/// What the examples share: their two arguments, their checks, and one way out for whatever goes wrong.

/// Throws with `what`, which ends the example with exit code 1, unless `holds`.
inline void Require(bool holds, const std::string& what) {
    if (!holds) {
        throw std::runtime_error("wrong result: " + what);
    }
}

/// How far `found` misses `expected`, in parts of `scale`.
inline double RelativeError(double found, double expected, double scale) {
    return std::fabs(found - expected) / scale;
}

/// Runs `body` with the folder of the data and the folder for pictures, which is made if it is not there.
inline int RunExample(int argc, char** argv, void (*body)(const std::string& data, const std::string& out)) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s DATA_FOLDER OUT_FOLDER\n", argv[0]);
        return 2;
    }
    try {
        std::filesystem::create_directories(argv[2]);
        body(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s: %s\n", std::filesystem::path(argv[0]).filename().c_str(), error.what());
        return 1;
    }
    return 0;
}
