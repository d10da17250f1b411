// SPDX-License-Identifier: Apache-2.0
// QnGeMCurve2d_Connect.cpp: moves the children of a chain and makes their ends joints again.
//
// Each joint is made by ConnectCurveSeg, which lets both children go to where their extensions meet, and refuses to
// turn one round or to stretch it far. So an offset of a chain keeps the number and the order of the children.
//
// Why so     Offset works on the children themselves and keeps clones aside: that a joint fails is seen only after the
//            joints before it have moved their children.
// Kept odd   ConnectSeg and OffsetSeg have nothing aside: what they moved before they fail stays moved.
// Kept odd   Whether the chain is closed is asked before anything moves. A chain of one whole circle is closed, but its
//            ends are no joint, so Offset refuses it.

#include <memory>

#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint.h"

namespace {

constexpr int CLOSEST_TO_MOVING_END = 2;

std::unique_ptr<QnGeCurve2d> MakeBridge(const QnGeCurve2d& from, const QnGeCurve2d& to) {
    QnGePoint end;
    QnGePoint start;
    from.GetEndPoint(end);
    to.GetStartPoint(start);
    return std::make_unique<QnGeLineSeg2d>(end, start);
}

/// Makes a joint of two children; where that fails and `insertSeg` says so, `bridge` becomes a segment that joins them.
///
/// Fails  False where the joint is still missing; a missing child has no ends to join.
bool MakeJoint(QnGeCurve2d* child, QnGeCurve2d* next, bool insertSeg, std::unique_ptr<QnGeCurve2d>& bridge) {
    if (child == nullptr || next == nullptr) {
        return false;
    }
    if (!ConnectCurveSeg(child, next, false, true)) {
        if (!insertSeg) {
            return false;
        }
        bridge = MakeBridge(*child, *next);
    }
    return true;
}

/// Moves the end of `child` and the start of `next`, one of which has been offset, to where their extensions meet.
///
/// `offsetExtension` is the extension of the one that has been offset, from before the first joint moved it.
bool JoinToNext(QnGeCurve2d& child, QnGeCurve2d* next, const QnGeCurve2d& offsetExtension) {
    const std::unique_ptr<QnGeCurve2d> nextExtension(next != nullptr ? next->GetExtendCurve() : nullptr);
    if (nextExtension == nullptr) {
        return false;
    }
    child.Connect(*nextExtension, false, CLOSEST_TO_MOVING_END);
    next->Connect(offsetExtension, true, CLOSEST_TO_MOVING_END);
    return child.IsConnectWith(*next);
}

bool JoinToPrevious(QnGeCurve2d& child, QnGeCurve2d* previous, const QnGeCurve2d& offsetExtension) {
    const std::unique_ptr<QnGeCurve2d> previousExtension(previous != nullptr ? previous->GetExtendCurve() : nullptr);
    if (previousExtension == nullptr) {
        return false;
    }
    child.Connect(*previousExtension, true, CLOSEST_TO_MOVING_END);
    previous->Connect(offsetExtension, false, CLOSEST_TO_MOVING_END);
    return previous->IsConnectWith(child);
}

}  // namespace

bool QnGeMCurve2d::ConnectSeg(bool closed, bool insertSeg) {
    if (IsEmpty()) {
        return true;
    }
    long index = 0;
    std::unique_ptr<QnGeCurve2d> bridge;
    QnGeCurve2d* const* entry = GetFirst();
    for (auto next = GetNext(entry); next != nullptr; next = GetNext(next)) {
        if (!MakeJoint(*entry, *next, insertSeg, bridge)) {
            return false;
        }
        if (bridge != nullptr) {
            ++index;
            List().Insert(index, bridge.release());
        }
        ++index;
        entry = next;
    }
    if (closed && !MakeJoint(*entry, *GetFirst(), insertSeg, bridge)) {
        return false;
    }
    if (bridge != nullptr) {
        List().Append(bridge.release());
    }
    return true;
}

bool QnGeMCurve2d::Offset(double dist) {
    const bool isClosed = IsClosed();
    QnGeObjList backup;
    for (auto entry = GetFirst(); entry != nullptr; entry = GetNext(entry)) {
        backup.Append(*entry != nullptr ? (*entry)->Clone() : nullptr);
        if (*entry != nullptr) {
            (*entry)->Offset(dist);
        }
    }
    if (ConnectSeg(isClosed, false)) {
        return true;
    }
    for (List().MoveToFirst(); !List().IsOut(); List().MoveToNext()) {
        QnGeObject* const before = backup.TakeOffHead();
        if (before != nullptr) {  // no class without a clone can be offset or joined
            List().ReleaseCur();
            List().SetCurData(static_cast<QnGeCurve2d*>(before));
        }
    }
    return false;
}

bool QnGeMCurve2d::OffsetSeg(long i, double dist) {
    QnGeCurve2d* const child = GetPData(i);
    const bool isClosed = IsClosed();
    if (child == nullptr || !child->Offset(dist)) {
        return false;
    }
    const long count = GetSegNum();
    if (count == 1) {
        return true;
    }
    const std::unique_ptr<QnGeCurve2d> extension(child->GetExtendCurve());
    if (extension == nullptr) {
        return false;
    }
    const bool hasNext = isClosed || i + 1 < count;
    if (hasNext && !JoinToNext(*child, GetPData((i + 1) % count), *extension)) {
        return false;
    }
    const bool hasPrevious = isClosed || i > 0;
    if (hasPrevious && !JoinToPrevious(*child, GetPData((i - 1 + count) % count), *extension)) {
        return false;
    }
    return true;
}
