// SPDX-License-Identifier: Apache-2.0
#include "curves2d/detail/CurvePieces.h"

#include <typeinfo>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"

namespace qn_detail {

bool IsPlainPrimitive(const QnGeCurve2d& curve) {
    const std::type_info& type = typeid(curve);
    return type == typeid(QnGeLineSeg2d) || type == typeid(QnGeArc2d) || type == typeid(QnGeCircle2d) ||
           type == typeid(QnGeLineRay2d) || type == typeid(QnGeLine2d);
}

}  // namespace qn_detail
