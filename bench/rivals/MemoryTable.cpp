// SPDX-License-Identifier: Apache-2.0
//
// MemoryTable.cpp: how much more memory is resident at the peak of one union than before it, the result included.
//
// Each case runs in a process of its own, so that no block is left from earlier work in which a later case could hide.

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "regions/QnGePolygon2d.h"
#include "rivals/Table.h"
#include "rivals/Tables.h"
#include "support/CrossingCount.h"
#include "support/RandomSets.h"
#include "terrain/QnGeTINGraph.h"

namespace {

constexpr double KIBI = 1024.0;
constexpr double MOST_BYTES_EACH = 400.0;  ///< for each vertex and crossing
constexpr double POINT_BYTES = 24.0;       ///< three doubles
constexpr long POLYGON_VERTICES = 1000000;
constexpr double MOST_NETWORK_BYTES_EACH = 600.0;
constexpr long NETWORK_POINTS = 1000000;

/// A field of the process's status in bytes, 0 where the system has none.
double ReadStatus(const char* field) {
    std::FILE* const file = std::fopen("/proc/self/status", "r");
    if (file == nullptr) {
        return 0.0;
    }
    char line[256];
    double bytes = 0.0;
    while (std::fgets(line, sizeof line, file) != nullptr) {
        if (std::strncmp(line, field, std::strlen(field)) == 0) {
            bytes = KIBI * std::strtod(line + std::strlen(field), nullptr);
        }
    }
    std::fclose(file);
    return bytes;
}

double GetResident() {
    return ReadStatus("VmRSS:");
}
double GetPeak() {
    return ReadStatus("VmHWM:");
}

/// Sets the peak back to what is resident now.
void ResetPeak() {
    std::FILE* const file = std::fopen("/proc/self/clear_refs", "w");
    if (file != nullptr) {
        std::fputs("5", file);
        std::fclose(file);
    }
}

/// Runs `work` in a child and answers the number that it gives; below 0 if the child failed.
template <class Work>
double AskChild(Work work) {
    int ends[2];
    if (pipe(ends) != 0) {
        return -1.0;
    }
    std::fflush(stdout);
    const pid_t child = fork();
    if (child == 0) {
        const double answer = work();
        const bool isWritten = write(ends[1], &answer, sizeof answer) == static_cast<ssize_t>(sizeof answer);
        _exit(isWritten ? 0 : 1);
    }
    double answer = -1.0;
    if (child < 0 || waitpid(child, nullptr, 0) != child ||
        read(ends[0], &answer, sizeof answer) != static_cast<ssize_t>(sizeof answer)) {
        answer = -1.0;
    }
    close(ends[0]);
    close(ends[1]);
    return answer;
}

double GetUnionPeak(const OutlinePair& pair) {
    const QnGePolygon2d first(MakeClosedLine(pair.first), false);
    const QnGePolygon2d second(MakeClosedLine(pair.second), false);
    ResetPeak();
    const double before = GetResident();
    const std::unique_ptr<QnGeRegion2d> joined(first.Union(second));
    return GetPeak() - before;
}

double GetPolygonSize(long n) {
    const double before = GetResident();
    const QnGePolygon2d polygon(n);
    return GetResident() - before;
}

/// By two sizes, so that what a polygon or the process takes once does not count.
double GetPolygonBytesEach() {
    const double one = AskChild([] { return GetPolygonSize(POLYGON_VERTICES); });
    const double two = AskChild([] { return GetPolygonSize(2 * POLYGON_VERTICES); });
    return (two - one) / static_cast<double>(POLYGON_VERTICES);
}

double GetNetworkPeak(const std::vector<QnGePoint>& points) {
    ResetPeak();
    const double before = GetResident();
    QnGeTINGraph graph;
    for (const QnGePoint& point : points) {
        graph.NodeList.Append(new QnGeTINNode(point));
    }
    graph.MakeTIN();
    return GetPeak() - before;
}

/// The answer is whether a network of uniform points keeps to its share.
bool PrintNetworkMemory(const Options& options) {
    const long n = options.isQuick ? NETWORK_POINTS / 10 : NETWORK_POINTS;
    const std::vector<QnGePoint> points = MakePoints(PointKind::UNIFORM, n);
    const double bytesEach = AskChild([&] { return GetNetworkPeak(points); }) / static_cast<double>(n);
    const bool isGood = bytesEach > 0.0 && bytesEach <= MOST_NETWORK_BYTES_EACH;
    std::printf(
        "A network of %s uniform points takes %.0f bytes a point at its peak, its tree and its making included: "
        "%s.\n\n",
        FormatCount(n).c_str(), bytesEach, isGood ? "within 600" : "NOT within 600");
    return isGood;
}

}  // namespace

bool RunMemory(const Options& options) {
    const long n = options.GetMostVertices();
    Table table({"kind", "operation", "n", "vertices + crossings", "peak growth", "bytes for each"}, 2);
    bool isGood = true;
    for (const OutlineKind kind : OUTLINE_KINDS) {
        const OutlinePair pair = MakeOutlinePair(kind, n);
        const long things = 2 * n + CountCrossings(pair);
        const double growth = AskChild([&] { return GetUnionPeak(pair); });
        const double bytesEach = growth / static_cast<double>(things);
        table.AddRow({GetName(kind), "union", FormatCount(n), FormatCount(things),
                      FormatCount(static_cast<long>(growth / KIBI)) + " KiB", FormatNumber(bytesEach)});
        isGood = isGood && growth >= 0.0 && bytesEach <= MOST_BYTES_EACH;
    }
    const double polygonEach = GetPolygonBytesEach();
    std::printf("### Memory: resident at the peak of one union, beyond the two polygons\n\n");
    table.Print();
    std::printf("\nA polygon holds %.1f bytes a vertex.\n", polygonEach);
    isGood = isGood && polygonEach < POINT_BYTES + 0.1;
    std::printf("Within %.0f bytes for each vertex and crossing: %s.\n\n", MOST_BYTES_EACH, isGood ? "yes" : "NO");
    return PrintNetworkMemory(options) && isGood;
}
