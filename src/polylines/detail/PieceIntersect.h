// SPDX-License-Identifier: Apache-2.0
#pragma once

class QnGeObjList;
class QnGeObject;

namespace qn_detail {

/// Appends what the parts of `object` have in common with `other`: the rule by which compound objects intersect.
///
/// Order      Part by part. Where both are compound, each part of `object` meets the parts of `other` in their order,
///            and it is the part of `other` that is asked, so that an overlap runs as that part does.
/// Ownership  `found` owns what is appended.
void IntersectParts(const QnGeObject& object, const QnGeObject& other, QnGeObjList& found);

}  // namespace qn_detail
