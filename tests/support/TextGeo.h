// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "frame/QnGeObjList.h"
#include "frame/QnGeObject.h"
#include "values/QnGePoint.h"

/// Geometry as text: one line of text for one object, for tests, corpus files and failure messages.
///
///     point 4,0                                   any point may carry a z: 4,0,7
///     line 0,0 1,0                                base point, direction
///     ray 0,0 1,0                                 base point, direction
///     ray reversed 0,0 1,0
///     seg 0,0 4,0                                 start, end
///     circle 0,0 r2                               counter-clockwise; with `cw` at the end clockwise
///     arc 0,0 r2 from 0 sweep pi/2 cw             the stored start angle and the positive sweep, `cw` as for circles
///     mline 0,0 1,0 1,1 close
///     pline 0,0@1.57 4,0 close                    @ is the bulge of the segment that starts there
///     chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi          the children in order; `chain` alone has none
///     region 0,0 4,0 4,4 | 1,1 1,2 2,2            outline | hole | hole: closed rings of points as they stand
///     region circle 0,0 r5 | mline 0,0 0,1 1,1 close
///
/// A region of straight rings (bare points or `mline`, closed by themselves) is a QnGePolygon2d, with holes a
/// QnGeGeneralPolygon2d; with any other curve it is a QnGeGeneralRegion2d. `general region ...` is one in any case.
/// Rings are never turned round. The flag word is shown as far as the words above go.
///
/// Units      Lengths and radians. A number may be a multiple or a part of pi: pi, -pi/2, 2pi, 3pi/4. 2pi is the full
///            turn that the library itself uses, QN_TWO_PI, so that `sweep 2pi` closes an arc.
/// Direction  On a clockwise circle the parameter counts clockwise, and so does `from`: `from pi/2 ... cw` starts below
///            the centre.
/// Fails      Text that does not follow the form throws std::invalid_argument with the text and the position.

/// The one object that `text` says.
///
/// Ownership  The caller's.
std::unique_ptr<QnGeObject> ParseGeo(const std::string& text);

/// The same for a class known beforehand; another class throws too.
template <class T>
std::unique_ptr<T> ParseGeoAs(const std::string& text) {
    std::unique_ptr<QnGeObject> object = ParseGeo(text);
    T* const typed = dynamic_cast<T*>(object.get());
    if (typed == nullptr) {
        throw std::invalid_argument("geometry text '" + text + "' at 0: another class of object was expected");
    }
    object.release();
    return std::unique_ptr<T>(typed);
}

/// Appends the objects of a list, which are separated by semicolons; an empty text is an empty list.
///
/// Ownership  `list` owns them.
void ParseGeoList(const std::string& text, QnGeObjList& list);

/// The bare point `x,y` or `x,y,z`.
QnGePoint ParsePoint(const std::string& text);

/// The text of an object, ready to paste: it parses to the same numbers bit for bit, but for a segment's vector, which
/// is shown by its end. A z of 0 is left out. A class without text form gives its name in angle brackets, a null
/// pointer `null`.
std::string ToText(const QnGeObject& object);
std::string ToText(const QnGeObject* object);
/// The texts of all entries in order, with "; " between them.
std::string ToText(const QnGeObjList& list);

/// `x,y` or `x,y,z`.
std::string PointToText(const QnGePoint& point);

/// Whether two objects are of one class and direction and all their numbers agree within `tolerance`.
bool IsNearGeo(const QnGeObject& a, const QnGeObject& b, double tolerance);

/// The same for two lists, pair by pair in order.
bool IsNearGeo(const QnGeObjList& a, const QnGeObjList& b, double tolerance);
