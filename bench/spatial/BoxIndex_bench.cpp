// SPDX-License-Identifier: Apache-2.0
//
// Filling an index of boxes, asking it for points and for windows, emptying it: boxes of one size all over a square, a
// strip of them along a centre line, and the boxes of the world's lands, lakes and rivers.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "containers/QnDynArray.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/DataFiles.h"
#include "support/RandomSets.h"

namespace {

constexpr long FEWEST_BOXES = 10000;
constexpr long MOST_BOXES = 1000000;
constexpr long MOST_IN_STRIP = 100000;
constexpr long POINTS = 100000;
constexpr long WINDOWS = 10000;
constexpr unsigned SHUFFLE_SEED = 20240621U;

using Boxes = std::vector<QnGeExtent2d>;
using Found = QnDynArray<QnGeExtent2d*>;

enum class Kind { UNIFORM, STRIP, WORLD };

/// Boxes side by side along one line that is a centre line of the tree, in random order.
Boxes MakeStrip(long count) {
    Boxes boxes;
    const double step = BOX_WORLD / static_cast<double>(count);
    for (long i = 0; i < count; ++i) {
        const double x = step * static_cast<double>(i);
        boxes.emplace_back(x, x + step, -step, step);
    }
    std::shuffle(boxes.begin(), boxes.end(), std::mt19937(SHUFFLE_SEED));
    return boxes;
}

Boxes MakeKind(Kind kind, long count) {
    switch (kind) {
        case Kind::STRIP:
            return MakeStrip(count);
        case Kind::WORLD:
            return data_files::ReadBoxes(QUARN_DATA_DIR "/boxes/features_world.txt");
        default:
            return MakeBoxes(count);
    }
}

/// A tree with room for the boxes, which are in it.
std::unique_ptr<QnGeQuadTree2d> MakeTree(Boxes& boxes) {
    QnGeExtent2d range = boxes.front();
    for (const QnGeExtent2d& box : boxes) {
        range += box;
    }
    auto tree = std::make_unique<QnGeQuadTree2d>();
    tree->SetRange(range.x.min - 1.0, range.x.max + 1.0, range.y.min - 1.0, range.y.max + 1.0);
    for (QnGeExtent2d& box : boxes) {
        tree->Insert(&box);
    }
    return tree;
}

std::vector<QnGeExtent2d*> ShuffledPointers(Boxes& boxes) {
    std::vector<QnGeExtent2d*> pointers;
    for (QnGeExtent2d& box : boxes) {
        pointers.push_back(&box);
    }
    std::shuffle(pointers.begin(), pointers.end(), std::mt19937(SHUFFLE_SEED + 1));
    return pointers;
}

void CountBoxes(benchmark::State& state, std::size_t count) {
    state.SetItemsProcessed(state.iterations() * static_cast<long>(count));
}

void BM_Insert(benchmark::State& state, Kind kind) {
    Boxes boxes = MakeKind(kind, state.range(0));
    for (auto _ : state) {
        std::unique_ptr<QnGeQuadTree2d> tree = MakeTree(boxes);
        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
    CountBoxes(state, boxes.size());
}

void BM_Delete(benchmark::State& state, Kind kind) {
    Boxes boxes = MakeKind(kind, state.range(0));
    const std::vector<QnGeExtent2d*> order = ShuffledPointers(boxes);
    for (auto _ : state) {
        state.PauseTiming();
        const std::unique_ptr<QnGeQuadTree2d> tree = MakeTree(boxes);
        state.ResumeTiming();
        for (QnGeExtent2d* box : order) {
            tree->Delete(box, false);
        }
    }
    CountBoxes(state, boxes.size());
}

/// Points and windows about the centres of boxes, so that they are where boxes are.
void BM_Points(benchmark::State& state, Kind kind) {
    Boxes boxes = MakeKind(kind, state.range(0));
    const std::unique_ptr<QnGeQuadTree2d> tree = MakeTree(boxes);
    const std::vector<QnGeExtent2d*> places = ShuffledPointers(boxes);
    Found found;
    long sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (long i = 0; i < POINTS; ++i) {
            const QnGeExtent2d& place = *places[static_cast<std::size_t>(i) % places.size()];
            found.SetLength(0, true);
            tree->HitTest(place.x.GetCenter(), place.y.GetCenter(), found);
            sum += found.GetLength();
        }
    }
    state.counters["hits"] = static_cast<double>(sum) / static_cast<double>(POINTS);
    CountBoxes(state, static_cast<std::size_t>(POINTS));
}

void BM_Windows(benchmark::State& state, Kind kind) {
    Boxes boxes = MakeKind(kind, state.range(0));
    const std::unique_ptr<QnGeQuadTree2d> tree = MakeTree(boxes);
    const std::vector<QnGeExtent2d*> places = ShuffledPointers(boxes);
    const double half = 5.0 * tree->GetLength() / std::sqrt(static_cast<double>(boxes.size()));
    Found found;
    long sum = 0;
    for (auto _ : state) {
        sum = 0;
        for (long i = 0; i < WINDOWS; ++i) {
            const QnGeExtent2d& place = *places[static_cast<std::size_t>(i) % places.size()];
            QnGeExtent2d window(place.x.GetCenter(), place.x.GetCenter(), place.y.GetCenter(), place.y.GetCenter());
            window.Inflate(half);
            found.SetLength(0, true);
            tree->HitTest(window, found);
            sum += found.GetLength();
        }
    }
    state.counters["hits"] = static_cast<double>(sum) / static_cast<double>(WINDOWS);
    CountBoxes(state, static_cast<std::size_t>(WINDOWS));
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST_BOXES, MOST_BOXES)->Unit(benchmark::kMillisecond);
}
void SetStripSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST_BOXES, MOST_IN_STRIP)->Unit(benchmark::kMillisecond);
}
void SetFile(benchmark::internal::Benchmark* bench) {
    bench->Arg(0)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(BM_Insert, uniform, Kind::UNIFORM)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Insert, strip, Kind::STRIP)->Apply(SetStripSizes);
BENCHMARK_CAPTURE(BM_Insert, world, Kind::WORLD)->Apply(SetFile);
BENCHMARK_CAPTURE(BM_Points, uniform, Kind::UNIFORM)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Points, strip, Kind::STRIP)->Apply(SetStripSizes);
BENCHMARK_CAPTURE(BM_Points, world, Kind::WORLD)->Apply(SetFile);
BENCHMARK_CAPTURE(BM_Windows, uniform, Kind::UNIFORM)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Windows, strip, Kind::STRIP)->Apply(SetStripSizes);
BENCHMARK_CAPTURE(BM_Windows, world, Kind::WORLD)->Apply(SetFile);
BENCHMARK_CAPTURE(BM_Delete, uniform, Kind::UNIFORM)->Apply(SetSizes);
BENCHMARK_CAPTURE(BM_Delete, strip, Kind::STRIP)->Apply(SetStripSizes);
BENCHMARK_CAPTURE(BM_Delete, world, Kind::WORLD)->Apply(SetFile);

}  // namespace
