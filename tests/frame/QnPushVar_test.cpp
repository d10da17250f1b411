// SPDX-License-Identifier: Apache-2.0
#include "frame/QnPushVar.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>

#include "frame/QnGeTolerance.h"

using PushDouble = QnPushVar<double>;

static_assert(!std::is_copy_constructible_v<PushDouble>, "a copy would restore twice");
static_assert(!std::is_copy_assignable_v<PushDouble>, "a copy would restore twice");
static_assert(!std::is_default_constructible_v<PushDouble>, "there is always a variable");
static_assert(std::has_virtual_destructor_v<PushDouble>, "the destructor is virtual");

TEST(QnPushVar, HoldsTheNewValueForTheScopeAndRestores) {
    double variable = 3.0;
    {
        const PushDouble push(variable, 8.0);
        EXPECT_EQ(variable, 8.0);
    }
    EXPECT_EQ(variable, 3.0);
}

TEST(QnPushVar, RestoresATolerance) {
    {
        const PushDouble push(g_fZero, 1e-3);
        EXPECT_EQ(g_fZero, 1e-3);
    }
    EXPECT_EQ(g_fZero, 1e-9);
}

TEST(QnPushVar, RestoresThePriorValueAndNotTheInitialOne) {
    const double initial = g_fZero;
    g_fZero = 1e-7;
    { const PushDouble push(g_fZero, 1e-3); }
    EXPECT_EQ(g_fZero, 1e-7);
    g_fZero = initial;
}

TEST(QnPushVar, NestsInReverseOrder) {
    double variable = 1.0;
    {
        const PushDouble outer(variable, 2.0);
        {
            const PushDouble inner(variable, 3.0);
            EXPECT_EQ(variable, 3.0);
        }
        EXPECT_EQ(variable, 2.0);
    }
    EXPECT_EQ(variable, 1.0);
}

TEST(QnPushVar, NewValueMayBeComputedFromTheVariable) {
    double variable = 4.0;
    {
        const PushDouble push(variable, variable / 2.0);
        EXPECT_EQ(variable, 2.0);
    }
    EXPECT_EQ(variable, 4.0);
}

TEST(QnPushVar, OverwritesWhatTheScopeWrote) {
    double variable = 1.0;
    {
        const PushDouble push(variable, 2.0);
        variable = 50.0;
    }
    EXPECT_EQ(variable, 1.0);
}

TEST(QnPushVar, RestoresWhenTheScopeIsLeftByAnException) {
    double variable = 1.0;
    try {
        const PushDouble push(variable, 2.0);
        throw std::runtime_error("left early");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(variable, 1.0);
    }
    EXPECT_EQ(variable, 1.0);
}
