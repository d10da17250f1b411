// SPDX-License-Identifier: Apache-2.0
//
// The containers at what they are used for: appending one by one, running through by cursor and by pointer, sorting.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <random>
#include <vector>

#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "containers/QnXList.h"
#include "values/QnGePoint.h"

namespace {

constexpr long FEWEST = 1000;
constexpr long MOST = 1000000;
/// Insertion sorts and sorted insertion into a list cost more than n log n: they stop earlier.
constexpr long MOST_SLOWLY_SORTED = 10000;
constexpr unsigned SEED = 20240611U;

template <class T>
T MakeValue(double number);

template <>
double MakeValue<double>(double number) {
    return number;
}

template <>
QnGePoint MakeValue<QnGePoint>(double number) {
    return QnGePoint(number, 0.5 * number);
}

template <class T>
std::vector<T> MakeValues(long n) {
    std::mt19937 engine(SEED);
    std::uniform_real_distribution<double> number(0.0, 1e6);
    std::vector<T> values;
    values.reserve(static_cast<std::size_t>(n));
    for (long i = 0; i < n; i++) {
        values.push_back(MakeValue<T>(number(engine)));
    }
    return values;
}

template <class Sequence, class T>
void Fill(Sequence& sequence, const std::vector<T>& values) {
    for (const T& value : values) {
        sequence.Append(value);
    }
}

// ---- appending ---------------------------------------------------------------------------------------

template <class Sequence, class T>
void BM_Append(benchmark::State& state) {
    const std::vector<T> values = MakeValues<T>(state.range(0));
    for (auto _ : state) {
        Sequence sequence;
        Fill(sequence, values);
        benchmark::DoNotOptimize(sequence.GetFirst());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// ---- running through -----------------------------------------------------------------------------------

template <class Sequence>
void BM_CursorLoop(benchmark::State& state) {
    Sequence sequence;
    Fill(sequence, MakeValues<QnGePoint>(state.range(0)));
    for (auto _ : state) {
        double sum = 0.0;
        for (sequence.MoveToFirst(); !sequence.IsOut(); sequence.MoveToNext()) {
            sum += sequence.GetCurData().x;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <class Sequence>
void BM_PointerLoop(benchmark::State& state) {
    Sequence sequence;
    Fill(sequence, MakeValues<QnGePoint>(state.range(0)));
    for (auto _ : state) {
        double sum = 0.0;
        for (const QnGePoint* element = sequence.GetFirst(); element != nullptr; element = sequence.GetNext(element)) {
            sum += element->x;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// ---- sorting -------------------------------------------------------------------------------------------

template <class Sequence, class T>
void BM_Sort(benchmark::State& state) {
    const std::vector<T> values = MakeValues<T>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        Sequence sequence;
        Fill(sequence, values);
        state.ResumeTiming();
        sequence.Sort(true);
        benchmark::DoNotOptimize(sequence.GetFirst());
    }
    state.SetComplexityN(state.range(0));
}

template <class Sequence, class T>
void BM_SortInto(benchmark::State& state) {
    const std::vector<T> values = MakeValues<T>(state.range(0));
    for (auto _ : state) {
        Sequence sequence;
        for (const T& value : values) {
            sequence.SortInto(value, false);
        }
        benchmark::DoNotOptimize(sequence.GetFirst());
    }
    state.SetComplexityN(state.range(0));
}

void SetSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST, MOST)->Unit(benchmark::kMicrosecond);
}

void SetSortedSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST, MOST)->Unit(benchmark::kMicrosecond)->Complexity();
}

void SetSlowlySortedSizes(benchmark::internal::Benchmark* bench) {
    bench->RangeMultiplier(10)->Range(FEWEST, MOST_SLOWLY_SORTED)->Unit(benchmark::kMicrosecond)->Complexity();
}

using PointArray = QnDynArray<QnGePoint>;
using PointList = QnDList<QnGePoint>;
using PointIndexed = QnXList<QnGePoint>;
using DoubleArray = QnDynArray<double>;
using DoubleList = QnDList<double>;
using DoubleIndexed = QnXList<double>;

BENCHMARK_TEMPLATE(BM_Append, DoubleArray, double)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_Append, PointArray, QnGePoint)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_Append, PointList, QnGePoint)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_Append, PointIndexed, QnGePoint)->Apply(SetSizes);

BENCHMARK_TEMPLATE(BM_CursorLoop, PointArray)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_CursorLoop, PointList)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_PointerLoop, PointArray)->Apply(SetSizes);
BENCHMARK_TEMPLATE(BM_PointerLoop, PointList)->Apply(SetSizes);

BENCHMARK_TEMPLATE(BM_Sort, DoubleArray, double)->Apply(SetSortedSizes);
BENCHMARK_TEMPLATE(BM_Sort, DoubleList, double)->Apply(SetSortedSizes);
BENCHMARK_TEMPLATE(BM_Sort, PointArray, QnGePoint)->Apply(SetSlowlySortedSizes);
BENCHMARK_TEMPLATE(BM_Sort, PointList, QnGePoint)->Apply(SetSlowlySortedSizes);
BENCHMARK_TEMPLATE(BM_SortInto, DoubleArray, double)->Apply(SetSlowlySortedSizes);
BENCHMARK_TEMPLATE(BM_SortInto, DoubleIndexed, double)->Apply(SetSlowlySortedSizes);
BENCHMARK_TEMPLATE(BM_SortInto, PointIndexed, QnGePoint)->Apply(SetSlowlySortedSizes);

}  // namespace
