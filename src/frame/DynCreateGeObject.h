// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"

class QnGeObject;

/// A new object of the class with this id, in its default state.
///
/// Ownership  The caller's.
/// Fails      Null for an id that is unknown or whose class cannot be made by id: the roots, the ellipse family,
///            splines, faces, planes, plane curves and solids.
QUARNGEO_API QnGeObject* DynCreateGeObject(int classId);
