// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "frame/QnGeObjList.h"
#include "frame/QnGeObject2d.h"
#include "frame/QnGeObject3d.h"
#include "support/TextGeo.h"

/// A compound class as a user of the library writes it: it overrides Explode and nothing else, and everything that it
/// answers beyond that comes from the defaults of `Base`.
template <class Base>
class Bundle : public Base {
public:
    /// The parts as geometry text; an empty text is a bundle that explodes into nothing.
    explicit Bundle(const std::string& parts) { ParseGeoList(parts, m_parts); }

    /// Takes `part` over.
    void Add(QnGeObject* part) { m_parts.Append(part); }

    bool Explode(QnGeObjList& parts) const override {
        QnGeObjList copies(m_parts);
        parts.Conbine(copies, 0);
        return true;
    }

private:
    QnGeObjList m_parts;
};

using RootBundle = Bundle<QnGeObject>;
using PlaneBundle = Bundle<QnGeObject2d>;
using SpaceBundle = Bundle<QnGeObject3d>;

/// An object whose Explode fails, and which answers nothing else either. It can be cloned.
template <class Base>
class Atom : public Base {
public:
    QnGeObject* Clone() const override { return new Atom(*this); }
};
