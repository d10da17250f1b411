// SPDX-License-Identifier: Apache-2.0
//
// The curves of a list broken at all their crossings: short segments, each of which crosses about one other, and the
// same with overlaps kept once; lines of ten vertices each.

#include <benchmark/benchmark.h>

#include <cmath>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "support/RandomSets.h"

namespace {

constexpr long FEWEST_CURVES = 1000;
constexpr long MOST_CURVES = 100000;
constexpr long VERTICES_OF_A_LINE = 10;

void AppendSegments(long count, QnGeObjList& list) {
    for (const VertexLine& line : MakeRandomSegments(count)) {
        list.Append(new QnGeLineSeg2d(line.front(), line.back()));
    }
}

/// The segments again, as waves of nine short pieces along each.
void AppendWaves(long count, QnGeObjList& list) {
    for (const VertexLine& ends : MakeRandomSegments(count)) {
        const QnGePoint& from = ends.front();
        const QnGeVector2d along(from, ends.back());
        auto* const line = new QnGeMLine2d(VERTICES_OF_A_LINE, false);
        for (long i = 0; i < VERTICES_OF_A_LINE; ++i) {
            const double t = static_cast<double>(i) / static_cast<double>(VERTICES_OF_A_LINE - 1);
            const double side = 0.05 * std::sin(7.0 * t);
            line->SetVertex(i, QnGePoint(from.x + t * along.x - side * along.y, from.y + t * along.y + side * along.x));
        }
        list.Append(line);
    }
}

using Append = void (*)(long count, QnGeObjList& list);
using Break = void (QnGeObjList::*)(QnGeObjList& out) const;

void BM_InterBreak(benchmark::State& state, Append append, Break breakCurves) {
    const long n = state.range(0);
    QnGeObjList list;
    append(n, list);
    long pieces = 0;
    for (auto _ : state) {
        QnGeObjList out;
        (list.*breakCurves)(out);
        pieces = out.GetLength();
        state.PauseTiming();
        out.Reset();
        state.ResumeTiming();
    }
    state.counters["pieces"] = static_cast<double>(pieces);
    state.SetComplexityN(n);
    state.SetItemsProcessed(state.iterations() * n);
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST_CURVES, MOST_CURVES)->Unit(benchmark::kMillisecond)->Complexity();
}

BENCHMARK_CAPTURE(BM_InterBreak, segments, AppendSegments, &QnGeObjList::InterBreakCurve2d)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_InterBreak, segments_once, AppendSegments, &QnGeObjList::InterBreakCurveEx2d)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_InterBreak, lines, AppendWaves, &QnGeObjList::InterBreakCurve2d)->Apply(SetSizes);

}  // namespace
