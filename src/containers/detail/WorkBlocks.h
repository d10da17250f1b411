// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace qn_detail {

/// Takes a block of at least `bytes`, aligned for any plain record, and gives back its true size in `bytes`.
///
/// Ownership  Goes back through GiveWorkBlock.
void* TakeWorkBlock(std::size_t& bytes);
void GiveWorkBlock(void* block, std::size_t bytes);

}  // namespace qn_detail
