// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurvePa.h"

#include <cstdint>

QnGeCurvePa::QnGeCurvePa() : pa(0.0) {}

QnGeCurvePa::QnGeCurvePa(double parameter, long flags) : QnBitData(static_cast<std::uint32_t>(flags)), pa(parameter) {}

QnGeCurvePa::~QnGeCurvePa() = default;
