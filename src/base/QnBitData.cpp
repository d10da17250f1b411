// SPDX-License-Identifier: Apache-2.0
#include "base/QnBitData.h"

QnBitData::~QnBitData() = default;
