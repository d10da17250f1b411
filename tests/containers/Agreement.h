// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "support/ContainerCheckers.h"
#include "support/RandomSource.h"

/// The sequence and its model hold the same elements and have the same cursor, and the structure is sound.
template <class T, class Sequence, class Model>
void ExpectAgreement(Sequence& real, const Model& model, RandomSource& random, const char* name) {
    ASSERT_EQ(real.GetLength(), model.Size()) << name;
    // One access by index first, while the sequence still remembers what the last call left it with.
    if (model.Size() > 0) {
        const long i = random.Long(0, model.Size() - 1);
        EXPECT_EQ(real.GetAt(i), model.At(i)) << "index " << i << " of " << name;
    }
    std::vector<T> items;
    for (const T* p = real.GetFirst(); p != nullptr && items.size() <= model.items.size(); p = real.GetNext(p)) {
        items.push_back(*p);
    }
    EXPECT_EQ(items, model.items) << name;
    EXPECT_EQ(real.GetCur(), model.cur) << "cursor of " << name;
    // The checker reaches for every element and so renews that memory: it leaves most steps alone.
    constexpr long STEPS_PER_CHECK = 3;
    if (::testing::Test::HasFailure() || !random.OneIn(STEPS_PER_CHECK)) {
        return;
    }
    if constexpr (Model::IS_LIST) {
        EXPECT_EQ(CheckList<T>(real), "") << name;
    } else {
        EXPECT_EQ(CheckArray<T>(real), "") << name;
    }
}
