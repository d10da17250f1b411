// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rivals/Engine.h"
#include "rivals/Options.h"

/// Each prints its tables and answers whether all results agreed and nobody was ahead of us where we mean to lead.
bool RunBooleans(const Engines& engines, const Options& options);
bool RunHits(const Engines& engines, const Options& options);

/// What one union takes of memory. Requires a process that has not worked yet.
bool RunMemory(const Options& options);
