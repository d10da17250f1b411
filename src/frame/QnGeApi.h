// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Marks what QuarnGeo exports. The library is built with hidden visibility.
#define QUARNGEO_API __attribute__((visibility("default")))
