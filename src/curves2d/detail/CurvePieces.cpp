// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/CurvePieces.h"

#include <typeinfo>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"

namespace qn_detail {

// The record says which class it may be, the type whether it is that one and no class of a caller's.

bool IsPlainPrimitive(const QnGeObject& object) {
    const std::type_info& type = typeid(object);
    switch (object.GetClassID()) {
        case CLASS_ID_LINE2D:
            return type == typeid(QnGeLine2d);
        case CLASS_ID_LINE_RAY2D:
            return type == typeid(QnGeLineRay2d);
        case CLASS_ID_LINE_SEG2D:
            return type == typeid(QnGeLineSeg2d);
        case CLASS_ID_CIRCLE2D:
            return type == typeid(QnGeCircle2d);
        case CLASS_ID_ARC2D:
            return type == typeid(QnGeArc2d);
        default:
            return false;
    }
}

bool IsPlainChain(const QnGeObject& object) {
    return object.GetCI() == &QnGeMCurve2d::s_classInfo && typeid(object) == typeid(QnGeMCurve2d);
}

}  // namespace qn_detail
