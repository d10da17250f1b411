// SPDX-License-Identifier: Apache-2.0
//
// Union, intersection and difference of two straight polygons: the work grows with the vertices on smooth outlines and
// with vertices and crossings on toothed ones.

#include <benchmark/benchmark.h>

#include <memory>

#include "frame/QnGeObjList.h"
#include "regions/QnGePolygon2d.h"
#include "support/CrossingCount.h"
#include "support/Outlines.h"

namespace {

constexpr long FEWEST_VERTICES = 100;
constexpr long MOST_VERTICES = 100000;

/// Two polygons to work on, and the number of their crossings as a counter of the benchmark.
class PolygonPair {
public:
    PolygonPair(benchmark::State& state, OutlineKind kind) : PolygonPair(state, kind, state.range(0)) {}

    const QnGePolygon2d& First() const { return m_first; }
    const QnGePolygon2d& Second() const { return m_second; }

private:
    PolygonPair(benchmark::State& state, OutlineKind kind, long n) {
        const OutlinePair pair = MakeOutlinePair(kind, n);
        m_first = QnGePolygon2d(MakeClosedLine(pair.first), false);
        m_second = QnGePolygon2d(MakeClosedLine(pair.second), false);
        const long crossings = CountCrossings(pair);
        if (!IsExpectedCount(kind, n, crossings)) {
            state.SkipWithError("the outlines do not cross as often as they should");
        }
        state.counters["crossings"] = static_cast<double>(crossings);
        state.SetComplexityN(n);
    }

    QnGePolygon2d m_first;
    QnGePolygon2d m_second;
};

void BM_Union(benchmark::State& state, OutlineKind kind) {
    const PolygonPair pair(state, kind);
    for (auto _ : state) {
        const std::unique_ptr<QnGeRegion2d> joined(pair.First().Union(pair.Second()));
        benchmark::DoNotOptimize(joined.get());
    }
}

void BM_Intersection(benchmark::State& state, OutlineKind kind) {
    const PolygonPair pair(state, kind);
    for (auto _ : state) {
        QnGeObjList common;
        benchmark::DoNotOptimize(pair.First().Inter(pair.Second(), common));
    }
}

void BM_Difference(benchmark::State& state, OutlineKind kind) {
    const PolygonPair pair(state, kind);
    for (auto _ : state) {
        QnGeObjList rest;
        pair.First().SubtractBy(pair.Second(), rest);
        benchmark::DoNotOptimize(rest.GetLength());
    }
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST_VERTICES, MOST_VERTICES)->Unit(benchmark::kMicrosecond)->Complexity();
}

BENCHMARK_CAPTURE(BM_Union, smooth, OutlineKind::SMOOTH)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Union, toothed, OutlineKind::TOOTHED)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Intersection, smooth, OutlineKind::SMOOTH)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Intersection, toothed, OutlineKind::TOOTHED)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Difference, smooth, OutlineKind::SMOOTH)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Difference, toothed, OutlineKind::TOOTHED)->Apply(SetSizes);

}  // namespace
