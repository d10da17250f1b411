// SPDX-License-Identifier: Apache-2.0
#include "base/QnStream.h"

QnStream::~QnStream() = default;
