// SPDX-License-Identifier: Apache-2.0
#pragma once

class QnGeCurve2d;
class QnGeObject;

namespace qn_detail {

/// IsInclude of a curve that is made of parts, multi-line or chain: a segment may lie across several of them.
///
/// Fails  A line, ray, circle or arc is never included.
bool IsIncludedByParts(const QnGeCurve2d& curve, const QnGeObject& other);

}  // namespace qn_detail
