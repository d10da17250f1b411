// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

namespace qn_detail {

/// Marks of a node of the crossing graph. A and B are the first and the second polygon.
enum PtFlag : std::uint32_t {
    PT_B_LEAVES = 0x10,  ///< walking B, one leaves A here
    PT_B_ENTERS = 0x20,  ///< walking B, one enters A here
    PT_A_LEAVES = 0x40,  ///< walking A, one leaves B here
    PT_A_ENTERS = 0x80,  ///< walking A, one enters B here
    PT_DONE_A = 0x100,   ///< the trace has left this node along A
    PT_DONE_B = 0x200    ///< the trace has left this node along B
};

}  // namespace qn_detail
