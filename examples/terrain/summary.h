// What terrain prints.
#pragma once

#include "terrain/options.h"
#include "terrain/relief.h"

namespace examples {

void printSummary(const Options& options, const Elevation& grid, const SurfaceFit& fit, const Relief& relief,
                  const Stages& stages);

} // namespace examples
