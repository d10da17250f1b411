// SPDX-License-Identifier: Apache-2.0
//
// rivals: the same work with this library and with those that are installed, in one process on the same input.
//
// Prints Markdown tables. Ends with 1 if a result did not agree or a rival was ahead where we mean to lead, so that a
// script can tell; on a busy machine run it again before believing that.

#include <algorithm>
#include <cstdio>

#include "rivals/Machine.h"
#include "rivals/SpatialTables.h"
#include "rivals/Tables.h"

namespace {

template <class List>
void RemoveLeftOut(const Options& options, List& engines) {
    engines.erase(
        std::remove_if(engines.begin(), engines.end(),
                       [&](const auto& engine) {
                           const std::string name = engine->GetName();
                           return options.IsLeftOut(name.substr(0, name.find(' ')));  // with its prepared form
                       }),
        engines.end());
}

Engines MakeEngines(const Options& options) {
    Engines engines;
    AddQuarn(engines);
#ifdef QUARN_HAS_GEOS
    AddGeos(engines);
#endif
#ifdef QUARN_HAS_BOOST
    AddBoost(engines);
#endif
#ifdef QUARN_HAS_CGAL
    AddCgal(engines);
#endif
#ifdef QUARN_HAS_CLIPPER
    AddClipper(engines);
#endif
    RemoveLeftOut(options, engines.booleans);
    RemoveLeftOut(options, engines.hits);
    return engines;
}

SpatialEngines MakeSpatialEngines(const Options& options) {
    SpatialEngines engines;
    AddQuarnSpatial(engines);
#ifdef QUARN_HAS_GEOS
    AddGeosSpatial(engines);
#endif
#ifdef QUARN_HAS_BOOST
    AddBoostSpatial(engines);
#endif
#ifdef QUARN_HAS_CGAL
    AddCgalSpatial(engines);
#endif
    RemoveLeftOut(options, engines.noders);
    RemoveLeftOut(options, engines.networks);
    RemoveLeftOut(options, engines.boxes);
    return engines;
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = ReadOptions(argc, argv);
    PrintMachine();
    const bool isLean = !options.doesMemory || RunMemory(options);  // first, before anything else takes memory
    const Engines engines = MakeEngines(options);
    const bool isFast = !options.doesBooleans || RunBooleans(engines, options);
    const bool isHitting = !options.doesHits || RunHits(engines, options);
    const SpatialEngines spatial = MakeSpatialEngines(options);
    const bool isBreaking = !options.doesNoding || RunNoding(spatial, options);
    const bool isJoining = !options.doesNetworks || RunNetworks(spatial, options);
    const bool isFinding = !options.doesBoxes || RunBoxes(spatial, options);
    return isLean && isFast && isHitting && isBreaking && isJoining && isFinding ? 0 : 1;
}
