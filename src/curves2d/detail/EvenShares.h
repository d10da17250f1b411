// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace qn_detail {

/// The place of `pa` where `count` parts take the same share of 0..1 each: the index of the part, and `pa` becomes the
/// parameter on it.
///
/// Fails   -1 without parts, `pa` stays.
/// Why so  Clamped before the conversion, so that no parameter leads out of the range of a whole number; NaN gives
///         the first. A parameter beyond 0..1 stays beyond 0..1 on the first or last part.
inline long PartIndexFromPa(long count, double& pa) {
    if (count == 0) {
        return -1;
    }
    const double place = pa * static_cast<double>(count);
    long i = 0;
    if (place >= static_cast<double>(count - 1)) {
        i = count - 1;
    } else if (place > 0.0) {
        i = static_cast<long>(place);
    }
    pa = place - static_cast<double>(i);
    return i;
}

/// The way back.
inline double PaOfPart(long i, double local, long count) {
    return (static_cast<double>(i) + local) / static_cast<double>(count);
}

}  // namespace qn_detail
