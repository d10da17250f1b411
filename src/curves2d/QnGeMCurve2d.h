// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnPDList.h"
#include "curves2d/QnGeCurve2d.h"

/// A chain of curves of any class, and itself the list that owns them.
///
/// The geometry is that of a bare curve: nothing is exploded, measured or hit.
///
/// Ownership  The children are destroyed with the chain and cloned with it; a child that has no clone is left out.
/// Stream     Flags only. Class id 118.
/// See        List() for the list's forms of the names that both bases offer.
class QUARNGEO_API QnGeMCurve2d : public QnGeCurve2d, public QnPDList<QnGeCurve2d> {
public:
    QN_CLASS_RECORD(QnGeMCurve2d);

    // A name of both bases means the geometry. Where the list has a virtual operation of that name it stays visible,
    // and the types of the arguments choose.
    using QnGeCurve2d::Conbine;
    using QnPDList<QnGeCurve2d>::Conbine;
    using QnGeCurve2d::Reverse;
    using QnGeObject2d::Move;
    using QnPDList<QnGeCurve2d>::Move;
    using QnGeObject2d::Rotate;
    using QnPDList<QnGeCurve2d>::Rotate;
    using QnGeObject::operator==;
    using QnGeObject::operator!=;
    using QnGeObject::operator<;
    using QnGeObject::operator>;

    // ---- making ----------------------------------------------------------------------------------
    QnGeMCurve2d();
    /// A chain of one clone.
    explicit QnGeMCurve2d(const QnGeCurve2d& curve);
    QnGeMCurve2d(const QnGeMCurve2d& other);
    QnGeMCurve2d& operator=(const QnGeMCurve2d& other);

    QnPDList<QnGeCurve2d>& List() { return *this; }
    const QnPDList<QnGeCurve2d>& List() const { return *this; }

    /// Moves the chain. Numbers of any kind mean this; two `long` are the list's Move.
    template <class X, class Y>
    void Move(X dx, Y dy) {
        QnGeObject2d::Move(static_cast<double>(dx), static_cast<double>(dy));
    }

    /// The number of children.
    long GetSegNum() const { return GetLength(); }

    // ---- protocol --------------------------------------------------------------------------------
    QnGeObject* Clone() const override;

private:
    void AppendClone(const QnGeCurve2d& curve);
    void AppendClones(const QnGeMCurve2d& other);
};
