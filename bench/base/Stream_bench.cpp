// SPDX-License-Identifier: Apache-2.0
//
// A closed line of 1,000,000 vertices into a stream in memory and back.

#include <benchmark/benchmark.h>

#include "base/QnDynArrayStream.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "support/Outlines.h"

namespace {

constexpr long VERTICES = 1000000;
constexpr long INITIAL_SIZE = 1024;
constexpr long GROW_SIZE = 1024;

template <class Line>
Line MakeLine() {
    return Line(MakeClosedLine(MakeOutline(OutlineKind::SMOOTH, VERTICES)));
}

void CountBytes(benchmark::State& state, long bytes) {
    state.SetBytesProcessed(state.iterations() * bytes);
    state.SetItemsProcessed(state.iterations() * VERTICES);
}

/// Each run starts with an empty stream, so that its growing is part of the work.
template <class Line>
void BM_StreamOut(benchmark::State& state) {
    const Line line = MakeLine<Line>();
    long bytes = 0;
    for (auto _ : state) {
        QnDynArrayStream stream(INITIAL_SIZE, GROW_SIZE);
        line.StreamOut(stream);
        benchmark::DoNotOptimize(stream.GetBytes());
        bytes = stream.GetLength();
    }
    CountBytes(state, bytes);
}

template <class Line>
void BM_StreamIn(benchmark::State& state) {
    QnDynArrayStream stream(INITIAL_SIZE, GROW_SIZE);
    MakeLine<Line>().StreamOut(stream);
    for (auto _ : state) {
        stream.MoveToFirst();
        Line line;
        line.StreamIn(stream);
        benchmark::DoNotOptimize(line.GetVertexNum());
    }
    CountBytes(state, stream.GetLength());
}

BENCHMARK_TEMPLATE(BM_StreamOut, QnGeMLine2d)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_StreamIn, QnGeMLine2d)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_StreamOut, QnGePolyline2d)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_StreamIn, QnGePolyline2d)->Unit(benchmark::kMillisecond);

}  // namespace
