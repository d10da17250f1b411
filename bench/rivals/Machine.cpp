// SPDX-License-Identifier: Apache-2.0
#include "rivals/Machine.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>

namespace {

std::string GetProcessor() {
    std::ifstream file("/proc/cpuinfo");
    std::string line;
    while (std::getline(file, line)) {
        const std::size_t colon = line.find(": ");
        if (line.rfind("model name", 0) == 0 && colon != std::string::npos) {
            return line.substr(colon + 2);
        }
    }
    return "unknown processor";
}

}  // namespace

void PrintMachine() {
    double load = 0.0;
    const bool hasLoad = getloadavg(&load, 1) == 1;
    std::printf("%s, %u cores", GetProcessor().c_str(), std::thread::hardware_concurrency());
    if (hasLoad) {
        std::printf(", load %.1f at the start", load);
    }
#ifdef __clang__
    std::printf(", Clang %d.%d", __clang_major__, __clang_minor__);
#else
    std::printf(", GCC %d.%d", __GNUC__, __GNUC_MINOR__);
#endif
    std::printf(", %s.\n\n", QUARN_BENCH_FLAGS);
}
