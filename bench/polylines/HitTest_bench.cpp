// SPDX-License-Identifier: Apache-2.0
//
// 100,000 points against one closed line, each by the plain loop over its edges.

#include <benchmark/benchmark.h>

#include "polylines/QnGeMLine2d.h"
#include "support/Outlines.h"

namespace {

constexpr long FEWEST_VERTICES = 10;
constexpr long MOST_VERTICES = 100000;
constexpr long POINTS = 100000;

void BM_HitTest(benchmark::State& state, OutlineKind kind) {
    const long n = state.range(0);
    const QnGeMLine2d line = MakeClosedLine(MakeOutline(kind, n));
    const std::vector<QnGePoint> points = MakeHitPoints(POINTS);
    long inside = 0;
    for (auto _ : state) {
        inside = 0;
        for (const QnGePoint& point : points) {
            inside += line.HitTest(point).HasBit(HIT_IN) ? 1 : 0;
        }
        benchmark::DoNotOptimize(inside);
    }
    state.counters["inside"] = static_cast<double>(inside);
    state.counters["time/vertex"] =
        benchmark::Counter(static_cast<double>(POINTS) * static_cast<double>(n),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.SetItemsProcessed(state.iterations() * POINTS);
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST_VERTICES, MOST_VERTICES)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(BM_HitTest, smooth, OutlineKind::SMOOTH)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_HitTest, toothed, OutlineKind::TOOTHED)->Apply(SetSizes);

}  // namespace
