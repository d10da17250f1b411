// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rivals/Options.h"
#include "rivals/SpatialEngine.h"

/// Each prints its tables and answers whether all results agreed and we did as well as we mean to.
bool RunNoding(const SpatialEngines& engines, const Options& options);
bool RunNetworks(const SpatialEngines& engines, const Options& options);
bool RunBoxes(const SpatialEngines& engines, const Options& options);
