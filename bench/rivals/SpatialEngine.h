// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "support/RandomSets.h"

/// A library at breaking lines at their crossings. Only Run is timed.
class NodingEngine {
public:
    virtual ~NodingEngine() = default;
    virtual std::string GetName() const = 0;

    /// Above this many segments the library takes no part.
    virtual long GetMostSegments() const { return std::numeric_limits<long>::max(); }
    virtual void Load(const std::vector<VertexLine>& lines) = 0;
    virtual void Run() = 0;
    virtual long GetPieceNum() const = 0;
    virtual double GetLength() const = 0;
    virtual void Clear() = 0;
};

/// A library at triangulating points by the empty-circle rule. Only Run is timed.
class NetworkEngine {
public:
    virtual ~NetworkEngine() = default;
    virtual std::string GetName() const = 0;

    /// Above this many points the library takes no part.
    virtual long GetMostPoints() const { return std::numeric_limits<long>::max(); }

    virtual void Load(const std::vector<QnGePoint>& points) = 0;
    virtual void Run() = 0;
    virtual long GetTriangleNum() const = 0;
    virtual void Clear() = 0;
};

enum class BoxWork { INSERT, POINTS, WINDOWS, REMOVE };

/// What the box indexes are given.
struct BoxTask {
    std::vector<QnGeExtent2d> boxes;
    std::vector<QnGePoint> points;
    std::vector<QnGeExtent2d> windows;
    std::vector<long> removal;  ///< the order in which the boxes are taken out
};

/// A library's index of boxes. Each of the four works is timed by itself.
class BoxEngine {
public:
    virtual ~BoxEngine() = default;
    virtual std::string GetName() const = 0;

    /// Whether the index can be added to and taken from after it was built.
    virtual bool IsDynamic() const { return true; }
    virtual void Load(const BoxTask& task) = 0;
    virtual void Insert() = 0;

    /// The answer is how many boxes were found in all, borders included.
    virtual long FindPoints() = 0;
    virtual long FindWindows() = 0;

    /// Takes out every box; the answer is how many were there.
    virtual long Remove() = 0;

    /// Drops the whole index.
    virtual void Clear() = 0;
};

struct SpatialEngines {
    std::vector<std::unique_ptr<NodingEngine>> noders;
    std::vector<std::unique_ptr<NetworkEngine>> networks;
    std::vector<std::unique_ptr<BoxEngine>> boxes;
};

/// The pieces that our library makes of lines when stretches that lie on one another are kept once.
long CountPiecesOnce(const std::vector<VertexLine>& lines);

void AddQuarnSpatial(SpatialEngines& engines);
void AddGeosSpatial(SpatialEngines& engines);
void AddBoostSpatial(SpatialEngines& engines);
void AddCgalSpatial(SpatialEngines& engines);
