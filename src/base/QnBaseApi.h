// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Marks what QuarnBase exports. The libraries are built with hidden visibility.
#define QUARNBASE_API __attribute__((visibility("default")))

/// Marks class templates with virtual functions, so that every library and program shares one vtable and one type
/// record.
#define QUARN_TEMPLATE_API __attribute__((visibility("default")))
