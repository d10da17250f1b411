// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "frame/QnGeObject.h"

/// Objects of every class for the promises that all classes keep: ordinary ones, degenerate ones, and ones whose
/// coordinates are no numbers or without bound.
namespace protocol {

/// One sample, made anew whenever it is wanted.
struct Sample {
    std::string name;  ///< fit for the name of a test
    bool ordinary;     ///< all coordinates are finite and the shape is not degenerate
    QnGeObject* (*make)();

    std::unique_ptr<QnGeObject> Make() const { return std::unique_ptr<QnGeObject>(make()); }
};

inline std::ostream& operator<<(std::ostream& out, const Sample& sample) {
    return out << sample.name;
}

const std::vector<Sample>& AllSamples();

/// Calls every operation of the class, with ordinary and with absurd arguments, and drops the answers.
void CallEverything(QnGeObject& object);

/// Calls every operation that takes a second object. What would change `object` is asked of a clone.
void CallWith(const QnGeObject& object, const QnGeObject& partner);

}  // namespace protocol
