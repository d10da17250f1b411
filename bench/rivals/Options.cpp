// SPDX-License-Identifier: Apache-2.0
#include "rivals/Options.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int BAD_USAGE = 2;

[[noreturn]] void ShowUsage() {
    std::fprintf(stderr,
                 "usage: rivals [--quick] [--only booleans|hits|memory|noding|networks|boxes] [--without NAME]...\n"
                 "  --quick          sets of a tenth of the largest size\n"
                 "  --only PART      one of the tables\n"
                 "  --without NAME   leaves a rival out: GEOS, Boost, CGAL, Clipper\n");
    std::exit(BAD_USAGE);
}

void SelectPart(const std::string& part, Options& options) {
    options.doesBooleans = part == "booleans";
    options.doesHits = part == "hits";
    options.doesMemory = part == "memory";
    options.doesNoding = part == "noding";
    options.doesNetworks = part == "networks";
    options.doesBoxes = part == "boxes";
    if (!options.doesBooleans && !options.doesHits && !options.doesMemory && !options.doesNoding &&
        !options.doesNetworks && !options.doesBoxes) {
        ShowUsage();
    }
}

}  // namespace

bool Options::IsLeftOut(const std::string& name) const {
    return std::find(leftOut.begin(), leftOut.end(), name) != leftOut.end();
}

Options ReadOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; i++) {
        const std::string word = argv[i];
        const bool hasValue = i + 1 < argc;
        if (word == "--quick") {
            options.isQuick = true;
        } else if (word == "--only" && hasValue) {
            SelectPart(argv[++i], options);
        } else if (word == "--without" && hasValue) {
            options.leftOut.emplace_back(argv[++i]);
        } else {
            ShowUsage();
        }
    }
    return options;
}
