// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "frame/QnGeApi.h"

namespace qn_detail {

/// Memory for one small object out of a free list of its size. It suits any object whose size is a multiple of its
/// alignment and whose alignment is at most 16. One of a whole number of cache lines begins with one.
///
/// Ownership  Goes back through GivePiece with the same size.
/// See        Pieces.cpp
QUARNGEO_API void* TakePiece(std::size_t bytes);
QUARNGEO_API void GivePiece(void* piece, std::size_t bytes) noexcept;

}  // namespace qn_detail
