// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/Outlines.h"

enum class Operation { UNION, INTERSECTION, DIFFERENCE };

/// A library at boolean work. Only Run is timed: Load brings the outlines into the library's own form before, GetArea
/// and Clear look at the result and drop it after.
class BooleanEngine {
public:
    virtual ~BooleanEngine() = default;
    virtual std::string GetName() const = 0;

    /// How far the area may be from the one that this library finds, as a share of it.
    virtual double GetAreaTolerance() const { return 1e-9; }
    virtual void Load(const OutlinePair& pair) = 0;

    /// Fails  May throw what the library throws.
    virtual void Run(Operation operation) = 0;
    virtual double GetArea() const = 0;
    virtual void Clear() = 0;
};

/// A library at asking where points lie. Only CountInside is timed.
class HitEngine {
public:
    virtual ~HitEngine() = default;
    virtual std::string GetName() const = 0;

    /// Whether the library searches an index of the outline, instead of looking through its edges for each point. The
    /// index is then made by Load or in the warm-up run.
    virtual bool IsPrepared() const { return false; }
    virtual void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) = 0;

    /// How many of the first `count` points lie inside.
    virtual long CountInside(long count) = 0;
};

/// Our own engine comes first; all others are its rivals.
struct Engines {
    std::vector<std::unique_ptr<BooleanEngine>> booleans;
    std::vector<std::unique_ptr<HitEngine>> hits;
};

void AddQuarn(Engines& engines);
void AddGeos(Engines& engines);
void AddBoost(Engines& engines);
void AddCgal(Engines& engines);
void AddClipper(Engines& engines);
