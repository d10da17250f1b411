// SPDX-License-Identifier: Apache-2.0
//
// Networks of points of several kinds: the time of MakeTIN, and the bytes that a node costs with all that hangs on it.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "support/RandomSets.h"
#include "terrain/QnGeTINGraph.h"

namespace {

constexpr long THOUSAND = 1000;
constexpr long MILLION = 1000000;
constexpr long ROWS = 20000;  ///< two rows of 10,000
constexpr double KILO = 1024.0;

/// Resident memory of the process in bytes; 0 where the system does not tell.
double GetResidentSize() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        long kilobytes = 0;
        if (std::sscanf(line.c_str(), "VmRSS: %ld kB", &kilobytes) == 1) {
            return static_cast<double>(kilobytes) * KILO;
        }
    }
    return 0.0;
}

std::unique_ptr<QnGeTINGraph> MakeInput(const std::vector<QnGePoint>& points) {
    auto graph = std::make_unique<QnGeTINGraph>();
    for (const QnGePoint& point : points) {
        graph->NodeList.Append(new QnGeTINNode(point));
    }
    return graph;
}

/// Bytes per node are those of the first network: later ones find memory that earlier ones have left.
void BM_MakeTIN(benchmark::State& state, PointKind kind) {
    const std::vector<QnGePoint> points = MakePoints(kind, state.range(0));
    const double before = GetResidentSize();
    double grown = 0.0;
    long triangles = 0;
    for (auto _ : state) {
        state.PauseTiming();
        std::unique_ptr<QnGeTINGraph> graph = MakeInput(points);
        state.ResumeTiming();
        graph->MakeTIN();
        state.PauseTiming();
        triangles = graph->TrgList.GetLength();
        grown = grown == 0.0 ? GetResidentSize() - before : grown;
        graph.reset();
        state.ResumeTiming();
    }
    const double count = static_cast<double>(points.size());
    state.counters["triangles"] = static_cast<double>(triangles);
    state.counters["bytes/node"] = grown / count;
    state.counters["time/node"] =
        benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void SetOne(benchmark::internal::Benchmark* bench, long count) {
    bench->Arg(count)->Unit(benchmark::kMillisecond);
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(THOUSAND, MILLION / 10)->Unit(benchmark::kMillisecond);
}

// The largest come first, so that their memory is their own.
BENCHMARK_CAPTURE(BM_MakeTIN, uniform, PointKind::UNIFORM)->Apply([](auto* bench) { SetOne(bench, MILLION); });
BENCHMARK_CAPTURE(BM_MakeTIN, uniform, PointKind::UNIFORM)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_MakeTIN, grid, PointKind::GRID)->Apply([](auto* bench) { SetOne(bench, MILLION); });
BENCHMARK_CAPTURE(BM_MakeTIN, clusters, PointKind::CLUSTERS)->Apply([](auto* bench) { SetOne(bench, MILLION); });
BENCHMARK_CAPTURE(BM_MakeTIN, two_rows, PointKind::TWO_ROWS)->Apply([](auto* bench) { SetOne(bench, ROWS); });
BENCHMARK_CAPTURE(BM_MakeTIN, circle, PointKind::CIRCLE)->Apply([](auto* bench) { SetOne(bench, ROWS / 2); });

}  // namespace
